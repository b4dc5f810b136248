#pragma once

#include <QRegion>

class QColor;
class QPainter;

/// The veil over a hovered or selected row: one rounded shape under all cells. Column 0 draws it
/// whole. But a view may repaint some cells of a row and not column 0; then each draws its part.
class RowBackground
{
public:
    /// The view is about to paint \a region of its viewport, where column 0 may be out of sight.
    void beginPaint(const QRegion &region, bool firstColumnShown)
    {
        m_region = region;
        m_firstColumnShown = firstColumnShown;
    }

    void draw(QPainter *painter, const QRect &cell, int column, int viewportWidth,
              const QColor &color) const;

private:
    bool isPaintedWhole(const QRect &row) const;

    QRegion m_region; ///< empty: nobody tells
    bool m_firstColumnShown = true;
};
