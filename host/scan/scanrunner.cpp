#include "host/scan/scanrunner.h"

#include "host/scan/scantexts.h"
#include "host/scan/shownpath.h"

#include <deque>
#include <mutex>
#include <system_error>
#include <thread>

namespace {
constexpr int DeliveryMs = 100;
constexpr int BacklogMs = 10;     // until the next delivery when one did not take everything
constexpr int MaxDelivery = 6000; // what makes records of them must not hold up the window
} // namespace

/// What the scanning thread and the runner share. The runner waits for the thread before it lets
/// go.
struct ScanRunner::Run
{
    QString path;
    std::shared_ptr<ScanSource> source; // before the thread starts, or under the mutex
    std::atomic<bool> cancel{false};
    std::thread thread;

    std::mutex mutex; // guards what follows
    std::deque<QVector<FoundItem>> found;
    ScanOutcome outcome;
    double fraction = -1;
    bool opened = false;
    bool done = false;

    void work();
    void refuse(const QString &reason);
    QVector<FoundItem> takeSome();
};

/// The caller holds the mutex.
QVector<FoundItem> ScanRunner::Run::takeSome()
{
    QVector<FoundItem> some;
    while (!found.empty()
           && (some.isEmpty() || some.size() + found.front().size() <= MaxDelivery)) {
        if (some.isEmpty())
            some = std::move(found.front());
        else
            some += found.front();
        found.pop_front();
    }
    return some;
}

void ScanRunner::Run::work()
{
    ScanOutcome result;
    std::shared_ptr<ScanSource> mine = source;
    if (!mine)
        mine = ScanSource::create(path, &result.error);
    if (mine) {
        {
            std::lock_guard<std::mutex> lock(mutex);
            source = mine;
            opened = true;
        }
        const auto take = [this](QVector<FoundItem> &&batch) {
            std::lock_guard<std::mutex> lock(mutex);
            found.push_back(std::move(batch));
        };
        const auto tell = [this](double now) {
            std::lock_guard<std::mutex> lock(mutex);
            fraction = now;
        };
        result = mine->scan(take, cancel, tell);
    }
    std::lock_guard<std::mutex> lock(mutex);
    outcome = result;
    done = true;
}

/// Instead of work().
void ScanRunner::Run::refuse(const QString &reason)
{
    outcome.error = ScanTexts::tr("%1 cannot be read: %2.").arg(shownPath(path), reason);
    done = true;
}

ScanRunner::ScanRunner(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &ScanRunner::poll);
}

ScanRunner::~ScanRunner()
{
    abandon();
}

void ScanRunner::start(const QString &path)
{
    auto run = std::make_shared<Run>();
    run->path = path;
    launch(std::move(run));
}

void ScanRunner::start(std::shared_ptr<ScanSource> source)
{
    auto run = std::make_shared<Run>();
    run->path = source->path();
    run->source = std::move(source);
    launch(std::move(run));
}

void ScanRunner::launch(std::shared_ptr<Run> run)
{
    abandon();
    m_run = std::move(run);
    m_source = nullptr;
    m_progress = {};
    m_running = true;
    m_elapsed.start();
    Run *shared = m_run.get(); // outlives the thread: abandon() and poll() wait for it
    try {
        m_run->thread = std::thread([shared] { shared->work(); });
    } catch (const std::system_error &error) { // no thread to be had
        shared->refuse(QString::fromLocal8Bit(error.code().message().c_str()));
    }
    m_timer.setInterval(DeliveryMs);
    if (!m_held)
        m_timer.start();
}

void ScanRunner::cancel()
{
    if (m_run)
        m_run->cancel = true;
}

void ScanRunner::setHeld(bool held)
{
    m_held = held;
    if (held)
        m_timer.stop();
    else if (m_running)
        m_timer.start();
}

void ScanRunner::abandon()
{
    m_timer.stop();
    m_running = false;
    if (!m_run)
        return;
    m_run->cancel = true;
    if (m_run->thread.joinable())
        m_run->thread.join();
    m_run.reset();
}

void ScanRunner::poll()
{
    const std::shared_ptr<Run> run = m_run;
    QVector<FoundItem> batch;
    ScanOutcome outcome;
    bool done = false;
    bool nowOpen = false;
    bool all = false;
    {
        std::lock_guard<std::mutex> lock(run->mutex);
        batch = run->takeSome();
        all = run->found.empty();
        done = run->done && all;
        outcome = run->outcome;
        nowOpen = run->opened;
        if (nowOpen && !m_source)
            m_source = run->source;
        else
            nowOpen = false;
        m_progress.fraction = run->fraction;
    }
    // A slot may start another scan, which puts an end to telling of this one.
    if (nowOpen)
        emit opened(m_source->volumes());
    if (m_run == run && !batch.isEmpty())
        deliver(batch);
    if (m_run != run)
        return;
    m_progress.elapsed = m_elapsed.elapsed();
    if (m_progress.elapsed > 0)
        m_progress.itemsPerSecond = double(m_progress.files + m_progress.folders) * 1000
            / double(m_progress.elapsed);
    emit progress(m_progress);
    if (m_run != run)
        return;
    const int pause = all ? DeliveryMs : BacklogMs;
    if (pause != m_timer.interval())
        m_timer.setInterval(pause);
    if (!done)
        return;
    abandon();
    emit finished(outcome);
}

void ScanRunner::deliver(const QVector<FoundItem> &batch)
{
    for (const FoundItem &item : batch) {
        ++(item.folder ? m_progress.folders : m_progress.files);
        m_progress.deleted += item.deleted;
        m_progress.bytes += item.size;
    }
    emit itemsFound(batch);
}
