#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// Does one job after the other on a thread of its own, which the first one starts. To be used by
/// one thread.
class JobThread
{
public:
    JobThread() = default;
    ~JobThread();
    Q_DISABLE_COPY_MOVE(JobThread)

    void add(std::function<void()> job);
    /// Drops the jobs that have not begun and joins the thread. The next one starts it again.
    void stop();

private:
    void run();

    // the standard library's, because race detectors see through them and not through Qt's
    std::thread m_thread;
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_jobs;
    bool m_stopped = false;
};
