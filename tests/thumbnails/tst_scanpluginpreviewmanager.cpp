#include "support/awkwardfiles.h"
#include "support/datarow.h"
#include "thumbnailfixture.h"
#include "thumbnails/filetypeicons.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QImageIOPlugin>
#include <QRandomGenerator>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <memory>
#include <vector>

namespace {

ScanPluginPreviewManager *cache()
{
    return ScanPluginPreviewManager::instance();
}

QPixmap filled(const QColor &colour, const QSize &size = {110, 83})
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

QImage noise(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QRandomGenerator random(5);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, random.generate());
    }
    return image;
}

QColor middleOf(const QPixmap &pixmap)
{
    return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(pixmap.rect().center());
}

bool isNear(const QColor &a, const QColor &b)
{
    constexpr int JpegTolerance = 8;
    return qAbs(a.red() - b.red()) < JpegTolerance && qAbs(a.green() - b.green()) < JpegTolerance
        && qAbs(a.blue() - b.blue()) < JpegTolerance;
}

/// Gives the worker time to answer while this thread hears nothing of it. What follows has to be
/// right however far the worker has come.
void letTheWorkerWork()
{
    QThread::msleep(150);
}

QSemaphore s_reading;

/// Is being read for as long as its file gives anything.
class EndlessPicture : public QImageIOHandler
{
public:
    bool canRead() const override { return true; }
    bool read(QImage *) override
    {
        s_reading.release();
        while (device()->seek(0) && device()->read(1).size() == 1) { }
        return false;
    }
    bool supportsOption(ImageOption option) const override { return option == Size; }
    QVariant option(ImageOption) const override { return QSize(300, 225); }
};

} // namespace

class EndlessPictures : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "endlesspictures.json")

public:
    Capabilities capabilities(QIODevice *device, const QByteArray &) const override
    {
        return device && device->peek(7) == "endless" ? CanRead : Capabilities();
    }
    QImageIOHandler *create(QIODevice *device, const QByteArray &) const override
    {
        auto *handler = new EndlessPicture;
        handler->setDevice(device);
        return handler;
    }
};
Q_IMPORT_PLUGIN(EndlessPictures)

class tst_ScanPluginPreviewManager : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        cache()->stop();
        AwkwardFiles::setTemporaryFolder(m_root.path());
    }
    void cleanupTestCase();

    void bestCandidateWins_data();
    void bestCandidateWins();
    void unreadableFile_data()
    {
        addRows<bool>("isFolder", {{"locked, or a pipe", false}, {"a folder of its name", true}});
    }
    void unreadableFile();
    void temporaryFolders_data();
    void temporaryFolders();
    void uselessTemporaryFolder_data()
    {
        addRows<QString>("folder",
                         {{"nowhere", AwkwardFiles::nowhere()},
                          {"below a file", QCoreApplication::applicationFilePath()}});
    }
    void uselessTemporaryFolder();
    void requestsAreQueuedOnce();
    void hostMayWriteTheFileLater();
    void recordDiesBeforeTheAnswer_data()
    {
        addRows<bool>("answerIsUnderWay",
                      {{"while queued", false}, {"between miss and delivery", true}});
    }
    void recordDiesBeforeTheAnswer();
    void hostAnswerStopsTheAsking();
    void hostAnswerBeatsAnOlderLookup();
    void hostIsAskedOnce();
    void stopForgetsAndDropsWhatIsUnderWay();
    void stopEndsInTheMiddleOfAPicture();
    void listPictures();
    void foldersAreNeverLookedUp();
    void repairedStateStays();
    void repairResult_data();
    void repairResult();
    void memoryIsBounded();
    void picturesGoWithTheirRecords();
    void newestAnswerOfTheHostCounts();
    void badIds();

private:
    TemporaryRoot m_root;
    qint64 m_nextId = 1;
};

