#include "foundfolder.h"

#include "host/media/thumbnailmaker.h"
#include "support/datarow.h"

#include <QCoreApplication>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int WorkMs = 400;
constexpr int PatienceMs = 20000;

MediaSetup setup(int helpers = 1)
{
    MediaSetup fake;
    fake.program = QCoreApplication::applicationDirPath() + QStringLiteral("/fake-quarvo-media");
    fake.helpers = helpers;
    fake.workMs = WorkMs;
    fake.readBytes = 64 << 20;
    return fake;
}

/// A file that cannot be read.
class BadSpot : public QIODevice
{
public:
    BadSpot() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }
    qint64 size() const override { return 8; }

protected:
    qint64 readData(char *, qint64) override
    {
        setErrorString(QStringLiteral("a bad spot"));
        return -1;
    }
    qint64 writeData(const char *, qint64) override { return -1; }
};

class BadCard : public ScanSource
{
public:
    BadCard()
        : ScanSource(QStringLiteral("card"))
    {
    }
    ScanOutcome scan(const Sink &, const std::atomic<bool> &, const Progress &) override
    {
        return ScanOutcome();
    }
    std::unique_ptr<QIODevice> openFile(const FoundItem &, QString *) const override
    {
        return std::make_unique<BadSpot>();
    }
};

} // namespace

class TestMediaHelper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void survivesBadHabits_data()
    {
        addRows<QString>("extension",
                         {{"dies", "png"},
                          {"hangs", "gif"},
                          {"prints", "bmp"},
                          {"picture that is none", "tif"},
                          {"reads before the file", "tga"},
                          {"reads too much at once", "psd"},
                          {"reads for ever", "webp"},
                          {"endless metadata", "ico"},
                          {"an answer to nothing", "pcx"}});
    }
    void survivesBadHabits();
    void secondChance();
    void readErrorIsNoCrash();
    void latestFirst();
    void dropsWhatNobodyWaitsFor();
    void leavesAHangingHelper();
    void withoutHelper_data();
    void withoutHelper();

private:
    int starts() const
    {
        return QDir(m_marks->path()).entryList({QStringLiteral("start-*")}, QDir::Files).size();
    }
    std::unique_ptr<QTemporaryDir> m_marks;
};

void TestMediaHelper::init()
{
    m_marks = std::make_unique<QTemporaryDir>();
    qputenv("QUARVO_FAKE_MARKS", QFile::encodeName(m_marks->path()));
    qunsetenv("QUARVO_FAKE_MUTE");
}

void TestMediaHelper::survivesBadHabits()
{
    QFETCH(QString, extension);
    const FoundFolder folder({{QStringLiteral("bad.") + extension, "contents"},
                              {QStringLiteral("good.jpg"), "contents"}});
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(setup()));
    maker.setSource(folder.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);

    const FoundItem bad = folder.named(QStringLiteral("bad.") + extension);
    maker.request(bad, extension);
    QVERIFY(failed.wait(PatienceMs));
    QCOMPARE(failed.first().at(0).toLongLong(), bad.id);
    const QString reason = failed.first().at(1).toString();
    QVERIFY2(reason.startsWith(QLatin1String("The file is damaged: ")), qPrintable(reason));
    QCOMPARE(starts(), 2); // it was given a second chance

    // Damaged files are not tried again, and others are none the worse.
    maker.request(bad, extension);
    QVERIFY(failed.wait(PatienceMs));
    QCOMPARE(starts(), 2);
    maker.request(folder.named(QStringLiteral("good.jpg")), QStringLiteral("jpg"));
    QVERIFY(ready.wait(PatienceMs));
    QCOMPARE(ready.first().at(2).value<QImage>().size(), QSize(4, 3));
    QCOMPARE(starts(), 3);
}

void TestMediaHelper::secondChance()
{
    const FoundFolder folder({{QStringLiteral("a.dng"), "contents"}});
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(setup()));
    maker.setSource(folder.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    maker.request(folder.items.first(), QStringLiteral("dng"));
    QVERIFY(ready.wait(PatienceMs));
    QCOMPARE(starts(), 2);
}

