#include "photolist.h"

#include "photometadata.h"
#include "scenes/scenes.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QTransform>

#include <stdexcept>

namespace {

enum Shape { Classic, ClassicLarge, FourThirds, FourThirdsLarge, Upright, Square, Panorama, Small };

QSize sizeOf(Shape shape)
{
    switch (shape) {
    case Classic:
        return {2400, 1600};
    case ClassicLarge:
        return {4236, 2824};
    case FourThirds:
        return {2304, 1728};
    case FourThirdsLarge:
        return {4000, 3000};
    case Upright:
        return {1600, 2400};
    case Square:
        return {1800, 1800};
    case Panorama:
        return {4800, 1440};
    case Small:
        return {1500, 1000};
    }
    return {};
}

enum Trait { Plain = 0, Gone = 1, Damaged = 2, Sideways = 4, Preview = 8 };

struct Entry
{
    const char *path;
    Photo::Motif motif;
    int variant;
    Shape shape;
    const char *scenes;
    int traits;
};

using namespace Scenes;

// In the order in which they were taken. A folder is a camera's; the first letters are its habit.
const Entry s_entries[] = {
    {"DCIM/100QUAR_/QUA_0001.JPG", mountains, 0, Classic, "mountain", Preview},
    {"DCIM/100QUAR_/QUA_0002.JPG", mountains, 1, ClassicLarge, "mountain", Preview},
    {"DCIM/100QUAR_/QUA_0003.JPG", forest, 2, Classic, "mountain", Gone},
    {"DCIM/100QUAR_/QUA_0004.JPG", mountains, 7, FourThirds, "mountain,aerial", Plain},
    {"DCIM/100QUAR_/QUA_0005.JPG", bird, 0, Classic, "pet", Preview},
    {"DCIM/100QUAR_/QUA_0006.JPG", silhouettes, 0, Classic, "mountain,sports", Gone | Preview},
    {"DCIM/100QUAR_/QUA_0007.JPG", mountains, 3, Classic, "mountain", Plain},
    {"DCIM/100QUAR_/QUA_0008.JPG", flower, 0, FourThirds, "bouquet", Gone},
    {"DCIM/100QUAR_/QUA_0009.JPG", hills, 0, Classic, "mountain", Preview},
    {"DCIM/100QUAR_/QUA_0010.JPG", coffee, 0, Classic, "food", Plain},
    {"DCIM/100QUAR_/QUA_0011.JPG", portrait, 0, Upright, "selfie", Sideways | Preview},
    {"DCIM/100QUAR_/QUA_0012.JPG", nightSky, 0, Classic, "mountain", Gone | Preview},
    {"DCIM/100QUAR_/QUA_0013.JPG", balloons, 0, ClassicLarge, "aerial", Preview},
    {"DCIM/100QUAR_/QUA_0014.JPG", hills, 2, Classic, "mountain", Plain},
    {"DCIM/100QUAR_/QUA_0015.JPG", mountains, 5, Classic, "mountain", Gone},
    {"DCIM/100QUAR_/QUA_0016.JPG", forest, 1, FourThirds, "mountain", Preview},
    {"DCIM/100QUAR_/QUA_0017.JPG", dog, 0, Classic, "pet", Plain},
    {"DCIM/100QUAR_/QUA_0018.JPG", mountains, 2, Panorama, "mountain", Plain},
    {"DCIM/100QUAR_/QUA_0019.JPG", hills, 5, Classic, "mountain", Damaged | Preview},
    {"DCIM/100QUAR_/QUA_0020.JPG", nightSky, 1, Classic, "mountain", Preview},

    {"DCIM/101QUAR_/DSC02101.JPG", sea, 0, Classic, "beach", Preview},
    {"DCIM/101QUAR_/DSC02102.JPG", beach, 0, FourThirdsLarge, "beach", Preview},
    {"DCIM/101QUAR_/DSC02103.JPG", sea, 1, Classic, "beach,sports", Plain},
    {"DCIM/101QUAR_/DSC02104.JPG", silhouettes, 2, Classic, "child,birthday", Preview},
    {"DCIM/101QUAR_/DSC02105.JPG", citrus, 0, FourThirds, "food", Gone},
    {"DCIM/101QUAR_/DSC02106.JPG", beach, 2, Classic, "beach", Plain},
    {"DCIM/101QUAR_/DSC02107.JPG", group, 0, Classic, "group_photo", Preview},
    {"DCIM/101QUAR_/DSC02108.JPG", sea, 5, Classic, "beach", Gone | Preview},
    {"DCIM/101QUAR_/DSC02109.JPG", cat, 1, Classic, "pet", Preview},
    {"DCIM/101QUAR_/DSC02110.JPG", beach, 1, Classic, "beach", Plain},
    {"DCIM/101QUAR_/DSC02111.JPG", sea, 3, Classic, "beach", Gone},
    {"DCIM/101QUAR_/DSC02112.JPG", pizza, 0, Square, "food,gathering", Plain},
    {"DCIM/101QUAR_/DSC02113.JPG", sea, 2, FourThirds, "beach", Preview},
    {"DCIM/101QUAR_/DSC02114.JPG", portrait, 1, FourThirds, "selfie", Plain},
    {"DCIM/101QUAR_/DSC02115.JPG", sea, 4, Classic, "beach", Gone | Preview},
    {"DCIM/101QUAR_/DSC02116.JPG", silhouettes, 1, Classic, "beach,wedding", Plain},

    {"DCIM/102QUAR_/QUA_0201.JPG", skyline, 0, ClassicLarge, "city_street,aerial", Preview},
    {"DCIM/102QUAR_/QUA_0202.JPG", street, 2, Classic, "city_street", Preview},
    {"DCIM/102QUAR_/QUA_0203.JPG", ramen, 0, Classic, "food", Gone},
    {"DCIM/102QUAR_/QUA_0204.JPG", street, 1, Classic, "city_street", Preview},
    {"DCIM/102QUAR_/QUA_0205.JPG", skyline, 1, Classic, "city_street", Plain},
    {"DCIM/102QUAR_/QUA_0206.JPG", portrait, 4, Classic, "concert", Gone | Preview},
    {"DCIM/102QUAR_/QUA_0207.JPG", street, 0, Upright, "city_street", Plain},
    {"DCIM/102QUAR_/QUA_0208.JPG", skyline, 3, Classic, "city_street", Preview},
    {"DCIM/102QUAR_/QUA_0209.JPG", cake, 0, Classic, "birthday,food", Plain},
    {"DCIM/102QUAR_/QUA_0210.JPG", group, 1, FourThirds, "group_photo,gathering", Gone},
    {"DCIM/102QUAR_/QUA_0211.JPG", nightSky, 4, Square, "exhibition", Plain},
    {"DCIM/102QUAR_/QUA_0212.JPG", document, 0, Upright, "document", Sideways},

    // a folder that was deleted as a whole
    {"DCIM/103QUAR_/QUA_0301.JPG", flower, 1, Classic, "bouquet", Gone | Preview},
    {"DCIM/103QUAR_/QUA_0302.JPG", tulips, 0, Classic, "bouquet", Gone},
    {"DCIM/103QUAR_/QUA_0303.JPG", flower, 3, FourThirds, "bouquet", Gone | Preview},
    {"DCIM/103QUAR_/QUA_0304.JPG", hills, 3, Classic, "mountain", Gone},
    {"DCIM/103QUAR_/QUA_0305.JPG", dog, 1, Classic, "pet", Gone | Preview},

    {"Best of the trip/Morning above the clouds.jpg", mountains, 6, Classic, "mountain", Preview},
    {"Best of the trip/Kirschblüte im Frühling.jpg", blossom, 0, Classic, "bouquet", Preview},
    {"Best of the trip/夏の夜空.jpg", nightSky, 5, Classic, "mountain", Plain},
    {"Best of the trip/Полярное сияние над озером.jpg", nightSky, 3, Classic, "mountain", Gone},
    {"Best of the trip/Petit-déjeuner aux fruits rouges.jpg", berries, 0, Small, "food", Plain},
    {"Best of the trip/A very long name that a patient person typed so that nobody would ever have "
     "to ask what this picture of the old forest in winter shows.jpg",
     forest, 3, Small, "mountain", Plain},
    {"Best of the trip/Robin in the snow.jpg", bird, 1, Small, "pet", Gone | Preview},
    {"Best of the trip/Katze.png", cat, 0, Small, "pet", Plain},
    {"Best of the trip/Poppy.bmp", flower, 4, Small, "bouquet", Gone},
    {"Best of the trip/Dahlia.jpg", flower, 2, Square, "bouquet,product", Plain},
    {"Best of the trip/Storm clearing.jpg", mountains, 4, Classic, "mountain", Gone | Preview},
    {"Best of the trip/Canyon balloons.jpg", balloons, 1, Classic, "aerial", Plain},
};

} // namespace

