#include "benchmarks/ratio.h"
#include "thumbnails/thumbnailimage.h"
#include "thumbnails/thumbnailstore.h"

#include <QGuiApplication>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

/// Neither flat nor noise: soft colours with some grain, as photos have.
QImage photo(const QSize &size)
{
    QImage soft(24, 18, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < soft.height(); ++y) {
        for (int x = 0; x < soft.width(); ++x)
            soft.setPixel(x, y, random.generate() | 0xFF000000);
    }
    QImage image = soft.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] ^= random.generate() & 0x00030303;
    }
    return image;
}

QImage stockPicture(const QString &path)
{
    const QImage image(path);
    return image.scaled(ThumbnailImage::targetSize(image.size()), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

/// How like ours is to the stock way's picture, in decibels; 99 for the same.
double likeness(const QString &path)
{
    const QImage ours = ThumbnailImage::load(path).convertToFormat(QImage::Format_RGB888);
    const QImage stock = stockPicture(path).convertToFormat(QImage::Format_RGB888);
    double squares = 0;
    for (int y = 0; y < ours.height(); ++y) {
        for (int i = 0; i < ours.width() * 3; ++i)
            squares += std::pow(ours.constScanLine(y)[i] - stock.constScanLine(y)[i], 2);
    }
    const double mean = squares / (3.0 * ours.width() * ours.height());
    return mean > 0 ? 10 * std::log10(255 * 255 / mean) : 99;
}

void loadStock(benchmark::State &state, const QString &path)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(stockPicture(path));
    state.SetItemsProcessed(state.iterations());
}

void loadOurs(benchmark::State &state, const QString &path)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ThumbnailImage::load(path));
    state.counters["dB"] = likeness(path);
    state.SetItemsProcessed(state.iterations());
}

/// Bytes in use by the allocator, large blocks included; 0 where that cannot be asked.
double heapBytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
#else
    return 0;
#endif
}

/// What \a state.range(0) pictures that have been looked at take.
void keepPictures(benchmark::State &state, const QImage &image, bool bounded)
{
    ThumbnailStore::Limits limits;
    if (!bounded)
        limits.total = std::numeric_limits<qint64>::max();
    const int count = int(state.range(0));
    for (auto _ : state) {
        const double before = heapBytes();
        ThumbnailStore store(limits);
        for (int i = 0; i < count; ++i)
            store.insert(i, QPixmap::fromImage(image.copy()), ThumbnailStore::Source::File,
                         nullptr);
        const double taken = heapBytes() - before;
        state.counters["MiB"] = taken / (1 << 20);
        state.counters["B per picture"] = taken / store.count();
        state.counters["kept"] = store.count();
    }
    state.SetItemsProcessed(count);
}

void addMemory(const std::string &name, const QImage &image, int count, bool bounded)
{
    benchmark::RegisterBenchmark(
        name.c_str(), [=](benchmark::State &state) { keepPictures(state, image, bounded); })
        ->Arg(count)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

void addMemories()
{
    constexpr int Few = 20'000; // enough that the ready ones do not count
    constexpr int Many = 100'000;
    const QImage colour = photo({110, 83});
    QImage cutOut = colour.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    cutOut.setPixel(0, 0, 0);
    QImage flat(110, 83, QImage::Format_RGB32);
    flat.fill(Qt::darkCyan);
    addMemory("memory/colour", colour, Few, false);
    addMemory("memory/transparent", cutOut, Few, false);
    addMemory("memory/grey", colour.convertToFormat(QImage::Format_Grayscale8), Few, false);
    addMemory("memory/fewColours", flat, Few, false);
    addMemory("memory/fromHost300x225", photo({300, 225}), 1000, false);
    addMemory("memory/bounded", colour, Many, true);
}

void add(const std::string &name, const QString &path)
{
    benchmark::RegisterBenchmark((name + "/ours").c_str(), [path](benchmark::State &state) {
        loadOurs(state, path);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark((name + "/stock").c_str(), [path](benchmark::State &state) {
        loadStock(state, path);
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString small = folder.filePath(QStringLiteral("small.png"));
    const QString camera = folder.filePath(QStringLiteral("camera.jpg"));
    const QString screen = folder.filePath(QStringLiteral("screen.png"));
    if (!photo({300, 225}).save(small) || !photo({4000, 3000}).save(camera, "jpg", 92)
        || !photo({2560, 1440}).save(screen))
        return 1;
    add("png300x225", small);
    add("jpeg12megapixels", camera);
    add("png2560x1440", screen);

    addMemories();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
