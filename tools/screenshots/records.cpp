#include "records.h"

#include "scenes/scenes.h"

#include <QImage>
#include <QtConcurrent>

namespace {

enum Category {
    Audio = 2,
    Video = 3,
    Document = 5,
    EMail = 6,
    Database = 7,
    Photo = 8,
    WebFile = 9,
    Archive = 10,
    Other = 0
};

constexpr int PaintedHeight = 166; // what a host makes, which serves the pane too

struct Shot
{
    const char *name;
    void (*motif)(Canvas &, int);
    int variant;
    int width; ///< at a height of 2
    const char *scenes;
};

using namespace Scenes;

const Shot s_shots[] = {
    {"QUA_0001.JPG", mountains, 0, 3, "mountain"},
    {"QUA_0002.JPG", sea, 0, 3, "beach"},
    {"Kirschblüte im Frühling.jpg", blossom, 0, 3, "bouquet"},
    {"QUA_0004.JPG", skyline, 0, 3, "city_street,aerial"},
    {"QUA_0005.JPG", bird, 0, 3, "pet"},
    {"夏の夜空.jpg", nightSky, 5, 3, "mountain"},
    {"QUA_0007.JPG", balloons, 0, 3, "aerial"},
    {"QUA_0008.JPG", flower, 0, 3, "bouquet"},
    {"QUA_0009.JPG", hills, 2, 3, "mountain"},
    {"QUA_0010.JPG", group, 0, 3, "group_photo,gathering,birthday,presentation"},
    {"QUA_0011.JPG", portrait, 0, 1, "selfie"},
    {"DSC02102.JPG", beach, 0, 3, "beach"},
    {"A very long name that a patient person typed so that nobody would ever have to ask what "
     "this picture of the old forest in winter shows.jpg",
     forest, 3, 3, "mountain"},
    {"DSC02104.JPG", silhouettes, 2, 3, "child,birthday"},
    {"DSC02105.JPG", citrus, 0, 3, "food"},
    {"Полярное сияние над озером.jpg", nightSky, 3, 3, "mountain"},
    {"DSC02107.JPG", coffee, 0, 3, "food"},
    {"DSC02109.JPG", cat, 1, 3, "pet"},
    {"DSC02110.JPG", mountains, 5, 6, "mountain"},
    {"صورة من العطلة.jpg", sea, 3, 3, "beach"},
    {"DSC02112.JPG", pizza, 0, 2, "food,gathering"},
    {"QUA_0202.JPG", street, 2, 3, "city_street"},
    {"QUA_0203.JPG", ramen, 0, 3, "food"},
    {"QUA_0204.JPG", tulips, 0, 3, "bouquet"},
    {"QUA_0205.JPG", dog, 1, 3, "pet"},
    {"Petit-déjeuner aux fruits rouges.jpg", berries, 0, 3, "food"},
    {"QUA_0207.JPG", hills, 5, 3, "mountain"},
    {"QUA_0208.JPG", cake, 0, 3, "birthday,food"},
};

struct Thing
{
    const char *name;
    qint64 size;
    Category category;
};

const Thing s_things[] = {
    {"MVI_0301.MP4", 734003200, Video},
    {"Voice memo.m4a", 4718592, Audio},
    {"Packing list.docx", 48128, Document},
    {"Tickets.pdf", 812032, Document},
    {"Costs.xlsx", 20480, Document},
    {"Slides.pptx", 6291456, Document},
    {"notes.txt", 0, Document},
    {"Backup.zip", 1572864000, Archive},
    {"Greetings.eml", 12288, EMail},
    {"catalog.db", 3145728, Database},
    {"index.html", 8192, WebFile},
    {"RAW_0007.CR3", 31457280, Photo},
    {"MISC0001.BIN", 65536, Other},
};

} // namespace

Records::Records(qreal scale)
{
    for (TreeItemData *root : {&photos, &mixed, &matches, &nothing}) {
        root->kind = 1;
        root->secondaryId = m_nextId++;
    }
    matches.rootType = 26; // found all over the card: the places are links
    addPhotos();
    addMixed();
    paintThumbnails(scale);
}

QString Records::keyword()
{
    return QStringLiteral("02");
}

