#include "host/tree/slicedwork.h"

#include <QElapsedTimer>

#include <limits>
#include <utility>

namespace {
constexpr qint64 SliceMs = 8;
}

SlicedWork::SlicedWork(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, [this] { workUntil(SliceMs); });
}

void SlicedWork::add(Step step, std::function<void()> ended)
{
    m_jobs.push_back({std::move(step), std::move(ended)});
    if (m_jobs.size() == 1)
        workUntil(SliceMs);
}

void SlicedWork::finish()
{
    workUntil(std::numeric_limits<qint64>::max());
}

void SlicedWork::drop()
{
    m_jobs.clear();
    m_timer.stop();
}

void SlicedWork::workUntil(qint64 milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    do {
        if (m_jobs.empty())
            break;
        if (!m_jobs.front().step())
            continue;
        const std::function<void()> ended = std::move(m_jobs.front().ended);
        m_jobs.pop_front(); // first: what is told may lead back to here, or open a dialog
        if (!m_jobs.empty())
            m_timer.start();
        if (ended)
            ended();
    } while (clock.elapsed() < milliseconds);
    if (m_jobs.empty())
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start();
}
