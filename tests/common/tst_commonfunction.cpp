#include "common/commonfunction.h"
#include "probe.h"
#include "support/datarow.h"

#include <QApplication>
#include <QDateTime>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QTranslator>
#include <QWidget>

#include <limits>
#include <memory>

namespace {

/// Answers every text with its context in front of it.
class ContextTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(text);
    }
};

int probeScreen()
{
    QTemporaryDir dir;
    for (const char *name : {"/icon.png", "/icon@2x.png"}) {
        QImage image(QByteArray(name).contains("@2x") ? QSize(32, 32) : QSize(16, 16),
                     QImage::Format_RGB32);
        image.save(dir.path() + QLatin1String(name));
    }
    const QString base = dir.path() + QStringLiteral("/icon");
    const QPixmap pixmap = CommonFunction::highDpiPixmap(base);
    return Probe::answer(
        {{QStringLiteral("path"),
          CommonFunction::getHighDpiPath(QStringLiteral("base"), QStringLiteral("jpg"))},
         {QStringLiteral("ratio"), pixmap.devicePixelRatio()},
         {QStringLiteral("shown"), pixmap.width() / pixmap.devicePixelRatio()}});
}

} // namespace

class TestCommonFunction : public QObject
{
    Q_OBJECT

private slots:
    void categoryNames_data();
    void categoryNames();
    void categoryKeys_data();
    void categoryKeys();
    void dates_data();
    void dates();
    void sizes_data();
    void sizes();
    void locations_data();
    void locations();
    void screens_data();
    void screens();
    void themedImages_data();
    void themedImages();
    void maskCoversItsParent();
};

void TestCommonFunction::categoryNames_data()
{
    addColumns<int, QString>({"rootType", "text"});

    const auto row = [](int rootType, const char *text) {
        QTest::newRow(qPrintable(QString::number(rootType))) << rootType << text;
    };
    row(26, "CommonFunction/Photo");
    row(27, "CommonFunction/Webfiles");
    row(51, "CommonFunction/Unsaved files");
    row(3, "CommonFunction/File lost location");
    row(4, "QuarvoTRS/reconstructed_files_label");
    row(6, "QuarvoTRS/time_nav_root_all_time");
    row(7, "QuarvoTRS/time_nav_root_unknown_time");
    row(55, "OneDrive");
    row(0, "");
    row(5, "");
    row(-26, "");
}

void TestCommonFunction::categoryNames()
{
    QFETCH(int, rootType);
    QFETCH(QString, text);

    ContextTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(CommonFunction::categoryName(rootType), text);
    QCoreApplication::removeTranslator(&translator);
}

void TestCommonFunction::categoryKeys_data()
{
    addColumns<QString, QString>({"key", "text"});

    addRow("video", "zenvo_video", "Video");
    addRow("games have another key", "zenvo_game_files", "Game");
    addRow("unsaved", "zenvo_unsaved_files", "Unsaved files");
    addRow("other case", "zenvo_Video", "");
    addRow("longer", "zenvo_video2", "");
    addRow("prefix only", "zenvo_", "");
    addRow("empty", "", "");
}

void TestCommonFunction::categoryKeys()
{
    QFETCH(QString, key);
    QFETCH(QString, text);
    QCOMPARE(CommonFunction::categoryKeyText(key), text);
}

void TestCommonFunction::dates_data()
{
    addColumns<QByteArray, qint64, QString>({"zone", "seconds", "text"});

    const qint64 noon = 1709290800; // 2024-03-01 11:00 UTC
    addRow("Taiwan", QByteArray("Asia/Taipei"), noon, "2024-03-01");
    addRow("China", QByteArray("Asia/Shanghai"), noon, "2024-03-01");
    addRow("Hong Kong", QByteArray("Asia/Hong_Kong"), noon, "2024-03-01");
    addRow("Macau", QByteArray("Asia/Macau"), noon, "2024-03-01");
    addRow("Germany", QByteArray("Europe/Berlin"), noon, "03-01-2024");
    addRow("Singapore", QByteArray("Asia/Singapore"), noon, "03-01-2024");
    addRow("local day", QByteArray("America/New_York"), qint64(1709254800), "02-29-2024");
    addRow("before the epoch", QByteArray("Europe/Berlin"), qint64(-86400 * 365), "01-01-1969");
    addRow("beyond every calendar", QByteArray("Europe/Berlin"), std::numeric_limits<qint64>::max(),
           "");
    addRow("before every calendar", QByteArray("Europe/Berlin"), std::numeric_limits<qint64>::min(),
           "");
}

void TestCommonFunction::dates()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, seconds);
    QFETCH(QString, text);

    const QByteArray before = qgetenv("TZ");
    qputenv("TZ", zone);
    const bool there = QTimeZone::systemTimeZoneId() == zone;
    const QString date = CommonFunction::dateText(seconds);
    if (before.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", before);
    if (!there)
        QSKIP("this system takes its time zone from elsewhere");
    QCOMPARE(date, text);
}

void TestCommonFunction::sizes_data()
{
    addColumns<qint64, QString>({"bytes", "text"});

    const qint64 kilo = 1024;
    addRow("none", qint64(0), "0 SizeUnit_Bytes");
    addRow("last byte", kilo - 1, "1023 SizeUnit_Bytes");
    addRow("first kilobyte", kilo, "1.00 SizeUnit_KB");
    addRow("half", kilo + kilo / 2, "1.50 SizeUnit_KB");
    addRow("never 1024.00", kilo * kilo - 1, "1.00 SizeUnit_MB");
    addRow("gigabyte", kilo * kilo * kilo, "1.00 SizeUnit_GB");
    addRow("beyond the last unit", kilo * kilo * kilo * kilo * 2048, "2048.00 SizeUnit_TB");
    addRow("negative", -kilo, "-1.00 SizeUnit_KB");
}

