// How long the event loop stands still at a time while somebody works with a million files: the
// plug-in as a host loads it, every step from an event of its own, as hands and hosts do it.
#include "benchmarks/millionfiles.h"
#include "benchmarks/stallrecorder.h"
#include "plugin/sdcardscancontentplugininterface.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QListView>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cstdio>
#include <functional>

namespace {

using Plugin = SDCardScanContentPluginInterface;
constexpr QSize WindowSize(1280, 800);
constexpr int FrameMs = 16;
constexpr int UpdateMs = 100;
constexpr int AnswerMs = 4;
constexpr double GoalMs = 50;

/// Answers for thumbnails as a host does: later, one at a time, 250 a second.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    Thumbnails(QObject *pluginObject, Plugin *plugin)
        : m_plugin(plugin)
        , m_picture(300, 200)
    {
        m_picture.fill(Qt::darkCyan);
        connect(&m_timer, &QTimer::timeout, this, &Thumbnails::answer);
        connect(pluginObject, SIGNAL(signalSaveThumbnail(TreeItemData *)), this,
                SLOT(take(TreeItemData *)));
    }

private slots:
    void take(TreeItemData *item)
    {
        m_asked.append(item->fileId);
        if (!m_timer.isActive())
            m_timer.start(AnswerMs);
    }

private:
    void answer()
    {
        m_plugin->updateThumbnail(m_asked.takeFirst(), m_picture);
        if (m_asked.isEmpty())
            m_timer.stop();
    }

    Plugin *m_plugin;
    QPixmap m_picture;
    QList<qint64> m_asked;
    QTimer m_timer;
};

/// The session, step by step.
class Session : public QObject
{
public:
    Session(StallRecorder &recorder, QObject *pluginObject, Plugin *plugin)
        : m_recorder(recorder)
        , m_plugin(plugin)
        , m_thumbnails(pluginObject, plugin)
        , m_frame(plugin->getScanContentFrame())
        , m_found(plugin->getSearchResultFrame())
        , m_grid(m_frame->findChild<QListView *>(QStringLiteral("listView")))
        , m_table(m_frame->findChild<QTableView *>())
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, &Session::step);
        m_root.kind = 1;
        m_results.kind = 1;
        m_root.childFiles.reserve(MillionFiles::Count);
        plan();
    }

    ~Session() override
    {
        for (QFrame *frame : {m_frame, m_found})
            frame->setParent(nullptr); // they are the plug-in's
    }

    void start()
    {
        auto *layout = new QVBoxLayout(&m_window);
        layout->setContentsMargins({});
        for (QFrame *frame : {m_frame, m_found})
            layout->addWidget(frame);
        m_found->hide();
        m_window.resize(WindowSize);
        m_window.show();
        m_timer.start(FrameMs);
    }

