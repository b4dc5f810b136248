#include "platform/system/system.h"
#include "support/datarow.h"
#include "support/writefile.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QIcon>
#include <QRawFont>
#include <QTemporaryDir>
#include <QTest>

/// Where a Unix desktop keeps what the system is asked for.
class TestSystemUnix : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void colourScheme_data();
    void colourScheme();
    void iconsOfTheDesktop();
    void fontsHaveTheirScripts_data();
    void fontsHaveTheirScripts();
};

void TestSystemUnix::initTestCase()
{
    qputenv("XDG_CURRENT_DESKTOP", "test"); // the desktop that the tests run on has no say
    qunsetenv("GTK_THEME");
    qputenv("XDG_CONFIG_DIRS", "/nonexistent");
}

void TestSystemUnix::colourScheme_data()
{
    addColumns<QByteArray, QString, QByteArray, bool>({"gtkTheme", "file", "content", "dark"});

    const QString kde = QStringLiteral("kdeglobals");
    const QString gtk3 = QStringLiteral("gtk-3.0/settings.ini");
    const QString gtk4 = QStringLiteral("gtk-4.0/settings.ini");
    const auto row = [](const char *name, const QString &file, const char *content, bool dark,
                        const char *gtkTheme = "") {
        QTest::newRow(name) << QByteArray(gtkTheme) << file << QByteArray(content) << dark;
    };
    row("nothing said", QString(), "", false);
    row("variable", QString(), "", true, "Adwaita:dark");
    row("variable, dark by name", QString(), "", true, "Arc-Dark");
    row("variable beats files", kde, "[General]\nColorScheme=BreezeDark\n", false, "Adwaita");
    row("KDE, dark window", kde, "[Colors:Window]\nBackgroundNormal=42,46,50\n", true);
    row("KDE, light window", kde, "[Colors:Window]\nBackgroundNormal=239,240,241\n", false);
    row("KDE, colour by code", kde, "[Colors:Window]\nBackgroundNormal=#202326\n", true);
    row("KDE, colour wins over name", kde,
        "[General]\nColorScheme=MyDarkest\n[Colors:Window]\nBackgroundNormal=255,255,255\n", false);
    row("KDE, scheme only", kde, "[General]\nColorScheme=BreezeDark\n", true);
    row("KDE, nothing usable", kde, "[Colors:Window]\nBackgroundNormal=\n", false);
    row("KDE, damaged", kde, "\x00\xff[[[", false);
    row("GTK 3 prefers dark", gtk3, "[Settings]\ngtk-application-prefer-dark-theme=1\n", true);
    row("GTK 4 prefers dark", gtk4, "[Settings]\ngtk-application-prefer-dark-theme=true\n", true);
    row("GTK 3 prefers light", gtk3,
        "[Settings]\ngtk-application-prefer-dark-theme=0\ngtk-theme-name=Adwaita-dark\n", false);
    row("GTK 3 theme name", gtk3, "[Settings]\ngtk-theme-name=Adwaita-dark\n", true);
    row("GTK 3 other settings", gtk3, "[Settings]\ngtk-font-name=Sans 10\n", false);
}

void TestSystemUnix::colourScheme()
{
    QFETCH(QByteArray, gtkTheme);
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(bool, dark);

    const QTemporaryDir config;
    if (!file.isEmpty())
        QVERIFY(writeFile(config.filePath(file), content));
    const QByteArray before = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    if (!gtkTheme.isEmpty())
        qputenv("GTK_THEME", gtkTheme);
    const bool answer = System::appsUseDarkTheme();
    qunsetenv("GTK_THEME");
    qputenv("XDG_CONFIG_HOME", before);
    QCOMPARE(answer, dark);
}

void TestSystemUnix::iconsOfTheDesktop()
{
    QVERIFY(System::fileTypeIcon(QString(), 64).isNull());
    QVERIFY(System::fileTypeIcon(QStringLiteral("pdf"), 0).isNull());
    QVERIFY(System::fileTypeIcon(QStringLiteral("nosuchextension"), 64).isNull());
    QVERIFY(System::fileTypeIcon(QStringLiteral("../../x"), 64).isNull());

    // a theme that has one picture, in one size only
    const QTemporaryDir themes;
    const QString theme = themes.filePath(QStringLiteral("probe"));
    QVERIFY(QDir().mkpath(theme + QStringLiteral("/32")));
    QVERIFY(writeFile(theme + QStringLiteral("/index.theme"),
                      "[Icon Theme]\nName=probe\nDirectories=32\n[32]\nSize=32\nType=Fixed\n"));
    QImage picture(32, 32, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(theme + QStringLiteral("/32/application-pdf.png")));
    QIcon::setThemeSearchPaths({themes.path()});
    QIcon::setThemeName(QStringLiteral("probe"));

    const QPixmap icon = System::fileTypeIcon(QStringLiteral("PDF"), 64);
    if (icon.isNull() && !QFile::exists(QStringLiteral("/usr/share/mime")))
        QSKIP("no MIME database");
    QCOMPARE(icon.size(), QSize(64, 64));
    QCOMPARE(icon.devicePixelRatio(), 1.0);
    QCOMPARE(icon.toImage().pixelColor(32, 32), QColor(Qt::red));
}

void TestSystemUnix::fontsHaveTheirScripts_data()
{
    addColumns<QString, QString, QString>({"family", "standIn", "sample"});

    addRow("Latin", "Segoe UI", "Open Sans", "aé");
    addRow("Latin, semibold", "Segoe UI Semibold", "Open Sans", "aé");
    addRow("Japanese", "Yu Gothic UI", "Noto Sans CJK JP", "直あア");
    addRow("Korean", "Malgun Gothic", "Noto Sans CJK KR", "설정");
    addRow("Traditional Chinese", "Microsoft JhengHei UI", "Noto Sans CJK TC", "繁體简体");
}

void TestSystemUnix::fontsHaveTheirScripts()
{
    QFETCH(QString, family);
    QFETCH(QString, standIn);
    QFETCH(QString, sample);

    const QStringList installed = QFontDatabase().families();
    if (!installed.contains(family) && !installed.contains(standIn))
        QSKIP("neither the family nor its stand-in is installed");
    System::registerFontSubstitutes();
    System::registerFontSubstitutes();
    QFont font(family);
    font.setPixelSize(14);
    const QString used = QFontInfo(font).family();
    QVERIFY2(used == family || used == standIn, qPrintable(used));
    const QRawFont raw = QRawFont::fromFont(font);
    for (const QChar character : sample)
        QVERIFY2(raw.supportsCharacter(character), qPrintable(QString(character)));
}

QTEST_MAIN(TestSystemUnix)
#include "tst_system_unix.moc"