void TestCommonFunction::sizes()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QCOMPARE(CommonFunction::sizeText(bytes), text);
}

void TestCommonFunction::locations_data()
{
    addColumns<QString, QString, QString>({"path", "root", "text"});

    addRow("volume dropped", "/Volume/DCIM/100", "E:", "E:\\DCIM\\100");
    addRow("closed root", "/Volume/DCIM/100", "E:\\", "E:\\DCIM\\100");
    addRow("root closed by a slash", "DCIM", "/mnt/card/", "/mnt/card/DCIM");
    addRow("no root", "DCIM/100", "", "DCIM\\100");
    addRow("no root, leading slash", "/DCIM", "", "DCIM");
    addRow("no root, backslashes", "\\DCIM\\100", "", "DCIM\\100");
    addRow("no root keeps the volume", "/Volume/DCIM", "", "Volume\\DCIM");
    QTest::newRow("only one leading separator") << "//server/share"
                                                << ""
                                                << "\\server\\share";
    addRow("a share as root", "/Volume\\DCIM/100", "\\\\server\\share",
           "\\\\server\\share\\DCIM\\100");
    addRow("a long path's prefix", "/DCIM", "\\\\?\\E:\\", "\\\\?\\E:\\DCIM");
    addRow("volume itself", "Volume", "E:", "E:\\");
    addRow("volume itself, with a slash", "/Volume", "E:", "E:\\");
    addRow("a folder that begins like it", "Volumes/a", "E:", "E:\\Volumes\\a");
    addRow("nowhere", "", "E:", "");
}

void TestCommonFunction::locations()
{
    QFETCH(QString, path);
    QFETCH(QString, root);
    QFETCH(QString, text);
    QCOMPARE(CommonFunction::combinedPath(path, root), text);
}

void TestCommonFunction::screens_data()
{
    addColumns<QString, QString, int>({"factor", "path", "ratio"});

    addRow("1", "1", "base.jpg", 1);
    addRow("1.5", "1.5", "base.jpg", 1);
    addRow("2", "2", "base@2x.jpg", 2);
    addRow("2.5", "2.5", "base@2x.jpg", 2);
    addRow("3", "3", "base@2x.jpg", 3);
}

void TestCommonFunction::screens()
{
    QFETCH(QString, factor);
    QFETCH(QString, path);
    QFETCH(int, ratio);

    const QJsonObject result = Probe::run(QStringLiteral("screen"), {{"QT_SCALE_FACTOR", factor}});
    QCOMPARE(result.value(QStringLiteral("path")).toString(), path);
    QCOMPARE(result.value(QStringLiteral("ratio")).toInt(), ratio);
    QCOMPARE(result.value(QStringLiteral("shown")).toInt(), 16);
}

void TestCommonFunction::themedImages_data()
{
    addColumns<QVariant, QString, QString>({"theme", "name", "path"});

    const QString there = QStringLiteral("icon16_check_normal");
    addRow("light", QVariant(0), there, ":/Images/icon16_check_normal.png");
    addRow("dark", QVariant(1), there, ":/Images/Dark/icon16_check_normal.png");
    addRow("dark twin missing", QVariant(1), "nosuch", ":/Images/nosuch.png");
    addRow("neither light nor dark", QVariant(5), there, ":/Images/icon16_check_normal.png");
    addRow("no theme yet", QVariant(), there, ":/Images/icon16_check_normal.png");
}

void TestCommonFunction::themedImages()
{
    QFETCH(QVariant, theme);
    QFETCH(QString, name);
    QFETCH(QString, path);

    qApp->setProperty("ThemeType", theme);
    QCOMPARE(CommonFunction::getThemeImagePath(name, QStringLiteral("png")), path);
    QCOMPARE(CommonFunction::themePixmap(name).isNull(), name == QLatin1String("nosuch"));
    qApp->setProperty("ThemeType", QVariant());
}

void TestCommonFunction::maskCoversItsParent()
{
    QVERIFY(!CommonFunction::createMaskLayer(nullptr));

    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget { background: white; }"));
    window.resize(200, 100);
    QWidget *mask = CommonFunction::createMaskLayer(&window);
    QCOMPARE(mask->objectName(), QStringLiteral("maskLayerID"));
    QCOMPARE(mask->styleSheet(),
             QStringLiteral("background: rgba(0, 0, 0, 0.5);border-radius:12px;"));
    const std::unique_ptr<QWidget> other(CommonFunction::createMaskLayer(&window, 8));
    QCOMPARE(other->styleSheet(),
             QStringLiteral("background: rgba(0, 0, 0, 0.5);border-radius:8px;"));
    window.show();
    other->hide();
    window.resize(300, 300);
    QTRY_COMPARE(mask->geometry(), window.rect());
    mask->raise();
    const int grey = qGray(window.grab().toImage().pixel(150, 150));
    QVERIFY2(grey > 100 && grey < 150, qPrintable(QString::number(grey)));
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (Probe::isChild())
        return probeScreen();
    TestCommonFunction test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commonfunction.moc"
