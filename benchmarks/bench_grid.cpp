// The grid against a stock list view in icon mode, in one process and over one model.
#include "benchmarks/ratio.h"
#include "content/thumbnailgrid.h"
#include "support/carddelegate.h"
#include "support/plainlistmodel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int Rounds = 9;
constexpr int Million = 1000000;

template <class View>
struct Bench
{
    Bench()
    {
        view.setViewMode(QListView::IconMode);
        view.setMovement(QListView::Static);
        view.setFlow(QListView::LeftToRight);
        view.setWrapping(true);
        view.setResizeMode(QListView::Adjust);
        view.setLayoutMode(QListView::SinglePass);
        view.setUniformItemSizes(true);
        view.setSpacing(8);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setItemDelegate(&delegate);
        view.setModel(&model);
        view.resize(1280, 800);
        view.show();
        QCoreApplication::processEvents();
    }

    /// Until the first frame has been painted, in ms; the median of some rounds.
    double resetToFrame(int rows)
    {
        std::vector<double> times;
        for (int round = 0; round < Rounds; ++round) {
            QElapsedTimer timer;
            timer.start();
            delegate.painted = 0;
            model.reset(rows);
            while (delegate.painted == 0)
                QCoreApplication::processEvents();
            times.push_back(timer.nsecsElapsed() / 1e6);
        }
        std::nth_element(times.begin(), times.begin() + Rounds / 2, times.end());
        return times[Rounds / 2];
    }

    PlainListModel model;
    CardDelegate delegate;
    View view;
};

/// Kilobytes in use by the allocator, large blocks included; 0 where that cannot be asked.
double heapKilobytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1024;
#else
    return 0;
#endif
}

template <class View>
double layoutKilobytes()
{
    Bench<View> bench;
    bench.resetToFrame(1);
    const double before = heapKilobytes();
    bench.resetToFrame(Million);
    return heapKilobytes() - before;
}

void printRatios()
{
    Bench<ThumbnailGrid> ours;
    Bench<QListView> stock;
    std::printf("%-28s %12s %12s %8s\n", "reset to first frame", "ours ms", "stock ms", "ratio");
    double atTenThousand = 0;
    double atMillion = 0;
    for (int rows : {10000, 100000, Million}) {
        const double mine = ours.resetToFrame(rows);
        const double theirs = stock.resetToFrame(rows);
        std::printf("%-28d %12.3f %12.3f %7.1fx\n", rows, mine, theirs, theirs / mine);
        if (rows == 10000)
            atTenThousand = mine;
        atMillion = mine;
    }
    std::printf("ours at 1 M / at 10 k: %.2f\n", atMillion / atTenThousand);
    const double mine = layoutKilobytes<ThumbnailGrid>();
    const double theirs = layoutKilobytes<QListView>();
    std::printf("layout memory at 1 M: ours %.1f kB, stock %.1f kB\n\n", mine, theirs);
}

template <class View>
void resetToFirstFrame(benchmark::State &state)
{
    Bench<View> bench;
    for (auto _ : state)
        state.SetIterationTime(bench.resetToFrame(int(state.range(0))) / 1e3);
}
BENCHMARK_TEMPLATE(resetToFirstFrame, ThumbnailGrid)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(Million)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(resetToFirstFrame, QListView)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(Million)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

template <class View>
void layoutMemory(benchmark::State &state)
{
    for (auto _ : state)
        state.counters["kB"] = layoutKilobytes<View>();
}
BENCHMARK_TEMPLATE(layoutMemory, ThumbnailGrid)->Iterations(1);
BENCHMARK_TEMPLATE(layoutMemory, QListView)->Iterations(1);

template <class View>
void pageStep(benchmark::State &state)
{
    Bench<View> bench;
    bench.resetToFrame(Million);
    QScrollBar *bar = bench.view.verticalScrollBar();
    for (auto _ : state) {
        bar->triggerAction(bar->value() < bar->maximum() ? QAbstractSlider::SliderPageStepAdd
                                                         : QAbstractSlider::SliderToMinimum);
        QCoreApplication::processEvents();
    }
}
BENCHMARK_TEMPLATE(pageStep, ThumbnailGrid)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(pageStep, QListView)->Unit(benchmark::kMillisecond);

template <class View>
void shiftEnd(benchmark::State &state)
{
    Bench<View> bench;
    bench.resetToFrame(Million);
    for (auto _ : state) {
        state.PauseTiming();
        bench.view.setCurrentIndex(bench.model.index(0, 0));
        QCoreApplication::processEvents();
        state.ResumeTiming();
        QKeyEvent key(QEvent::KeyPress, Qt::Key_End, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&bench.view, &key);
    }
    if (bench.view.currentIndex().row() != Million - 1)
        state.SkipWithError("the last row was not reached");
}
BENCHMARK_TEMPLATE(shiftEnd, ThumbnailGrid)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(shiftEnd, QListView)->Unit(benchmark::kMillisecond);

template <class View>
void selectEverything(benchmark::State &state)
{
    Bench<View> bench;
    bench.resetToFrame(Million);
    for (auto _ : state) {
        bench.view.selectAll();
        QCoreApplication::processEvents();
    }
}
BENCHMARK_TEMPLATE(selectEverything, ThumbnailGrid)->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(selectEverything, QListView)->Unit(benchmark::kMillisecond);

void typeAhead(benchmark::State &state)
{
    Bench<ThumbnailGrid> bench;
    bench.resetToFrame(Million);
    for (auto _ : state) {
        bench.view.keyboardSearch(QString()); // starts anew
        bench.view.keyboardSearch(QStringLiteral("x"));
    }
}
BENCHMARK(typeAhead)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (!listsNamesOnly(argc, argv))
        printRatios();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
