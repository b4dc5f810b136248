#include "host/scan/scanrunner.h"
#include "support/datarow.h"
#include "support/writefile.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <filesystem>
#include <fstream>

/// Folders as a source, and the runner around any source.
class TestScanFolder : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void findsAndReads();
    void linksAndSpecialFiles();
    void namesThatAreNoText();
    void vanishedFileIsAnError();
    void unusablePathsAreTold_data()
    {
        addRows<QString>("path",
                         {{"nothing", QString()},
                          {"missing", QStringLiteral("/does/not/exist.img")},
                          {"a device that never ends", QStringLiteral("/dev/zero")}});
    }
    void unusablePathsAreTold();
    void deliversInOrderOnTheGuiThread();
    void cancels();
    void aNewScanReplacesTheOld();
    void diesWhileScanning();

private:
    void put(const QString &name, const QByteArray &contents)
    {
        QVERIFY(writeFile(m_dir->filePath(name), contents));
    }
    void fill(int folders, int filesEach)
    {
        for (int i = 0; i < folders; ++i) {
            for (int j = 0; j < filesEach; ++j)
                put(QStringLiteral("f%1/%2.jpg").arg(i).arg(j), "x");
        }
    }
    QVector<FoundItem> scan(std::shared_ptr<ScanSource> *source = nullptr)
    {
        ScanRunner runner;
        QVector<FoundItem> items;
        connect(&runner, &ScanRunner::itemsFound, &runner,
                [&](const QVector<FoundItem> &batch) { items += batch; });
        QSignalSpy finished(&runner, &ScanRunner::finished);
        runner.start(m_dir->path());
        if (!finished.wait(20000))
            return {};
        if (source)
            *source = runner.source();
        return items;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestScanFolder::findsAndReads()
{
    put(QStringLiteral("DCIM/100/a b.jpg"), "photo");
    put(QStringLiteral("top.txt"), "text");
    std::shared_ptr<ScanSource> source;
    const QVector<FoundItem> items = scan(&source);
    QCOMPARE(items.size(), 4);
    QSet<qint64> known{-1};
    for (const FoundItem &item : items) {
        QVERIFY(known.contains(item.parentId));
        known.insert(item.id);
        QVERIFY(!item.deleted);
        QVERIFY(qAbs(item.modifiedTime - QDateTime::currentSecsSinceEpoch()) < 60);
        if (item.folder)
            continue;
        QString error;
        const auto device = source->openFile(item, &error);
        QVERIFY2(device, qPrintable(error));
        QCOMPARE(device->readAll(),
                 QByteArray(item.name == QLatin1String("top.txt") ? "text" : "photo"));
        QCOMPARE(item.path,
                 item.name == QLatin1String("top.txt") ? QString() : QStringLiteral("DCIM/100"));
    }
}

void TestScanFolder::linksAndSpecialFiles()
{
    put(QStringLiteral("a/file.txt"), "x");
    QVERIFY(QFile::link(m_dir->path(), m_dir->filePath(QStringLiteral("a/up"))));
    QVERIFY(QFile::link(QStringLiteral("/nowhere"), m_dir->filePath(QStringLiteral("a/dead"))));
    QCOMPARE(scan().size(), 2);
}

void TestScanFolder::namesThatAreNoText()
{
    // A Latin-1 name, as an old camera's card mounted with the wrong code page has.
    const std::filesystem::path odd = std::filesystem::path(m_dir->path().toStdString())
        / "Gr\xf6\xdf"
          "e.txt";
    std::ofstream(odd) << "found";
    std::error_code failure;
    if (!std::filesystem::exists(odd, failure))
        QSKIP("this file system takes Unicode names only");
    std::shared_ptr<ScanSource> source;
    const QVector<FoundItem> items = scan(&source);
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().size, qint64(5));
    QString error;
    const auto device = source->openFile(items.first(), &error);
    QVERIFY2(device, qPrintable(error));
    QCOMPARE(device->readAll(), QByteArray("found"));
    std::filesystem::remove(odd, failure); // QTemporaryDir could not
}

