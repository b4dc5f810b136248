#include "cardbuilder.h"

#include "host/scan/imagesource.h"
#include "host/scan/scansource.h"
#include "support/datarow.h"
#include "support/writefile.h"

#include <QHash>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <thread>

namespace {

constexpr qint64 MiB = 1 << 20;

struct Scan
{
    QString error; // of opening
    ScanOutcome outcome;
    std::shared_ptr<ScanSource> source;
    QVector<FoundItem> items;

    explicit Scan(const QString &path)
    {
        source = ScanSource::create(path, &error);
        std::atomic<bool> cancel{false};
        if (source)
            outcome = source->scan([this](QVector<FoundItem> &&batch) { items += batch; }, cancel);
    }

    /// The item at a path; one without an id when there is none. \a deleted picks among two.
    FoundItem at(const QString &path, bool deleted = false) const
    {
        for (const FoundItem &item : items) {
            if (item.fullPath() == path && item.deleted == deleted)
                return item;
        }
        return {};
    }

    /// What is read back, or the reason in front of which stands "!".
    QByteArray contents(const FoundItem &item) const
    {
        QString reason;
        const auto device = source->openFile(item, &reason);
        if (!device)
            return QByteArray("!") + reason.toUtf8();
        QByteArray bytes(int(item.size), Qt::Uninitialized);
        const qint64 got = device->read(bytes.data(), bytes.size());
        return got == item.size ? bytes : QByteArray("!") + device->errorString().toUtf8();
    }

    QStringList paths() const
    {
        QStringList result;
        for (const FoundItem &item : items)
            result << item.fullPath() + (item.deleted ? QStringLiteral("*") : QString());
        result.sort();
        return result;
    }
};

} // namespace

class TestScanImage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyFatKind_data();
    void everyFatKind();
    void otherFileSystems_data();
    void otherFileSystems();
    void ntfsContents();
    void severalVolumes();
    void fatTimesAreLocal();
    void overwrittenIsNotDelivered();
    void writtenAroundAnotherFile();
    void twoDeletedInOnePlace_data();
    void twoDeletedInOnePlace();
    void exFatDeletedAndTimeZones();
    void orphansHaveTheirFolder();
    void foldersInCircles();
    void brokenImages_data();
    void brokenImages();
    void goesAwayDuringTheScan();
    void cancelEndsTheSearch();
    void readsOnManyThreads();
    void mutatedImages();

private:
    QString file(const QString &name) const { return m_dir->filePath(name); }
    std::unique_ptr<QTemporaryDir> m_dir;
};

#define NEEDS(...)                                                                                 \
    do {                                                                                           \
        const QStringList tools{__VA_ARGS__};                                                      \
        if (!CardBuilder::hasTools(tools))                                                         \
            QSKIP(qPrintable(QStringLiteral("needs ") + tools.join(QLatin1Char(' '))));            \
    } while (false)
#define NEEDS_FAT()                                                                                \
    NEEDS(QStringLiteral("mkfs.fat"), QStringLiteral("mcopy"), QStringLiteral("mdel"))

void TestScanImage::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
}

void TestScanImage::everyFatKind_data()
{
    addColumns<int, int, int>({"bits", "megabytes", "offset"});
    QTest::newRow("FAT12") << 12 << 2 << 0;
    QTest::newRow("FAT16") << 16 << 20 << 0;
    QTest::newRow("FAT32") << 32 << 40 << 0;
    QTest::newRow("FAT32 in a partition") << 32 << 40 << int(MiB);
}

