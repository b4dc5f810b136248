#include "common/qssloader.h"
#include "common/restyling.h"
#include "common/thememanager.h"
#include "probe.h"
#include "support/datarow.h"
#include "support/usersettings.h"
#include "support/writefile.h"

#include <QApplication>
#include <QJsonArray>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <thread>

namespace {

QSettings settings()
{
    return QSettings(QStringLiteral("Zenvoor"), QStringLiteral("Quarvo"));
}

/// Makes the manager over the settings of the environment, does what \a steps say ("theme=5",
/// "follow=1", from a thread: "thread:theme=1"), lets the event loop run and tells the outcome.
int probe(const QStringList &steps)
{
    ThemeManager *manager = ThemeManager::instance();
    QSignalSpy spy(manager, &ThemeManager::singleThemeChanged);
    QJsonObject result;
    result[QStringLiteral("first")] = int(manager->getThemeType());

    const auto apply = [manager](const QString &step) {
        const int value = step.section(QLatin1Char('='), 1).toInt();
        if (step.startsWith(QLatin1String("theme=")))
            manager->setThemeType(THEMETYPE(value));
        else
            manager->setFollowSystemTheme(value != 0);
    };
    const QString otherThread = QStringLiteral("thread:");
    for (const QString &step : steps) {
        if (step.startsWith(otherThread)) {
            std::thread([&] { apply(step.mid(otherThread.size())); }).join();
        } else {
            apply(step);
        }
    }
    auto stored = settings();
    QCoreApplication::processEvents();
    stored.sync();
    result[QStringLiteral("theme")] = int(manager->getThemeType());
    result[QStringLiteral("follow")] = manager->isFollowSystemTheme();
    result[QStringLiteral("property")] = qApp->property("ThemeType").toInt();
    result[QStringLiteral("savedTheme")] = stored.value(QStringLiteral("theme"), -1).toInt();
    result[QStringLiteral("savedFollow")] = stored.contains(QStringLiteral("followSystemTheme"))
        ? int(stored.value(QStringLiteral("followSystemTheme")).toBool())
        : -1;
    QJsonArray signalled;
    for (const QList<QVariant> &arguments : qAsConst(spy))
        signalled += int(arguments.constFirst().value<THEMETYPE>());
    result[QStringLiteral("signals")] = signalled;
    return Probe::answer(result);
}

} // namespace

class TestThemeManager : public QObject
{
    Q_OBJECT

private slots:
    void start_data();
    void start();
    void changes_data();
    void changes();
    void adoptsAPublishedManager();
    void themeTravelsInQueuedSignals();
    void loadsStyleSheets_data();
    void loadsStyleSheets();
    void styleSheetFiles_data();
    void styleSheetFiles();
    void missingStyleSheetKeepsTheLook();
    void whatIsOutOfSightFollows();
};

void TestThemeManager::start_data()
{
    addColumns<QString, bool, int, int, bool>(
        {"stored", "systemDark", "theme", "property", "follow"});

    QTest::newRow("nothing stored, light") << "" << false << 0 << 0 << true;
    QTest::newRow("nothing stored, dark") << "" << true << 1 << 1 << true;
    QTest::newRow("own theme beats the system")
        << "followSystemTheme=false theme=1" << false << 1 << 1 << false;
    QTest::newRow("light of its own in a dark system")
        << "followSystemTheme=false theme=0" << true << 0 << 0 << false;
    QTest::newRow("following ignores the stored theme")
        << "followSystemTheme=true theme=1" << false << 0 << 0 << true;
    QTest::newRow("no follow, no theme") << "followSystemTheme=false" << true << 0 << 0 << false;
    QTest::newRow("theme of no name")
        << "followSystemTheme=false theme=7" << false << 7 << 1 << false;
    QTest::newRow("unreadable theme")
        << "followSystemTheme=false theme=night" << true << 0 << 0 << false;
    QTest::newRow("theme only") << "theme=1" << false << 0 << 0 << true;
}

void TestThemeManager::start()
{
    QFETCH(QString, stored);
    QFETCH(bool, systemDark);
    QFETCH(int, theme);
    QFETCH(int, property);
    QFETCH(bool, follow);

    UserSettings user;
    QVector<QPair<QString, QString>> values;
    const QStringList parts = stored.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &part : parts)
        values.append({part.section(QLatin1Char('='), 0, 0), part.section(QLatin1Char('='), 1)});
    user.store(values);
    user.setSystemDark(systemDark);
    const QJsonObject result = Probe::run({}, user.environment());
    QVERIFY(!result.isEmpty());
    QCOMPARE(result.value(QStringLiteral("theme")).toInt(), theme);
    QCOMPARE(result.value(QStringLiteral("property")).toInt(), property);
    QCOMPARE(result.value(QStringLiteral("follow")).toBool(), follow);
}