void tst_ScanPluginPreviewManager::bestCandidateWins_data()
{
    QTest::addColumn<QString>("repaired");
    QTest::addColumn<QString>("png");
    QTest::addColumn<QString>("jpeg");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("expected"); // empty: none can be read

    addRow("all", "red", "green", "blue", "yellow", "red");
    addRow("no repaired one", "", "green", "blue", "yellow", "green");
    addRow("jpeg", "", "", "blue", "yellow", "blue");
    addRow("plain", "", "", "", "yellow", "yellow");
    addRow("repaired is broken", "broken", "green", "", "", "green");
    addRow("all but the last broken", "broken", "broken", "broken", "yellow", "yellow");
    addRow("all broken", "broken", "broken", "broken", "broken", "");
    addRow("none", "", "", "", "", "");
}

void tst_ScanPluginPreviewManager::bestCandidateWins()
{
    QFETCH(QString, repaired);
    QFETCH(QString, png);
    QFETCH(QString, jpeg);
    QFETCH(QString, plain);
    QFETCH(QString, expected);
    Photo photo(m_nextId++);
    using namespace ThumbnailFiles;
    const QPair<QString, QString> files[] = {{repairedPreview(photo.fileId, "jpg"), repaired},
                                             {pngThumbnail(photo.fileId, "jpg"), png},
                                             {jpegThumbnail(photo.fileId, "jpg"), jpeg},
                                             {plainImage(photo.fileId, "jpg"), plain}};
    bool hasAny = false;
    for (const auto &file : files) {
        if (file.second.isEmpty())
            continue;
        hasAny = true;
        QVERIFY(file.second == QLatin1String("broken")
                    ? writeFile(file.first, "\x89PNG\r\n\x1a\nbroken")
                    : TemporaryRoot::save(file.first, QColor(file.second)));
    }
    QCOMPARE(ScanPluginPreviewManager::hasLocalThumbnail(photo.fileId, "jpg"), hasAny);

    QSignalSpy loaded(cache(), &ScanPluginPreviewManager::signalUpdateThumBnail);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&photo);
    QTRY_COMPARE(loaded.count() + missing.count(), 1);
    QCOMPARE(loaded.count() == 1, !expected.isEmpty());
    if (!expected.isEmpty()) {
        const QPixmap picture = cache()->gridThumbnail(photo.fileId);
        QCOMPARE(picture.size(), QSize(110, 83));
        QVERIFY(isNear(middleOf(picture), QColor(expected)));
    }
}

// It holds up nobody, the host is told, and the next candidate is read.
void tst_ScanPluginPreviewManager::unreadableFile()
{
    QFETCH(bool, isFolder);
    Photo photo(m_nextId++);
    const QString path = ThumbnailFiles::pngThumbnail(photo.fileId, "jpg");
    QVERIFY(QDir().mkpath(isFolder ? path : QFileInfo(path).path()));
    std::unique_ptr<AwkwardFiles::Unreadable> file;
    if (!isFolder)
        file = std::make_unique<AwkwardFiles::Unreadable>(path);
    QVERIFY(ScanPluginPreviewManager::hasLocalThumbnail(photo.fileId, "jpg"));

    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&photo);
    QTRY_COMPARE(missing.count(), 1);
    cache()->storeThumbnail(photo.fileId, path, filled(Qt::blue));
    QCOMPARE(middleOf(cache()->gridThumbnail(photo.fileId)), QColor(Qt::blue));

    cache()->stop();
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::jpegThumbnail(photo.fileId, "jpg"), Qt::red));
    cache()->requestThumbnail(&photo);
    QTRY_VERIFY(isNear(middleOf(cache()->gridThumbnail(photo.fileId)), Qt::red));
}

void tst_ScanPluginPreviewManager::temporaryFolders_data()
{
    addColumns<QString, QString>({"folder", "extension"});
    QTest::newRow("more than 300 characters") << QString(100, 'f') << QString(200, 'e');
    // Chinese, a letter of two units, an accent on its own
    QTest::newRow("letters of no code page")
        << QStringLiteral(u"\u7167\u7247 \U0001F4F7 e\u0301") << QStringLiteral(u"\u5199\u771F");
}

