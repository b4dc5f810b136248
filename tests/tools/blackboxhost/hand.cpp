#include "hand.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QMouseEvent>
#include <QWindow>

namespace {

void send(QWidget *widget, const QPoint &pos, QEvent::Type type, Qt::MouseButton button,
          Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {})
{
    QWindow *window = widget->window()->windowHandle();
    const QPoint local = widget->mapTo(widget->window(), pos);
    QMouseEvent event(type, local, window->mapToGlobal(local), button, held, modifiers);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace

void Hand::click(QWidget *widget, const QPoint &pos, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers)
{
    send(widget, pos, QEvent::MouseButtonPress, button, button, modifiers);
    send(widget, pos, QEvent::MouseButtonRelease, button, Qt::NoButton, modifiers);
    QCoreApplication::processEvents();
}

void Hand::click(QWidget *widget)
{
    click(widget, widget->rect().center());
}

void Hand::doubleClick(QWidget *widget, const QPoint &pos)
{
    click(widget, pos);
    send(widget, pos, QEvent::MouseButtonDblClick, Qt::LeftButton, Qt::LeftButton);
    send(widget, pos, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
}

void Hand::hover(QWidget *widget, const QPoint &pos)
{
    send(widget, pos, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    QCoreApplication::processEvents();
}

void Hand::key(QWidget *window, int key, Qt::KeyboardModifiers modifiers)
{
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        QCoreApplication::sendEvent(window->windowHandle(), &event);
    }
}

QPoint Hand::placeOn(const QAbstractItemView *view, const QModelIndex &index, Place place)
{
    constexpr QPoint Box(16, 16);
    constexpr QPoint PreviewFromTop(0, 42);
    constexpr int NameFromBottom = 30;
    const QRect rect = view->visualRect(index);
    switch (place) {
    case OnCheckBox:
        return rect.topLeft() + Box;
    case OnPreview:
        return QPoint(rect.center().x(), rect.top()) + PreviewFromTop;
    default:
        return {rect.center().x(), rect.bottom() - NameFromBottom};
    }
}