void TestScanFolder::vanishedFileIsAnError()
{
    put(QStringLiteral("gone.txt"), "x");
    put(QStringLiteral("swapped.txt"), "x");
    std::shared_ptr<ScanSource> source;
    const QVector<FoundItem> items = scan(&source);
    QFile::remove(m_dir->filePath(QStringLiteral("gone.txt")));
    QFile::remove(m_dir->filePath(QStringLiteral("swapped.txt")));
    QVERIFY(
        QFile::link(QStringLiteral("/etc/passwd"), m_dir->filePath(QStringLiteral("swapped.txt"))));
    for (const FoundItem &item : items) {
        QString error;
        QVERIFY2(!source->openFile(item, &error), qPrintable(item.name));
        QVERIFY(!error.isEmpty());
    }
}

void TestScanFolder::unusablePathsAreTold()
{
    QFETCH(QString, path);
    ScanRunner runner;
    QSignalSpy finished(&runner, &ScanRunner::finished);
    QSignalSpy opened(&runner, &ScanRunner::opened);
    runner.start(path);
    QVERIFY(finished.wait(5000));
    QVERIFY(!finished.first().first().value<ScanOutcome>().error.isEmpty());
    QCOMPARE(opened.size(), 0);
    QVERIFY(!runner.isRunning());
}

void TestScanFolder::deliversInOrderOnTheGuiThread()
{
    fill(20, 50);
    ScanRunner runner;
    QStringList order;
    int items = 0;
    const auto note = [&](const char *what) {
        QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
        order << QString::fromLatin1(what);
    };
    connect(&runner, &ScanRunner::opened, &runner, [&] { note("opened"); });
    connect(&runner, &ScanRunner::itemsFound, &runner, [&](const QVector<FoundItem> &batch) {
        note("items");
        items += batch.size();
    });
    ScanProgress last;
    connect(&runner, &ScanRunner::progress, &runner, [&](const ScanProgress &now) { last = now; });
    QSignalSpy finished(&runner, &ScanRunner::finished);
    connect(&runner, &ScanRunner::finished, &runner, [&] { note("finished"); });
    runner.start(m_dir->path());
    QVERIFY(finished.wait(20000));
    QCOMPARE(items, 1020);
    QCOMPARE(last.files, qint64(1000));
    QCOMPARE(last.folders, qint64(20));
    QCOMPARE(order.first(), QStringLiteral("opened"));
    QCOMPARE(order.last(), QStringLiteral("finished"));
    QCOMPARE(order.count(QStringLiteral("opened")), 1);
}

void TestScanFolder::cancels()
{
    fill(10, 50);
    ScanRunner runner;
    QSignalSpy finished(&runner, &ScanRunner::finished);
    runner.start(m_dir->path());
    runner.cancel();
    QVERIFY(finished.wait(5000));
    QVERIFY(finished.first().first().value<ScanOutcome>().cancelled);
}

void TestScanFolder::aNewScanReplacesTheOld()
{
    fill(10, 50);
    QTemporaryDir other;
    QVERIFY(writeFile(other.filePath(QStringLiteral("only.txt")), {}));
    ScanRunner runner;
    QSignalSpy finished(&runner, &ScanRunner::finished);
    QVector<FoundItem> items;
    connect(&runner, &ScanRunner::itemsFound, &runner,
            [&](const QVector<FoundItem> &batch) { items += batch; });
    runner.start(m_dir->path());
    runner.start(other.path());
    QVERIFY(finished.wait(5000));
    QCOMPARE(items.size(), 1); // nothing of the first scan
    QCOMPARE(finished.size(), 1);
    // From within a slot, too.
    bool again = true;
    connect(&runner, &ScanRunner::itemsFound, &runner, [&] {
        if (std::exchange(again, false))
            runner.start(other.path());
    });
    runner.start(m_dir->path());
    QVERIFY(finished.wait(5000));
    QCOMPARE(finished.size(), 2);
}

void TestScanFolder::diesWhileScanning()
{
    fill(10, 50);
    for (int i = 0; i < 5; ++i) {
        ScanRunner runner;
        runner.start(m_dir->path());
    }
}

QTEST_GUILESS_MAIN(TestScanFolder)
#include "tst_scan_folder.moc"
