// From before the library is loaded to the first frame of an empty page, against a bare window with
// a stock list, table and stack. Each run is a fresh process, ours and the rival's in turn.
#include "benchmarks/ratio.h"
#include "plugin/sdcardscancontentplugininterface.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QLoggingCategory>
#include <QPluginLoader>
#include <QProcess>
#include <QStackedWidget>
#include <QTableView>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int Runs = 45; // a processor changes its pace for half a second at a time
constexpr QSize WindowSize(1280, 800);

/// Sees the first frame of a window: painted from its own background to the last of its children.
class FirstFrame : public QObject
{
public:
    explicit FirstFrame(QWidget *window) { window->installEventFilter(this); }

    void wait() const
    {
        while (!m_seen)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_seen = m_seen || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_seen = false;
};

void showFirstFrame(QWidget *window)
{
    FirstFrame frame(window);
    window->resize(WindowSize);
    window->show();
    frame.wait();
}

bool startOurs()
{
    QPluginLoader loader(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/plugins/SDCardScanContentPlugin"));
    auto *plugin = qobject_cast<SDCardScanContentPluginInterface *>(loader.instance());
    if (!plugin)
        return false;
    showFirstFrame(plugin->getScanContentFrame());
    return true;
}

bool startStock()
{
    QStackedWidget window;
    window.addWidget(new QListView);
    window.addWidget(new QTableView);
    showFirstFrame(&window);
    return true;
}

/// In a process of its own; milliseconds, below 0: it failed.
double timeOf(const char *side)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(side)});
    process.waitForFinished();
    bool isNumber = false;
    const double took = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return isNumber && process.exitCode() == 0 ? took : -1;
}

int runOnce(bool ours)
{
    QElapsedTimer clock;
    clock.start();
    const bool shown = ours ? startOurs() : startStock();
    std::printf("%.3f\n", double(clock.nsecsElapsed()) / 1e6);
    std::fflush(stdout);
    return shown ? 0 : 1;
}

void add(const char *name, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const bool failed = times.front() < 0;
    const double median = times[times.size() / 2];
    benchmark::RegisterBenchmark(name,
                                 [=](benchmark::State &state) {
                                     for (auto _ : state)
                                         state.SetIterationTime(median / 1e3);
                                     if (failed)
                                         state.SkipWithError("it did not start");
                                 })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->UseManualTime();
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QString side = application.arguments().value(1);
    if (side == QLatin1String("ours") || side == QLatin1String("stock"))
        return runOnce(side == QLatin1String("ours"));

    std::vector<double> ours;
    std::vector<double> stock;
    timeOf("ours"); // so that the files are in memory for all
    for (int run = 0; run < Runs; ++run) {
        ours.push_back(timeOf("ours"));
        stock.push_back(timeOf("stock"));
    }
    add("start/ours", ours);
    add("start/stock", stock);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
