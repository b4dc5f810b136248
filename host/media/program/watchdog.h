#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Ends the program when one file takes far too long. The host kills a helper much earlier; but the
/// host may have died, and a helper that is caught in a loop would never notice.
class Watchdog
{
public:
    Watchdog();
    ~Watchdog();
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;

    void startFile() { m_since = std::chrono::steady_clock::now().time_since_epoch(); }
    void endFile() { m_since = Idle; }

private:
    using Duration = std::chrono::steady_clock::duration;
    static constexpr Duration Idle = Duration::zero();

    void watch();

    std::atomic<Duration> m_since{Idle};
    std::mutex m_mutex;
    std::condition_variable m_over;
    bool m_isOver = false;
    std::thread m_thread; // one for all files: to start one takes longer than many a file
};
