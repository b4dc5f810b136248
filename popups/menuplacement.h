#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the top left corner of a menu of the size \a body goes that opens at \a anchor: it grows
/// towards the end of the line and downwards, turns to the other side where \a screen ends, and
/// never leaves it as long as it fits at all.
QPoint menuCorner(const QPoint &anchor, const QSize &body, const QRect &screen,
                  Qt::LayoutDirection direction);