void tst_ScanPluginPreviewManager::temporaryFolders()
{
    QFETCH(QString, folder);
    QFETCH(QString, extension);
    QVERIFY(QDir(m_root.path()).mkpath(folder));
    AwkwardFiles::setTemporaryFolder(m_root.path() + QLatin1Char('/') + folder);
    QVERIFY(QDir::tempPath().endsWith(folder));
    Photo photo(m_nextId++);
    photo.extension = extension;
    using namespace ThumbnailFiles;
    QVERIFY(TemporaryRoot::save(jpegThumbnail(photo.fileId, extension), Qt::red));
    cache()->requestThumbnail(&photo);
    QTRY_VERIFY(isNear(middleOf(cache()->gridThumbnail(photo.fileId)), Qt::red));
    QVERIFY(TemporaryRoot::save(repairedPreview(photo.fileId, extension), Qt::blue));
    QVERIFY(cache()->hasRepairedPreview(&photo));
    const QString native = QDir::toNativeSeparators(repairedPreview(photo.fileId, extension));
    cache()->storeThumbnail(photo.fileId, native, filled(Qt::green));
    QCOMPARE(middleOf(cache()->gridThumbnail(photo.fileId)), QColor(Qt::green));
}

void tst_ScanPluginPreviewManager::uselessTemporaryFolder()
{
    QFETCH(QString, folder);
    static QStringList warnings;
    warnings.clear();
    AwkwardFiles::setTemporaryFolder(folder);
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { warnings.append(text); });
    Photo photo(m_nextId++);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    for (int scan = 1; scan <= 3; ++scan) {
        cache()->requestThumbnail(&photo);
        QTRY_COMPARE(missing.count(), scan);
        cache()->stop();
    }
    qInstallMessageHandler(before);
    QCOMPARE(warnings.size(), 1);
    QVERIFY(warnings.constFirst().contains(ThumbnailFiles::root()));
    cache()->storeThumbnail(photo.fileId, filled(Qt::green));
    QVERIFY(!cache()->gridThumbnail(photo.fileId).isNull());
}

void tst_ScanPluginPreviewManager::requestsAreQueuedOnce()
{
    Photo photo(m_nextId++);
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(photo.fileId, "jpg"), Qt::red));
    QSignalSpy updates(cache(), &ScanPluginPreviewManager::signalUpdateListView);
    QSignalSpy loads(cache(), &ScanPluginPreviewManager::signalUpdateThumBnail);
    for (int i = 0; i < 5; ++i)
        cache()->requestThumbnail(&photo);
    Photo twin(photo.fileId); // the other side's record of the same item
    cache()->requestThumbnail(&twin);
    Photo last(m_nextId++);
    cache()->requestThumbnail(&last);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    QTRY_COMPARE(missing.count(), 1);
    QCOMPARE(updates.count(), 1);
    QCOMPARE(loads.count(), 1);
    QCOMPARE(updates.at(0).at(0).toLongLong(), photo.fileId);
}

void tst_ScanPluginPreviewManager::hostMayWriteTheFileLater()
{
    Photo photo(m_nextId++);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&photo);
    QTRY_COMPARE(missing.count(), 1);
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::jpegThumbnail(photo.fileId, "jpg"), Qt::red));
    cache()->requestThumbnail(&photo);
    QTRY_VERIFY(!cache()->gridThumbnail(photo.fileId).isNull());
    QCOMPARE(missing.count(), 1);
}

void tst_ScanPluginPreviewManager::recordDiesBeforeTheAnswer()
{
    QFETCH(bool, answerIsUnderWay);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    auto doomed = std::make_unique<Photo>(m_nextId++);
    Photo survivor(m_nextId++);
    cache()->requestThumbnail(doomed.get());
    cache()->requestThumbnail(&survivor);
    if (answerIsUnderWay)
        letTheWorkerWork();
    doomed.reset();
    QTRY_COMPARE(missing.count(), 1);
    QCOMPARE(missing.at(0).at(0).value<TreeItemData *>(), static_cast<TreeItemData *>(&survivor));
}

