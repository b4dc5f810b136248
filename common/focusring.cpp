#include "common/focusring.h"

#include <QPainter>

void paintFocusRing(QPainter *painter, const QRectF &around, const QColor &color)
{
    constexpr qreal Width = 2;
    constexpr qreal Inset = Width / 2;
    constexpr qreal Radius = 4;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, Width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(around.adjusted(Inset, Inset, -Inset, -Inset), Radius, Radius);
    painter->restore();
}
