#include "benchmarks/ratio.h"
#include "host/media/mediahelper.h"
#include "host/media/program/pictureloader.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QRandomGenerator>

namespace {

const QSize CoverSize(300, 166);

/// Soft colours with some grain, as photos have.
QByteArray photo(const QSize &size)
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
            line[x] ^= random.generate() & 0x000f0f0f;
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 92);
    return bytes;
}

void loadHere(benchmark::State &state, QByteArray bytes)
{
    QString error;
    for (auto _ : state) {
        QBuffer file(&bytes);
        file.open(QIODevice::ReadOnly);
        benchmark::DoNotOptimize(loadPicture(file, CoverSize, &error));
    }
    state.SetItemsProcessed(state.iterations());
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void loadInHelper(benchmark::State &state, QByteArray bytes, MediaRequest::Task task)
{
    MediaHelper helper{MediaSetup()};
    const std::atomic<bool> abandoned{false};
    MediaRequest request;
    request.task = task;
    request.extension = QStringLiteral("jpg");
    request.fileSize = bytes.size();
    request.cover = CoverSize;
    for (auto _ : state) {
        QBuffer file(&bytes);
        file.open(QIODevice::ReadOnly);
        MediaAnswer answer;
        if (helper.ask(request, file, abandoned, &answer) != MediaHelper::Answered
            || !answer.error.isEmpty())
            state.SkipWithError(qPrintable(answer.error));
    }
    state.SetItemsProcessed(state.iterations());
}

void startHelper(benchmark::State &state, QByteArray bytes)
{
    const std::atomic<bool> abandoned{false};
    MediaRequest request;
    request.task = MediaRequest::Metadata;
    request.fileSize = bytes.size();
    for (auto _ : state) {
        MediaHelper helper{MediaSetup()};
        QBuffer file(&bytes);
        file.open(QIODevice::ReadOnly);
        MediaAnswer answer;
        helper.ask(request, file, abandoned, &answer);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QByteArray small = photo(QSize(1500, 1000));
    const QByteArray large = photo(QSize(4000, 3000));
    for (const auto &entry : {qMakePair(std::string("1.5 megapixels"), small),
                              qMakePair(std::string("12 megapixels"), large)}) {
        const QByteArray bytes = entry.second;
        // stock: decoded in the host itself, which may die of it
        benchmark::RegisterBenchmark(
            (entry.first + "/ours").c_str(),
            [bytes](benchmark::State &state) { loadInHelper(state, bytes, MediaRequest::Picture); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
        benchmark::RegisterBenchmark((entry.first + "/stock").c_str(),
                                     [bytes](benchmark::State &state) { loadHere(state, bytes); })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    benchmark::RegisterBenchmark(
        "metadata",
        [large](benchmark::State &state) { loadInHelper(state, large, MediaRequest::Metadata); })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("start of a helper",
                                 [small](benchmark::State &state) { startHelper(state, small); })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
