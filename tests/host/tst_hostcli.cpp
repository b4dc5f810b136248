#include "support/datarow.h"
#include "support/writefile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The program as its users start it.
class TestHostCli : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void wrongUsage_data();
    void wrongUsage();
    void helpIsNoFailure();
    void badSources();
    void recoversWhatIsChecked_data();
    void recoversWhatIsChecked();
    void aTargetOnTheCardIsRefused();
    void screenshotOfTheChosenSize();
    void runsWithoutADisplay();

private:
    struct Result
    {
        int exitCode = -1;
        QString messages;
    };

    Result run(QStringList arguments, bool offscreen = true);
    QJsonObject report() const;
    void write(const QString &name, const QByteArray &contents)
    {
        QVERIFY(writeFile(m_folder->filePath(name), contents));
    }
    QString source() const { return m_folder->filePath("card"); }
    QString target() const { return m_folder->filePath("target"); }

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestHostCli::initTestCase()
{
    QVERIFY(QFile::exists(QCoreApplication::applicationDirPath() + "/quarvo-host"));
}

void TestHostCli::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    write("card/DCIM/100/a.txt", "first");
    write("card/DCIM/101/a.txt", "second");
    write("card/DCIM/101/B.TXT", QByteArray(300000, 'b'));
    write("card/notes.md", "");
    write("card/DCIM/broken.jpg", "no picture at all");
    QImage picture(640, 480, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QVERIFY(picture.save(source() + "/DCIM/100/picture.png"));
}

TestHostCli::Result TestHostCli::run(QStringList arguments, bool offscreen)
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_folder->filePath("settings")); // not the user's own
    environment.insert("LC_ALL", "C.UTF-8");
    if (!offscreen) {
        for (const char *name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
    }
    host.setProcessEnvironment(environment);
    host.start(QCoreApplication::applicationDirPath() + "/quarvo-host", arguments);
    Result result;
    if (host.waitForFinished(90000) && host.exitStatus() == QProcess::NormalExit)
        result.exitCode = host.exitCode();
    result.messages = QString::fromLocal8Bit(host.readAllStandardError());
    return result;
}

