#include "host/recovery/recoveryjob.h"
#include "host/recovery/safename.h"
#include "host/scan/scanids.h"
#include "support/datarow.h"
#include "support/writefile.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

/// A card that holds what a test puts on it, with faults where the test wants them.
class FakeSource : public ScanSource
{
public:
    FakeSource()
        : ScanSource(QStringLiteral("fake"))
    {
        m_volumes.resize(1);
    }

    void setVolumes(const QStringList &roots)
    {
        m_volumes.clear();
        for (const QString &root : roots) {
            VolumeInfo volume;
            volume.root = root;
            m_volumes.append(volume);
        }
    }

    FoundItem add(const QString &path, const QString &name, const QByteArray &contents)
    {
        FoundItem item;
        item.id = m_ids.next();
        item.path = path;
        item.name = name;
        item.size = contents.size();
        item.modifiedTime = 1600000000;
        m_contents.insert(item.id, contents);
        items.append(item);
        return item;
    }

    FoundItem addFolder(const QString &path, const QString &name)
    {
        FoundItem item = add(path, name, QByteArray());
        items.last().folder = true;
        return item;
    }

    ScanOutcome scan(const Sink &, const std::atomic<bool> &, const Progress &) override
    {
        return {};
    }

    std::unique_ptr<QIODevice> openFile(const FoundItem &item, QString *error) const override
    {
        if (item.name == QLatin1String("unreadable.jpg")) {
            *error = QStringLiteral("It is broken.");
            return nullptr;
        }
        auto device = std::make_unique<QBuffer>();
        device->setData(m_contents.value(item.id));
        device->open(QIODevice::ReadOnly);
        return device;
    }

    QVector<FoundItem> items;

private:
    ScanIds m_ids;
    QHash<qint64, QByteArray> m_contents;
};

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("!missing");
}

QString sha256(const QByteArray &bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QStringList everythingIn(const QString &folder)
{
    QStringList found;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        found << QDir(folder).relativeFilePath(it.next());
    found.sort();
    return found;
}

} // namespace

class TestRecoveryFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void safeNames_data();
    void safeNames();
    void writesTheTree();
    void neverOverwrites();
    void hostileNamesStayInside_data();
    void hostileNamesStayInside();
    void linksInTheTargetAreNotFollowed();
    void goesOnAfterAFailure();
    void shortContentsFail();
    void fullTarget();
    void unusableTarget();
    void cancelLeavesNothingHalf();
    void volumesHaveTheirFolders();

private:
    RecoveryReport recover(const QString &target);
    QString target() const { return m_dir->filePath(QStringLiteral("target")); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::shared_ptr<FakeSource> m_source;
};

void TestRecoveryFiles::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_source = std::make_shared<FakeSource>();
}

RecoveryReport TestRecoveryFiles::recover(const QString &folder)
{
    RecoveryJob job(m_source);
    QSignalSpy finished(&job, &RecoveryJob::finished);
    job.start(m_source->items, folder);
    if (!finished.wait(20000))
        return {};
    return finished.first().first().value<RecoveryReport>();
}

