#include "host/media/program/mediatexts.h"

#include <cmath>

namespace {

constexpr int MaxLength = 200;
constexpr double MaxSeconds = 24 * 3600;
constexpr double LongestFraction = 0.5; // from here on cameras show decimals
constexpr double MaxFNumber = 1000;
constexpr double MaxMillimetres = 100000;
constexpr double MaxFrames = 10000;
constexpr qint64 MaxSide = 1000000;
constexpr qint64 Kilo = 1000;
constexpr qint64 Mega = Kilo * Kilo;

/// At most \a decimals, no zeros at the end.
QString number(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    while (text.contains(QLatin1Char('.'))
           && (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.'))))
        text.chop(1);
    return text;
}

bool isBetween(double value, double least, double most)
{
    return std::isfinite(value) && value >= least && value <= most;
}

} // namespace

QString MediaTexts::clean(const QString &text)
{
    QString line;
    const QString part = text.left(8 * MaxLength);
    for (const QChar c : part) {
        if (c.isNull())
            break; // fields of fixed length are filled up with anything
        line += c.isPrint() ? c : QLatin1Char(' ');
    }
    line = line.simplified();
    return line.size() <= MaxLength ? line : line.left(MaxLength) + QChar(0x2026);
}

QString MediaTexts::exposureTime(double seconds)
{
    if (!isBetween(seconds, 1e-6, MaxSeconds))
        return QString();
    if (seconds <= LongestFraction)
        return QStringLiteral("1/%1 s").arg(std::lround(1 / seconds));
    return number(seconds, 1) + QLatin1String(" s");
}

QString MediaTexts::fNumber(double value)
{
    return isBetween(value, 0.1, MaxFNumber) ? QLatin1String("f/") + number(value, 1) : QString();
}

QString MediaTexts::focalLength(double mm)
{
    return isBetween(mm, 0.1, MaxMillimetres) ? number(mm, 1) + QLatin1String(" mm") : QString();
}

QString MediaTexts::frameRate(double rate)
{
    return isBetween(rate, 0.01, MaxFrames) ? number(rate, 2) + QLatin1String(" fps") : QString();
}

QString MediaTexts::bitRate(qint64 bitsPerSecond)
{
    if (bitsPerSecond < Kilo)
        return QString();
    if (bitsPerSecond < Mega)
        return QStringLiteral("%1 kbps").arg(bitsPerSecond / Kilo);
    return number(double(bitsPerSecond) / double(Mega), 1) + QLatin1String(" Mbps");
}

QString MediaTexts::resolution(qint64 width, qint64 height)
{
    if (width <= 0 || height <= 0 || width > MaxSide || height > MaxSide)
        return QString();
    return QStringLiteral("%1 \u00d7 %2").arg(width).arg(height);
}