void tst_ScanPluginPreviewManager::hostAnswerStopsTheAsking()
{
    Photo given(m_nextId++);
    Photo refused(m_nextId++);
    Photo open(m_nextId++);
    cache()->storeThumbnail(given.fileId, filled(Qt::green));
    cache()->storeThumbnail(refused.fileId, QPixmap());
    QCOMPARE(middleOf(cache()->gridThumbnail(given.fileId)), QColor(Qt::green));
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&given);
    cache()->requestThumbnail(&refused);
    cache()->requestThumbnail(&open);
    QTRY_COMPARE(missing.count(), 1);
    QCOMPARE(missing.at(0).at(0).value<TreeItemData *>(), static_cast<TreeItemData *>(&open));
}

void tst_ScanPluginPreviewManager::hostAnswerBeatsAnOlderLookup()
{
    Photo photo(m_nextId++);
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(photo.fileId, "jpg"), Qt::red));
    cache()->requestThumbnail(&photo);
    letTheWorkerWork();
    cache()->storeThumbnail(photo.fileId, filled(Qt::green));
    Photo next(m_nextId++);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&next);
    QTRY_COMPARE(missing.count(), 1);
    QCOMPARE(middleOf(cache()->gridThumbnail(photo.fileId)), QColor(Qt::green));
}

void tst_ScanPluginPreviewManager::hostIsAskedOnce()
{
    Photo photo(m_nextId++);
    QVERIFY(cache()->claimHostRequest(&photo));
    QVERIFY(!cache()->claimHostRequest(&photo));
    cache()->storeThumbnail(photo.fileId, filled(Qt::red));
    QVERIFY(cache()->claimHostRequest(&photo));
    cache()->stop();
    QVERIFY(cache()->claimHostRequest(&photo));
}

void tst_ScanPluginPreviewManager::stopForgetsAndDropsWhatIsUnderWay()
{
    Photo photo(m_nextId++);
    Photo missing(m_nextId++);
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(photo.fileId, "jpg"), Qt::red));
    QSignalSpy loads(cache(), &ScanPluginPreviewManager::signalUpdateThumBnail);
    QSignalSpy misses(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&photo);
    cache()->requestThumbnail(&missing);
    letTheWorkerWork();
    cache()->stop();
    QCoreApplication::processEvents();
    QCOMPARE(loads.count(), 0); // it belongs to a scan that is over
    QCOMPARE(misses.count(), 0);

    cache()->requestThumbnail(&photo);
    QTRY_COMPARE(loads.count(), 1);
    QVERIFY(!cache()->gridThumbnail(photo.fileId).isNull());
    cache()->stop();
    QVERIFY(cache()->gridThumbnail(photo.fileId).isNull());
}

void tst_ScanPluginPreviewManager::stopEndsInTheMiddleOfAPicture()
{
    Photo photo(m_nextId++);
    QVERIFY(writeFile(ThumbnailFiles::plainImage(photo.fileId, "jpg"), "endless"));
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&photo);
    s_reading.acquire();
    cache()->stop(); // or never
    QCoreApplication::processEvents();
    QCOMPARE(missing.count(), 0); // given up is not missing
}

void tst_ScanPluginPreviewManager::listPictures()
{
    Photo photo(m_nextId++);
    const QSize small(32, 32);
    QCOMPARE(cache()->listThumbnail(&photo).toImage(),
             FileTypeIcons::icon(photo, FileTypeIcons::Size::List).toImage());
    cache()->storeThumbnail(photo.fileId, filled(Qt::green, {400, 90}));
    const QImage picture = cache()->listThumbnail(&photo).toImage();
    QCOMPARE(picture.size(), small);
    QCOMPARE(picture.pixelColor(16, 16), QColor(Qt::green));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(31, 0), QPoint(0, 31), QPoint(31, 31)})
        QCOMPARE(picture.pixelColor(corner).alpha(), 0);
    QVERIFY(!cache()->listThumbnail(nullptr).isNull());
}

