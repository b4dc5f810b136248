#pragma once

#include <QFile>

#include <algorithm>
#include <chrono>
#include <ctime>
#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

/// Where the time of one thread goes, in milliseconds: readings of a ThreadClock, or what lies
/// between two of them.
struct ThreadTimes
{
    double clock = 0;
    double own = 0;     ///< the thread was running
    double queued = 0;  ///< it could have run, and no core was free; 0 where that is not told
    double helpers = 0; ///< other threads of this process were running
    long waits = 0;     ///< how often it gave its core up, to wait for a lock, a file, a thread

    /// Neither running nor queued.
    double rest() const { return std::max(0.0, clock - own - queued); }

    /// What the machine took: a thread that never gave its core up and yet did not run was stopped
    /// together with the core, and a core that none of our own threads used was used by others.
    /// Never too much: with a single wait, all the rest counts as waiting.
    double taken() const { return (waits == 0 ? rest() : 0.0) + std::max(0.0, queued - helpers); }

    double withoutTaken() const { return std::max(0.0, clock - taken()); }
};

/// Reads the times of the thread that asks, which must always be the same one.
class ThreadClock
{
public:
    static double own()
    {
#ifdef CLOCK_THREAD_CPUTIME_ID
        return processorTime(CLOCK_THREAD_CPUTIME_ID);
#else
        return double(std::clock()) * 1e3 / CLOCKS_PER_SEC;
#endif
    }

    ThreadTimes now()
    {
        ThreadTimes times;
        const auto clock = std::chrono::steady_clock::now().time_since_epoch();
        times.clock = std::chrono::duration<double, std::milli>(clock).count();
#ifdef CLOCK_THREAD_CPUTIME_ID
        times.helpers = processorTime(CLOCK_PROCESS_CPUTIME_ID) - own();
#endif
        times.own = own();
        times.queued = queued();
        times.waits = waits();
        return times;
    }

    ThreadTimes since(const ThreadTimes &start)
    {
        ThreadTimes times = now();
        times.clock -= start.clock;
        // a virtual machine that was stopped meanwhile may count more of it than has passed
        times.own = std::min(times.own - start.own, times.clock);
        times.queued = std::min(times.queued - start.queued, times.clock - times.own);
        times.helpers -= start.helpers;
        times.waits -= start.waits;
        return times;
    }

private:
#ifdef CLOCK_THREAD_CPUTIME_ID
    static double processorTime(clockid_t which)
    {
        timespec time = {};
        clock_gettime(which, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }
#endif

    double queued()
    {
        if (!m_schedule.isOpen() && !m_schedule.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return 0;
        m_schedule.seek(0);
        const QList<QByteArray> fields = m_schedule.readAll().split(' ');
        return fields.size() > 1 ? fields.at(1).toDouble() / 1e6 : 0;
    }

    /// Where waits are not counted, each stretch has one, and nothing is put down to the machine.
    long waits()
    {
#ifdef RUSAGE_THREAD
        rusage usage = {};
        if (getrusage(RUSAGE_THREAD, &usage) == 0)
            return usage.ru_nvcsw;
#endif
        return ++m_unknownWaits;
    }

    QFile m_schedule{QStringLiteral("/proc/thread-self/schedstat")};
    long m_unknownWaits = 0;
};
