#pragma once

#include "scenes/canvas.h"

/// What is laid out on a table, seen from above.
namespace Table {

void wood(Canvas &canvas, const QColor &dark, const QColor &lit);
void cloth(Canvas &canvas, const QColor &color);
void shadow(Canvas &canvas, const QPointF &center, double radius, double strength);
void plate(Canvas &canvas, const QPointF &center, double radius, const QColor &color);
/// A lit ball of a fruit with its highlight.
void ball(QPainter &painter, const QPointF &center, double radius, const QColor &color);
/// A round outline that hands have made; \a rough: 0 a circle.
QPainterPath blob(Random &random, const QPointF &center, double radius, double rough);
void leaf(QPainter &painter, const QPointF &foot, double length, double angle, const QColor &color);

} // namespace Table
