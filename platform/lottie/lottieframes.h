#pragma once

#include <QFutureWatcher>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QSize>

#include <memory>

class LottieAnimation;

/// The rendered frames of one animation at one size. A frame is rendered on a pool thread, one at
/// a time, and kept while CacheBytes last; what does not fit is rendered again when it is due. As
/// an animation loops, dropping the oldest to make room would drop each frame just before it is
/// needed. GUI thread; may be destroyed while a frame is being rendered.
class LottieFrames : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 CacheBytes = 32 * 1024 * 1024;
    static constexpr int LargestSide = 2048; ///< larger ones are drawn from this

    explicit LottieFrames(QObject *parent = nullptr);

    /// Null for none. Drops what was rendered.
    void setAnimation(std::shared_ptr<LottieAnimation> animation);
    const LottieAnimation *animation() const { return m_animation.get(); }
    /// \a size, or as much of it as frames are ever rendered at.
    static QSize bounded(const QSize &size) { return size.boundedTo({LargestSide, LargestSide}); }
    /// In device pixels, bounded(). Drops what was rendered at another size.
    void setPixelSize(const QSize &size);
    QSize pixelSize() const { return m_pixelSize; }

    /// Shows \a frame as soon as it is there: ready() tells, maybe before this returns. While
    /// another is being rendered, the last one that was asked for comes next.
    void show(int frame);
    /// The frame on show: the last one that was ready, of the old size after a change of size.
    QImage current() const { return m_current; }
    /// Gives back the memory; the frame on show stays.
    void trim();

signals:
    void ready();

private:
    void render(int frame);
    void takeRendered();
    void forget();

    std::shared_ptr<LottieAnimation> m_animation;
    QSize m_pixelSize;
    QHash<int, QImage> m_cache;
    qint64 m_cachedBytes = 0;
    QImage m_current;
    QFutureWatcher<QImage> m_watcher;
    int m_rendering = -1;
    int m_wanted = -1;
    bool m_stale = false; ///< what is being rendered is of another animation or size
};