void TestScanImage::everyFatKind()
{
    NEEDS_FAT();
    QFETCH(int, bits);
    QFETCH(int, megabytes);
    QFETCH(int, offset);
    CardBuilder card(file(QStringLiteral("card.img")), megabytes * MiB, offset);
    card.formatFat(bits);
    if (offset > 0)
        card.writePartitionTable(0x0c);
    const QString longName = QStringLiteral("Ein längerer Name – 写真.jpeg");
    card.makeFolder(QStringLiteral("DCIM"));
    card.makeFolder(QStringLiteral("DCIM/100ABC"));
    card.put(QStringLiteral("DCIM/100ABC/IMG_0001.JPG"), noise(70001, 1));
    card.put(QStringLiteral("DCIM/100ABC/") + longName, noise(50000, 2));
    card.put(QStringLiteral("DCIM/100ABC/gone with a long name.jpg"), noise(123457, 3));
    card.put(QStringLiteral("DCIM/100ABC/IMG_0002.JPG"), noise(4096, 4));
    card.put(QStringLiteral("empty.txt"), QByteArray());
    card.remove(QStringLiteral("DCIM/100ABC/gone with a long name.jpg"));
    card.remove(QStringLiteral("DCIM/100ABC/IMG_0002.JPG"));

    const Scan scan(card.path());
    QVERIFY2(scan.source, qPrintable(scan.error));
    QVERIFY2(scan.outcome.error.isEmpty(), qPrintable(scan.outcome.error));
    QCOMPARE(scan.source->volumes().size(), 1);
    QCOMPARE(scan.source->volumes().first().fileSystem, QStringLiteral("FAT%1").arg(bits));
    QCOMPARE(scan.source->volumes().first().label, QStringLiteral("CARD"));
    const QString folder = QStringLiteral("DCIM/100ABC/");
    const QStringList expected{QStringLiteral("DCIM"),
                               QStringLiteral("DCIM/100ABC"),
                               folder + longName,
                               folder + QStringLiteral("IMG_0001.JPG"),
                               folder + QStringLiteral("_MG_0002.JPG*"),
                               folder + QStringLiteral("gone with a long name.jpg*"),
                               QStringLiteral("empty.txt")};
    QStringList sorted = expected;
    sorted.sort();
    QCOMPARE(scan.paths(), sorted);
    QCOMPARE(scan.contents(scan.at(folder + QStringLiteral("IMG_0001.JPG"))), noise(70001, 1));
    QCOMPARE(scan.contents(scan.at(folder + longName)), noise(50000, 2));
    QCOMPARE(scan.contents(scan.at(folder + QStringLiteral("gone with a long name.jpg"), true)),
             noise(123457, 3));
    QCOMPARE(scan.contents(scan.at(folder + QStringLiteral("_MG_0002.JPG"), true)), noise(4096, 4));
    QCOMPARE(scan.contents(scan.at(QStringLiteral("empty.txt"))), QByteArray());

    QSet<qint64> known{-1};
    for (const FoundItem &item : scan.items) {
        QVERIFY2(known.contains(item.parentId), qPrintable(item.name));
        QVERIFY(item.id > 0 && !known.contains(item.id));
        known.insert(item.id);
    }
}

void TestScanImage::otherFileSystems_data()
{
    addColumns<QString, QStringList, QString, int, bool>(
        {"tool", "arguments", "fileSystem", "megabytes", "filled"});
    const auto row = [](const char *name, const char *tool, const QStringList &arguments,
                        const char *fileSystem, int megabytes, bool filled) {
        QTest::newRow(name) << QString::fromLatin1(tool) << arguments
                            << QString::fromLatin1(fileSystem) << megabytes << filled;
    };
    const QString l = QStringLiteral("-L");
    const QString label = QStringLiteral("CARD");
    const QString q = QStringLiteral("-q");
    row("ext2", "mkfs.ext2", {q, l, label}, "ext2", 4, true);
    row("ext3", "mkfs.ext3", {q, l, label}, "ext3", 8, true);
    row("ext4", "mkfs.ext4", {q, l, label}, "ext4", 8, true);
    row("exFAT", "mkfs.exfat", {l, label}, "exFAT", 8, false);
    row("NTFS", "mkfs.ntfs", {QStringLiteral("-F"), QStringLiteral("-Q"), l, label}, "NTFS", 8,
        false);
}

