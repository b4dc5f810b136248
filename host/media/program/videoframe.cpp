#include "host/media/program/videoframe.h"

#include "host/media/program/videofile.h"

#include <QCoreApplication>

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

} // namespace

QImage loadVideoFrame(QIODevice &file, const QString &extension, const QSize &cover, QString *error)
{
    QSize size;
    {
        VideoFile whole(file);
        if (!whole.open(extension, error))
            return QImage();
        size = whole.size();
    }
    VideoFile video(file);
    if (!video.openHead(extension, error))
        return QImage();
    *error = QCoreApplication::translate("VideoFrame", "No frame of the video can be decoded.");
    const std::unique_ptr<video_thumbnailer, decltype(&video_thumbnailer_destroy)> thumbnailer(
        video_thumbnailer_create(), &video_thumbnailer_destroy);
    const std::unique_ptr<image_data, decltype(&video_thumbnailer_destroy_image_data)> frame(
        video_thumbnailer_create_image_data(), &video_thumbnailer_destroy_image_data);
    const int side = longSide(size, cover);
    video_thumbnailer_set_size(thumbnailer.get(), side, side);
    thumbnailer->seek_percentage = SeekPercent;
    thumbnailer->thumbnail_image_type = Rgb;
    thumbnailer->av_format_context = video.context();
    // the name is not opened: there is a context
    if (video_thumbnailer_generate_thumbnail_to_buffer(thumbnailer.get(), "video", frame.get())
        != 0)
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
    error->clear();
    return image;
}
