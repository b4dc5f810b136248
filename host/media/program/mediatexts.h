#pragma once

#include <QString>

/// Numbers and texts of a file as people read them. A number that cannot be gives an empty text.
namespace MediaTexts {

/// One line without control characters, of bearable length: what stands in a file may be anything.
QString clean(const QString &text);

QString exposureTime(double seconds);            ///< "1/250 s", "2.5 s"
QString fNumber(double number);                  ///< "f/2.8"
QString focalLength(double mm);                  ///< "50 mm"
QString frameRate(double rate);                  ///< "29.97 fps"
QString bitRate(qint64 bitsPerSecond);           ///< "12.4 Mbps", "850 kbps"
QString resolution(qint64 width, qint64 height); ///< "4000 × 3000"

} // namespace MediaTexts