void TestMediaHelper::readErrorIsNoCrash()
{
    MediaSetup real;
    real.helpers = 1;
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(real));
    maker.setSource(std::make_shared<BadCard>());
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    FoundItem item;
    item.id = 7;
    item.name = QStringLiteral("a.jpg");
    item.size = 8;
    maker.request(item, QStringLiteral("jpg"));
    QVERIFY(failed.wait(PatienceMs));
    QCOMPARE(failed.first().at(1).toString(), QStringLiteral("a bad spot"));
}

void TestMediaHelper::latestFirst()
{
    const FoundFolder folder({{QStringLiteral("0.gif"), "contents"}, // keeps the helper busy
                              {QStringLiteral("1.jpg"), "contents"},
                              {QStringLiteral("2.jpg"), "contents"},
                              {QStringLiteral("3.jpg"), "contents"}});
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(setup()));
    maker.setSource(folder.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    QSignalSpy settled(&maker, &ThumbnailMaker::settled);
    maker.request(folder.items.at(0), QStringLiteral("gif"));
    QTRY_COMPARE(starts(), 1);
    for (int i = 1; i < 4; ++i)
        maker.request(folder.items.at(i), QStringLiteral("jpg"));
    QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 3, PatienceMs);
    QCOMPARE(failed.size(), 0); // its second chance comes last
    for (int i = 0; i < 3; ++i)
        QCOMPARE(ready.at(i).first().toLongLong(), folder.items.at(3 - i).id);
    QTRY_COMPARE_WITH_TIMEOUT(settled.size(), 1, PatienceMs);
    QCOMPARE(failed.size(), 1);
}

void TestMediaHelper::dropsWhatNobodyWaitsFor()
{
    const FoundFolder folder({{QStringLiteral("0.gif"), "contents"},
                              {QStringLiteral("1.jpg"), "contents"},
                              {QStringLiteral("2.jpg"), "contents"}});
    const auto pool = std::make_shared<MediaPool>(setup());
    ThumbnailMaker maker(nullptr, pool);
    ThumbnailMaker other(nullptr, pool);
    maker.setSource(folder.source);
    other.setSource(folder.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    QSignalSpy othersReady(&other, &ThumbnailMaker::thumbnailReady);
    maker.request(folder.items.at(0), QStringLiteral("gif"));
    QTRY_COMPARE(starts(), 1);
    maker.request(folder.items.at(1), QStringLiteral("jpg"));
    other.request(folder.items.at(2), QStringLiteral("jpg"));
    maker.drop();
    QCOMPARE(maker.pending(), 1);
    QVERIFY(othersReady.wait(PatienceMs));
    QTRY_COMPARE_WITH_TIMEOUT(maker.pending(), 0, PatienceMs);
    QCOMPARE(ready.size(), 0);
}

void TestMediaHelper::leavesAHangingHelper()
{
    const FoundFolder folder({{QStringLiteral("0.gif"), "contents"}});
    MediaSetup patient = setup();
    patient.workMs = 3600 * 1000; // which no test has
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(patient));
    maker.setSource(folder.source);
    maker.request(folder.items.first(), QStringLiteral("gif"));
    QTRY_COMPARE(starts(), 1);
}

void TestMediaHelper::withoutHelper_data()
{
    addColumns<QString, bool>({"program", "mute"});
    QTest::newRow("not installed") << QString() << false;
    QTest::newRow("no program") << QStringLiteral("/nowhere/quarvo-media") << false;
    QTest::newRow("says nothing") << setup().program << true;
}

void TestMediaHelper::withoutHelper()
{
    QFETCH(QString, program);
    QFETCH(bool, mute);
    if (mute)
        qputenv("QUARVO_FAKE_MUTE", "1");
    MediaSetup broken = setup();
    broken.program = program;
    const FoundFolder folder(
        {{QStringLiteral("a.jpg"), "contents"}, {QStringLiteral("b.jpg"), "contents"}});
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("quarvo-media"))); // once
    ThumbnailMaker maker(nullptr, std::make_shared<MediaPool>(broken));
    maker.setSource(folder.source);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    for (const FoundItem &item : folder.items)
        maker.request(item, QStringLiteral("jpg"));
    QTRY_COMPARE_WITH_TIMEOUT(failed.size(), 2, PatienceMs);
    const QString reason = failed.last().at(1).toString();
    QVERIFY2(reason.contains(QLatin1String("quarvo-media")), qPrintable(reason));
}

QTEST_GUILESS_MAIN(TestMediaHelper)
#include "tst_media_helper.moc"
