#include "host/app/freespace.h"

#include "host/recovery/targetcheck.h"

#include <QtConcurrent>

namespace {
constexpr int AskEveryMs = 3000;
}

FreeSpace::FreeSpace(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(AskEveryMs);
    connect(&m_timer, &QTimer::timeout, this, &FreeSpace::ask);
    connect(&m_answer, &QFutureWatcher<qint64>::finished, this, [this] {
        if (m_asked != m_folder) {
            ask();
            return;
        }
        if (m_bytes == m_answer.result())
            return;
        m_bytes = m_answer.result();
        emit changed();
    });
}

FreeSpace::~FreeSpace()
{
    disconnect(&m_answer, nullptr, this, nullptr); // a slow disk may answer when it likes
}

void FreeSpace::setFolder(const QString &folder)
{
    m_folder = folder;
    m_bytes = -1;
    emit changed();
    ask();
}

void FreeSpace::setWatching(bool watching)
{
    if (watching == m_timer.isActive())
        return;
    if (!watching) {
        m_timer.stop();
        return;
    }
    m_timer.start();
    ask();
}

void FreeSpace::ask()
{
    if (m_folder.isEmpty() || m_answer.isRunning())
        return;
    m_asked = m_folder;
    m_answer.setFuture(QtConcurrent::run(TargetCheck::freeBytes, m_folder));
}
