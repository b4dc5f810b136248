#pragma once

#include <QElapsedTimer>
#include <QModelIndex>

/// Lets a tooltip for the same index through only after a pause; another index's at once.
class TooltipThrottle
{
public:
    explicit TooltipThrottle(qint64 pauseMs)
        : m_pauseMs(pauseMs)
    {
        m_timer.start();
    }

    bool allows(const QModelIndex &index) const { return allows(index, m_timer.elapsed()); }
    /// \a elapsedMs since the last tooltip was shown.
    bool allows(const QModelIndex &index, qint64 elapsedMs) const
    {
        return index != m_index || elapsedMs > m_pauseMs;
    }
    void shown(const QModelIndex &index)
    {
        m_index = index;
        m_timer.start();
    }

private:
    qint64 m_pauseMs;
    QElapsedTimer m_timer;
    // Compared, never followed: a persistent one would forget at every reset, and while results
    // stream in the throttle would let everything through.
    QModelIndex m_index;
};
