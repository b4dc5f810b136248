#pragma once

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>

/// Work that would hold up the event loop, done in short slices between events, one job after the
/// other. GUI thread.
class SlicedWork : public QObject
{
    Q_OBJECT

public:
    /// Does a little of a job, well below a millisecond; true when that was the last of it. Neither
    /// adds nor ends jobs.
    using Step = std::function<bool()>;

    explicit SlicedWork(QObject *parent = nullptr);

    /// A job that is the only one begins at once: a small one has ended when this returns.
    /// \a ended, which may be empty, is called after its last step and may do what it likes.
    void add(Step step, std::function<void()> ended = {});
    bool isIdle() const { return m_jobs.empty(); }
    /// Does all that is left.
    void finish();
    /// Forgets all that is left.
    void drop();

private:
    struct Job
    {
        Step step;
        std::function<void()> ended;
    };

    void workUntil(qint64 milliseconds);

    std::deque<Job> m_jobs;
    QTimer m_timer;
};
