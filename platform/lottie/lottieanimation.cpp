#include "lottieanimation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <rlottie.h>

#include <limits>

namespace {

constexpr qint64 LargestFile = 64 * 1024 * 1024;
constexpr size_t MostFrames = 1000 * 1000;

} // namespace

std::shared_ptr<LottieAnimation> LottieAnimation::load(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > LargestFile || !file.open(QIODevice::ReadOnly))
        return {};
    // read here and not by rlottie, whose file names are not Unicode everywhere
    QByteArray json = file.readAll();
    if (json.startsWith("\xef\xbb\xbf")) // as editors on Windows like it, and the parser does not
        json.remove(0, 3);
    const std::string folder =
        QDir::toNativeSeparators(QFileInfo(path).absolutePath() + QLatin1Char('/')).toStdString();
    constexpr bool shared = false;
    auto animation = rlottie::Animation::loadFromData(json.toStdString(), {}, folder, shared);
    if (!animation || animation->totalFrame() < 1 || animation->totalFrame() > MostFrames
        || !(animation->frameRate() > 0))
        return {};
    return std::shared_ptr<LottieAnimation>(new LottieAnimation(std::move(animation)));
}

LottieAnimation::LottieAnimation(std::unique_ptr<rlottie::Animation> animation)
    : m_animation(std::move(animation))
    , m_frameCount(int(m_animation->totalFrame()))
    , m_framesPerSecond(m_animation->frameRate())
{
    size_t width = 0;
    size_t height = 0;
    m_animation->size(width, height);
    m_size = QSize(int(width), int(height));
}

LottieAnimation::~LottieAnimation() = default;

QImage LottieAnimation::render(int frame, const QSize &pixels)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    rlottie::Surface surface(reinterpret_cast<uint32_t *>(image.bits()), size_t(image.width()),
                             size_t(image.height()), size_t(image.bytesPerLine()));
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_animation->renderSync(size_t(qBound(0, frame, m_frameCount - 1)), surface);
    return image;
}
