#include "platform/system/storage.h"
#include "platform/system/system.h"
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
    QTest::addColumn<QString>("extension");
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("some");

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

void TestSystemWindows::namesOfOneFolder()
{
    const QTemporaryDir place;
    QVERIFY(QDir(place.path()).mkpath(QStringLiteral("Card/DCIM")));
    const QString card = place.filePath(QStringLiteral("Card"));
    const QString native = QDir::toNativeSeparators(card);
    for (const QString &name :
         {card.toUpper(), native, native + QLatin1Char('\\'), QStringLiteral("\\\\?\\") + native}) {
        QVERIFY2(System::isSameFile(name, card), qPrintable(name));
        QVERIFY2(System::isInside(card + QStringLiteral("/DCIM"), name), qPrintable(name));
        QCOMPARE(System::disksOf(name), System::disksOf(card));
    }
    // a whole volume as a device is on the disk of what lies on it
    const QString volume = QStringLiteral("\\\\.\\") + card.left(2);
    QVERIFY(!System::isOnMedium(card, QStringLiteral("\\\\.\\PhysicalDrive999")));
    QVERIFY(System::isOnMedium(card, volume));
}

QTEST_MAIN(TestSystemWindows)
#include "tst_system_windows.moc"
