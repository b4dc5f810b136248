#include "delegates/rowbackground.h"

#include "delegates/painterstate.h"
#include "delegates/rowlayout.h"

#include <QColor>
#include <QPainter>

namespace {

constexpr qreal CornerRadius = 8.0;

} // namespace

bool RowBackground::isPaintedWhole(const QRect &row) const
{
    if (m_region.isEmpty())
        return true;
    if (!m_firstColumnShown)
        return false;
    // one rectangle from edge to edge: column 0 is in it
    const QRegion part = m_region.rectCount() == 1 ? m_region : m_region & row;
    const QRect bounds = part.boundingRect();
    return part.rectCount() == 1 && bounds.left() <= row.left() && bounds.right() >= row.right();
}

void RowBackground::draw(QPainter *painter, const QRect &cell, int column, int viewportWidth,
                         const QColor &color) const
{
    const QRect row = RowLayout::row(cell, viewportWidth);
    const bool whole = isPaintedWhole(row);
    if (whole && column != 0)
        return;
    const PainterState state(painter);
    if (whole)
        painter->setClipRect(row); // the cell is not the limit
    else
        painter->setClipRect(cell, Qt::IntersectClip);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(RowLayout::background(cell, viewportWidth), CornerRadius,
                             CornerRadius);
}
