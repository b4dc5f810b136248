#include "host/media/program/watchdog.h"

#include <cstdlib>

namespace {
constexpr std::chrono::minutes Patience(2);
constexpr std::chrono::seconds Round(10);
} // namespace

Watchdog::Watchdog()
    : m_thread([this] { watch(); })
{
}

Watchdog::~Watchdog()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
    }
    m_over.notify_one();
    m_thread.join();
}

void Watchdog::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_over.wait_for(lock, Round, [this] { return m_isOver; })) {
        const Duration since = m_since;
        const Duration now = std::chrono::steady_clock::now().time_since_epoch();
        if (since != Idle && now - since > Patience)
            std::_Exit(EXIT_FAILURE);
    }
}
