#include "lottieframes.h"

#include "lottieanimation.h"

#include <QtConcurrent/QtConcurrentRun>

#include <utility>

namespace {
constexpr int None = -1;
}

LottieFrames::LottieFrames(QObject *parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFutureWatcher<QImage>::finished, this, &LottieFrames::takeRendered);
}

void LottieFrames::setAnimation(std::shared_ptr<LottieAnimation> animation)
{
    m_animation = std::move(animation);
    forget();
    m_current = QImage();
}

void LottieFrames::setPixelSize(const QSize &size)
{
    if (size == m_pixelSize)
        return;
    m_pixelSize = size;
    forget();
}

void LottieFrames::forget()
{
    // the render under way owns all that it needs; only its picture is not wanted any more
    m_stale = m_rendering != None;
    m_wanted = None;
    trim();
}

void LottieFrames::trim()
{
    m_cache.clear();
    m_cachedBytes = 0;
}

void LottieFrames::show(int frame)
{
    if (!m_animation || m_pixelSize.isEmpty())
        return;
    const auto found = m_cache.constFind(frame);
    if (found != m_cache.constEnd()) {
        m_wanted = None;
        m_current = *found;
        emit ready();
    } else if (m_rendering == None) {
        render(frame);
    } else {
        m_wanted = frame == m_rendering && !m_stale ? None : frame;
    }
}

void LottieFrames::render(int frame)
{
    m_rendering = frame;
    m_watcher.setFuture(QtConcurrent::run([animation = m_animation, frame, size = m_pixelSize] {
        return animation->render(frame, size);
    }));
}

void LottieFrames::takeRendered()
{
    const int frame = std::exchange(m_rendering, None);
    const bool stale = std::exchange(m_stale, false);
    // there is no result when the render has thrown
    const QImage image = m_watcher.future().resultCount() > 0 ? m_watcher.result() : QImage();
    if (!stale && !image.isNull()) {
        if (m_cachedBytes + image.sizeInBytes() <= CacheBytes) {
            m_cache.insert(frame, image);
            m_cachedBytes += image.sizeInBytes();
        }
        m_current = image;
        emit ready();
    }
    if (m_wanted != None && m_rendering == None)
        show(std::exchange(m_wanted, None));
}
