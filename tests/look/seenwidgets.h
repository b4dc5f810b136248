#pragma once

#include <QApplication>
#include <QVector>
#include <QWidget>

/// A widget that is on the screen, and where.
struct SeenWidget
{
    QWidget *widget;
    QString path; ///< by object name, or by class and place among those of its class
    QRect rect;   ///< in the window
};

namespace SeenWidgets {

inline QString nameOf(const QWidget *widget)
{
    if (!widget->objectName().isEmpty())
        return widget->objectName();
    int place = 0;
    const auto siblings = widget->parentWidget() ? widget->parentWidget()->children()
                                                 : QObjectList();
    for (const QObject *sibling : siblings) {
        if (sibling == widget)
            break;
        place += sibling->metaObject() == widget->metaObject();
    }
    return QStringLiteral("%1%2").arg(QLatin1String(widget->metaObject()->className())).arg(place);
}

inline void collect(QWidget *parent, QWidget *window, const QString &path, bool ownWindow,
                    QVector<SeenWidget> *found)
{
    const QRect rect(ownWindow ? window->mapFromGlobal(parent->mapToGlobal(QPoint()))
                               : parent->mapTo(window, QPoint()),
                     parent->size());
    found->append({parent, path, rect});
    const auto children = parent->children();
    for (QObject *child : children) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && widget->isVisible() && !widget->isWindow() && !widget->size().isEmpty())
            collect(widget, window, path + QLatin1Char('/') + nameOf(widget), ownWindow, found);
    }
}

/// All of \a window, and of what lies over it as a window of its own.
inline QVector<SeenWidget> all(QWidget *window)
{
    QVector<SeenWidget> found;
    collect(window, window, {}, false, &found);
    const auto others = QApplication::topLevelWidgets();
    for (QWidget *other : others) {
        if (other != window && other->isVisible())
            collect(other, window, nameOf(other), true, &found);
    }
    return found;
}

} // namespace SeenWidgets
