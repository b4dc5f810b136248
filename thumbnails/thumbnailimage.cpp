#include "thumbnails/thumbnailimage.h"

#include "common/smallpng.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QThread>

#include <algorithm>

namespace {

constexpr int UprightWidth = 146;
constexpr int LandscapeHeight = 83;
/// A strip of a thousand to one would become larger than it is.
constexpr qint64 LongestSide = 4096;
constexpr qint64 MostPixels = 200'000'000;
/// From here on a picture is made smaller while it is read, to keep it out of memory.
constexpr qint64 LargePixels = 16'000'000;
/// A JPEG is made from its blocks at a half, a quarter or an eighth of its size, which is faster.
constexpr int JpegReduction = 4;

/// Runs dry when its thread is asked to end, so that a slow decode ends at its next read. Not a
/// QFile to its readers: they map those into memory, and the process ends when somebody cuts a
/// mapped file short.
class InterruptibleFile : public QIODevice
{
public:
    explicit InterruptibleFile(const QString &path)
        : m_file(path)
    {
        if (m_file.open(ReadOnly | Unbuffered))
            open(ReadOnly);
    }

    qint64 size() const override { return m_file.size(); }
    bool seek(qint64 position) override
    {
        return QIODevice::seek(position) && m_file.seek(position);
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        if (QThread::currentThread()->isInterruptionRequested())
            return -1;
        return m_file.read(data, maxSize);
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QFile m_file;
};

bool paysToReduceWhileReading(const QByteArray &format, qint64 pixels, const QSize &target)
{
    if (format == "jpeg")
        return pixels >= JpegReduction * qint64(target.width()) * target.height();
    return pixels >= LargePixels;
}

QSize sizeIn(const QSize &room, const QSize &picture)
{
    if (room.isEmpty())
        return ThumbnailImage::targetSize(picture);
    const QSize size = picture.scaled(room, Qt::KeepAspectRatio);
    // who made the room from this picture may have rounded the other way
    const QSize rest = room - size;
    return rest.width() <= 1 && rest.height() <= 1 ? room : size.expandedTo(QSize(1, 1));
}

QImage scaledTo(const QSize &target, const QImage &image)
{
    return image.size() == target
        ? image
        : image.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Null for all that is not a small PNG file, which is read from its beginning then.
QImage readSmallPng(QIODevice &file)
{
    if (file.size() > SmallPng::MostBytes || !SmallPng::isPng(file.peek(8)))
        return {};
    const QImage image = SmallPng::read(file.readAll());
    if (image.isNull())
        file.seek(0);
    return image;
}

QImage readyForPixmap(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

namespace ThumbnailImage {

QSize targetSize(const QSize &size)
{
    if (size.isEmpty())
        return {};
    const qint64 width = size.width();
    const qint64 height = size.height();
    if (width <= height)
        return {UprightWidth, int(std::min(height * UprightWidth / width, LongestSide))};
    return {int(std::min(width * LandscapeHeight / height, LongestSide)), LandscapeHeight};
}

QImage load(const QString &path, const QSize &room)
{
    // a pipe of that name would have the worker wait for whoever writes into it
    if (!QFileInfo(path).isFile())
        return {};
    InterruptibleFile file(path);
    if (!file.isOpen())
        return {};
    const QImage small = readSmallPng(file);
    if (!small.isNull())
        return readyForPixmap(scaledTo(sizeIn(room, small.size()), small));

    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);

    const QSize stored = reader.size();
    const qint64 pixels = qint64(stored.width()) * stored.height();
    if (stored.isEmpty() || pixels > MostPixels)
        return {};
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize target = sizeIn(room, turned ? stored.transposed() : stored);
    if (paysToReduceWhileReading(reader.format(), pixels, target))
        reader.setScaledSize(turned ? target.transposed() : target);

    const QImage image = reader.read();
    return image.isNull() ? QImage() : readyForPixmap(scaledTo(target, image));
}

} // namespace ThumbnailImage