void tst_ScanPluginPreviewManager::foldersAreNeverLookedUp()
{
    Photo folder(m_nextId++);
    folder.kind = 1;
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(folder.fileId, "jpg"), Qt::red));
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::repairedPreview(folder.fileId, "jpg"), Qt::red));
    cache()->requestThumbnail(&folder);
    QVERIFY(!cache()->listThumbnail(&folder).isNull());
    QVERIFY(!cache()->hasRepairedPreview(&folder));
    Photo last(m_nextId++);
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&last);
    QTRY_COMPARE(missing.count(), 1);
    QVERIFY(cache()->gridThumbnail(folder.fileId).isNull());
}

void tst_ScanPluginPreviewManager::repairedStateStays()
{
    Photo photo(m_nextId++);
    const QString path = ThumbnailFiles::repairedPreview(photo.fileId, photo.extension);
    QVERIFY(!cache()->hasRepairedPreview(&photo));
    QVERIFY(!photo.property("previewRepaired").isValid());
    QVERIFY(TemporaryRoot::save(path, Qt::red));
    QVERIFY(cache()->hasRepairedPreview(&photo));
    QCOMPARE(photo.property("previewRepaired"), QVariant(true));
    QCOMPARE(photo.property("previewRepairedPath"), QVariant(path));
    QVERIFY(QFile::remove(path));
    QVERIFY(cache()->hasRepairedPreview(&photo));
    Photo twin(photo.fileId); // another record of the item: still repaired, the file is gone
    QVERIFY(cache()->hasRepairedPreview(&twin));
    QVERIFY(!twin.property("previewRepairedPath").isValid());
    QVERIFY(!cache()->hasRepairedPreview(nullptr));

    Photo told(m_nextId++);
    told.setProperty("previewRepaired", true);
    QVERIFY(cache()->hasRepairedPreview(&told));
}

void tst_ScanPluginPreviewManager::repairResult_data()
{
    addColumns<QString, bool>({"fileName", "isRepaired"});
    QTest::newRow("repaired preview") << "%1_repaired.jpg" << true;
    QTest::newRow("thumbnail") << "%1_thumbnail.png" << false;
    QTest::newRow("no path") << "" << false;
}

void tst_ScanPluginPreviewManager::repairResult()
{
    QFETCH(QString, fileName);
    QFETCH(bool, isRepaired);
    Photo photo(m_nextId++);
    const QString path = fileName.isEmpty()
        ? QString()
        : QDir::tempPath() + QLatin1Char('/') + fileName.arg(photo.fileId);
    cache()->storeThumbnail(photo.fileId, path, filled(Qt::blue));
    QCOMPARE(cache()->hasRepairedPreview(&photo), isRepaired);
    QCOMPARE(middleOf(cache()->gridThumbnail(photo.fileId)), QColor(Qt::blue));
}

void tst_ScanPluginPreviewManager::memoryIsBounded()
{
    constexpr qint64 Ceiling = 128 << 20;
    Photo fromDisk(m_nextId++);
    QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(fromDisk.fileId, "jpg"), Qt::yellow));
    cache()->requestThumbnail(&fromDisk);
    QTRY_VERIFY(!cache()->gridThumbnail(fromDisk.fileId).isNull());
    Photo onlyCopy(m_nextId++);
    cache()->storeThumbnail(onlyCopy.fileId, filled(Qt::magenta, {4000, 3000}));
    QCOMPARE(cache()->gridThumbnail(onlyCopy.fileId).size(), QSize(640, 480));
    Photo fromHost(m_nextId++);
    const QString path = QDir::tempPath() + QLatin1String("/elsewhere.png");
    QVERIFY(noise({300, 220}).save(path));
    const QImage given(path);
    cache()->storeThumbnail(fromHost.fileId, path, QPixmap::fromImage(given));

    for (int i = 0; i < 160; ++i) {
        cache()->storeThumbnail(m_nextId++, path, filled(Qt::red, {640, 640}));
        QVERIFY(cache()->bytesInUse() <= Ceiling + 2000000); // and the only copy
    }
    QVERIFY(!cache()->gridThumbnail(onlyCopy.fileId).isNull());
    QVERIFY(cache()->gridThumbnail(fromDisk.fileId).isNull());
    QVERIFY(cache()->gridThumbnail(fromHost.fileId).isNull());

    // given up is not lost, and nobody bothers the host
    QSignalSpy missing(cache(), &ScanPluginPreviewManager::signalSaveThumBnail);
    cache()->requestThumbnail(&fromDisk);
    cache()->requestThumbnail(&fromHost);
    QTRY_COMPARE(cache()->gridThumbnail(fromHost.fileId).toImage(), given);
    QCOMPARE(middleOf(cache()->gridThumbnail(fromDisk.fileId)), QColor(Qt::yellow));
    QCOMPARE(missing.count(), 0);
}