void TestScanImage::otherFileSystems()
{
    QFETCH(QString, tool);
    QFETCH(QStringList, arguments);
    QFETCH(QString, fileSystem);
    QFETCH(int, megabytes);
    QFETCH(bool, filled);
    NEEDS(tool);
    CardBuilder card(file(QStringLiteral("card.img")), megabytes * MiB);
    if (filled) {
        const QDir tree(file(QStringLiteral("tree")));
        QVERIFY(writeFile(tree.filePath(QStringLiteral("DCIM/photo.jpg")), noise(300001, 5)));
        QFile::link(QStringLiteral("/etc"), tree.filePath(QStringLiteral("link")));
        arguments << QStringLiteral("-d") << tree.path();
    }
    card.format(tool, arguments);
    const Scan scan(card.path());
    QVERIFY2(scan.source, qPrintable(scan.error));
    QCOMPARE(scan.source->volumes().first().fileSystem, fileSystem);
    QCOMPARE(scan.source->volumes().first().label, QStringLiteral("CARD"));
    QVERIFY2(scan.outcome.error.isEmpty(), qPrintable(scan.outcome.error));
    const QStringList expected{QStringLiteral("DCIM"), QStringLiteral("DCIM/photo.jpg"),
                               QStringLiteral("lost+found")};
    QCOMPARE(scan.paths(), filled ? expected : QStringList()); // nothing of the system's own
    if (filled)
        QCOMPARE(scan.contents(scan.at(QStringLiteral("DCIM/photo.jpg"))), noise(300001, 5));
}

void TestScanImage::ntfsContents()
{
    NEEDS(QStringLiteral("mkfs.ntfs"), QStringLiteral("ntfscp"));
    CardBuilder card(file(QStringLiteral("card.img")), 8 * MiB);
    card.format(QStringLiteral("mkfs.ntfs"), {QStringLiteral("-F"), QStringLiteral("-Q")});
    for (int i = 0; i < 3; ++i) {
        const QString photo = QStringLiteral("photo %1.jpg").arg(i);
        QVERIFY(writeFile(file(photo), noise(100001 + i, quint32(i))));
        QVERIFY(CardBuilder::run(QStringLiteral("ntfscp"),
                                 {QStringLiteral("-f"), card.path(), file(photo), photo}));
    }
    // A name whose record is no longer in use, as a crash leaves it.
    const QByteArray bytes = card.bytes();
    const QString victim = QStringLiteral("photo 1.jpg");
    const QByteArray name(reinterpret_cast<const char *>(victim.utf16()), victim.size() * 2);
    int record = -1; // the name is in folders and logs as well
    for (int at = bytes.indexOf(name); at >= 0 && record < 0; at = bytes.indexOf(name, at + 1)) {
        const int start = at / 1024 * 1024;
        if (bytes.mid(start, 4) == "FILE" && bytes.at(start + 44) >= 24) // not the system's own
            record = start;
    }
    QVERIFY(record > 0);
    card.poke(record + 22, QByteArray(2, 0));

    const Scan scan(card.path());
    QVERIFY2(scan.source, qPrintable(scan.error));
    QCOMPARE(scan.items.size(), 3);
    QCOMPARE(scan.contents(scan.at(QStringLiteral("photo 0.jpg"))), noise(100001, 0));
    QCOMPARE(scan.contents(scan.at(QStringLiteral("photo 2.jpg"))), noise(100003, 2));
    QVERIFY(scan.contents(scan.at(victim)).startsWith('!'));
}

void TestScanImage::severalVolumes()
{
    NEEDS_FAT();
    CardBuilder first(file(QStringLiteral("card.img")), 10 * MiB, MiB);
    first.formatFat(16, QStringLiteral("FIRST"));
    first.put(QStringLiteral("same.txt"), "one");
    QByteArray table = first.bytes();
    CardBuilder second(file(QStringLiteral("other.img")), 10 * MiB);
    second.formatFat(16, QStringLiteral("SECOND"));
    second.put(QStringLiteral("same.txt"), "two");
    CardBuilder both(file(QStringLiteral("both.img")), 20 * MiB, 10 * MiB);
    both.writePartitionTable(0x06);
    const QByteArray lastEntry = both.bytes().mid(446, 16);
    both.poke(0, table);
    both.poke(10 * MiB, second.bytes());
    CardBuilder firstTable(file(QStringLiteral("table.img")), 10 * MiB, MiB);
    firstTable.writePartitionTable(0x06);
    both.poke(0, firstTable.bytes().left(512));
    both.poke(446 + 16, lastEntry);

    const Scan scan(both.path());
    QVERIFY2(scan.source, qPrintable(scan.error));
    QCOMPARE(scan.source->volumes().size(), 2);
    QCOMPARE(scan.source->volumes().at(0).label, QStringLiteral("FIRST"));
    QVERIFY(scan.source->volumes().at(0).root != scan.source->volumes().at(1).root);
    QCOMPARE(scan.items.size(), 2);
    QCOMPARE(scan.contents(scan.items.at(0)), QByteArray("one"));
    QCOMPARE(scan.contents(scan.items.at(1)), QByteArray("two"));
    QCOMPARE(scan.items.at(1).volume, 1);
}

