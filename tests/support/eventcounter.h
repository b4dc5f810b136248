#pragma once

#include <QObject>
#include <QPaintEvent>
#include <QWidget>

/// Counts what comes to a widget of one kind of events, and knows what was painted.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget *widget, QEvent::Type type)
        : m_type(type)
    {
        widget->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == m_type) {
            ++count;
            if (m_type == QEvent::Paint)
                painted += static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }

    int count = 0;
    QRegion painted;

private:
    QEvent::Type m_type;
};
