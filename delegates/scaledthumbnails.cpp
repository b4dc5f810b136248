#include "delegates/scaledthumbnails.h"

namespace {

constexpr int MostKilobytes = 32 * 1024; // a few pages of cards on a 2x screen
// Averaging every pixel of a large picture takes longer than the user waits for a page: first take
// every n-th pixel down to this many per target pixel and side.
constexpr int SamplesPerSide = 3;

QImage toSize(QImage image, const QSize &size)
{
    image.setDevicePixelRatio(1.0);
    if (image.size() == size)
        return image;
    const QSize enough = size * SamplesPerSide;
    if (image.width() > enough.width() && image.height() > enough.height())
        image = image.scaled(enough, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image.hasAlphaChannel() ? image : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

ScaledThumbnails::ScaledThumbnails()
    : m_cache(MostKilobytes)
{
}

QPixmap ScaledThumbnails::scaled(qint64 picture, const QSize &deviceSize, const Source &source)
{
    const Key key{picture, deviceSize.width(), deviceSize.height()};
    if (const QPixmap *cached = m_cache.object(key))
        return *cached;

    const QPixmap result = QPixmap::fromImage(toSize(source(), deviceSize));
    const int kilobytes = 1 + deviceSize.width() * deviceSize.height() / 256;
    m_cache.insert(key, new QPixmap(result), kilobytes);
    return result;
}
