#include "host/scan/scanrunner.h"
#include "host/scan/syntheticshots.h"
#include "host/scan/syntheticsource.h"
#include "support/datarow.h"

#include <QImage>
#include <QSignalSpy>
#include <QtTest>

/// The card that is made up, through the runner that the program uses.
class TestSyntheticSource : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void itemsFormATree();
    void isAMixture();
    void isTheSameEveryTime();
    void photosHaveContents();
    void lostContentsAreTold();
    void pathNamesTheCount_data();
    void pathNamesTheCount();

private:
    static constexpr int Count = 30000;

    static QVector<FoundItem> scan(const std::shared_ptr<ScanSource> &source)
    {
        QVector<FoundItem> items;
        const std::atomic<bool> cancel{false};
        source->scan([&items](QVector<FoundItem> &&batch) { items += batch; }, cancel);
        return items;
    }

    std::shared_ptr<ScanSource> m_source;
    QVector<FoundItem> m_items;
};

void TestSyntheticSource::initTestCase()
{
    ScanRunner runner;
    int deliveries = 0;
    connect(&runner, &ScanRunner::itemsFound, this, [&](const QVector<FoundItem> &batch) {
        m_items += batch;
        ++deliveries;
    });
    QSignalSpy finished(&runner, &ScanRunner::finished);
    runner.start(SyntheticSource::pathFor(Count));
    QVERIFY(finished.wait(20000));
    m_source = runner.source();
    QCOMPARE(m_items.size(), Count);
    QVERIFY2(deliveries > 1, "a scan comes bit by bit");
}

void TestSyntheticSource::itemsFormATree()
{
    QHash<qint64, QString> folders{{-1, QString()}};
    QSet<qint64> ids;
    QSet<QString> paths;
    for (const FoundItem &item : qAsConst(m_items)) {
        QVERIFY2(folders.contains(item.parentId), qPrintable(item.fullPath()));
        QCOMPARE(item.path, folders.value(item.parentId));
        QVERIFY2(!ids.contains(item.id), qPrintable(item.name));
        QVERIFY2(!paths.contains(item.fullPath()), qPrintable(item.fullPath()));
        ids.insert(item.id);
        paths.insert(item.fullPath());
        if (item.folder)
            folders.insert(item.id, item.fullPath());
        else
            QVERIFY(item.size > 0 && item.modifiedTime > 0);
    }
}

void TestSyntheticSource::isAMixture()
{
    QHash<QString, int> kinds;
    int deleted = 0;
    int overwritten = 0;
    for (const FoundItem &item : qAsConst(m_items)) {
        ++kinds[item.folder ? QStringLiteral("/") : item.name.section('.', -1).toUpper()];
        deleted += item.deleted;
        overwritten += SyntheticShots::isOverwritten(item);
    }
    for (const char *kind : {"/", "JPG", "CR2", "MP4", "MTS", "MP3", "PDF"})
        QVERIFY2(kinds.value(QLatin1String(kind)) > 0, kind);
    QVERIFY(deleted > Count / 10 && deleted < Count / 3);
    QVERIFY(overwritten > deleted / 5 && overwritten < deleted / 2);
}

void TestSyntheticSource::isTheSameEveryTime()
{
    const QVector<FoundItem> again = scan(std::make_shared<SyntheticSource>(Count));
    QCOMPARE(again.size(), m_items.size());
    for (int i = 0; i < again.size(); i += 7) {
        QCOMPARE(again[i].fullPath(), m_items[i].fullPath());
        QCOMPARE(again[i].size, m_items[i].size);
        QCOMPARE(again[i].deleted, m_items[i].deleted);
    }
}

void TestSyntheticSource::photosHaveContents()
{
    QSet<QByteArray> pictures;
    int opened = 0;
    for (const FoundItem &item : qAsConst(m_items)) {
        if (opened == 10)
            break;
        if (item.folder || item.deleted || !item.name.endsWith(QLatin1String(".JPG")))
            continue;
        QString error;
        const auto file = m_source->openFile(item, &error);
        QVERIFY2(file, qPrintable(error));
        QCOMPARE(file->size(), item.size);
        const QByteArray head = file->read(64 * 1024);
        QVERIFY(!QImage::fromData(head).isNull());
        pictures.insert(head);
        QVERIFY(file->seek(item.size - 3));
        QCOMPARE(file->read(10), QByteArray(3, '\0'));
        ++opened;
    }
    QCOMPARE(pictures.size(), 10);
}

void TestSyntheticSource::lostContentsAreTold()
{
    const auto lost = std::find_if(m_items.cbegin(), m_items.cend(), [](const FoundItem &item) {
        return !item.folder && SyntheticShots::isOverwritten(item);
    });
    QVERIFY(lost != m_items.cend());
    QString error;
    QVERIFY(!m_source->openFile(*lost, &error));
    QVERIFY(!error.isEmpty());
}

void TestSyntheticSource::pathNamesTheCount_data()
{
    addColumns<QString, int>({"path", "count"});
    QTest::newRow("a count") << SyntheticSource::pathFor(1000000) << 1000000;
    QTest::newRow("none") << "items:0" << 0;
    QTest::newRow("below zero") << "items:-5" << 0;
    QTest::newRow("too many") << "items:2000000000" << 0;
    QTest::newRow("no number") << "items:many" << 0;
    QTest::newRow("a file") << "/home/items:5" << 0;
}

void TestSyntheticSource::pathNamesTheCount()
{
    QFETCH(QString, path);
    QFETCH(int, count);
    QCOMPARE(SyntheticSource::countOf(path), count);
}

QTEST_GUILESS_MAIN(TestSyntheticSource)
#include "tst_synthetic_source.moc"
