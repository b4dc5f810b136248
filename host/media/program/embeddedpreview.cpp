#include "host/media/program/embeddedpreview.h"

#include "host/media/program/exivfile.h"
#include "host/media/program/pictureloader.h"
#include "host/media/protocol/mediafailure.h"

#include <QBuffer>
#include <QImageReader>
#include <QSet>
#include <QTransform>

#include <exiv2/exiv2.hpp>

#include <algorithm>

namespace {

constexpr int MaxTries = 4;

const QSet<QString> &rawExtensions()
{
    static const QSet<QString> s_extensions = [] {
        const QString all = QStringLiteral(
            "raw dng cr2 cr3 crw nef nrw arw srf sr2 orf rw2 raf pef ptx srw x3f 3fr fff iiq mrw "
            "mef mos erf kdc dcr k25 rwl gpr dcs insp");
        const QStringList words = all.split(QLatin1Char(' '));
        return QSet<QString>(words.begin(), words.end());
    }();
    return s_extensions;
}

bool covers(const Exiv2::PreviewProperties &preview, const QSize &cover)
{
    return !cover.isEmpty() && int(preview.width_) >= cover.width()
        && int(preview.height_) >= cover.height();
}

/// The EXIF orientations, 1 to 8.
QImage turned(const QImage &image, int orientation)
{
    constexpr int Quarter = 90;
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return image.transformed(QTransform().rotate(Quarter)).mirrored(true, false);
    case 6:
        return image.transformed(QTransform().rotate(Quarter));
    case 7:
        return image.transformed(QTransform().rotate(Quarter)).mirrored(false, true);
    case 8:
        return image.transformed(QTransform().rotate(-Quarter));
    default:
        return image;
    }
}

int orientationOf(const Exiv2::ExifData &exif)
{
    const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    return found == exif.end() || found->count() == 0 ? 1 : int(found->toLong());
}

/// Best first.
Exiv2::PreviewPropertiesList inOrder(Exiv2::PreviewPropertiesList previews, const QSize &cover)
{
    // They come smallest first, and among those that do not cover the largest is best.
    const auto covering = std::stable_partition(
        previews.begin(), previews.end(),
        [&cover](const auto &preview) { return covers(preview, cover); });
    std::reverse(covering, previews.end());
    return previews;
}

} // namespace

bool EmbeddedPreview::isRaw(const QString &extension)
{
    return rawExtensions().contains(extension.toLower());
}

QImage EmbeddedPreview::load(QIODevice &file, const QSize &cover, QString *error)
{
    *error = MediaFailure::pack(QT_TRANSLATE_NOOP("Media", "There is no preview in the file."));
    try {
        const auto photo = ExivFile::readPhoto(file);
        const int orientation = orientationOf(photo->exifData());
        const Exiv2::PreviewManager previews(*photo);
        const auto candidates = inOrder(previews.getPreviewProperties(), cover);
        for (size_t i = 0; i < std::min<size_t>(candidates.size(), MaxTries); ++i) {
            const Exiv2::PreviewImage preview = previews.getPreviewImage(candidates.at(i));
            QByteArray bytes = QByteArray::fromRawData(
                reinterpret_cast<const char *>(preview.pData()), int(preview.size()));
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::ReadOnly);
            const bool turnsItself = QImageReader(&buffer).transformation()
                != QImageIOHandler::TransformationNone;
            buffer.seek(0);
            const bool swaps = !turnsItself && orientation > 4;
            const QImage image = loadPicture(buffer, swaps ? cover.transposed() : cover, error);
            if (!image.isNull())
                return turnsItself ? image : turned(image, orientation);
        }
    } catch (const Exiv2::AnyError &) {
        // no kind of file that has previews, or a broken one
    }
    return QImage();
}
