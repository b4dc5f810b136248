#pragma once

#include <QModelIndex>
#include <QPoint>
#include <Qt>

class QAbstractItemView;
class QWidget;

/// A user's mouse and keyboard. Events go to the window, as the system's do, and Qt finds the
/// widget that they are for.
namespace Hand {

void click(QWidget *widget, const QPoint &pos, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = {});
void click(QWidget *widget);
void doubleClick(QWidget *widget, const QPoint &pos);
void hover(QWidget *widget, const QPoint &pos);
void key(QWidget *window, int key, Qt::KeyboardModifiers modifiers = {});

/// Where on an item of a view: the box, the preview area of a card, or its name.
enum Place { OnCheckBox, OnPreview, OnName };
/// In the view's viewport.
QPoint placeOn(const QAbstractItemView *view, const QModelIndex &index, Place place);

} // namespace Hand