void TestRecoveryFiles::safeNames_data()
{
    addColumns<QString, QString>({"name", "safe"});
    const auto row = [](const char *what, const QString &name, const QString &safe) {
        QTest::newRow(what) << name << safe;
    };
    row("ordinary", QStringLiteral("IMG_0001.JPG"), QStringLiteral("IMG_0001.JPG"));
    row("other scripts", QStringLiteral("写真 é.jpg"), QStringLiteral("写真 é.jpg"));
    row("hidden", QStringLiteral(".thumbs"), QStringLiteral(".thumbs"));
    row("empty", QString(), QStringLiteral("_"));
    row("one dot", QStringLiteral("."), QStringLiteral("_"));
    row("two dots", QStringLiteral(".."), QStringLiteral("__"));
    row("dots and spaces", QStringLiteral(". . ."), QStringLiteral("_"));
    row("trailing dots", QStringLiteral("photo.jpg. ."), QStringLiteral("photo.jpg"));
    row("slash", QStringLiteral("../../etc/passwd"), QStringLiteral(".._.._etc_passwd"));
    row("backslash", QStringLiteral("..\\evil.exe"), QStringLiteral(".._evil.exe"));
    row("drive", QStringLiteral("C:evil"), QStringLiteral("C_evil"));
    row("stream", QStringLiteral("photo.jpg:hidden"), QStringLiteral("photo.jpg_hidden"));
    row("wildcards", QStringLiteral("a*b?.txt"), QStringLiteral("a_b_.txt"));
    row("device", QStringLiteral("CON"), QStringLiteral("_CON"));
    row("device in lower case with extensions", QStringLiteral("nul.tar.gz"),
        QStringLiteral("_nul.tar.gz"));
    row("device before a space", QStringLiteral("com1 .txt"), QStringLiteral("_com1 .txt"));
    row("superscript device", QStringLiteral("LPT\u00b9"), QStringLiteral("_LPT\u00b9"));
    row("only begins like a device", QStringLiteral("CONTACT.txt"), QStringLiteral("CONTACT.txt"));
    row("control characters", QStringLiteral("a\nb\tc\x01"), QStringLiteral("a_b_c_"));
    row("right to left", QStringLiteral("x\u202egpj.exe"), QStringLiteral("x_gpj.exe"));
    row("half a surrogate pair", QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b"),
        QStringLiteral("a_b"));
    row("too long", QString(300, QLatin1Char('a')) + QStringLiteral(".jpg"),
        QString(251, QLatin1Char('a')) + QStringLiteral(".jpg"));
    row("too long in bytes", QString(100, QChar(0x5199)) + QStringLiteral(".jpg"),
        QString(83, QChar(0x5199)) + QStringLiteral(".jpg"));
}

void TestRecoveryFiles::safeNames()
{
    QFETCH(QString, name);
    QFETCH(QString, safe);
    QCOMPARE(safeFileName(name), safe);
    QCOMPARE(safeFileName(safe), safe);
}

void TestRecoveryFiles::writesTheTree()
{
    const QByteArray photo(3000000, 'p');
    m_source->addFolder(QString(), QStringLiteral("DCIM"));
    m_source->addFolder(QStringLiteral("DCIM"), QStringLiteral("100ABC"));
    m_source->addFolder(QString(), QStringLiteral("empty"));
    m_source->add(QStringLiteral("DCIM/100ABC"), QStringLiteral("photo.jpg"), photo);
    m_source->add(QString(), QStringLiteral("zero.txt"), QByteArray());
    m_source->add(QStringLiteral("not/listed"), QStringLiteral("a.txt"),
                  "a"); // its folders were not asked for
    const RecoveryReport report = recover(target());
    QVERIFY2(report.failed.isEmpty(), qPrintable(report.stopReason));
    const QStringList expected{QStringLiteral("DCIM"),
                               QStringLiteral("DCIM/100ABC"),
                               QStringLiteral("DCIM/100ABC/photo.jpg"),
                               QStringLiteral("empty"),
                               QStringLiteral("not"),
                               QStringLiteral("not/listed"),
                               QStringLiteral("not/listed/a.txt"),
                               QStringLiteral("zero.txt")};
    QCOMPARE(everythingIn(target()), expected);
    QCOMPARE(report.recovered.size(), 3);
    const RecoveredFile first = report.recovered.first();
    QCOMPARE(first.path, QStringLiteral("DCIM/100ABC/photo.jpg"));
    QCOMPARE(first.target, target() + QStringLiteral("/DCIM/100ABC/photo.jpg"));
    QCOMPARE(first.sha256, sha256(photo));
    QCOMPARE(readAll(first.target), photo);
    for (const char *path : {"/DCIM/100ABC/photo.jpg", "/DCIM", "/empty"}) {
        const QFileInfo info(target() + QString::fromLatin1(path));
        QCOMPARE(info.lastModified().toSecsSinceEpoch(), 1600000000);
    }
}

