#include "photometadata.h"

#include "photolist.h"

#include <QMutex>

#include <exiv2/exiv2.hpp>

namespace {

struct Camera
{
    const char *make;
    const char *model;
    const char *software;
};

const Camera s_cameras[] = {
    {"Lumenar", "LX-500", "Lumenar Firmware 2.14"},
    {"Heliora", "Compact 9", "Heliora 1.0.7"},
    {"Lumenar", "LX-500", "Darkroom Desk 6.2"},
};

struct Exposure
{
    quint16 iso;
    Exiv2::Rational time;
    Exiv2::Rational aperture;
    Exiv2::Rational focalLength;
    quint16 manualWhiteBalance;
};

const Exposure s_exposures[] = {
    {100, {1, 500}, {8, 1}, {24, 1}, 0},   {200, {1, 250}, {56, 10}, {35, 1}, 0},
    {64, {1, 1000}, {4, 1}, {50, 1}, 0},   {400, {1, 125}, {28, 10}, {85, 1}, 1},
    {800, {1, 60}, {2, 1}, {35, 1}, 0},    {3200, {15, 1}, {18, 10}, {16, 1}, 1},
    {1600, {1, 30}, {22, 10}, {28, 1}, 0}, {160, {1, 2000}, {63, 10}, {200, 1}, 0},
};

const Exposure &exposureOf(const Photo &photo)
{
    const int hour = photo.file.time.time().hour();
    if (hour >= 19)
        return s_exposures[4 + photo.variant % 3];
    return s_exposures[(photo.variant + photo.file.path.size() + hour) % 4];
}

} // namespace

QByteArray withPhotoMetadata(const QByteArray &jpeg, const Photo &photo,
                             const QByteArray &thumbnail)
{
    static QMutex s_mutex; // the XMP part of the library is not for several threads
    const QMutexLocker lock(&s_mutex);

    auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(jpeg.constData()),
                                           jpeg.size());
    const Camera &camera = s_cameras[photo.camera];
    const Exposure &exposure = exposureOf(photo);
    const std::string taken =
        photo.file.time.toString(QStringLiteral("yyyy:MM:dd HH:mm:ss")).toStdString();
    const QSize stored = photo.sideways ? photo.size.transposed() : photo.size;

    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = camera.make;
    exif["Exif.Image.Model"] = camera.model;
    exif["Exif.Image.Software"] = camera.software;
    exif["Exif.Image.Orientation"] = quint16(photo.sideways ? 6 : 1);
    exif["Exif.Image.DateTime"] = taken;
    exif["Exif.Photo.DateTimeOriginal"] = taken;
    exif["Exif.Photo.DateTimeDigitized"] = taken;
    exif["Exif.Photo.ISOSpeedRatings"] = exposure.iso;
    exif["Exif.Photo.ExposureTime"] = exposure.time;
    exif["Exif.Photo.FNumber"] = exposure.aperture;
    exif["Exif.Photo.FocalLength"] = exposure.focalLength;
    exif["Exif.Photo.WhiteBalance"] = exposure.manualWhiteBalance;
    exif["Exif.Photo.PixelXDimension"] = quint32(stored.width());
    exif["Exif.Photo.PixelYDimension"] = quint32(stored.height());
    if (!thumbnail.isEmpty())
        Exiv2::ExifThumb(exif).setJpegThumbnail(
            reinterpret_cast<const Exiv2::byte *>(thumbnail.constData()), thumbnail.size());

    Exiv2::XmpData xmp;
    Exiv2::IptcData iptc;
    for (const QString &scene : photo.scenes) {
        xmp["Xmp.dc.subject"] = scene.toStdString();
        Exiv2::StringValue keyword(scene.toStdString());
        iptc.add(Exiv2::IptcKey("Iptc.Application2.Keywords"), &keyword);
    }
    image->setExifData(exif);
    image->setXmpData(xmp);
    image->setIptcData(iptc);
    image->writeMetadata();

    Exiv2::BasicIo &io = image->io();
    io.open();
    QByteArray content(int(io.size()), Qt::Uninitialized);
    io.read(reinterpret_cast<Exiv2::byte *>(content.data()), content.size());
    return content;
}
