// Writes photos and videos with known metadata into the folder that it is given.
#include "mediafixtures.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>

#include <exiv2/exiv2.hpp>

#include <iostream>
#include <stdexcept>

namespace {

QByteArray jpeg(const QSize &size, const QColor &color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG");
    return bytes;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error(path.toStdString());
}

void tagFull(const QString &path)
{
    write(path, jpeg(QSize(400, 300), Qt::red));
    const auto photo = Exiv2::ImageFactory::open(path.toStdString());
    auto &exif = photo->exifData();
    exif["Exif.Image.Make"] = "Lumenar";
    exif["Exif.Image.Model"] = "LX-500";
    exif["Exif.Image.Software"] = "Firmware 2.14";
    exif["Exif.Image.Orientation"] = uint16_t(6);
    exif["Exif.Photo.ISOSpeedRatings"] = uint16_t(100);
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 250);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational(28, 10);
    exif["Exif.Photo.FocalLength"] = Exiv2::Rational(50, 1);
    exif["Exif.Photo.WhiteBalance"] = uint16_t(0);
    auto &xmp = photo->xmpData();
    xmp["Xmp.dc.subject"] = "Mountains";
    xmp["Xmp.dc.subject"] = "Uncle Bob";
    xmp["Xmp.dc.subject"] = "group_photo";
    Exiv2::XmpArrayValue path2(Exiv2::xmpBag);
    path2.read("Places|Sea");
    xmp.add(Exiv2::XmpKey("Xmp.lr.hierarchicalSubject"), &path2);
    Exiv2::StringValue keyword("Dog");
    photo->iptcData().add(Exiv2::IptcKey("Iptc.Application2.Keywords"), &keyword);
    photo->writeMetadata();
}

void tagOddly(const QString &path)
{
    write(path, jpeg(QSize(40, 30), Qt::red));
    const auto photo = Exiv2::ImageFactory::open(path.toStdString());
    auto &exif = photo->exifData();
    exif["Exif.Image.Make"] = std::string(20000, 'x');
    exif["Exif.Image.Model"] = "  two\nlines\x01\x02 ";
    exif["Exif.Image.Software"] = "";
    exif["Exif.Photo.ISOSpeedRatings"] = uint16_t(0);
    exif["Exif.Photo.ExposureTime"] = Exiv2::Rational(1, 0);
    exif["Exif.Photo.FNumber"] = Exiv2::Rational(0, 0);
    exif["Exif.Photo.FocalLength"] = Exiv2::Rational(-50, 1);
    // what stands in when there are no plain numbers
    exif["Exif.Photo.ShutterSpeedValue"] = Exiv2::Rational(-2, 1);
    exif["Exif.Photo.ApertureValue"] = Exiv2::Rational(4, 1);
    photo->writeMetadata();
}

/// A raw file as far as it matters: a directory of tags that says where a preview lies, and that it
/// is to be turned.
void writeRaw(const QString &path)
{
    const QByteArray preview = jpeg(QSize(800, 600), Qt::green);
    constexpr quint16 Short = 3;
    constexpr quint16 Long = 4;
    const struct
    {
        quint16 tag;
        quint16 type;
        quint32 value;
    } entries[] = {{0x0100, Long, 4000},
                   {0x0101, Long, 3000},
                   {0x0112, Short, 6},
                   {0x0201, Long, 128},
                   {0x0202, Long, quint32(preview.size())}};
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("II*\0", 4);
    out << quint32(8) << quint16(std::size(entries));
    for (const auto &entry : entries)
        out << entry.tag << entry.type << quint32(1) << entry.value;
    out << quint32(0);
    bytes.append(QByteArray(128 - bytes.size(), 0));
    write(path, bytes + preview);
}

/// A photo of which nothing is left but its stamp.
void writeWreck(const QString &path)
{
    write(path, jpeg(QSize(400, 300), Qt::red));
    const auto photo = Exiv2::ImageFactory::open(path.toStdString());
    const QByteArray stamp = jpeg(QSize(160, 120), Qt::green);
    Exiv2::ExifThumb(photo->exifData())
        .setJpegThumbnail(reinterpret_cast<const Exiv2::byte *>(stamp.constData()), stamp.size());
    photo->writeMetadata();
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        throw std::runtime_error(path.toStdString());
    QByteArray bytes = file.readAll();
    const int end = bytes.indexOf(stamp) + stamp.size();
    file.seek(end);
    file.write(QByteArray(bytes.size() - end, 0));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2)
        return EXIT_FAILURE;
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/');
    try {
        tagFull(folder + QStringLiteral("full.jpg"));
        tagOddly(folder + QStringLiteral("odd.jpg"));
        writeRaw(folder + QStringLiteral("raw.dng"));
        writeWreck(folder + QStringLiteral("wreck.jpg"));
        writeVideo(folder + QStringLiteral("video.mp4"), 0);
        writeVideo(folder + QStringLiteral("turned.mp4"), 90);
    } catch (const std::exception &failure) {
        std::cerr << failure.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
