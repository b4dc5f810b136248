#include "host/media/program/videoframe.h"

#include "host/media/program/videofile.h"
#include "host/media/protocol/mediafailure.h"

#include <libffmpegthumbnailer/videothumbnailerc.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

constexpr int SeekPercent = 10;
constexpr int BytesPerPixel = 3;

/// The longer side of a picture of \a size that covers \a cover.
int longSide(const QSize &size, const QSize &cover)
{
    double scale = 1;
    if (!cover.isEmpty()) {
        const double covers = std::max(double(cover.width()) / size.width(),
                                       double(cover.height()) / size.height());
        scale = std::min(1.0, covers);
    }
    return std::max(2, qRound(std::max(size.width(), size.height()) * scale));
}

QImage frameAt(qint64 position, QIODevice &file, const QString &extension, int side, QString *error)
{
    VideoFile video(file);
    if (!video.openHead(extension, error) || (position > 0 && !video.seek(position)))
        return QImage();
    const std::unique_ptr<video_thumbnailer, decltype(&video_thumbnailer_destroy)> thumbnailer(
        video_thumbnailer_create(), &video_thumbnailer_destroy);
    const std::unique_ptr<image_data, decltype(&video_thumbnailer_destroy_image_data)> frame(
        video_thumbnailer_create_image_data(), &video_thumbnailer_destroy_image_data);
    video_thumbnailer_set_size(thumbnailer.get(), side, side);
    thumbnailer->thumbnail_image_type = Rgb;
    thumbnailer->av_format_context = video.context();
    // Nothing of this name is opened: there is a context. But the library does not seek in it: when
    // that fails it begins again with a context that is used up, and crashes.
    if (video_thumbnailer_generate_thumbnail_to_buffer(thumbnailer.get(), "-", frame.get()) != 0)
        return QImage();
    const int width = frame->image_data_width;
    const int height = frame->image_data_height;
    if (width <= 0 || height <= 0
        || qint64(width) * height * BytesPerPixel > frame->image_data_size)
        return QImage();
    QImage image(width, height, QImage::Format_RGB888);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), frame->image_data_ptr + qptrdiff(y) * width * BytesPerPixel,
                    size_t(width) * BytesPerPixel);
    return image;
}

} // namespace

QImage loadVideoFrame(QIODevice &file, const QString &extension, const QSize &cover, QString *error)
{
    qint64 position = 0;
    int side = 0;
    {
        VideoFile video(file);
        if (!video.open(extension, error))
            return QImage();
        position = video.duration() / 100 * SeekPercent;
        side = longSide(video.size(), cover);
    }
    QImage image = frameAt(position, file, extension, side, error);
    if (image.isNull() && position > 0)
        image = frameAt(0, file, extension, side, error);
    if (!image.isNull())
        error->clear();
    else if (error->isEmpty())
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "No frame of the video can be decoded."));
    return image;
}
