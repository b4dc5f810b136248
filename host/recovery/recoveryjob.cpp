#include "host/recovery/recoveryjob.h"

#include "host/recovery/filerecovery.h"

#include <mutex>
#include <system_error>
#include <thread>

namespace {
constexpr int PollMs = 100;
}

struct RecoveryJob::Run
{
    std::thread thread;
    std::atomic<bool> cancel{false};
    std::mutex mutex; // guards what follows
    RecoveryProgress progress;
    RecoveryReport report;
    bool done = false;
};

RecoveryJob::RecoveryJob(std::shared_ptr<const ScanSource> source, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
{
    m_timer.setInterval(PollMs);
    connect(&m_timer, &QTimer::timeout, this, &RecoveryJob::poll);
}

RecoveryJob::~RecoveryJob()
{
    join();
}

void RecoveryJob::start(const QVector<FoundItem> &items, const QString &target)
{
    if (m_running)
        return;
    m_running = true;
    m_run = std::make_shared<Run>();
    Run *run = m_run.get(); // join() waits for the thread before it lets go
    const ScanSource *source = m_source.get();
    const FileRecovery::Tell tell = [run](const RecoveryProgress &now) {
        std::lock_guard<std::mutex> lock(run->mutex);
        run->progress = now;
    };
    const auto end = [run](const RecoveryReport &report) {
        std::lock_guard<std::mutex> lock(run->mutex);
        run->report = report;
        run->done = true;
    };
    try {
        m_run->thread = std::thread(
            [=] { end(FileRecovery(*source, target, run->cancel, tell).recover(items)); });
    } catch (const std::system_error &error) { // no thread to be had
        const QString reason = QString::fromLocal8Bit(error.code().message().c_str());
        end(FileRecovery(*source, target, run->cancel, tell).refuse(items, reason));
    }
    m_timer.start();
}

void RecoveryJob::cancel()
{
    if (m_run)
        m_run->cancel = true;
}

void RecoveryJob::join()
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

void RecoveryJob::poll()
{
    RecoveryProgress now;
    RecoveryReport report;
    bool done = false;
    {
        std::lock_guard<std::mutex> lock(m_run->mutex);
        now = m_run->progress;
        done = m_run->done;
        if (done)
            report = m_run->report;
    }
    const std::shared_ptr<Run> run = m_run;
    emit progress(now);
    if (!done || m_run != run)
        return;
    join();
    emit finished(report);
}