void TestThemeManager::changes_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("savedTheme"); // -1: nothing was saved
    QTest::addColumn<int>("savedFollow");
    QTest::addColumn<QJsonArray>("signalled");

    QTest::newRow("nothing") << "" << 0 << 0 << -1 << -1 << QJsonArray();
    QTest::newRow("dark") << "theme=1" << 1 << 1 << 1 << 1 << QJsonArray{1};
    QTest::newRow("the current one") << "theme=0" << 0 << 0 << -1 << -1 << QJsonArray();
    QTest::newRow("there and back") << "theme=1 theme=0" << 0 << 0 << 0 << 1 << QJsonArray{1, 0};
    QTest::newRow("twice the same") << "theme=1 theme=1" << 1 << 1 << 1 << 1 << QJsonArray{1};
    QTest::newRow("a value of no name") << "theme=5" << 5 << 1 << 5 << 1 << QJsonArray{5};
    QTest::newRow("follow is saved, theme stays") << "follow=0" << 0 << 0 << 0 << 0 << QJsonArray();
    QTest::newRow("follow as it was") << "follow=1" << 0 << 0 << -1 << -1 << QJsonArray();
    QTest::newRow("from another thread") << "thread:theme=1" << 1 << 1 << 1 << 1 << QJsonArray{1};
    QTest::newRow("overtaken by another thread")
        << "thread:theme=1 theme=0" << 0 << 0 << 0 << 1 << QJsonArray{1, 0};
}

void TestThemeManager::changes()
{
    QFETCH(QString, steps);
    QFETCH(int, theme);
    QFETCH(int, property);
    QFETCH(int, savedTheme);
    QFETCH(int, savedFollow);
    QFETCH(QJsonArray, signalled);

    UserSettings user;
    const QJsonObject result = Probe::run(steps, user.environment());
    QVERIFY(!result.isEmpty());
    QCOMPARE(result.value(QStringLiteral("theme")).toInt(), theme);
    QCOMPARE(result.value(QStringLiteral("property")).toInt(), property);
    QCOMPARE(result.value(QStringLiteral("savedTheme")).toInt(), savedTheme);
    QCOMPARE(result.value(QStringLiteral("savedFollow")).toInt(), savedFollow);
    QCOMPARE(result.value(QStringLiteral("signals")).toArray(), signalled);

    // what was saved is what the next start finds
    if (savedFollow == 0) {
        user.setSystemDark(true);
        const QJsonObject next = Probe::run({}, user.environment());
        QCOMPARE(next.value(QStringLiteral("first")).toInt(), savedTheme);
    }
}

void TestThemeManager::adoptsAPublishedManager()
{
    // what another module of the process would find and what it would do with it
    ThemeManager *manager = ThemeManager::instance();
    const QVariant published = qApp->property("ThemeManager");
    QCOMPARE(published.userType(), int(QMetaType::VoidStar));
    QCOMPARE(published.value<void *>(), static_cast<void *>(manager));
    QCOMPARE(manager->thread(), qApp->thread());
    QVERIFY(!manager->parent());
}

void TestThemeManager::themeTravelsInQueuedSignals()
{
    ThemeManager *manager = ThemeManager::instance();
    int received = -1;
    connect(
        manager, &ThemeManager::singleThemeChanged, this,
        [&](THEMETYPE theme) { received = theme; }, Qt::QueuedConnection);
    manager->setThemeType(manager->getThemeType() == LightTheme ? DarkTheme : LightTheme);
    QCOMPARE(received, -1);
    QTRY_COMPARE(received, int(manager->getThemeType()));
    QVERIFY(QMetaType::type("THEMETYPE") != QMetaType::UnknownType);
    disconnect(manager, nullptr, this, nullptr);
}

void TestThemeManager::loadsStyleSheets_data()
{
    addColumns<QVariant, QStringList, QString, QStringList>({"theme", "files", "text", "missing"});

    const QString folder = QCoreApplication::applicationDirPath();
    const QString missing = folder + QStringLiteral("/theme/%1/TestModule/none.qss");
    QTest::newRow("light") << QVariant(0) << QStringList{"a.qss"} << "light é" << QStringList();
    QTest::newRow("dark") << QVariant(1) << QStringList{"a.qss"} << "dark é" << QStringList();
    QTest::newRow("no property") << QVariant() << QStringList{"a.qss"} << "light é"
                                 << QStringList();
    QTest::newRow("two, in order")
        << QVariant(1) << QStringList{"b.qss", "a.qss"} << "second\ndark é" << QStringList();
    QTest::newRow("a missing one is left out")
        << QVariant(0) << QStringList{"none.qss", "a.qss"} << "light é"
        << QStringList{missing.arg(QStringLiteral("light"))};
    QTest::newRow("none there") << QVariant(1) << QStringList{"none.qss"} << ""
                                << QStringList{missing.arg(QStringLiteral("dark"))};
}

