#include "zvlottie.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <ctime>

namespace {

constexpr int Side = 284;
constexpr double RoundSeconds = 4;

double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// Megabytes of the process that are in memory; 0 where the system does not tell so.
double residentMegabytes()
{
    constexpr double PageKilobytes = 4;
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * PageKilobytes / 1024;
}

/// What the scanning animation costs while it plays, or pauses, on screen: the share of one
/// processor core, in all threads, after the first round that fills the cache.
void playing(benchmark::State &state)
{
    const bool plays = state.range(0) != 0;
    const int side = Side * int(state.range(1));
    Tarn::ZVLottie lottie{QString()};
    lottie.resize(side, side);
    lottie.setisLoop(true);
    lottie.setTimeInterval(20.0);
    if (!lottie.setSource(QCoreApplication::applicationDirPath()
                          + QStringLiteral("/LottieFiles/Scanning/data.json"))) {
        state.SkipWithError("no scanning animation beside the program");
        return;
    }
    const auto run = [](double seconds) {
        QEventLoop loop;
        QTimer::singleShot(int(seconds * 1000), &loop, &QEventLoop::quit);
        loop.exec();
    };
    lottie.show();
    lottie.setPlay(plays);
    const double before = residentMegabytes();
    run(RoundSeconds);
    double share = 0;
    for (auto _ : state) {
        const double used = processorSeconds();
        run(RoundSeconds);
        share = (processorSeconds() - used) / RoundSeconds;
    }
    state.counters["core_percent"] = share * 100;
    state.counters["grown_MB"] = residentMegabytes() - before;
}

} // namespace

BENCHMARK(playing)
    ->ArgNames({"playing", "scale"})
    ->ArgsProduct({{0, 1}, {1, 2}})
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
