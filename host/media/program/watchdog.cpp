#include "host/media/program/watchdog.h"

#include <chrono>
#include <cstdlib>

namespace {
constexpr std::chrono::minutes Patience(2);
}

Watchdog::Watchdog()
    : m_thread([this] {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_over.wait_for(lock, Patience, [this] { return m_isOver; }))
            std::_Exit(EXIT_FAILURE);
    })
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