void tst_ScanPluginPreviewManager::picturesGoWithTheirRecords()
{
    auto photo = std::make_unique<Photo>(m_nextId++);
    auto asked = std::make_unique<Photo>(m_nextId++);
    auto shared = std::make_unique<Photo>(m_nextId++);
    Photo twin(shared->fileId);
    auto late = std::make_unique<Photo>(m_nextId++);
    const qint64 gone[] = {photo->fileId, asked->fileId, late->fileId};
    for (const Photo *loaded : {photo.get(), shared.get(), late.get()})
        QVERIFY(TemporaryRoot::save(ThumbnailFiles::pngThumbnail(loaded->fileId, "jpg"), Qt::red));
    cache()->requestThumbnail(photo.get());
    cache()->requestThumbnail(shared.get());
    QVERIFY(cache()->claimHostRequest(asked.get()));
    cache()->storeThumbnail(asked->fileId, filled(Qt::green));
    QTRY_VERIFY(!cache()->gridThumbnail(shared->fileId).isNull());
    cache()->requestThumbnail(late.get());
    late.reset(); // before its picture comes
    QTRY_VERIFY(!cache()->gridThumbnail(gone[2]).isNull());
    const qint64 before = cache()->bytesInUse();

    cache()->dropOrphans();
    photo.reset(); // as hosts do: first the new items, then the old ones go
    asked.reset();
    shared.reset();
    cache()->hasRepairedPreview(&twin); // painted meanwhile on the other side
    QTRY_VERIFY(cache()->bytesInUse() < before);
    cache()->dropOrphans();
    for (const qint64 fileId : gone)
        QTRY_VERIFY(cache()->gridThumbnail(fileId).isNull());
    QVERIFY(!cache()->gridThumbnail(twin.fileId).isNull());
}

void tst_ScanPluginPreviewManager::newestAnswerOfTheHostCounts()
{
    Photo photo(m_nextId++);
    const QString path = QDir::tempPath() + QLatin1String("/older.png");
    QVERIFY(TemporaryRoot::save(path, Qt::green));
    cache()->storeThumbnail(photo.fileId, path, filled(Qt::green));
    cache()->storeThumbnail(photo.fileId, filled(Qt::blue)); // of which there is no file
    for (int i = 0; i < 160; ++i)
        cache()->storeThumbnail(m_nextId++, path, filled(Qt::red, {640, 640}));
    QCOMPARE(middleOf(cache()->gridThumbnail(photo.fileId)), QColor(Qt::blue));
}

void tst_ScanPluginPreviewManager::badIds()
{
    QSignalSpy updates(cache(), &ScanPluginPreviewManager::signalUpdateListView);
    QTest::ignoreMessage(QtWarningMsg,
                         "ScanPluginPreviewManager thumbnail for an invalid file id: -1");
    cache()->storeThumbnail(-1, filled(Qt::red));
    cache()->storeRepairResult(-1, QString(), filled(Qt::red));
    QCOMPARE(updates.count(), 0);
}

void tst_ScanPluginPreviewManager::cleanupTestCase()
{
    Photo photo(m_nextId++);
    cache()->requestThumbnail(&photo); // the process ends with the worker running
}

QTEST_MAIN(tst_ScanPluginPreviewManager)
#include "tst_scanpluginpreviewmanager.moc"
