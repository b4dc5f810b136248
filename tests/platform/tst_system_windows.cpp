#include "platform/system/storage.h"
#include "platform/system/system.h"
#include "support/datarow.h"
#include "support/usersettings.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <qt_windows.h>

/// What the functions do to, or hear from, Windows itself.
class TestSystemWindows : public QObject
{
    Q_OBJECT

private slots:
    void colourScheme();
    void iconsOfTheShell_data();
    void iconsOfTheShell();
    void memoryIsWhatWindowsSays();
    void classShadowGoes();
    void pinnedLibraryStays();
    void namesOfOneFolder_data();
    void namesOfOneFolder();
};

void TestSystemWindows::colourScheme()
{
    UserSettings user;
    QVERIFY(!System::appsUseDarkTheme());
    user.setSystemDark(true);
    QVERIFY(System::appsUseDarkTheme());
    user.setSystemDark(false);
    QVERIFY(!System::appsUseDarkTheme());

    // Windows before the setting: nothing is said
    QSettings(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\"
                             "Themes\\Personalize"),
              QSettings::NativeFormat)
        .remove(QStringLiteral("AppsUseLightTheme"));
    QVERIFY(!System::appsUseDarkTheme());
}

void TestSystemWindows::iconsOfTheShell_data()
{
    addColumns<QString, int, bool>({"extension", "side", "some"});

    QTest::newRow("known, small") << "txt" << 16 << true;
    QTest::newRow("known, large") << "txt" << 140 << true;
    QTest::newRow("program") << "exe" << 32 << true;
    QTest::newRow("nobody's") << "nosuchextension" << 64 << true; // the shell has one for the rest
    QTest::newRow("no extension") << "" << 64 << false;
    QTest::newRow("no size") << "txt" << 0 << false;
    QTest::newRow("letters of no code page") << QStringLiteral("фото写真") << 48 << true;
}

void TestSystemWindows::iconsOfTheShell()
{
    QFETCH(QString, extension);
    QFETCH(int, side);
    QFETCH(bool, some);

    const QPixmap icon = System::fileTypeIcon(extension, side);
    QCOMPARE(!icon.isNull(), some);
    if (!some)
        return;
    QCOMPARE(qMax(icon.width(), icon.height()), side);
    // drawn, and on nothing: an icon without its transparency would be a box
    const QImage image = icon.toImage().convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> colours;
    int clear = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
            clear += qAlpha(image.pixel(x, y)) == 0;
        }
    }
    QVERIFY(colours.size() > 2);
    QVERIFY(clear > 0);
    QVERIFY(clear < image.width() * image.height());
}

void TestSystemWindows::memoryIsWhatWindowsSays()
{
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof(status);
    QVERIFY(GlobalMemoryStatusEx(&status));
    const quint64 available = System::availablePhysicalMemory();
    QVERIFY(available <= status.ullTotalPhys);
    QVERIFY(available > status.ullAvailPhys / 2); // others use and free memory meanwhile
}

void TestSystemWindows::classShadowGoes()
{
    if (QGuiApplication::platformName() != QLatin1String("windows"))
        QSKIP("windows of the system are needed");
    QWindow window;
    window.setFlags(Qt::Popup);
    window.create();
    const auto handle = reinterpret_cast<HWND>(window.winId());
    const auto style = [&] { return DWORD(GetClassLongW(handle, GCL_STYLE)); };
    SetClassLongW(handle, GCL_STYLE, LONG(style() | CS_DROPSHADOW));
    QVERIFY(style() & CS_DROPSHADOW);
    const DWORD others = style() & ~DWORD(CS_DROPSHADOW);
    System::removeClassShadow(window.winId());
    QCOMPARE(style(), others);
}

void TestSystemWindows::pinnedLibraryStays()
{
    const HMODULE library = LoadLibraryW(L"msimg32.dll");
    QVERIFY(library);
    System::pinModule(library); // a handle is where the library begins
    FreeLibrary(library);
    FreeLibrary(library);
    QVERIFY(GetModuleHandleW(L"msimg32.dll"));
}

void TestSystemWindows::namesOfOneFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("short") << "Card";
    QTest::newRow("more than 300 characters")
        << QString(150, QLatin1Char('c')) + QLatin1Char('/') + QString(150, QLatin1Char('D'));
    QTest::newRow("letters of no code page")
        << QStringLiteral(u"\u7167\u7247 \U0001F4F7 e\u0301 \u00C4");
}

// Who asks whether a target lies on the card must not be told "no" for how the path is written.
void TestSystemWindows::namesOfOneFolder()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const QString inside = path + QLatin1String("/inside");
    QVERIFY(QDir().mkpath(inside));
    QVERIFY(QDir().mkpath(path + QLatin1String(" beside")));

    const QString native = QDir::toNativeSeparators(path);
    for (const QString &form :
         {path, native, path + QLatin1Char('/'), path.toUpper(), QLatin1String("\\\\?\\") + native,
          path + QLatin1String("/inside/..")}) {
        QVERIFY2(System::isSameFile(form, path), qPrintable(form));
        QVERIFY2(System::isInside(inside, form), qPrintable(form));
        QVERIFY2(System::isInside(form, path), qPrintable(form));
        QVERIFY2(!System::isInside(form, inside), qPrintable(form));
        QVERIFY2(!System::isInside(path + QLatin1String(" beside"), form), qPrintable(form));
        QCOMPARE(System::disksOf(form), System::disksOf(folder.path()));
    }
    const QString drive = path.left(2);
    QVERIFY(System::isInside(path, drive + QLatin1Char('\\')));
    QVERIFY(!System::isSameFile(path, drive + QLatin1String("/no such folder")));
    for (const char *none : {"", "\\\\nosuchserver\\share\\x", "\\\\.\\Q:", "Q:\\x", "Q:"}) {
        QVERIFY(!System::isInside(QLatin1String(none), path));
        QCOMPARE(System::disksOf(QLatin1String(none)), QSet<QByteArray>());
    }
    // a whole volume as a device is on the disk of what lies on it
    QVERIFY(!System::isOnMedium(path, QStringLiteral("\\\\.\\PhysicalDrive999")));
    QVERIFY(System::isOnMedium(path, QLatin1String("\\\\.\\") + drive));
}

QTEST_MAIN(TestSystemWindows)
#include "tst_system_windows.moc"
