#pragma once

#include <QPainter>

/// Saves a painter's state and restores it at the end of the scope, also when something throws.
class PainterState
{
public:
    explicit PainterState(QPainter *painter)
        : m_painter(painter)
    {
        m_painter->save();
    }
    ~PainterState() { m_painter->restore(); }
    Q_DISABLE_COPY_MOVE(PainterState)

private:
    QPainter *m_painter;
};