QJsonObject TestHostCli::report() const
{
    QFile file(m_folder->filePath("report.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

void TestHostCli::wrongUsage_data()
{
    addColumns<QStringList, QString>({"arguments", "word"});
    QTest::newRow("unknown option") << QStringList{"--fast"} << "fast";
    QTest::newRow("unknown view") << QStringList{"--view", "tiles"} << "list-detail";
    QTest::newRow("unknown theme") << QStringList{"--theme", "blue"} << "dark";
    QTest::newRow("unknown language") << QStringList{"--language", "Klingon"} << "German";
    QTest::newRow("size without height") << QStringList{"--size", "800"} << "1280x800";
    QTest::newRow("size of nothing") << QStringList{"--size", "0x600"} << "1280x800";
    QTest::newRow("two sources") << QStringList{"one", "two"} << "one source";
    QTest::newRow("empty target") << QStringList{"--recover-to", ""} << "recover-to";
    QTest::newRow("value missing") << QStringList{"--report"} << "report";
}

void TestHostCli::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    const Result result = run(arguments + QStringList{"--quit"});
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.messages.contains(word), qPrintable(result.messages));
}

void TestHostCli::helpIsNoFailure()
{
    QCOMPARE(run({"--help"}).exitCode, 0);
}

void TestHostCli::badSources()
{
    write("image.img", QByteArray(3 << 20, '\0'));
    for (const QString &image : {m_folder->filePath("image.img"), m_folder->filePath("missing")}) {
        const Result result = run({image, "--report", m_folder->filePath("report.json"), "--quit"});
        QCOMPARE(result.exitCode, 1);
        QVERIFY2(result.messages.contains("quarvo-host: "), qPrintable(result.messages));
        QCOMPARE(report()["files"].toInt(-1), 0);
        QCOMPARE(report()["failed"].toArray().size(), 1);
    }
}

void TestHostCli::recoversWhatIsChecked_data()
{
    addColumns<QStringList, QStringList>({"patterns", "expected"});
    const QStringList all{"DCIM/100/a.txt", "DCIM/100/picture.png", "DCIM/101/B.TXT",
                          "DCIM/101/a.txt", "DCIM/broken.jpg",      "notes.md"};
    QTest::newRow("everything") << QStringList{"*"} << all;
    QTest::newRow("a folder takes its files along")
        << QStringList{"DCIM/101"} << QStringList{"DCIM/101/B.TXT", "DCIM/101/a.txt"};
    addRow("star crosses folders, case does not matter", QStringList{"*.txt"},
           QStringList{"DCIM/100/a.txt", "DCIM/101/B.TXT", "DCIM/101/a.txt"});
    QTest::newRow("two patterns, one of them means nothing")
        << QStringList{"notes.md", "nothing*"} << QStringList{"notes.md"};
    addRow("the whole path counts", QStringList{"DCIM/?00/a.txt"}, QStringList{"DCIM/100/a.txt"});
}

void TestHostCli::recoversWhatIsChecked()
{
    QFETCH(QStringList, patterns);
    QFETCH(QStringList, expected);
    QStringList arguments{
        source(), "--recover-to", target(), "--report", m_folder->filePath("report.json"),
        "--quit"};
    for (const QString &pattern : patterns)
        arguments << "--check" << pattern;
    const Result result = run(arguments);
    QVERIFY2(result.exitCode == 0, qPrintable(result.messages));

    const QJsonObject told = report();
    QCOMPARE(told["source"].toString(), source());
    QCOMPARE(told["files"].toInt(), 6);
    QCOMPARE(told["folders"].toInt(), 3);
    QCOMPARE(told["deleted"].toInt(-1), 0);
    QCOMPARE(told["checked"].toInt(), expected.size());
    QVERIFY(told["failed"].toArray().isEmpty());
    QVERIFY(told["seconds"].toDouble() > 0);
    QCOMPARE(told["signals"].toObject().size(), 11);

    QStringList recovered;
    const QJsonArray files = told["recovered"].toArray();
    for (const QJsonValue &value : files) {
        const QJsonObject file = value.toObject();
        const QString path = file["path"].toString();
        recovered.append(path);
        QFile original(source() + '/' + path);
        QFile copy(target() + '/' + path);
        QVERIFY(original.open(QIODevice::ReadOnly) && copy.open(QIODevice::ReadOnly));
        const QByteArray bytes = original.readAll();
        QCOMPARE(copy.readAll(), bytes);
        QCOMPARE(file["size"].toInt(), bytes.size());
        QCOMPARE(file["sha256"].toString(),
                 QString(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex()));
    }
    recovered.sort();
    QCOMPARE(recovered, expected);
}

void TestHostCli::aTargetOnTheCardIsRefused()
{
    const QString target = m_folder->filePath("link/out");
    QVERIFY(QFile::link(source(), m_folder->filePath("link")));
    const Result result = run({source(), "--check", "*.txt", "--recover-to", target, "--report",
                               m_folder->filePath("report.json"), "--quit"});
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.messages.contains("scanned"), qPrintable(result.messages));
    QCOMPARE(report()["failed"].toArray().size(), 3);
    QVERIFY(!QFile::exists(target));
}

void TestHostCli::screenshotOfTheChosenSize()
{
    const QString picture = m_folder->filePath("window.png");
    const Result result = run({source(), "--size", "900x600", "--theme", "dark", "--screenshot",
                               picture, "--report", m_folder->filePath("report.json"), "--quit"});
    QVERIFY2(result.exitCode == 0, qPrintable(result.messages));
    const QImage window(picture);
    QCOMPARE(window.size(), QSize(900, 600));
    QVERIFY(qGray(window.pixel(2, 300)) < 80);   // the dark chrome reaches the edge
    QCOMPARE(report()["thumbnails"].toInt(), 1); // the broken picture has none and holds nothing up
}

void TestHostCli::runsWithoutADisplay()
{
    const Result result = run({source(), "--quit"}, false);
    QCOMPARE(result.exitCode, 0);
    QVERIFY2(result.messages.contains("offscreen"), qPrintable(result.messages));
}

QTEST_GUILESS_MAIN(TestHostCli)
#include "tst_hostcli.moc"
