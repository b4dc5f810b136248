#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QRect>

#include <cmath>

/// Contrast as the accessibility guidelines compute it, read off rendered pictures. Rectangles are
/// in units; the picture knows how many pixels a unit has.
namespace Contrast {

inline double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF())
        + 0.0722 * part(colour.blueF());
}

inline double between(const QColor &left, const QColor &right)
{
    const double a = luminance(left) + 0.05;
    const double b = luminance(right) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

inline QRect pixels(const QImage &picture, const QRect &rect)
{
    const qreal scale = picture.devicePixelRatio();
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale)
               .toRect()
        & picture.rect();
}

/// The colour of most pixels in \a rect outside of \a hole.
inline QRgb ground(const QImage &picture, const QRect &rect, const QRect &hole = {})
{
    const QRect area = pixels(picture, rect);
    const QRect inner = hole.isNull() ? QRect() : pixels(picture, hole);
    QHash<QRgb, int> counts;
    QRgb best = 0;
    int most = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (inner.contains(x, y))
                continue;
            const QRgb colour = picture.pixel(x, y);
            const int count = ++counts[colour];
            if (count > most) {
                most = count;
                best = colour;
            }
        }
    }
    return best;
}

/// How far what is drawn in \a rect stands out from \a behind: its strongest colour, of which there
/// must be some pixels, so that no stray one counts.
inline double reached(const QImage &picture, const QRect &rect, QRgb behind)
{
    constexpr int FewPixels = 6;
    const QRect area = pixels(picture, rect);
    QVector<double> all;
    QHash<QRgb, double> known;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb colour = picture.pixel(x, y);
            auto it = known.find(colour);
            if (it == known.end())
                it = known.insert(colour, between(colour, behind));
            all.append(*it);
        }
    }
    if (all.size() <= FewPixels)
        return 1;
    std::nth_element(all.begin(), all.begin() + FewPixels, all.end(), std::greater<double>());
    return all.at(FewPixels);
}

/// The same for what differs between two pictures: a ring, an outline.
inline double change(const QImage &before, const QImage &after, const QRect &rect)
{
    const QRect area = pixels(before, rect);
    double best = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            best = qMax(best, between(before.pixel(x, y), after.pixel(x, y)));
    }
    return best;
}

} // namespace Contrast
