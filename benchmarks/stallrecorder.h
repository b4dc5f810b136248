#pragma once

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

/// An application that knows how long its event loop is at a time away from waiting: from the first
/// event that is delivered after a wait until the loop is about to wait again. While that lasts
/// nothing on screen moves. A dispatcher is needed that tells of each wait before it begins and
/// handles events after it; Qt's own for Unix does, the one over GLib does not.
class StallRecorder : public QApplication
{
public:
    /// Where a busy stretch went, in milliseconds. What is in neither of the last two, the thread
    /// waited for a lock, a file or another thread.
    struct Stretch
    {
        double clock = 0;
        double own = 0;    ///< this thread was running
        double queued = 0; ///< it could have run, and no core was free; 0 where that is not told
    };

    struct Phase
    {
        std::string name;
        bool mayStall = false;            ///< a million rows are sorted in it
        std::vector<double> milliseconds; ///< of each busy stretch, by the clock
        Stretch longest;                  ///< by the clock
        double longestOwn = 0;            ///< of all stretches
        double longestDelivery = 0;       ///< of one event, this thread's own time
        std::string longestTo;            ///< who got that one, and its type
    };

    StallRecorder(int &argc, char **argv)
        : QApplication(argc, argv)
    {
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &StallRecorder::endStretch);
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (QThread::currentThread() != thread()) // the worker's events come this way too
            return QApplication::notify(receiver, event);
        if (!m_busy) {
            m_busy = true;
            m_clock.start();
            m_own = ownMilliseconds();
            m_queued = queuedMilliseconds();
        }
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        const QByteArray what = QByteArray(receiver->metaObject()->className()) + " event "
            + QByteArray::number(event->type());
        const double before = ownMilliseconds();
        ++m_depth;
        const bool taken = QApplication::notify(receiver, event);
        --m_depth;
        const double took = ownMilliseconds() - before;
        if (!m_phases.empty() && took > m_phases.back().longestDelivery) {
            m_phases.back().longestDelivery = took;
            m_phases.back().longestTo = what.toStdString();
        }
        return taken;
    }

    /// What follows belongs to a new phase. From inside a step, whose time goes to the new one.
    void begin(const std::string &name, bool mayStall)
    {
        m_phases.emplace_back();
        m_phases.back().name = name;
        m_phases.back().mayStall = mayStall;
    }

    const std::vector<Phase> &phases() const { return m_phases; }

    /// \a share of the sorted \a times are not longer than this.
    static double percentile(const std::vector<double> &times, double share)
    {
        if (times.empty())
            return 0;
        const auto last = double(times.size() - 1);
        return times[size_t(std::min(last, share * double(times.size())))];
    }

private:
    static double ownMilliseconds()
    {
#ifdef CLOCK_THREAD_CPUTIME_ID
        timespec time = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
#else
        return double(std::clock()) * 1e3 / CLOCKS_PER_SEC;
#endif
    }

    /// How long this thread has waited for a core, as Linux counts it.
    double queuedMilliseconds()
    {
        if (!m_schedule.isOpen() && !m_schedule.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return 0;
        m_schedule.seek(0);
        const QList<QByteArray> fields = m_schedule.readAll().split(' ');
        return fields.size() > 1 ? fields.at(1).toDouble() / 1e6 : 0;
    }

    void endStretch()
    {
        if (m_busy && !m_phases.empty()) {
            Phase &phase = m_phases.back();
            Stretch stretch;
            stretch.clock = double(m_clock.nsecsElapsed()) / 1e6;
            // a virtual machine that was stopped meanwhile may count more of it than has passed
            stretch.own = std::min(ownMilliseconds() - m_own, stretch.clock);
            stretch.queued = queuedMilliseconds() - m_queued;
            phase.milliseconds.push_back(stretch.clock);
            phase.longestOwn = std::max(phase.longestOwn, stretch.own);
            if (stretch.clock > phase.longest.clock)
                phase.longest = stretch;
        }
        m_busy = false;
    }

    QElapsedTimer m_clock;
    QFile m_schedule{QStringLiteral("/proc/thread-self/schedstat")};
    std::vector<Phase> m_phases;
    double m_own = 0;
    double m_queued = 0;
    int m_depth = 0;
    bool m_busy = false;
};
