#pragma once

#include <QImage>

/// What is around all places in a picture of this size of which \a holds.
template <typename Predicate>
QRect around(const QSize &size, Predicate holds)
{
    QRect rect;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (holds(x, y))
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

/// What is around all of a picture's pixels of which \a holds.
template <typename Predicate>
QRect around(const QImage &image, Predicate holds)
{
    return around(image.size(), [&](int x, int y) { return holds(image.pixel(x, y)); });
}

/// What is around all pixels in which two pictures of one size differ.
inline QRect difference(const QImage &one, const QImage &other)
{
    return around(one.size(), [&](int x, int y) { return one.pixel(x, y) != other.pixel(x, y); });
}
