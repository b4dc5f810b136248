#pragma once

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

private:
    std::mutex m_mutex;
    std::condition_variable m_over;
    bool m_isOver = false;
    std::thread m_thread;
};
