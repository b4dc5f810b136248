#include "host/media/mediapool.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace {

constexpr int MaxKills = 2;

struct PoolTexts
{
    Q_DECLARE_TR_FUNCTIONS(MediaPool)
};

} // namespace

std::shared_ptr<MediaPool> MediaPool::shared()
{
    static std::mutex s_mutex;
    static std::weak_ptr<MediaPool> s_pool;
    const std::lock_guard<std::mutex> lock(s_mutex);
    std::shared_ptr<MediaPool> pool = s_pool.lock();
    if (!pool) {
        pool = std::make_shared<MediaPool>();
        s_pool = pool;
    }
    return pool;
}

MediaPool::MediaPool(const MediaSetup &setup)
    : m_setup(setup)
    , m_alive(setup.helpers)
{
    for (int i = 0; i < m_setup.helpers; ++i) {
        // a QThread: processes of Qt need its event dispatcher
        m_threads.emplace_back(QThread::create([this] { work(); }));
        m_threads.back()->start();
    }
}

MediaPool::~MediaPool()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopping = true;
        m_waiting.clear();
        for (const TaskPointer &task : m_running)
            task->abandoned = true;
    }
    m_arrived.notify_all();
    {
        // Sanitizers see this, but not how a thread of Qt is waited for.
        std::unique_lock<std::mutex> lock(m_mutex);
        m_ended.wait(lock, [this] { return m_alive == 0; });
    }
    for (const auto &thread : m_threads)
        thread->wait();
}

void MediaPool::add(Job job)
{
    auto task = std::make_shared<Task>();
    static_cast<Job &>(*task) = std::move(job);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_waiting.push_back(std::move(task));
    }
    m_arrived.notify_one();
}

QVector<qint64> MediaPool::dropLocked(const void *owner)
{
    QVector<qint64> dropped;
    const auto isTheirs = [owner, &dropped](const TaskPointer &task) {
        if (task->owner != owner)
            return false;
        dropped.append(task->item.id);
        return true;
    };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isTheirs), m_waiting.end());
    return dropped;
}

void MediaPool::abandonLocked(const void *owner)
{
    dropLocked(owner);
    for (const TaskPointer &task : m_running) {
        if (task->owner == owner)
            task->abandoned = true;
    }
}

QVector<qint64> MediaPool::drop(const void *owner)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return dropLocked(owner);
}

void MediaPool::abandon(const void *owner)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    abandonLocked(owner);
}

void MediaPool::leave(const void *owner)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    abandonLocked(owner);
    m_ended.wait(lock, [this, owner] {
        return std::none_of(m_running.begin(), m_running.end(),
                            [owner](const TaskPointer &task) { return task->owner == owner; });
    });
}

MediaPool::TaskPointer MediaPool::take()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_arrived.wait(lock, [this] { return m_stopping || !m_waiting.empty(); });
    if (m_stopping)
        return nullptr;
    TaskPointer task = std::move(m_waiting.back());
    m_waiting.pop_back();
    m_running.push_back(task);
    return task;
}

void MediaPool::work()
{
    auto helper = std::make_unique<MediaHelper>(m_setup);
    while (const TaskPointer task = take()) {
        serve(*helper, task);
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_running.erase(std::find(m_running.begin(), m_running.end(), task));
        }
        m_ended.notify_all();
    }
    helper.reset();
    const std::lock_guard<std::mutex> lock(m_mutex);
    --m_alive;
    m_ended.notify_all(); // with the lock: the pool may go right after
}

void MediaPool::serve(MediaHelper &helper, const TaskPointer &task)
{
    MediaAnswer answer;
    MediaHelper::Outcome outcome = MediaHelper::Answered;
    bool damaged = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        damaged = m_kills.value(task->item.id) >= MaxKills;
    }
    if (damaged) {
        answer.error = PoolTexts::tr("The file is damaged.");
    } else if (const auto file = task->source->openFile(task->item, &answer.error)) {
        outcome = helper.ask(task->request, *file, task->abandoned, &answer);
    }
    if (!task->abandoned && isSettled(outcome, task, &answer))
        task->done(std::move(answer));
}

bool MediaPool::isSettled(MediaHelper::Outcome outcome, const TaskPointer &task,
                          MediaAnswer *answer)
{
    if (outcome != MediaHelper::Killed)
        return true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (++m_kills[task->item.id] >= MaxKills) {
        answer->error = PoolTexts::tr("The file is damaged: %1.").arg(answer->error);
        return true;
    }
    if (!task->abandoned && !m_stopping)
        m_waiting.push_front(task); // this thread or another takes it when all else is done
    return false;
}
