#include "content/touchinput.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QScroller>
#include <QStyleHints>
#include <QTimerEvent>
#include <QTouchDevice>

namespace {

/// What the platform or Qt has made of a pen or of a finger that nobody took.
bool isMadeUp(const QMouseEvent &event)
{
    return event.source() == Qt::MouseEventSynthesizedBySystem
        || event.source() == Qt::MouseEventSynthesizedByQt;
}

} // namespace

TouchInput::TouchInput(QAbstractItemView *view)
    : QObject(view)
    , m_view(view)
{
    QWidget *viewport = view->viewport();
    viewport->setAttribute(Qt::WA_AcceptTouchEvents);
    viewport->installEventFilter(this);
    QScroller *scroller = QScroller::scroller(viewport);
    QScrollerProperties properties = scroller->scrollerProperties();
    for (const auto metric : {QScrollerProperties::VerticalOvershootPolicy,
                              QScrollerProperties::HorizontalOvershootPolicy})
        properties.setScrollMetric(metric, QScrollerProperties::OvershootAlwaysOff);
    scroller->setScrollerProperties(properties);
}

// Watches the viewport alone, which outlives all but the bare widget of its view: while the view is
// taken down, nothing may be asked of it here.
bool TouchInput::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (!touch(*static_cast<QTouchEvent *>(event)))
            return false;
        event->accept();
        return true;
    case QEvent::MouseButtonPress:
        return penPressed(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseMove:
        return penMoved(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return penReleased();
    default:
        return false;
    }
}

void TouchInput::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timer.timerId())
        rest();
    else
        QObject::timerEvent(event);
}

void TouchInput::begin(const QPointF &pos)
{
    m_phase = Pressed;
    m_pos = pos;
    m_timer.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
}

void TouchInput::end(Phase phase)
{
    m_timer.stop();
    m_phase = phase;
}

bool TouchInput::isFarAway(const QPointF &pos) const
{
    return (pos - m_pos).manhattanLength() > QGuiApplication::styleHints()->startDragDistance();
}

void TouchInput::rest()
{
    end(Done);
    QScroller::scroller(m_view->viewport())->stop();
    const QModelIndex index = m_view->indexAt(m_pos.toPoint());
    QItemSelectionModel *selection = m_view->selectionModel();
    if (!index.isValid() || !selection)
        return;
    QItemSelectionModel::SelectionFlags command = QItemSelectionModel::NoUpdate;
    if (!selection->isSelected(index)) {
        command = QItemSelectionModel::ClearAndSelect;
        command.setFlag(QItemSelectionModel::Rows,
                        m_view->selectionBehavior() == QAbstractItemView::SelectRows);
    }
    m_view->setFocus(Qt::MouseFocusReason);
    selection->setCurrentIndex(index, command);
    emit longPressed(index, m_view->viewport()->mapToGlobal(m_pos.toPoint()));
}

// Finger ---------------------------------------------------------------------------------------

bool TouchInput::touch(const QTouchEvent &event)
{
    if (event.device() && event.device()->type() == QTouchDevice::TouchPad)
        return false; // it scrolls by wheel events
    QScroller *scroller = QScroller::scroller(m_view->viewport());
    if (event.type() == QEvent::TouchCancel || event.touchPoints().size() != 1) {
        if (m_phase != Idle)
            scroller->stop();
        end(event.type() == QEvent::TouchEnd ? Idle : Done);
        return true;
    }
    const QPointF pos = event.touchPoints().constFirst().pos();
    const qint64 now = qint64(event.timestamp());
    switch (event.type()) {
    case QEvent::TouchBegin: {
        const bool caught = scroller->state() == QScroller::Scrolling;
        m_modifiers = event.modifiers();
        begin(pos);
        if (caught) // a touch that stops the list means nothing else
            end(Dragged);
        scroller->handleInput(QScroller::InputPress, pos, now);
        break;
    }
    case QEvent::TouchUpdate:
        if (m_phase == Pressed && isFarAway(pos))
            end(Dragged);
        if (m_phase != Done)
            scroller->handleInput(QScroller::InputMove, pos, now);
        break;
    default: {
        const bool tapped = m_phase == Pressed;
        if (m_phase != Done)
            scroller->handleInput(QScroller::InputRelease, pos, now);
        end(Idle);
        if (tapped)
            tap(event.timestamp());
    }
    }
    return true;
}

void TouchInput::tap(ulong timestamp)
{
    const bool second = m_lastTapAt > 0
        && timestamp - m_lastTapAt < ulong(QApplication::doubleClickInterval())
        && !isFarAway(m_lastTap);
    m_lastTapAt = second ? 0 : timestamp;
    m_lastTap = m_pos;
    m_view->setFocus(Qt::MouseFocusReason);
    const QPointer<QObject> self(this); // whoever listens to a click may close the window
    send(second ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, Qt::LeftButton,
         timestamp);
    if (self)
        send(QEvent::MouseButtonRelease, Qt::NoButton, timestamp);
}

void TouchInput::send(QEvent::Type type, Qt::MouseButtons buttons, ulong timestamp)
{
    const QWidget *viewport = m_view->viewport();
    QMouseEvent event(type, m_pos, viewport->mapTo(viewport->window(), m_pos.toPoint()),
                      viewport->mapToGlobal(m_pos.toPoint()), Qt::LeftButton, buttons, m_modifiers,
                      Qt::MouseEventSynthesizedByApplication);
    event.setTimestamp(timestamp);
    QCoreApplication::sendEvent(m_view->viewport(), &event);
}

// Pen ------------------------------------------------------------------------------------------

bool TouchInput::penPressed(const QMouseEvent &event)
{
    if (!isMadeUp(event) || event.button() != Qt::LeftButton)
        return false;
    m_penIsDown = true;
    m_modifiers = event.modifiers();
    m_pressedAt = event.timestamp();
    begin(event.localPos());
    return true;
}

bool TouchInput::penMoved(const QMouseEvent &event)
{
    if (!m_penIsDown)
        return false;
    if (!(event.buttons() & Qt::LeftButton)) { // the release went elsewhere, to a menu perhaps
        m_penIsDown = false;
        end(Idle);
        return false;
    }
    if (m_phase == Pressed && isFarAway(event.localPos())) {
        end(Dragged);
        send(QEvent::MouseButtonPress, Qt::LeftButton, m_pressedAt);
    }
    return m_phase != Dragged;
}

bool TouchInput::penReleased()
{
    if (!m_penIsDown)
        return false;
    const Phase before = m_phase;
    m_penIsDown = false;
    end(Idle);
    const QPointer<QObject> self(this);
    if (before == Pressed) {
        m_view->setFocus(Qt::MouseFocusReason);
        send(QEvent::MouseButtonPress, Qt::LeftButton, m_pressedAt);
    }
    return !self || before == Done;
}
