// A thousand thumbnails arrive while a million files are listed: how busy that keeps the thread
// that the user waits for, and how much it repaints.
#include "benchmarks/millionfiles.h"
#include "content/sdcardcontentdatawidget.h"
#include "content/thumbnailgrid.h"
#include "thumbnails/scanpluginpreviewmanager.h"
#include "thumbnails/thumbnailfiles.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPaintEvent>
#include <QTemporaryDir>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <ctime>

namespace {

constexpr int Arrivals = 1000;
constexpr int FromHostPauseMs = 4; // a host that makes 250 thumbnails a second
constexpr QSize WindowSize(1280, 800);

/// Of this thread alone, where the system says so.
double busySeconds()
{
#ifdef CLOCK_THREAD_CPUTIME_ID
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
#else
    return double(std::clock()) / CLOCKS_PER_SEC;
#endif
}

class PaintCounter : public QObject
{
public:
    double pixels = 0;
    int events = 0;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++events;
            for (const QRect &rect : static_cast<QPaintEvent *>(event)->region())
                pixels += double(rect.width()) * rect.height();
        }
        return QObject::eventFilter(watched, event);
    }
};

/// The scan side with all files in its grid.
class Page
{
public:
    Page()
        : m_content(1)
    {
        m_content.resize(WindowSize);
        m_content.show();
        m_content.updateData(&MillionFiles::instance().folder(MillionFiles::Count), QString());
        m_viewport = m_content.findChild<ThumbnailGrid *>()->viewport();
        m_viewport->installEventFilter(&m_paints);
    }

    /// Has \a arrive do its work and waits until all of it has come.
    template <class Arrive>
    void measure(benchmark::State &state, Arrive arrive)
    {
        auto *cache = ScanPluginPreviewManager::instance();
        for (auto _ : state) {
            cache->stop();
            m_viewport->update();
            QCoreApplication::processEvents();
            int arrived = 0;
            QEventLoop loop;
            const auto connection = QObject::connect(
                cache, &ScanPluginPreviewManager::signalUpdateListView, &loop, [&] {
                    if (++arrived == Arrivals)
                        QTimer::singleShot(0, &loop, &QEventLoop::quit);
                });
            m_paints.pixels = m_paints.events = 0;
            QElapsedTimer clock;
            clock.start();
            const double before = busySeconds();
            arrive(cache, &loop);
            loop.exec();
            const double busy = busySeconds() - before;
            QObject::disconnect(connection);
            state.counters["GUI busy %"] = 100 * busy / (double(clock.nsecsElapsed()) / 1e9);
            state.counters["us per arrival"] = 1e6 * busy / Arrivals;
            state.counters["paints"] = m_paints.events;
            state.counters["viewports painted"] = m_paints.pixels
                / (double(m_viewport->width()) * m_viewport->height());
        }
    }

private:
    PaintCounter m_paints;
    SDCardContentDataWidget m_content;
    QWidget *m_viewport = nullptr;
};

void fromDisk(ScanPluginPreviewManager *cache, QObject *)
{
    for (int i = 0; i < Arrivals; ++i)
        cache->requestThumbnail(MillionFiles::instance().all().at(i));
}

void fromHost(ScanPluginPreviewManager *cache, QObject *context)
{
    auto *clock = new QTimer(context);
    int next = 0;
    QObject::connect(clock, &QTimer::timeout, context, [=]() mutable {
        QPixmap pixmap(300, 225);
        pixmap.fill(QColor::fromHsv(next % 360, 200, 200));
        cache->storeThumbnail(MillionFiles::instance().all().at(next)->fileId, pixmap);
        if (++next == Arrivals)
            clock->stop();
    });
    clock->start(FromHostPauseMs);
}

bool writeThumbnails()
{
    QImage image(300, 225, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y, (x * y) % 256));
    }
    for (int i = 0; i < Arrivals; ++i) {
        const TreeItemData *file = MillionFiles::instance().all().at(i);
        const QString path = ThumbnailFiles::pngThumbnail(file->fileId, file->extension);
        QDir().mkpath(QFileInfo(path).path());
        if (!image.save(path))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir folder;
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    const QApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    if (!writeThumbnails())
        return 1;
    {
        Page page;
        benchmark::RegisterBenchmark(
            "arrivals1000/fromDisk",
            [&](benchmark::State &state) { page.measure(state, fromDisk); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(
            "arrivals1000/fromHost",
            [&](benchmark::State &state) { page.measure(state, fromHost); })
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
    }
    ScanPluginPreviewManager::instance()->stop();
}
