#include "foundfolder.h"

#include "host/media/metadatareader.h"
#include "host/media/thumbnailmaker.h"
#include "host/scan/filecategory.h"
#include "support/datarow.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

using MetaData = QVector<QPair<QString, QString>>;
Q_DECLARE_METATYPE(MetaData)

namespace {
constexpr int PatienceMs = 30000;
}

/// What the real helper makes of photos and videos that are right, odd or broken.
class TestMediaMetadata : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void photo();
    void oddValues();
    void videos_data();
    void videos();
    void thumbnails_data();
    void thumbnails();
    void hostile_data();
    void hostile();
    void memoryIsBounded();
    void namesNoOtherFiles();
    void forgetsAnotherSource();

private:
    bool read(const FoundFolder &folder, const QString &name);

    std::shared_ptr<MediaPool> m_pool = MediaPool::shared(); // for all tests
    FoundFolder m_fixtures;
    QHash<QString, QString> m_values;
    QStringList m_scenes;
    QString m_failure;
};

void TestMediaMetadata::initTestCase()
{
    qRegisterMetaType<MetaData>("QVector<QPair<QString,QString>>");
    const QString program = QCoreApplication::applicationDirPath()
        + QStringLiteral("/make-media-fixtures");
    QCOMPARE(QProcess::execute(program, {m_fixtures.path()}), 0);
    m_fixtures.scan();
    QCOMPARE(m_fixtures.items.size(), 6);
}

