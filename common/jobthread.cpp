#include "common/jobthread.h"

#include <system_error>
#include <utility>

JobThread::~JobThread()
{
    stop();
}

void JobThread::add(std::function<void()> job)
{
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_jobs.push_back(std::move(job));
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        // no thread to be had: the next job tries again
    }
}

void JobThread::stop()
{
    std::deque<std::function<void()>> dropped; // what they hold goes without the lock
    {
        const std::lock_guard<std::mutex> lock(m_lock);
        m_stopped = true;
        dropped.swap(m_jobs);
    }
    m_changed.notify_one();
    if (m_thread.joinable()) // or no thread was to be had
        m_thread.join();
    m_stopped = false;
}

void JobThread::run()
{
    std::unique_lock<std::mutex> lock(m_lock);
    while (!m_stopped) {
        if (m_jobs.empty()) {
            m_changed.wait(lock);
            continue;
        }
        auto job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        job();
        job = nullptr; // what it holds goes before the lock is taken
        lock.lock();
    }
}