QVector<Photo> cardPhotos()
{
    QVector<Photo> photos;
    Random random(20240518);
    QDateTime time(QDate(2024, 5, 18), QTime(6, 12), Qt::UTC);
    QString folder;
    for (const Entry &entry : s_entries) {
        Photo photo;
        photo.file.path = QString::fromUtf8(entry.path);
        const QString own = photo.file.path.section(QLatin1Char('/'), 0, -2);
        if (!folder.isEmpty() && own != folder)
            time = QDateTime(time.date().addDays(2), QTime(7, 30), Qt::UTC);
        folder = own;
        time = time.addSecs(60 * (8 + random.below(34)) + random.below(30) * 2);
        photo.file.time = time;
        photo.file.fate = entry.traits & Damaged ? CardFile::Overwritten
            : entry.traits & Gone                ? CardFile::Deleted
                                                 : CardFile::Live;
        photo.motif = entry.motif;
        photo.variant = entry.variant;
        photo.size = sizeOf(entry.shape);
        photo.scenes = QString::fromLatin1(entry.scenes).split(QLatin1Char(','));
        photo.camera = photo.file.path.contains(QLatin1String("DSC")) ? 1
            : own.startsWith(QLatin1String("DCIM"))                   ? 0
                                                                      : 2;
        photo.sideways = entry.traits & Sideways;
        photo.embedsThumbnail = entry.traits & Preview;
        photos << photo;
    }
    return photos;
}

static QByteArray encoded(const QImage &image, const QByteArray &format, int quality)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(image))
        throw std::runtime_error(writer.errorString().toStdString());
    return content;
}

QByteArray photoContent(const Photo &photo, int shrink)
{
    quint64 seed =
        1469598103934665603U; // of the path, so that a photo stays as it is when others come
    const QByteArray path = photo.file.path.toUtf8();
    for (const char byte : path)
        seed = (seed ^ quint8(byte)) * 1099511628211U;
    Canvas canvas(photo.size / shrink, seed);
    photo.motif(canvas, photo.variant);
    canvas.develop({});

    const QByteArray suffix = QFileInfo(photo.file.path).suffix().toLower().toLatin1();
    if (suffix != "jpg")
        return encoded(canvas.image(), suffix, suffix == "png" ? 10 : -1);
    QImage stored = canvas.image();
    if (photo.sideways)
        stored = stored.transformed(QTransform().rotate(-90));
    QByteArray thumbnail;
    if (photo.embedsThumbnail)
        thumbnail = encoded(stored.scaled(320, 320, Qt::KeepAspectRatio, Qt::SmoothTransformation),
                            "jpg", 84);
    return withPhotoMetadata(encoded(stored, "jpg", 88), photo, thumbnail);
}