void TestScanImage::fatTimesAreLocal()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    const QDateTime summer(QDate(2023, 7, 14), QTime(12, 30, 2), Qt::LocalTime);
    const QDateTime winter(QDate(2024, 1, 31), QTime(23, 59, 58), Qt::LocalTime);
    card.put(QStringLiteral("summer.jpg"), "s", summer);
    card.put(QStringLiteral("winter.jpg"), "w", winter);
    const Scan scan(card.path());
    QCOMPARE(scan.at(QStringLiteral("summer.jpg")).modifiedTime, summer.toSecsSinceEpoch());
    QCOMPARE(scan.at(QStringLiteral("winter.jpg")).modifiedTime, winter.toSecsSinceEpoch());
}

void TestScanImage::overwrittenIsNotDelivered()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    card.put(QStringLiteral("first.jpg"), noise(600000, 1));
    card.put(QStringLiteral("second.jpg"), noise(600000, 2));
    card.put(QStringLiteral("third.jpg"), noise(600000, 3));
    card.remove(QStringLiteral("first.jpg"));
    card.remove(QStringLiteral("third.jpg"));
    card.put(QStringLiteral("new.jpg"), noise(700000, 4)); // more than the rest of the card: wraps
    const Scan scan(card.path());
    QCOMPARE(scan.contents(scan.at(QStringLiteral("second.jpg"))), noise(600000, 2));
    QCOMPARE(scan.contents(scan.at(QStringLiteral("new.jpg"))), noise(700000, 4));
    int damaged = 0;
    for (const auto &gone :
         {qMakePair(QStringLiteral("first.jpg"), 1u), qMakePair(QStringLiteral("third.jpg"), 3u)}) {
        const QByteArray got = scan.contents(scan.at(gone.first, true));
        damaged += got.startsWith('!');
        QVERIFY(got.startsWith('!') || got == noise(600000, gone.second));
    }
    QVERIFY(damaged > 0);
}

/// The time of creation in the entry of an 8.3 name, whatever the clock says.
void setCreated(CardBuilder &card, const QByteArray &entryName, int hour)
{
    const int entry = card.bytes().indexOf(entryName);
    QVERIFY(entry > 0);
    QByteArray time(2, 0);
    qToLittleEndian(quint16(hour << 11), time.data());
    card.poke(entry + 14, time);
}

void TestScanImage::writtenAroundAnotherFile()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    card.makeFolder(QStringLiteral("KEEP"));
    card.put(QStringLiteral("HOLE.BIN"), noise(100000, 1));
    card.put(QStringLiteral("MIDDLE.BIN"), noise(100000, 2));
    card.remove(QStringLiteral("HOLE.BIN"));
    card.put(QStringLiteral("AROUND.BIN"), noise(300000, 3)); // in the hole, and behind the other
    setCreated(card, "MIDDLE  BIN", 5);
    setCreated(card, "AROUND  BIN", 9);
    card.remove(QStringLiteral("AROUND.BIN"));
    const QString around = QStringLiteral("_ROUND.BIN");
    {
        const Scan scan(card.path());
        QCOMPARE(scan.contents(scan.at(around, true)), noise(300000, 3));
    }
    // Were the file in the middle the younger one, it would have overwritten a part. That is what
    // to say even where another deleted file has been in the same place too.
    setCreated(card, "MIDDLE  BIN", 10);
    card.put(QStringLiteral("KEEP/OTHER.BIN"), noise(20000, 4));
    setCreated(card, "OTHER   BIN", 12);
    card.remove(QStringLiteral("KEEP/OTHER.BIN"));
    const Scan scan(card.path());
    const QByteArray reason = scan.contents(scan.at(around, true));
    QVERIFY2(reason.startsWith('!') && reason.contains("MIDDLE.BIN"), reason.constData());
}

