#pragma once

#include <future>
#include <system_error>
#include <utility>

/// Runs \a first on a thread of its own and \a second here, and waits for both; one after the other
/// where no thread can be had or \a worthwhile is false. What either throws arrives at the caller.
template <typename First, typename Second>
void runInParallel(bool worthwhile, First &&first, Second &&second)
{
    std::future<void> running;
    if (worthwhile) {
        try {
            running = std::async(std::launch::async, [&first] { first(); });
        } catch (const std::system_error &) {
            // no thread to be had: do it here
        }
    }
    if (!running.valid())
        first();
    second();
    if (running.valid())
        running.get();
}
