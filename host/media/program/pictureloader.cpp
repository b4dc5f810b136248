#include "host/media/program/pictureloader.h"

#include "host/media/protocol/mediafailure.h"
#include "platform/system/system.h"

#include <QImageReader>

#include <algorithm>

namespace {

constexpr qint64 MaxPixels = 200 * 1000 * 1000;
constexpr int BytesPerPixel = 4;
constexpr int MaxStretch =
    8; // of a long strip, so that its thumbnail does not become a large picture

/// Text and vectors: their size says nothing about the work that they make.
bool isTrusted(const QByteArray &format)
{
    return !format.isEmpty() && !format.startsWith("svg") && format != "pdf" && format != "xpm"
        && format != "xbm";
}

QStringList sidesOf(const QSize &size)
{
    return {QString::number(size.width()), QString::number(size.height())};
}

QSize covering(const QSize &picture, const QSize &cover)
{
    const double width = picture.width();
    const double height = picture.height();
    const double covers = std::max(cover.width() / width, cover.height() / height);
    const double fits = MaxStretch * std::min(cover.width() / width, cover.height() / height);
    const double scale = std::min({1.0, covers, fits});
    return QSize(qRound(width * scale), qRound(height * scale)).expandedTo(QSize(1, 1));
}

} // namespace

QImage loadPicture(QIODevice &device, const QSize &cover, QString *error)
{
    device.seek(0);
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isTrusted(reader.format())) {
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "The picture is broken or of an unknown kind."));
        return QImage();
    }
    const QSize size = reader.size();
    if (size.isEmpty()) {
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "The picture does not say how large it is."));
        return QImage();
    }
    const qint64 pixels = qint64(size.width()) * size.height();
    if (pixels > MaxPixels) {
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "The picture is too large: %1 × %2."), sidesOf(size));
        return QImage();
    }
    const quint64 memoryLeft = System::availablePhysicalMemory();
    if (memoryLeft > 0 && quint64(pixels) * BytesPerPixel > memoryLeft / 2) {
        *error = MediaFailure::pack(
            QT_TRANSLATE_NOOP("Media", "There is not enough memory for a picture of %1 × %2."),
            sidesOf(size));
        return QImage();
    }
    if (!cover.isEmpty()) {
        const bool turned = reader.transformation() & QImageIOHandler::TransformationRotate90;
        reader.setScaledSize(covering(size, turned ? cover.transposed() : cover));
    }
    QImage image = reader.read();
    if (image.isNull())
        *error = reader.errorString();
    return image;
}
