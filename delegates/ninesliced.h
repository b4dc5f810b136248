#pragma once

#include <QRect>

class QPainter;
class QPixmap;

/// Draws a card background by bands, so that its rounded corners keep their size at any width.
/// \a target is in device pixels of a painter without scale; \a scale is device pixels per design
/// pixel. A null pixmap or an empty target draws nothing.
void drawNineSliced(QPainter *painter, const QRect &target, const QPixmap &pixmap, qreal scale);
