#include "content/viewkeys.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>

ViewKeys::ViewKeys(const QVector<QAbstractItemView *> &views, QObject *parent)
    : QObject(parent)
{
    for (QAbstractItemView *view : views)
        view->installEventFilter(this);
}

bool ViewKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        switch (key->key()) {
        case Qt::Key_Space:
            if (!key->isAutoRepeat()) // a key held too long is no second wish
                emit toggleWanted();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!key->isAutoRepeat())
                emit openWanted();
            return true;
        default:
            break;
        }
    } else if (event->type() == QEvent::ContextMenu
               && static_cast<QContextMenuEvent *>(event)->reason()
                   == QContextMenuEvent::Keyboard) {
        emit menuWanted();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