void TestScanImage::twoDeletedInOnePlace_data()
{
    addColumns<int, int, bool>({"firstHour", "secondHour", "secondIsSure"});
    QTest::newRow("second is younger") << 5 << 9 << true;
    QTest::newRow("clock went backwards") << 9 << 5 << false;
    QTest::newRow("at the same moment") << 5 << 5 << false;
}

void TestScanImage::twoDeletedInOnePlace()
{
    NEEDS_FAT();
    QFETCH(int, firstHour);
    QFETCH(int, secondHour);
    QFETCH(bool, secondIsSure);
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    card.makeFolder(QStringLiteral("KEEP")); // so that no entry takes another one's place
    card.put(QStringLiteral("FIRST.BIN"), noise(100000, 1));
    setCreated(card, "FIRST   BIN", firstHour);
    card.remove(QStringLiteral("FIRST.BIN"));
    card.put(QStringLiteral("KEEP/SECOND.BIN"), noise(50000, 2));
    setCreated(card, "SECOND  BIN", secondHour);
    card.remove(QStringLiteral("KEEP/SECOND.BIN"));
    const Scan scan(card.path());
    const FoundItem first = scan.at(QStringLiteral("_IRST.BIN"), true);
    const FoundItem second = scan.at(QStringLiteral("KEEP/_ECOND.BIN"), true);
    QVERIFY(first.id > 0 && second.id > 0);
    QCOMPARE(scan.contents(second) == noise(50000, 2), secondIsSure);
    QCOMPARE(scan.contents(second).startsWith('!'), !secondIsSure);
    if (firstHour <= secondHour)
        QVERIFY(scan.contents(first).startsWith('!'));
}

/// Adds a file to the root of an exFAT image: nothing here writes to one without mounting it.
void putExFat(CardBuilder &card, const QString &name, const QByteArray &contents, int cluster,
              bool deleted)
{
    const QByteArray image = card.bytes();
    const auto number = [&image](int at) {
        return qFromLittleEndian<quint32>(image.constData() + at);
    };
    const int sector = 1 << image.at(108);
    const int clusterBytes = sector << image.at(109);
    const auto placeOf = [&](quint32 of) {
        return int(number(88)) * sector + int(of - 2) * clusterBytes;
    };
    int entry = placeOf(number(96));
    int bitmap = 0;
    for (; image.at(entry) != 0; entry += 32) {
        if (uchar(image.at(entry)) == 0x81)
            bitmap = placeOf(number(entry + 20));
    }
    const int nameEntries = (name.size() + 14) / 15;
    QByteArray set((2 + nameEntries) * 32, 0);
    set[0] = char(0x85);
    set[1] = char(1 + nameEntries);
    set[4] = 0x20;
    for (const int at : {8, 12, 16}) // 2024-03-01 12:30, one hour east of Greenwich
        qToLittleEndian(quint32((44u << 25) | (3u << 21) | (1u << 16) | (12u << 11) | (30u << 5)),
                        set.data() + at);
    for (const int at : {22, 23, 24})
        set[at] = char(0x80 | 4);
    set[32] = char(0xc0);
    set[33] = 3; // contiguous, no chain
    set[35] = char(name.size());
    qToLittleEndian(quint64(contents.size()), set.data() + 40);
    qToLittleEndian(quint32(cluster), set.data() + 52);
    qToLittleEndian(quint64(contents.size()), set.data() + 56);
    for (int i = 0; i < name.size(); ++i) {
        set[64 + i / 15 * 32] = char(0xc1);
        qToLittleEndian(name.at(i).unicode(), set.data() + 64 + i / 15 * 32 + 2 + i % 15 * 2);
    }
    quint16 checksum = 0;
    for (int i = 0; i < set.size(); ++i) {
        if (i != 2 && i != 3)
            checksum = quint16(((checksum << 15) | (checksum >> 1)) + uchar(set.at(i)));
    }
    qToLittleEndian(checksum, set.data() + 2);
    for (int i = 0; deleted && i < set.size(); i += 32)
        set[i] = char(set.at(i) & 0x7f);
    for (int i = 0; !deleted && i * clusterBytes < contents.size(); ++i) {
        const int bit = cluster - 2 + i;
        card.poke(bitmap + bit / 8,
                  QByteArray(1, char(card.bytes().at(bitmap + bit / 8) | (1 << bit % 8))));
    }
    card.poke(entry, set);
    card.poke(placeOf(quint32(cluster)), contents);
}