private:
    struct Step
    {
        std::string phase; // empty: that of the step before
        bool mayStall;
        int pause; // ms before it
        std::function<void()> work;
    };

    void add(const char *phase, int times, int pause, const std::function<void(int)> &work,
             bool mayStall = false)
    {
        for (int i = 0; i < times; ++i)
            m_steps.push_back({i == 0 ? phase : "", mayStall, pause, [work, i] { work(i); }});
    }

    void plan();
    void planScan();
    void planHands();
    void planLooks();

    void step()
    {
        if (m_next == m_steps.size()) {
            QCoreApplication::quit();
            return;
        }
        const Step &now = m_steps[m_next++];
        if (!now.phase.empty())
            m_recorder.begin(now.phase, now.mayStall);
        now.work();
        m_timer.start(m_next < m_steps.size() ? m_steps[m_next].pause : UpdateMs);
    }

    static void key(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(widget, new QKeyEvent(type, key, modifiers));
    }

    static void wheel(QAbstractScrollArea *view, int delta)
    {
        const QPointF pos = view->viewport()->rect().center();
        QCoreApplication::postEvent(
            view->viewport(),
            new QWheelEvent(pos, view->viewport()->mapToGlobal(pos.toPoint()), {}, {0, delta},
                            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
    }

    void click(const char *button) const
    {
        if (auto *found = m_frame->findChild<QPushButton *>(QLatin1String(button)))
            found->click();
        else
            qFatal("no button %s", button);
    }

    StallRecorder &m_recorder;
    Plugin *m_plugin;
    Thumbnails m_thumbnails;
    QFrame *m_frame;
    QFrame *m_found;
    QListView *m_grid;
    QTableView *m_table;
    QWidget m_window;
    TreeItemData m_root;
    TreeItemData m_results;
    QTimer m_timer;
    std::vector<Step> m_steps;
    size_t m_next = 0;
};

void Session::plan()
{
    planScan();
    planHands();
    planLooks();
}

void Session::planScan()
{
    constexpr int Updates = 100;
    add("scan streams in", Updates, UpdateMs / 2, [this](int update) {
        if (update == 0) {
            m_plugin->setViewMode(Plugin::GridView);
            m_plugin->setScanState(Plugin::ScanStarted);
        }
        const QList<TreeItemData *> &all = MillionFiles::instance().all();
        constexpr int Batch = MillionFiles::Count / Updates;
        for (int i = 0; i < Batch; ++i)
            m_root.childFiles.append(all.at(update * Batch + i));
        m_root.itemCount = m_root.childFiles.size();
        m_plugin->updateScanData(&m_root);
        wheel(m_grid, update % 20 < 15 ? -120 : 120);
        if (update == Updates - 1)
            m_plugin->setScanState(Plugin::ScanFinished);
    });
}

void Session::planHands()
{
    add("wheel, grid", 120, FrameMs, [this](int i) { wheel(m_grid, i < 90 ? -120 : 120); });
    add("page by page, grid", 60, FrameMs, [this](int) { key(m_grid, Qt::Key_PageDown); });
    add("End, Home, Shift+End", 12, 3 * FrameMs, [this](int i) {
        if (i % 3 == 0)
            key(m_grid, Qt::Key_End);
        else
            key(m_grid, i % 3 == 1 ? Qt::Key_Home : Qt::Key_End,
                i % 3 == 1 ? Qt::NoModifier : Qt::ShiftModifier);
    });
    add("locate by id", 20, 3 * FrameMs,
        [this](int i) { m_plugin->locateItemByFileId(qint64(i) * 48611 % MillionFiles::Count); });
    static const char *const columns[] = {"nameButton", "sizeButton", "typeButton", "dateButton"};
    for (const char *column : columns) {
        const std::string name = "sort, " + std::string(column);
        add(
            name.c_str(), 2, 400, [this, column](int) { click(column); }, true);
    }
    add("check all", 6, UpdateMs, [this](int) {
        click("allCheckButton");
        m_plugin->refreshScanCheckState();
    });
    add("Ctrl+A, then one", 10, UpdateMs, [this](int i) {
        if (i % 2 == 0)
            key(m_grid, Qt::Key_A, Qt::ControlModifier);
        else
            key(m_grid, Qt::Key_Home);
    });
    add("search streams in", 20, UpdateMs / 2, [this](int i) {
        if (i == 0) {
            m_frame->hide();
            m_found->show();
            m_plugin->setViewMode(Plugin::GridView);
        }
        const QList<TreeItemData *> &all = MillionFiles::instance().all();
        for (int k = i * 10'000; k < (i + 1) * 10'000; ++k) {
            if (all.at(k)->name.startsWith(QLatin1String("IMG_")))
                m_results.childFiles.append(all.at(k));
        }
        m_results.itemCount = m_results.childFiles.size();
        m_plugin->updateSearchData(&m_results, QStringLiteral("IMG_"));
        for (auto *view : m_found->findChildren<QListView *>(QStringLiteral("listView")))
            wheel(view, -120);
    });
    add("search ends", 1, UpdateMs, [this](int) { m_plugin->clearData(Plugin::SearchSide); });
    add("back to the scan", 1, UpdateMs, [this](int) {
        m_found->hide();
        m_frame->show();
    });
    add("the same tree again, sorted", 3, UpdateMs,
        [this](int) { m_plugin->updateScanData(&m_root); });
}

void Session::planLooks()
{
    add("switch view", 12, UpdateMs, [this](int i) {
        static const int modes[] = {Plugin::ListWithDetailView, Plugin::ListView, Plugin::GridView};
        m_plugin->setViewMode(modes[i % 3]);
    });
    add("list with pane: wheel, pages", 100, FrameMs, [this](int i) {
        if (i == 0)
            m_plugin->setViewMode(Plugin::ListWithDetailView);
        else if (i % 3 == 0)
            key(m_table, Qt::Key_PageDown);
        else
            wheel(m_table, -120);
    });
    add("list: End, Home, Ctrl+A", 9, UpdateMs, [this](int i) {
        static const int keys[] = {Qt::Key_End, Qt::Key_Home, Qt::Key_A};
        key(m_table, keys[i % 3], Qt::ControlModifier);
    });
    add("switch theme", 6, UpdateMs, [this](int i) {
        m_plugin->updateTheme(i % 2 == 0 ? DarkTheme : LightTheme);
        if (i == 2)
            m_plugin->setViewMode(Plugin::GridView);
    });
    add("switch language", 4, UpdateMs, [](int i) {
        auto *fonts = qApp->property("FontManager").value<QObject *>();
        QMetaObject::invokeMethod(
            fonts, "setLanguage",
            Q_ARG(QString, i % 2 ? QStringLiteral("English") : QStringLiteral("Arabic")));
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(qApp, &change);
        QApplication::setLayoutDirection(i % 2 ? Qt::LeftToRight : Qt::RightToLeft);
    });
    add("new scan", 1, UpdateMs, [this](int) { m_plugin->clearData(Plugin::BothSides); });
}

QJsonObject describe(const char *name, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const auto at = [&times](double share) { return StallRecorder::percentile(times, share); };
    const double longest = times.empty() ? 0 : times.back();
    std::printf("%-32s %7zu %8.2f %8.2f %8.2f %8.2f %8.2f", name, times.size(), at(0.5), at(0.9),
                at(0.99), at(0.999), longest);
    return {{"name", name},      {"stretches", int(times.size())},
            {"p50", at(0.5)},    {"p90", at(0.9)},
            {"p99", at(0.99)},   {"p99_9", at(0.999)},
            {"longest", longest}};
}

/// Where the longest stretch went, and the longest without what the machine took.
void describeLongest(const StallRecorder::Phase &phase, QJsonObject *line)
{
    const ThreadTimes &longest = phase.longest;
    const double ours = phase.longestOfOurs.withoutTaken();
    std::printf(" %8.2f %8.2f %8.2f %8.2f %8.2f\n", longest.own, longest.queued, longest.rest(),
                longest.taken(), ours);
    if (ours > GoalMs)
        std::printf("    the event that took most, %.1f ms of its own: %s\n", phase.longestDelivery,
                    phase.longestTo.c_str());
    line->insert("longest_own", longest.own);
    line->insert("longest_queued", longest.queued);
    line->insert("longest_rest", longest.rest());
    line->insert("longest_taken", longest.taken());
    line->insert("longest_of_ours", ours);
    line->insert("largest_event", QString::fromStdString(phase.longestTo));
    line->insert("largest_event_own", phase.longestDelivery);
}

int report(const StallRecorder &recorder, const QString &file)
{
    std::printf("%-32s %7s %8s %8s %8s %8s %8s %8s %8s %8s %8s %8s   (ms)\n",
                "busy stretches of the event loop", "count", "50 %", "90 %", "99 %", "99.9 %",
                "longest", "own", "queued", "rest", "taken", "of ours");
    QJsonArray phases;
    std::vector<double> all;
    std::vector<double> unsorted;
    std::string longestPhase;
    double ours = 0;
    for (const StallRecorder::Phase &phase : recorder.phases()) {
        QJsonObject line = describe(phase.name.c_str(), phase.milliseconds);
        describeLongest(phase, &line);
        phases.append(line);
        all.insert(all.end(), phase.milliseconds.begin(), phase.milliseconds.end());
        if (phase.mayStall)
            continue;
        unsorted.insert(unsorted.end(), phase.milliseconds.begin(), phase.milliseconds.end());
        if (phase.longestOfOurs.withoutTaken() > ours) {
            ours = phase.longestOfOurs.withoutTaken();
            longestPhase = phase.name;
        }
    }
    const QJsonObject whole = describe("the whole session", all);
    std::printf("\n");
    QJsonObject rest = describe("the session but the sorts", unsorted);
    rest.insert("longest_of_ours", ours);
    rest.insert("longest_phase", QString::fromStdString(longestPhase));
    std::printf("   of ours: %.2f, in: %s\n", ours, longestPhase.c_str());
    const bool met = ours < GoalMs;
    std::printf("\nlonger than %.0f ms apart from the sorts: %s\n", GoalMs, met ? "never" : "yes");
    if (!file.isEmpty()) {
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly))
            return 2;
        out.write(QJsonDocument(QJsonObject{{"items", MillionFiles::Count},
                                            {"goal_ms", GoalMs},
                                            {"met", met},
                                            {"phases", phases},
                                            {"all", whole},
                                            {"without_sorts", rest}})
                      .toJson());
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    StallRecorder application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QPluginLoader loader(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/plugins/SDCardScanContentPlugin"));
    QObject *object = loader.instance();
    auto *plugin = qobject_cast<Plugin *>(object);
    if (!plugin) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 2;
    }
    MillionFiles::instance(); // not in anyone's time
    {
        Session session(application, object, plugin);
        session.start();
        QApplication::exec();
    }
    plugin->clearData(Plugin::BothSides);
    return report(application, application.arguments().value(1));
}

#include "bench_stalls.moc"
