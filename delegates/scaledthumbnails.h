#pragma once

#include "common/jobthread.h"

#include <QCache>
#include <QImage>
#include <QPixmap>

#include <functional>
#include <mutex>
#include <vector>

/// Thumbnails scaled to the device pixels that they cover, so that scaling smoothly costs once and
/// not at every paint. Bounded by memory; the least recently used goes first. GUI thread.
class ScaledThumbnails
{
public:
    ScaledThumbnails();
    Q_DISABLE_COPY_MOVE(ScaledThumbnails)

    using Source = std::function<QImage()>;
    /// What \a source has in exactly \a deviceSize pixels; its device pixel ratio is 1. Not asked
    /// for as long as \a picture, which tells one from another, is kept in this size.
    QPixmap scaled(qint64 picture, const QSize &deviceSize, const Source &source);
    /// Scales \a image on a thread of its own, for scaled() to have it ready.
    void prepare(qint64 picture, const QSize &deviceSize, const QImage &image);

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

    struct Prepared
    {
        Key key;
        QImage image;
    };

    const QPixmap *find(const Key &key);
    QPixmap keep(const Key &key, const QImage &image);

    QCache<Key, QPixmap> m_cache;
    std::mutex m_preparedLock;
    std::vector<Prepared> m_prepared;
    int m_waiting = 0;  ///< prepared or about to be
    JobThread m_thread; // the last: it is joined before what its jobs write to goes
};
