#pragma once

#include <QIODevice>
#include <QImage>
#include <QSize>

/// The pictures that cameras and programs put into files beside the real one.
namespace EmbeddedPreview {

/// Files that end in \a extension hold what a sensor has seen.
bool isRaw(const QString &extension);

/// The smallest preview in \a file that covers \a cover, or else the largest; turned as the file
/// says. Null when there is none; then \a error says why.
QImage load(QIODevice &file, const QSize &cover, QString *error);

} // namespace EmbeddedPreview