/// True when there is an answer.
bool TestMediaMetadata::read(const FoundFolder &folder, const QString &name)
{
    MetadataReader reader;
    reader.setSource(folder.source);
    QSignalSpy ready(&reader, &MetadataReader::metadataReady);
    QSignalSpy failed(&reader, &MetadataReader::metadataFailed);
    const FoundItem item = folder.named(name);
    reader.request(item);
    reader.request(item); // is asked for already
    QElapsedTimer timer;
    timer.start();
    while (reader.pending() > 0 && timer.elapsed() < PatienceMs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    if (ready.size() + failed.size() != 1)
        return false;
    m_values.clear();
    m_scenes.clear();
    m_failure.clear();
    if (!failed.isEmpty()) {
        m_failure = failed.first().at(1).toString();
        return !m_failure.isEmpty() && failed.first().at(0).toLongLong() == item.id;
    }
    const auto metaData = ready.first().at(1).value<MetaData>();
    for (const auto &entry : metaData)
        m_values.insert(entry.first, entry.second);
    m_scenes = ready.first().at(2).toStringList();
    return ready.first().at(0).toLongLong() == item.id;
}

void TestMediaMetadata::photo()
{
    QVERIFY(read(m_fixtures, QStringLiteral("full.jpg")));
    const QHash<QString, QString> expected{
        {QStringLiteral("isoSpeed"), QStringLiteral("100")},
        {QStringLiteral("make"), QStringLiteral("Lumenar")},
        {QStringLiteral("model"), QStringLiteral("LX-500")},
        {QStringLiteral("whiteBalance"), QStringLiteral("Auto")},
        {QStringLiteral("exposureTime"), QStringLiteral("1/250 s")},
        {QStringLiteral("focalLength"), QStringLiteral("50 mm")},
        {QStringLiteral("software"), QStringLiteral("Firmware 2.14")},
        {QStringLiteral("fNumber"), QStringLiteral("f/2.8")},
        {QStringLiteral("Resolution"), QStringLiteral("300 \u00d7 400")}, // it is shown upright
    };
    QCOMPARE(m_values, expected);
    const QStringList scenes{QStringLiteral("mountain"), QStringLiteral("group_photo"),
                             QStringLiteral("beach"), QStringLiteral("pet")};
    QCOMPARE(m_scenes, scenes);
}

void TestMediaMetadata::oddValues()
{
    QVERIFY(read(m_fixtures, QStringLiteral("odd.jpg")));
    QVERIFY(m_values.take(QStringLiteral("make")).size() < 300);
    const QHash<QString, QString> expected{
        {QStringLiteral("model"), QStringLiteral("two lines")},
        {QStringLiteral("exposureTime"), QStringLiteral("4 s")},
        {QStringLiteral("fNumber"), QStringLiteral("f/4")},
        {QStringLiteral("Resolution"), QStringLiteral("40 \u00d7 30")},
    };
    QCOMPARE(m_values, expected);
    QVERIFY(m_scenes.isEmpty());
}

void TestMediaMetadata::videos_data()
{
    addColumns<QString, QString>({"name", "resolution"});
    QTest::newRow("plain") << "video.mp4" << QStringLiteral("320 \u00d7 180");
    QTest::newRow("turned") << "turned.mp4" << QStringLiteral("180 \u00d7 320");
}

void TestMediaMetadata::videos()
{
    QFETCH(QString, name);
    QFETCH(QString, resolution);
    QVERIFY(read(m_fixtures, name));
    QCOMPARE(m_values.value(QStringLiteral("frameRate")), QStringLiteral("25 fps"));
    QCOMPARE(m_values.value(QStringLiteral("Resolution")), resolution);
    QVERIFY(m_values.value(QStringLiteral("bitRate")).endsWith(QLatin1String("bps")));
}

void TestMediaMetadata::thumbnails_data()
{
    addColumns<QString, QSize, QColor>({"name", "size", "color"});
    QTest::newRow("photo") << "full.jpg" << QSize(300, 400) << QColor(Qt::red);
    QTest::newRow("raw file's preview") << "raw.dng" << QSize(300, 400) << QColor(Qt::green);
    QTest::newRow("a wreck's stamp") << "wreck.jpg" << QSize(160, 120) << QColor(Qt::green);
    QTest::newRow("video") << "video.mp4" << QSize(300, 169) << QColor(Qt::blue);
    QTest::newRow("turned video") << "turned.mp4" << QSize(180, 320) << QColor(Qt::blue);
}

void TestMediaMetadata::thumbnails()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QFETCH(QColor, color);
    ThumbnailMaker maker;
    maker.setSource(m_fixtures.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    maker.request(m_fixtures.named(name), extensionOf(name));
    QTRY_COMPARE_WITH_TIMEOUT(ready.size() + failed.size(), 1, PatienceMs);
    QVERIFY2(failed.isEmpty(), qPrintable(failed.value(0).value(1).toString()));
    const QImage image = ready.first().at(2).value<QImage>();
    const QSize off = image.size() - size; // video decoders like even numbers
    QVERIFY2(qAbs(off.width()) <= 2 && qAbs(off.height()) <= 2,
             qPrintable(QStringLiteral("%1 x %2").arg(image.width()).arg(image.height())));
    const QColor middle = image.pixelColor(image.rect().center());
    for (const auto &channel :
         {qMakePair(middle.red(), color.red()), qMakePair(middle.green(), color.green()),
          qMakePair(middle.blue(), color.blue())})
        QVERIFY2(qAbs(channel.first - channel.second) < 40, qPrintable(middle.name()));
}

void TestMediaMetadata::hostile_data()
{
    addColumns<QString, QByteArray>({"name", "bytes"});
    QByteArray noise(100000, 0);
    QRandomGenerator random(20240518);
    for (char &byte : noise)
        byte = char(random.generate());
    const auto contents = [this](const char *name) {
        QFile file(m_fixtures.path() + QLatin1Char('/') + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    for (const char *extension : {"jpg", "png", "gif", "tif", "webp", "nef", "cr2", "cr3", "heic",
                                  "psd", "mp4", "avi", "mkv", "mts"}) {
        const QString name = QStringLiteral("noise.") + QLatin1String(extension);
        QTest::newRow(qPrintable(name)) << name << noise;
        const QString empty = QStringLiteral("empty.") + QLatin1String(extension);
        QTest::newRow(qPrintable(empty)) << empty << QByteArray();
    }
    for (const char *name : {"full.jpg", "raw.dng", "video.mp4"}) {
        const QByteArray whole = contents(name);
        for (const int percent : {1, 10, 50, 90}) {
            const QString cut = QStringLiteral("cut-%1-%2").arg(percent).arg(QLatin1String(name));
            QTest::newRow(qPrintable(cut)) << cut << whole.left(whole.size() * percent / 100);
            // and with the rest shot through
            QByteArray shot = whole;
            for (int i = 0; i < shot.size(); i += percent * 7)
                shot[i] = char(random.generate());
            const QString holes =
                QStringLiteral("holes-%1-%2").arg(percent).arg(QLatin1String(name));
            QTest::newRow(qPrintable(holes)) << holes << shot;
        }
    }
}

void TestMediaMetadata::hostile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const FoundFolder folder({{name, bytes}});
    const QString fatal = QStringLiteral("The file is damaged: "); // it killed the helper twice
    QVERIFY(read(folder, name));                                   // anything, but an answer
    QVERIFY2(!m_failure.startsWith(fatal), qPrintable(m_failure));
    ThumbnailMaker maker;
    maker.setSource(folder.source);
    QSignalSpy settled(&maker, &ThumbnailMaker::settled);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    maker.request(folder.items.first(), extensionOf(name));
    QTRY_COMPARE_WITH_TIMEOUT(settled.size(), 1, PatienceMs);
    const QString reason = failed.value(0).value(1).toString();
    QVERIFY2(!reason.startsWith(fatal), qPrintable(reason));
}

void TestMediaMetadata::memoryIsBounded()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("Sanitizers need the addresses for themselves");
#endif
    // A picture of 196 megapixels, all of it there: more than the helper may have.
    constexpr qint32 Side = 14000;
    constexpr int HeaderBytes = 54;
    QByteArray header("BM");
    QDataStream out(&header, QIODevice::Append);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(0) << quint32(0) << quint32(HeaderBytes) << quint32(40) << Side << Side
        << quint16(1) << quint16(24) << quint32(0) << quint32(0) << quint64(0) << quint64(0);
    FoundFolder folder({{QStringLiteral("large.bmp"), header}});
    QFile file(folder.path() + QStringLiteral("/large.bmp"));
    QVERIFY(file.resize(HeaderBytes + qint64(Side) * Side * 3));
    folder.scan();
    MediaSetup narrow;
    narrow.memoryBytes = 500 << 20;
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(narrow));
    maker.setSource(folder.source);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    maker.request(folder.items.first(), QStringLiteral("bmp"));
    QVERIFY(failed.wait(PatienceMs));
    const QString reason = failed.first().at(1).toString();
    QVERIFY2(!reason.contains(QLatin1String("damaged")), qPrintable(reason)); // the helper lives
    // and what fits is made all the same
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    maker.setSource(m_fixtures.source);
    for (const char *name : {"full.jpg", "video.mp4"})
        maker.request(m_fixtures.named(QLatin1String(name)), extensionOf(QLatin1String(name)));
    QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 2, PatienceMs);
}

