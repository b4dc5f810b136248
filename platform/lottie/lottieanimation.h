#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <mutex>

namespace rlottie {
class Animation;
}

/// One loaded Lottie file. Immutable but for rlottie's own working state, which is locked: frames
/// may be rendered from any thread, one at a time.
class LottieAnimation
{
public:
    /// Null when \a path is missing, unreadable or not an animation.
    static std::shared_ptr<LottieAnimation> load(const QString &path);
    ~LottieAnimation();

    int frameCount() const { return m_frameCount; }
    double framesPerSecond() const { return m_framesPerSecond; }
    double durationMs() const { return m_frameCount * 1000.0 / m_framesPerSecond; }
    QSize size() const { return m_size; }

    /// Premultiplied, \a pixels large, the drawing fitted into its middle; null when the memory
    /// for it cannot be had.
    QImage render(int frame, const QSize &pixels);

private:
    explicit LottieAnimation(std::unique_ptr<rlottie::Animation> animation);

    std::mutex m_mutex; // race detectors see through it and not through Qt's
    std::unique_ptr<rlottie::Animation> m_animation;
    int m_frameCount = 0;
    double m_framesPerSecond = 0;
    QSize m_size;
};
