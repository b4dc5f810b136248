#pragma once

#include "host/media/mediahelper.h"
#include "host/scan/scansource.h"

#include <QHash>
#include <QSet>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class QThread;

/// Helpers at work, each with a thread of its own that reads for it. The latest job is served
/// first: it is for what is on screen now. A file that a helper dies of is given a second chance,
/// after everything else; when that goes the same way, it is damaged, and no helper sees it again.
///
/// Thread-safe.
class MediaPool
{
public:
    struct Job
    {
        const void *owner = nullptr; ///< who may drop it
        MediaRequest request;
        FoundItem item;
        std::shared_ptr<const ScanSource> source;
        /// Called once, on a thread of the pool, unless the job is dropped or abandoned.
        std::function<void(MediaAnswer &&answer)> done;
    };

    /// The one that everybody in the process shares, for as long as anybody holds it.
    static std::shared_ptr<MediaPool> shared();

    explicit MediaPool(const MediaSetup &setup = MediaSetup());
    /// Kills what is at work.
    ~MediaPool();
    MediaPool(const MediaPool &) = delete;
    MediaPool &operator=(const MediaPool &) = delete;

    void add(Job job);

    /// Forgets the jobs of \a owner that nobody works on yet; the ids of their files.
    QVector<qint64> drop(const void *owner);
    /// Drops, and ends what is at work for \a owner as soon as it can be.
    void abandon(const void *owner);
    /// Abandons, and waits: afterwards nothing is called for \a owner any more.
    void leave(const void *owner);

private:
    struct Task : Job
    {
        std::atomic<bool> abandoned{false};
    };
    using TaskPointer = std::shared_ptr<Task>;

    void work();
    TaskPointer take();
    void serve(MediaHelper &helper, const TaskPointer &task);
    /// False when the task gets another chance.
    bool isSettled(MediaHelper::Outcome outcome, const TaskPointer &task, MediaAnswer *answer);
    QVector<qint64> dropLocked(const void *owner);
    void abandonLocked(const void *owner);

    const MediaSetup m_setup;

    std::mutex m_mutex; // guards what follows
    std::condition_variable m_arrived;
    std::condition_variable m_ended;
    std::deque<TaskPointer> m_waiting; // the latest at the back
    std::vector<TaskPointer> m_running;
    QHash<qint64, int> m_kills; // by file
    bool m_stopping = false;
    int m_alive = 0; // threads

    std::vector<std::unique_ptr<QThread>> m_threads;
};