/// A play list would have the helper open what it names.
void TestMediaMetadata::namesNoOtherFiles()
{
    const QByteArray video = QFile::encodeName(m_fixtures.path() + QStringLiteral("/video.mp4"));
    const FoundFolder folder(
        {{QStringLiteral("list.mp4"),
          "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + video + "\n#EXT-X-ENDLIST\n"},
         {QStringLiteral("list.mkv"), "ffconcat version 1.0\nfile '" + video + "'\n"}});
    for (const FoundItem &item : folder.items) {
        QVERIFY(read(folder, item.name));
        QVERIFY2(!m_failure.isEmpty(), qPrintable(item.name));
    }
}

void TestMediaMetadata::forgetsAnotherSource()
{
    MetadataReader reader;
    reader.setSource(m_fixtures.source);
    QSignalSpy ready(&reader, &MetadataReader::metadataReady);
    for (const FoundItem &item : qAsConst(m_fixtures.items))
        reader.request(item);
    const FoundFolder other({{QStringLiteral("other.bmp"), "no picture"}});
    reader.setSource(other.source);
    QCOMPARE(reader.pending(), 0);
    QSignalSpy failed(&reader, &MetadataReader::metadataFailed);
    reader.request(other.items.first());
    QVERIFY(failed.wait(PatienceMs));
    QCOMPARE(ready.size(), 0);
}

QTEST_GUILESS_MAIN(TestMediaMetadata)
#include "tst_media_metadata.moc"
