#pragma once

#include <QBasicTimer>
#include <QEvent>
#include <QObject>
#include <QPointF>

class QAbstractItemView;
class QModelIndex;
class QMouseEvent;
class QPoint;
class QTouchEvent;

/// Finger and pen in an item view. A finger scrolls by dragging and clicks by a tap; a pen does
/// what a mouse does. Either one resting on an item asks for its context menu, and then its release
/// does nothing more. Until it is known what a press becomes, the view does not see it. GUI thread.
class TouchInput : public QObject
{
    Q_OBJECT

public:
    /// Goes with \a view.
    explicit TouchInput(QAbstractItemView *view);

signals:
    /// The item is the current one, and selected.
    void longPressed(const QModelIndex &index, const QPoint &globalPos);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum Phase { Idle, Pressed, Dragged, Done };

    bool touch(const QTouchEvent &event);
    bool penPressed(const QMouseEvent &event);
    bool penMoved(const QMouseEvent &event);
    bool penReleased();
    void begin(const QPointF &pos);
    /// The press becomes something else than a click.
    void end(Phase phase);
    bool isFarAway(const QPointF &pos) const;
    void rest();
    void tap(ulong timestamp);
    void send(QEvent::Type type, Qt::MouseButtons buttons, ulong timestamp);

    QAbstractItemView *m_view;
    QBasicTimer m_timer;
    Phase m_phase = Idle;
    bool m_penIsDown = false;
    QPointF m_pos; ///< of the press, in the viewport
    Qt::KeyboardModifiers m_modifiers;
    ulong m_pressedAt = 0;
    QPointF m_lastTap;
    ulong m_lastTapAt = 0;
};
