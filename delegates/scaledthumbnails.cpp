#include "delegates/scaledthumbnails.h"

#include <utility>

namespace {

constexpr int MostKilobytes = 64 * 1024; // some pages of cards on a 2x screen
// Averaging every pixel of a large picture takes longer than the user waits for a page: first take
// every n-th pixel down to this many per target pixel and side.
constexpr int SamplesPerSide = 3;
constexpr int MostWaiting = 32; // pictures that are as large as they came

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
    const QPixmap *known = find(key);
    return known ? *known : keep(key, toSize(source(), deviceSize));
}

void ScaledThumbnails::prepare(qint64 picture, const QSize &deviceSize, const QImage &image)
{
    const Key key{picture, deviceSize.width(), deviceSize.height()};
    if (deviceSize.isEmpty() || image.isNull() || find(key) || m_waiting >= MostWaiting)
        return;
    ++m_waiting;
    m_thread.add([this, key, deviceSize, image] {
        QImage scaled = toSize(image, deviceSize);
        const std::lock_guard<std::mutex> lock(m_preparedLock);
        m_prepared.push_back({key, std::move(scaled)});
    });
}

const QPixmap *ScaledThumbnails::find(const Key &key)
{
    if (const QPixmap *known = m_cache.object(key))
        return known;
    if (m_waiting == 0)
        return nullptr;
    std::vector<Prepared> prepared;
    {
        const std::lock_guard<std::mutex> lock(m_preparedLock);
        prepared.swap(m_prepared);
    }
    m_waiting -= int(prepared.size());
    for (const Prepared &one : prepared)
        keep(one.key, one.image);
    return m_cache.object(key);
}

QPixmap ScaledThumbnails::keep(const Key &key, const QImage &image)
{
    const QPixmap result = QPixmap::fromImage(image);
    if (!result.isNull())
        m_cache.insert(key, new QPixmap(result), 1 + key.width * key.height / 256);
    return result;
}
