#pragma once

#include "benchmarks/threadtimes.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QThread>

#include <algorithm>
#include <string>
#include <vector>

/// An application that knows how long its event loop is at a time away from waiting: from the first
/// event that is delivered after a wait until the loop is about to wait again. While that lasts
/// nothing on screen moves. A dispatcher is needed that tells of each wait before it begins and
/// handles events after it; Qt's own for Unix does, the one over GLib does not.
class StallRecorder : public QApplication
{
public:
    struct Phase
    {
        std::string name;
        bool mayStall = false;            ///< a million rows are sorted in it
        std::vector<double> milliseconds; ///< of each busy stretch, by the clock
        ThreadTimes longest;              ///< by the clock
        ThreadTimes longestOfOurs;        ///< without what the machine took
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
            m_start = m_clock.now();
        }
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        const QByteArray what = QByteArray(receiver->metaObject()->className()) + " event "
            + QByteArray::number(event->type());
        const double before = ThreadClock::own();
        ++m_depth;
        const bool taken = QApplication::notify(receiver, event);
        --m_depth;
        const double took = ThreadClock::own() - before;
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
    void endStretch()
    {
        if (m_busy && !m_phases.empty()) {
            Phase &phase = m_phases.back();
            const ThreadTimes stretch = m_clock.since(m_start);
            phase.milliseconds.push_back(stretch.clock);
            phase.longestOwn = std::max(phase.longestOwn, stretch.own);
            if (stretch.clock > phase.longest.clock)
                phase.longest = stretch;
            if (stretch.withoutTaken() > phase.longestOfOurs.withoutTaken())
                phase.longestOfOurs = stretch;
        }
        m_busy = false;
    }

    ThreadClock m_clock;
    ThreadTimes m_start;
    std::vector<Phase> m_phases;
    int m_depth = 0;
    bool m_busy = false;
};
