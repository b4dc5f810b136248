#include "delegates/scaledthumbnails.h"

#include <QImage>

namespace {

constexpr int MostKilobytes = 32 * 1024; // a few pages of cards on a 2x screen
// Averaging every pixel of a large picture takes longer than the user waits for a page: first take
// every n-th pixel down to this many per target pixel and side.
constexpr int SamplesPerSide = 3;

} // namespace

ScaledThumbnails::ScaledThumbnails()
    : m_cache(MostKilobytes)
{
}

QPixmap ScaledThumbnails::scaled(const QPixmap &pixmap, const QSize &deviceSize)
{
    if (pixmap.size() == deviceSize && qFuzzyCompare(pixmap.devicePixelRatio(), 1.0))
        return pixmap;
    const Key key{pixmap.cacheKey(), deviceSize.width(), deviceSize.height()};
    if (const QPixmap *cached = m_cache.object(key))
        return *cached;

    QImage image = pixmap.toImage();
    image.setDevicePixelRatio(1.0);
    const QSize enough = deviceSize * SamplesPerSide;
    if (image.width() > enough.width() && image.height() > enough.height())
        image = image.scaled(enough, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    image = image.scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (!image.hasAlphaChannel())
        image = image.convertToFormat(QImage::Format_RGB32);

    const QPixmap result = QPixmap::fromImage(image);
    const int kilobytes = 1 + deviceSize.width() * deviceSize.height() / 256;
    m_cache.insert(key, new QPixmap(result), kilobytes);
    return result;
}
