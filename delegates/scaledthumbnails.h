#pragma once

#include <QCache>
#include <QImage>
#include <QPixmap>

#include <functional>

/// Thumbnails scaled to the device pixels that they cover, so that scaling smoothly costs once and
/// not at every paint. Bounded by memory; the least recently used goes first.
class ScaledThumbnails
{
public:
    ScaledThumbnails();

    using Source = std::function<QImage()>;
    /// What \a source has in exactly \a deviceSize pixels; its device pixel ratio is 1. Not asked
    /// for as long as \a picture, which tells one from another, is kept in this size.
    QPixmap scaled(qint64 picture, const QSize &deviceSize, const Source &source);

private:
    struct Key
    {
        qint64 picture;
        int width;
        int height;

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.picture == b.picture && a.width == b.width && a.height == b.height;
        }
        friend uint qHash(const Key &key, uint seed = 0)
        {
            return ::qHash(key.picture, seed) ^ (uint(key.width) << 16) ^ uint(key.height);
        }
    };

    QCache<Key, QPixmap> m_cache;
};