void TestRecoveryFiles::neverOverwrites()
{
    for (int i = 0; i < 3; ++i)
        m_source->add(QString(), QStringLiteral("photo.tar.gz"), QByteArray::number(i));
    const QString mine = target() + QStringLiteral("/photo.tar.gz");
    QVERIFY(writeFile(mine, "mine"));
    QCOMPARE(recover(target()).recovered.size(), 3);
    QCOMPARE(recover(target()).recovered.size(), 3); // a second time beside the first
    QCOMPARE(readAll(mine), QByteArray("mine"));
    for (int number = 2; number <= 7; ++number) {
        const QString name = QStringLiteral("/photo.tar (%1).gz").arg(number);
        QCOMPARE(readAll(target() + name), QByteArray::number((number - 2) % 3));
    }
}

void TestRecoveryFiles::hostileNamesStayInside_data()
{
    addColumns<QString, QString>({"path", "name"});
    QTest::newRow("name goes up") << QString() << QStringLiteral("../outside.txt");
    addRow("folder goes up", QStringLiteral("a/../../.."), QStringLiteral("outside.txt"));
    QTest::newRow("absolute") << QStringLiteral("/etc") << QStringLiteral("/tmp/outside.txt");
    addRow("backslashes", QStringLiteral("..\\..\\x"), QStringLiteral("..\\outside.txt"));
    QTest::newRow("drive") << QStringLiteral("C:") << QStringLiteral("D:outside.txt");
    QTest::newRow("device") << QStringLiteral("AUX") << QStringLiteral("CON.jpg");
    QTest::newRow("no name") << QStringLiteral("//") << QString();
    QTest::newRow("zero") << QString() << QString(QChar(0)) + QStringLiteral("x");
}

void TestRecoveryFiles::hostileNamesStayInside()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    m_source->add(path, name, "evil");
    const QString deep = m_dir->filePath(QStringLiteral("1/2/3/target"));
    const RecoveryReport report = recover(deep);
    QCOMPARE(report.recovered.size(), 1);
    QVERIFY(report.recovered.first().target.startsWith(deep + QLatin1Char('/')));
    QCOMPARE(readAll(report.recovered.first().target), QByteArray("evil"));
    const QStringList everything = everythingIn(m_dir->path());
    for (const QString &found : everything)
        QVERIFY2(found.startsWith(QStringLiteral("1/2/3/target"))
                     || QStringLiteral("1/2/3/target").startsWith(found),
                 qPrintable(found));
}

void TestRecoveryFiles::linksInTheTargetAreNotFollowed()
{
    const QString outside = m_dir->filePath(QStringLiteral("outside"));
    QVERIFY(QDir().mkpath(outside));
    QVERIFY(QDir().mkpath(target()));
    QVERIFY(QFile::link(outside, target() + QStringLiteral("/DCIM")));
    QVERIFY(
        QFile::link(outside + QStringLiteral("/made"), target() + QStringLiteral("/photo.jpg")));
    m_source->add(QStringLiteral("DCIM"), QStringLiteral("a.jpg"), "a");
    m_source->add(QString(), QStringLiteral("photo.jpg"), "b");
    QCOMPARE(recover(target()).recovered.size(), 2);
    QCOMPARE(everythingIn(outside), QStringList());
    QCOMPARE(readAll(target() + QStringLiteral("/DCIM (2)/a.jpg")), QByteArray("a"));
    QCOMPARE(readAll(target() + QStringLiteral("/photo (2).jpg")), QByteArray("b"));
}

void TestRecoveryFiles::goesOnAfterAFailure()
{
    m_source->add(QStringLiteral("DCIM"), QStringLiteral("unreadable.jpg"), "x");
    m_source->add(QStringLiteral("DCIM"), QStringLiteral("fine.jpg"), "y");
    const RecoveryReport report = recover(target());
    QCOMPARE(report.failed.size(), 1);
    QCOMPARE(report.failed.first().path, QStringLiteral("DCIM/unreadable.jpg"));
    QCOMPARE(report.failed.first().reason, QStringLiteral("It is broken."));
    QCOMPARE(report.recovered.size(), 1);
    QVERIFY(report.stopReason.isEmpty());
}

