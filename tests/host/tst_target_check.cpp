#include "host/recovery/targetcheck.h"
#include "platform/system/storage.h"
#include "support/datarow.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>

/// Every name under which a target may turn out to be the card.
class TestTargetCheck : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void folders_data();
    void folders();
    void images_data();
    void images();
    void mounts_data();
    void mounts();
    void room();

private:
    QString at(const QString &name) const { return m_place.filePath(name); }
    bool mount(const QStringList &arguments, const QString &point);

    QTemporaryDir m_place;
    QStringList m_mounted;
};

void TestTargetCheck::initTestCase()
{
    QVERIFY(m_place.isValid());
    const QDir place(m_place.path());
    for (const char *folder :
         {"card/DCIM/100", "cards", "other", "tmp", "bound", "part", "loop", "usb"})
        QVERIFY(place.mkpath(QLatin1String(folder)));
    QVERIFY(QFile::link(at("card"), at("link")));
    QVERIFY(QFile::link(at("card/DCIM"), at("other/deep")));
    QVERIFY(QFile::link(at("nowhere"), at("other/broken")));
    QFile image(at("card.img"));
    QVERIFY(image.open(QIODevice::WriteOnly) && image.resize(8 << 20));
    QVERIFY(QFile::link(at("card.img"), at("image link")));
    std::error_code failure;
    std::filesystem::create_hard_link(at("card.img").toStdString(), at("twin.img").toStdString(),
                                      failure);
    QVERIFY(!failure);
}

void TestTargetCheck::cleanupTestCase()
{
    while (!m_mounted.isEmpty())
        QProcess::execute(QStringLiteral("umount"), {m_mounted.takeLast()});
}

bool TestTargetCheck::mount(const QStringList &arguments, const QString &point)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("mount"), arguments + QStringList{at(point)});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return false;
    m_mounted.append(at(point));
    return true;
}

void TestTargetCheck::folders_data()
{
    addColumns<QString, QString, bool>({"source", "target", "refused"});
    addRow("beside it", "card", "other", false);
    addRow("a name that only begins alike", "card", "cards", false);
    addRow("the folder above", "card/DCIM", "card", false);
    addRow("not there yet", "card", "new/deeper", false);
    addRow("a broken link", "card", "other/broken", false);
    addRow("itself", "card", "card", true);
    addRow("in it", "card", "card/DCIM/100", true);
    addRow("in it, not there yet", "card", "card/out/put", true);
    QTest::newRow("slashes and dots") << "card//"
                                      << "other/.././card/DCIM/" << true;
    addRow("through a link", "card", "link/DCIM", true);
    addRow("the source through a link", "link", "card/DCIM", true);
    addRow("a link that leads into it", "card", "other/deep/new", true);
}

void TestTargetCheck::folders()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(bool, refused);
    const QString reason = TargetCheck::refusal(at(source), at(target));
    QCOMPARE(!reason.isEmpty(), refused);
    const QString here = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_place.path()));
    QCOMPARE(!TargetCheck::refusal(source, target).isEmpty(), refused); // relative
    QVERIFY(QDir::setCurrent(here));
}

void TestTargetCheck::images_data()
{
    addColumns<QString, QString, bool>({"source", "target", "refused"});
    addRow("the folder that holds it", "card.img", ".", false);
    addRow("itself", "card.img", "card.img", true);
    addRow("below it", "card.img", "card.img/out", true);
    addRow("a link to it", "card.img", "image link", true);
    addRow("another name of the same file", "card.img", "twin.img", true);
    addRow("the source is the link", "image link", "card.img", true);
    addRow("an image that is gone", "gone.img", "other", false);
}

void TestTargetCheck::images()
{
    QFETCH(QString, source);
    QFETCH(QString, target);
    QFETCH(bool, refused);
    QCOMPARE(!TargetCheck::refusal(at(source), at(target)).isEmpty(), refused);
}

void TestTargetCheck::mounts_data()
{
    addColumns<QStringList, QString, QString, QString>({"mounting", "point", "source", "target"});
    addRow("the folder bound elsewhere", QStringList{"--bind", at("card")}, "bound", "card",
           "bound/new");
    addRow("a part of the folder bound elsewhere", QStringList{"--bind", at("card/DCIM")}, "part",
           "card", "part/new");
    addRow("two folders of a card", QStringList{"-t", "tmpfs", "none"}, "usb", "usb/DCIM",
           "usb/out");
    addRow("the image is mounted", QStringList{"-o", "loop", at("card.img")}, "loop", "card.img",
           "loop/out");
}

void TestTargetCheck::mounts()
{
    QFETCH(QStringList, mounting);
    QFETCH(QString, point);
    QFETCH(QString, source);
    QFETCH(QString, target);
    if (mounting.contains(at("card.img")))
        QProcess::execute(QStringLiteral("mkfs.vfat"), {at("card.img")});
    if (!mount(mounting, point))
        QSKIP("this user may not mount anything here");
    QVERIFY(QDir().mkpath(at(source)) || source.endsWith(".img"));
    const QString reason = TargetCheck::refusal(at(source), at(target));
    QVERIFY(!reason.isEmpty());
    QCOMPARE(TargetCheck::refusal(at(source), at("other")), QString());
}

void TestTargetCheck::room()
{
    const qint64 free = TargetCheck::freeBytes(at("new/deeper"));
    QVERIFY(free > 0);
    QCOMPARE(TargetCheck::refusalForSize(1, at("other")), QString());
    const QString reason = TargetCheck::refusalForSize(std::numeric_limits<qint64>::max(),
                                                       at("other"));
    QVERIFY2(reason.contains(at("other")), qPrintable(reason));
}

QTEST_GUILESS_MAIN(TestTargetCheck)
#include "tst_target_check.moc"