void TestScanImage::exFatDeletedAndTimeZones()
{
    NEEDS(QStringLiteral("mkfs.exfat"));
    CardBuilder card(file(QStringLiteral("card.img")), 8 * MiB);
    card.format(QStringLiteral("mkfs.exfat"), {});
    const QString live = QStringLiteral("a photo with a long name.jpg");
    const QString gone = QStringLiteral("写真 that was deleted.jpg");
    const QString lost = QStringLiteral("overwritten.jpg");
    putExFat(card, live, noise(50000, 1), 100, false);
    putExFat(card, gone, noise(60001, 2), 200, true);
    putExFat(card, lost, noise(50000, 1), 100, true);
    const Scan scan(card.path());
    QCOMPARE(scan.items.size(), 3);
    QCOMPARE(scan.contents(scan.at(live)), noise(50000, 1));
    QCOMPARE(scan.contents(scan.at(gone, true)), noise(60001, 2));
    QVERIFY(scan.contents(scan.at(lost, true)).startsWith('!'));
    const QDateTime taken(QDate(2024, 3, 1), QTime(11, 30), Qt::UTC);
    QCOMPARE(scan.at(live).modifiedTime, taken.toSecsSinceEpoch());
}

void TestScanImage::orphansHaveTheirFolder()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 20 * MiB);
    card.formatFat(16);
    card.makeFolder(QStringLiteral("lost"));
    card.put(QStringLiteral("lost/holiday one.jpg"), noise(50000, 1));
    card.put(QStringLiteral("lost/holiday two.jpg"), noise(60000, 2));
    card.removeTree(QStringLiteral("lost"));
    // Another entry takes the place of the folder's: what it held has no parent any more.
    card.put(QStringLiteral("LOST"), QByteArray());
    const Scan scan(card.path());
    const QString orphans = ImageSource::orphansName();
    const FoundItem two = scan.at(orphans + QStringLiteral("/holiday two.jpg"), true);
    QVERIFY2(two.id > 0, qPrintable(scan.paths().join(QLatin1Char(' '))));
    QCOMPARE(scan.contents(two), noise(60000, 2));
    QVERIFY(scan.at(orphans, true).folder);
    QCOMPARE(two.parentId, scan.at(orphans, true).id);
}

void TestScanImage::foldersInCircles()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    card.makeFolder(QStringLiteral("AAAA"));
    card.makeFolder(QStringLiteral("AAAA/BBBB"));
    card.put(QStringLiteral("AAAA/file.txt"), "x");
    // B's first cluster becomes A's.
    const QByteArray bytes = card.bytes();
    const int a = bytes.indexOf("AAAA       ");
    const int b = bytes.indexOf("BBBB       ");
    QVERIFY(a > 0 && b > 0);
    card.poke(b + 26, bytes.mid(a + 26, 2));
    const Scan scan(card.path());
    QVERIFY(scan.at(QStringLiteral("AAAA/file.txt")).id > 0);
    QVERIFY2(scan.items.size() < 10, qPrintable(scan.paths().join(QLatin1Char(' '))));
}

void TestScanImage::brokenImages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a few bytes") << QByteArray("hello");
    QTest::newRow("zeros") << QByteArray(100000, 0);
    QTest::newRow("random bytes") << noise(1000000, 9);
    QByteArray boot = noise(1000000, 10);
    boot.replace(510, 2, "\x55\xaa");
    QTest::newRow("random bytes that end like a boot sector") << boot;
}

void TestScanImage::brokenImages()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(writeFile(file(QStringLiteral("broken.img")), bytes));
    const Scan scan(file(QStringLiteral("broken.img")));
    QVERIFY(!scan.source);
    QVERIFY(scan.error.contains(QStringLiteral("broken.img")));
}