void TestThemeManager::loadsStyleSheets()
{
    QFETCH(QVariant, theme);
    QFETCH(QStringList, files);
    QFETCH(QString, text);
    QFETCH(QStringList, missing);

    const QString themes = QCoreApplication::applicationDirPath() + QStringLiteral("/theme/");
    QVERIFY(writeFile(themes + QStringLiteral("light/TestModule/a.qss"), "light \xc3\xa9"));
    QVERIFY(writeFile(themes + QStringLiteral("dark/TestModule/a.qss"), "dark \xc3\xa9"));
    QVERIFY(writeFile(themes + QStringLiteral("dark/TestModule/b.qss"), "second\n"));

    qApp->setProperty("ThemeType", theme);
    for (const QString &path : missing) {
        const QString line = QStringLiteral("QSSLoader: Failed to load QSS file: \"%1\"").arg(path);
        QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
    }
    QCOMPARE(QSSLoader::loadStyleSheet(QStringLiteral("TestModule"), files), text);
    QDir(themes + QStringLiteral("light/TestModule")).removeRecursively();
    QDir(themes + QStringLiteral("dark/TestModule")).removeRecursively();
}

void TestThemeManager::styleSheetFiles_data()
{
    addColumns<QString, QByteArray>({"name", "content"});

    const QByteArray plain("QLabel\n{\n    color: red;\n}\n");
    const QByteArray fromWindows = QByteArray(plain).replace("\n", "\r\n");
    QTest::newRow("lines end as on Windows") << "a.qss" << fromWindows;
    QTest::newRow("an editor's mark in front") << "a.qss"
                                               << "\xef\xbb\xbf" + fromWindows;
    QTest::newRow("more than 300 characters")
        << QString(150, 'f') + QLatin1Char('/') + QString(150, 'g') + QLatin1String("/a.qss")
        << plain;
    // Chinese, a letter of two units, an accent on its own
    QTest::newRow("letters of no code page")
        << QStringLiteral(u"\u4E3B\u9898 \U0001F3A8/e\u0301.qss") << plain;
}

void TestThemeManager::styleSheetFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);

    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(writeFile(path, content));
    const QString text = QStringLiteral("QLabel\n{\n    color: red;\n}\n");
    for (const QString &form : {path, QDir::toNativeSeparators(path)}) {
        QCOMPARE(QSSLoader::loadFiles({form}), text);
        QCOMPARE(ThemeManager::instance()->loadThemeFile({form, form}), text + text);
    }
}

void TestThemeManager::missingStyleSheetKeepsTheLook()
{
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("color: red"));
    QTest::ignoreMessage(
        QtDebugMsg, QRegularExpression(QStringLiteral("^QSSLoader: Failed to load QSS file:")));
    QSSLoader::applyStyleSheet(&widget, QStringLiteral("nosuchwidget.qss"));
    QCOMPARE(widget.styleSheet(), QStringLiteral("color: red"));

    QTest::ignoreMessage(QtWarningMsg,
                         "ThemeManager::loadThemeFile Failed to open QSS file: "
                         "\"/nowhere/a.qss\"");
    QCOMPARE(ThemeManager::instance()->loadThemeFile({QStringLiteral("/nowhere/a.qss")}),
             QString());
}

void TestThemeManager::whatIsOutOfSightFollows()
{
    QWidget window;
    auto *part = new QWidget(&window);
    int done = 0;
    auto *restyling = new Restyling(part, [&done] { ++done; });
    restyling->request();
    QCOMPARE(done, 1); // never shown
    window.show();
    restyling->request();
    QCOMPARE(done, 2); // in sight
    window.hide();
    restyling->request();
    restyling->request();
    QCOMPARE(done, 2);
    window.show();
    QCOMPARE(done, 3); // before anybody sees it, and once
    part->hide();
    QTimer steadily;
    connect(&steadily, &QTimer::timeout, part, [restyling] { restyling->request(); });
    steadily.start(1);
    QTRY_VERIFY(done >= 4); // without being shown, and not put off each time
    steadily.stop();
    part->show();
    const int before = done;
    part->hide();
    part->show();
    QCOMPARE(done, before);
}

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (Probe::isChild())
        return probe(Probe::task().split(QLatin1Char(' '), Qt::SkipEmptyParts));
    TestThemeManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_thememanager.moc"