void TestRecoveryFiles::shortContentsFail()
{
    m_source->add(QString(), QStringLiteral("short.jpg"), QByteArray(1000, 's'));
    m_source->items.last().size = 1001;
    const RecoveryReport report = recover(target());
    QCOMPARE(report.failed.size(), 1);
    QVERIFY(report.failed.first().reason.contains(QLocale().toString(1000)));
    QCOMPARE(everythingIn(target()), QStringList());
}

void TestRecoveryFiles::fullTarget()
{
    // More than any disk has: the target is full for this file, and only for this one.
    m_source->add(QString(), QStringLiteral("huge.mov"), "x");
    m_source->items.last().size = Q_INT64_C(1) << 60;
    m_source->add(QString(), QStringLiteral("small.jpg"), "y");
    const RecoveryReport report = recover(target());
    QCOMPARE(report.failed.size(), 1);
    QVERIFY2(report.failed.first().reason.contains(QStringLiteral("room")),
             qPrintable(report.failed.first().reason));
    QCOMPARE(everythingIn(target()), QStringList{QStringLiteral("small.jpg")});
}

void TestRecoveryFiles::unusableTarget()
{
    // A file stands where the folder should be: even root cannot write there.
    QVERIFY(writeFile(target(), {}));
    for (int i = 0; i < 3; ++i)
        m_source->add(QString(), QStringLiteral("photo%1.jpg").arg(i), "x");
    for (const QString &folder : {target(), target() + QStringLiteral("/below")}) {
        const RecoveryReport report = recover(folder);
        QCOMPARE(report.failed.size(), 3); // nothing is dropped in silence
        QVERIFY(!report.stopReason.isEmpty());
        QCOMPARE(report.failed.last().reason, report.stopReason);
    }
    QCOMPARE(QFileInfo(target()).size(), 0);
}

void TestRecoveryFiles::cancelLeavesNothingHalf()
{
    for (int i = 0; i < 40; ++i)
        m_source->add(QString(), QStringLiteral("photo%1.jpg").arg(i), QByteArray(8 << 20, 'x'));
    RecoveryJob job(m_source);
    QSignalSpy finished(&job, &RecoveryJob::finished);
    connect(&job, &RecoveryJob::progress, &job, &RecoveryJob::cancel);
    job.start(m_source->items, target());
    QVERIFY(finished.wait(20000));
    const auto report = finished.first().first().value<RecoveryReport>();
    QVERIFY(report.cancelled);
    QVERIFY(report.recovered.size() < 40);
    QVERIFY(report.failed.isEmpty());
    QCOMPARE(everythingIn(target()).size(), report.recovered.size());
    for (const RecoveredFile &file : report.recovered)
        QCOMPARE(QFileInfo(file.target).size(), qint64(8 << 20));
}

void TestRecoveryFiles::volumesHaveTheirFolders()
{
    m_source->setVolumes({QStringLiteral("Volume 1 (A)"), QStringLiteral("Volume 2")});
    m_source->add(QString(), QStringLiteral("same.jpg"), "one");
    m_source->add(QString(), QStringLiteral("same.jpg"), "two");
    m_source->items.last().volume = 1;
    const RecoveryReport report = recover(target());
    QCOMPARE(report.recovered.size(), 2);
    QCOMPARE(report.recovered.last().path, QStringLiteral("Volume 2/same.jpg"));
    QCOMPARE(readAll(target() + QStringLiteral("/Volume 1 (A)/same.jpg")), QByteArray("one"));
    QCOMPARE(readAll(target() + QStringLiteral("/Volume 2/same.jpg")), QByteArray("two"));
}

QTEST_GUILESS_MAIN(TestRecoveryFiles)
#include "tst_recovery_files.moc"