void TestScanImage::goesAwayDuringTheScan()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 40 * MiB);
    card.formatFat(32);
    card.put(QStringLiteral("photo.jpg"), noise(100000, 1));
    QString error;
    const auto source = ScanSource::create(card.path(), &error);
    QVERIFY2(source, qPrintable(error));
    QVector<FoundItem> items;
    std::unique_ptr<QIODevice> device;
    const auto sink = [&](QVector<FoundItem> &&batch) {
        items = batch;
        device = source->openFile(items.first(), &error);
        card.truncate(4096); // the search for orphans is still to come
    };
    std::atomic<bool> cancel{false};
    const ScanOutcome outcome = source->scan(sink, cancel);
    QCOMPARE(items.size(), 1);
    QVERIFY(!outcome.error.isEmpty());
    QVERIFY2(device, qPrintable(error));
    QByteArray bytes(100000, 0);
    QCOMPARE(device->read(bytes.data(), bytes.size()), qint64(-1));
    QVERIFY(!device->errorString().isEmpty());
}

void TestScanImage::cancelEndsTheSearch()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 512 * MiB);
    card.formatFat(32);
    card.put(QStringLiteral("photo.jpg"), noise(1000, 1));
    QString error;
    const auto source = ScanSource::create(card.path(), &error);
    QVERIFY2(source, qPrintable(error));
    std::atomic<bool> cancel{false};
    QVector<double> steps;
    const auto sink = [&](QVector<FoundItem> &&) {
        cancel = true; // the search for orphans is still to come
        steps.clear();
    };
    const ScanOutcome outcome = source->scan(sink, cancel,
                                             [&](double fraction) { steps << fraction; });
    QVERIFY(outcome.cancelled);
    QVERIFY(outcome.error.isEmpty());
    QVERIFY(steps.size() <= 1);
    steps.clear();
    cancel = false;
    source->scan([](QVector<FoundItem> &&) {}, cancel, [&](double fraction) { steps << fraction; });
    QVERIFY(steps.size() > 10);
    QVERIFY(std::is_sorted(steps.cbegin(), steps.cend()));
    QVERIFY(steps.last() > 0.9 && steps.last() <= 1);
}

void TestScanImage::readsOnManyThreads()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 20 * MiB);
    card.formatFat(16);
    for (int i = 0; i < 12; ++i)
        card.put(QStringLiteral("photo%1.jpg").arg(i), noise(100000 + i, quint32(i)));
    const Scan scan(card.path());
    QCOMPARE(scan.items.size(), 12);
    QAtomicInt right;
    std::vector<std::thread> threads; // their end is seen by the thread checker, unlike Qt's
    for (int t = 0; t < 3; ++t) {
        threads.emplace_back([&] {
            for (const FoundItem &item : scan.items) {
                const int number = item.name.mid(5).section(QLatin1Char('.'), 0, 0).toInt();
                if (scan.contents(item) == noise(100000 + number, quint32(number)))
                    right.ref();
            }
        });
    }
    std::atomic<bool> cancel{false};
    scan.source->scan([](QVector<FoundItem> &&) {}, cancel); // at the same time
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(right.loadRelaxed(), 36);
}

void TestScanImage::mutatedImages()
{
    NEEDS_FAT();
    CardBuilder card(file(QStringLiteral("card.img")), 2 * MiB);
    card.formatFat(12);
    card.makeFolder(QStringLiteral("DCIM"));
    for (int i = 0; i < 8; ++i)
        card.put(QStringLiteral("DCIM/a photo with a long name %1.jpg").arg(i),
                 noise(9000, quint32(i)));
    card.remove(QStringLiteral("DCIM/a photo with a long name 3.jpg"));
    const QByteArray sound = card.bytes();
    QRandomGenerator random(4711);
    for (int round = 0; round < 60; ++round) {
        QByteArray bytes = sound;
        const int systemArea = 32 * 1024; // tables and folders: where a fault does most
        for (int i = 0; i < 1 + round % 40; ++i)
            bytes[int(random.bounded(quint32(systemArea)))] = char(random.generate() & 0xff);
        QVERIFY(writeFile(file(QStringLiteral("mutant.img")), bytes));
        const Scan scan(file(QStringLiteral("mutant.img")));
        for (int i = 0; i < qMin(scan.items.size(), 50); ++i) {
            if (!scan.items.at(i).folder && scan.items.at(i).size < 10 * MiB)
                scan.contents(scan.items.at(i));
        }
    }
}

QTEST_GUILESS_MAIN(TestScanImage)
#include "tst_scan_image.moc"