TreeItemData *Records::addFile(TreeItemData *holder, const QString &name, qint64 size, int category)
{
    m_items.push_back(std::make_unique<TreeItemData>());
    TreeItemData *item = m_items.back().get();
    item->kind = 2;
    item->name = name;
    item->extension = name.section(QLatin1Char('.'), -1);
    item->volumeRoot = QStringLiteral("E:\\");
    item->path = QStringLiteral("DCIM\\100QUAR_");
    item->fileSize = size;
    item->fileCategory = category;
    item->fileId = m_nextId++;
    item->secondaryId = 100000 + item->fileId;
    item->modifiedTime = 1716012840 + item->fileId * 4321;
    item->exists = item->fileId % 3 != 0;
    item->parent = holder;
    holder->childFiles.append(item);
    ++holder->itemCount;
    return item;
}

TreeItemData *Records::addFolder(TreeItemData *holder, const QString &name, qint64 count)
{
    m_items.push_back(std::make_unique<TreeItemData>());
    TreeItemData *item = m_items.back().get();
    item->kind = 1;
    item->name = name;
    item->volumeRoot = QStringLiteral("E:\\");
    item->path = QStringLiteral("DCIM");
    item->itemCount = count;
    item->fileId = m_nextId++;
    item->secondaryId = 100000 + item->fileId;
    item->modifiedTime = 1716012840 + item->fileId * 4321;
    item->parent = holder;
    holder->childFolders.append(item);
    ++holder->itemCount;
    return item;
}

void Records::addPhotos()
{
    int number = 0;
    for (const Shot &shot : s_shots) {
        const QString name = QString::fromUtf8(shot.name);
        TreeItemData *item = addFile(&photos, name, 2400000 + number * 137411LL, Photo);
        item->aiScenes = QString::fromLatin1(shot.scenes).split(QLatin1Char(','));
        item->checkState = number % 5 == 1 ? Qt::Checked : Qt::Unchecked;
        if (number == 7)
            item->setProperty("previewRepaired", true);
        if (name.contains(keyword())) {
            TreeItemData *match = addFile(&matches, name, item->fileSize, Photo);
            match->aiScenes = item->aiScenes;
        }
        ++number;
    }
    addFile(&photos, QStringLiteral("MVI_0301.MP4"), 734003200, Video);
    addFile(&photos, QStringLiteral("RAW_0007.CR3"), 31457280, Photo);
    photos.checkState = Qt::PartiallyChecked;
}

void Records::addMixed()
{
    addFolder(&mixed, QStringLiteral("100QUAR_"), 20)->checkState = Qt::Checked;
    addFolder(&mixed, QStringLiteral("101QUAR_"), 1216)->checkState = Qt::PartiallyChecked;
    addFolder(&mixed, QStringLiteral("Best of the trip"), 12);
    addFolder(&mixed, QStringLiteral("Empty folder"), 0);
    for (const Thing &thing : s_things)
        addFile(&mixed, QString::fromUtf8(thing.name), thing.size, thing.category);
    mixed.checkState = Qt::PartiallyChecked;
}

void Records::paintThumbnails(qreal scale)
{
    const int height = qRound(PaintedHeight * scale);
    QVector<int> numbers;
    for (int i = 0; i < int(std::size(s_shots)); ++i)
        numbers.append(i);
    const std::function<QImage(const int &)> paint = [height](const int &number) {
        const Shot &shot = s_shots[number];
        Canvas canvas(QSize(height * shot.width / 2, height), quint64(number) + 1);
        shot.motif(canvas, shot.variant);
        canvas.develop({});
        return canvas.image();
    };
    const QVector<QImage> images = QtConcurrent::blockingMapped<QVector<QImage>>(numbers, paint);
    int match = 0;
    for (int i = 0; i < images.size(); ++i) {
        const QPixmap picture = QPixmap::fromImage(images.at(i));
        m_thumbnails.insert(photos.childFiles.at(i)->fileId, picture);
        if (QString::fromUtf8(s_shots[i].name).contains(keyword()))
            m_thumbnails.insert(matches.childFiles.at(match++)->fileId, picture);
    }
}

void Records::fillMetaData(TreeItemData *item)
{
    if (item->fileCategory != Photo)
        return;
    const auto pair = [](const char *key, const char *value) {
        return qMakePair(QString::fromLatin1(key), QString::fromUtf8(value));
    };
    item->metaData = {pair("Resolution", "6000 x 4000"),
                      pair("make", "Quarvo Optics"),
                      pair("model", "Q-100"),
                      pair("isoSpeed", "200"),
                      pair("exposureTime", "1/250 s"),
                      pair("fNumber", "f/5.6"),
                      pair("focalLength", "35 mm"),
                      pair("whiteBalance", "Auto"),
                      pair("software", "Firmware 2.1")};
    emit item->metaDataChanged();
}
