#include "common/restyling.h"

#include <QEvent>
#include <QTimerEvent>
#include <QWidget>

namespace {
constexpr int LaterMs = 100; // when what is in sight has been painted
}

Restyling::Restyling(QWidget *widget, std::function<void()> restyle)
    : QObject(widget)
    , m_widget(widget)
    , m_restyle(std::move(restyle))
{
    widget->installEventFilter(this);
}

void Restyling::request()
{
    if (m_wasShown && !m_widget->isVisible())
        m_due.start(LaterMs, this);
    else
        run();
}

void Restyling::run()
{
    m_due.stop();
    m_restyle();
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
