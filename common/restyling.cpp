#include "common/restyling.h"

#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace {

constexpr int LaterMs = 32; // when what is in sight has been painted
constexpr int FrameMs = 16; // between one and the next, or together they would be felt

int waiting = 0;

} // namespace

Restyling::Restyling(QWidget *widget, std::function<void()> restyle)
    : QObject(widget)
    , m_widget(widget)
    , m_restyle(std::move(restyle))
{
    widget->installEventFilter(this);
}

Restyling::~Restyling()
{
    stopWaiting();
}

void Restyling::request()
{
    if (!m_wasShown || m_widget->isVisible())
        run();
    else if (!m_due.isActive()) // or a steady stream of requests would put it off for ever
        m_due.start(LaterMs + FrameMs * waiting++, Qt::PreciseTimer, this);
}

void Restyling::run()
{
    stopWaiting();
    m_restyle();
}

void Restyling::stopWaiting()
{
    if (m_due.isActive())
        --waiting;
    m_due.stop();
}

bool Restyling::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_widget && event->type() == QEvent::Show) {
        m_wasShown = true;
        if (m_due.isActive())
            run();
    }
    return QObject::eventFilter(watched, event);
}

void Restyling::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_due.timerId())
        run();
}
