#pragma once

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>

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
    struct Phase
    {
        std::string name;
        bool mayStall = false;            ///< a million rows are sorted in it
        std::vector<double> milliseconds; ///< of each busy stretch, by the clock
        double longestDelivery = 0;       ///< of one event, the same way
        std::string longestTo;            ///< who got that one, and its type
        double longestOwn = 0;            ///< processor time of this thread; others may disturb it
    };

    StallRecorder(int &argc, char **argv)
        : QApplication(argc, argv)
    {
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
                &StallRecorder::endStretch);
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (!m_busy) {
            m_busy = true;
            m_clock.start();
            m_own = ownMilliseconds();
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

    void endStretch()
    {
        if (m_busy && !m_phases.empty()) {
            Phase &phase = m_phases.back();
            phase.milliseconds.push_back(double(m_clock.nsecsElapsed()) / 1e6);
            phase.longestOwn = std::max(phase.longestOwn, ownMilliseconds() - m_own);
        }
        m_busy = false;
    }

    QElapsedTimer m_clock;
    std::vector<Phase> m_phases;
    double m_own = 0;
    int m_depth = 0;
    bool m_busy = false;
};
