// How long the reference host's event loop stands still at a time while it scans a made-up card
// and somebody works with its files: bench_hoststalls [FILES], a million unless said.
#include "benchmarks/stallrecorder.h"
#include "host/app/contentplugin.h"
#include "host/app/languages.h"
#include "host/app/session.h"
#include "host/scan/syntheticsource.h"
#include "host/tree/itemkinds.h"
#include "host/ui/mainwindow.h"

#include <QDir>
#include <QKeyEvent>
#include <QListView>
#include <QLoggingCategory>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

using Plugin = SDCardScanContentPluginInterface;
constexpr int Million = 1'000'000;
constexpr int PauseMs = 300;
constexpr double GoalMs = 50;

/// The steps of the work, one after the other, each from an event of its own.
class Hands : public QObject
{
public:
    Hands(StallRecorder &recorder, Session &session, MainWindow &window, int files)
        : m_recorder(recorder)
        , m_session(session)
        , m_window(window)
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, &Hands::step);
        connect(
            &session, &Session::scanFinished, &m_timer, [this] { m_timer.start(PauseMs); },
            Qt::QueuedConnection);
        add("scan streams in", 1,
            [this, files](int) { m_window.openSource(SyntheticSource::pathFor(files)); });
        planChecks();
        planPlaces();
        planLooks();
        add("a scan anew, stopped", 1,
            [this, files](int) { m_window.openSource(SyntheticSource::pathFor(files)); });
    }

    void start() { m_timer.start(PauseMs); }

private:
    struct Step
    {
        std::string phase; // empty: that of the step before
        std::function<void()> work;
    };

    void add(const char *phase, int times, const std::function<void(int)> &work)
    {
        for (int i = 0; i < times; ++i)
            m_steps.push_back({i == 0 ? phase : "", [work, i] { work(i); }});
    }

    /// Not the hidden one of the search.
    QListView *shownGrid() const
    {
        for (auto *grid : m_window.findChildren<QListView *>(QStringLiteral("listView"))) {
            if (grid->isVisible())
                return grid;
        }
        qFatal("no grid is shown");
    }

    void planChecks()
    {
        add("check all shown", 1,
            [this](int) { m_session.changeChecks(Session::Bulk::CheckShown); });
        add("undo, redo", 6, [this](int i) {
            if (i % 2 == 0)
                m_session.undoChecks();
            else
                m_session.redoChecks();
        });
        add("invert", 2, [this](int) { m_session.changeChecks(Session::Bulk::Invert); });
        add("check the deleted", 1,
            [this](int) { m_session.changeChecks(Session::Bulk::CheckDeleted); });
        add("check photos", 1, [this](int) { m_session.changeChecks(Session::Bulk::CheckPhotos); });
        add("what is checked, to recover", 1,
            [this](int) { m_session.takeChecked([](const QVector<FoundItem> &) {}); });
        add("uncheck all", 1, [this](int) { m_session.changeChecks(Session::Bulk::UncheckAll); });
        add("select all, Space", 4, [this](int i) {
            QListView *const grid = shownGrid();
            if (i == 0)
                grid->selectAll();
            else
                QCoreApplication::postEvent(
                    grid, new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
        });
    }

    void planPlaces()
    {
        add("by place, by kind", 6, [this](int i) {
            m_session.show(i % 2 == 0 ? m_session.tree().placeRoot() : m_session.tree().allFiles());
        });
        add("photos, all files", 4, [this](int i) {
            m_session.show(i % 2 == 0 ? m_session.tree().kindRoot(ItemKinds::PhotosRootType)
                                      : m_session.tree().allFiles());
        });
        add("search for .JPG", 4, [this](int i) {
            if (i == 0)
                m_window.search(QStringLiteral(".jpg"), false);
        });
        add("check what is found, undo", 2, [this](int i) {
            if (i == 0)
                m_session.changeChecks(Session::Bulk::CheckShown);
            else
                m_session.undoChecks();
        });
        add("search ends", 1, [this](int) { m_window.search(QString(), false); });
        add("filter by kind, none", 2, [this](int i) {
            FilterCondition condition;
            if (i == 0)
                condition.mode = 1;
            m_session.setFilter(condition);
        });
    }

    void planLooks()
    {
        add("switch theme", 6,
            [this](int i) { m_window.setTheme(i % 2 == 0 ? DarkTheme : LightTheme); });
        add("switch view", 6, [this](int i) { m_window.setViewMode((i + 1) % 3); });
        add("switch language", 4, [](int i) {
            Languages::apply(*Languages::find(i % 2 == 0 ? QStringLiteral("Arabic")
                                                         : QStringLiteral("English")));
        });
    }

    void step()
    {
        if (m_next == m_steps.size()) {
            QCoreApplication::quit();
            return;
        }
        const Step &now = m_steps[m_next++];
        if (!now.phase.empty())
            m_recorder.begin(now.phase, false);
        now.work();
        if (m_next > 1) // the first scan tells of its end
            m_timer.start(PauseMs);
    }

    StallRecorder &m_recorder;
    Session &m_session;
    MainWindow &m_window;
    QTimer m_timer;
    std::vector<Step> m_steps;
    size_t m_next = 0;
};

void report(const StallRecorder &recorder)
{
    std::printf("%-28s %9s %9s %9s %9s   (ms)\n", "busy stretches of the host", "count", "longest",
                "of ours", "own");
    for (const StallRecorder::Phase &phase : recorder.phases()) {
        const std::vector<double> &times = phase.milliseconds;
        std::printf("%-28s %9zu %9.2f %9.2f %9.2f\n", phase.name.c_str(), times.size(),
                    phase.longest.clock, phase.longestOfOurs.withoutTaken(), phase.longestOwn);
        if (phase.longestOfOurs.withoutTaken() > GoalMs)
            std::printf("    %.1f ms of that: %s\n", phase.longestDelivery,
                        phase.longestTo.c_str());
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    StallRecorder application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const int files = argc > 1 ? QByteArray(argv[1]).toInt() : Million;
    if (SyntheticSource::countOf(SyntheticSource::pathFor(files)) == 0) {
        std::fprintf(stderr, "so many files cannot be made up\n");
        return 2;
    }

    ContentPlugin plugin;
    QString error;
    if (!plugin.load(QString(), &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 2;
    }
    auto session = std::make_unique<Session>(plugin);
    auto window = std::make_unique<MainWindow>(plugin, *session);
    Languages::apply(*Languages::find(QStringLiteral("English")));
    window->show();
    {
        Hands hands(application, *session, *window, files);
        hands.start();
        QApplication::exec();
    }
    report(application);
    QElapsedTimer clock;
    clock.start();
    window.reset();
    session.reset();
    std::printf("closing takes %lld ms\n", static_cast<long long>(clock.elapsed()));
    return 0;
}
