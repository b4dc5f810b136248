#pragma once

class QColor;
class QPainter;
class QRectF;

/// The ring around what the keyboard acts on, just inside of \a around.
void paintFocusRing(QPainter *painter, const QRectF &around, const QColor &color);
