#include "thumbnails/spritesheets.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace {

/// All sheets, decoded and cut, as the pool thread does it; and the memory that the frames take.
void cutAllSheets(benchmark::State &state)
{
    qint64 bytes = 0;
    for (auto _ : state) {
        bytes = 0;
        for (int i = 0; i < SpriteSheets::Count; ++i) {
            const auto frames = SpriteSheets::cut(SpriteSheets::layout(SpriteSheets::Sheet(i)));
            for (const QImage &frame : frames)
                bytes += frame.sizeInBytes();
        }
    }
    state.counters["MB"] = double(bytes) / (1024 * 1024);
}
BENCHMARK(cutAllSheets)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
