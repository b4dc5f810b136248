#pragma once

#include <QRect>
#include <QSize>

/// Where everything in one cell of a list row stands, in the coordinates of the view. Painting,
/// size hint and mouse handling all ask this one struct. Right-to-left mirrors all of it within
/// the cell. What belongs to another column than \a column is empty.
struct RowLayout
{
    static constexpr int RowHeight = 44;

    RowLayout(const QRect &cellRect, int columnIndex,
              Qt::LayoutDirection layoutDirection = Qt::LeftToRight);

    static QSize sizeHint();

    /// A press here toggles the check, in whatever column. It stays where it is in higher rows,
    /// which the box does not.
    bool hitsCheckArea(const QPoint &pos) const { return checkArea.contains(pos); }
    bool hitsIcon(const QPoint &pos) const { return icon.contains(pos); }
    bool hitsLocationImage(const QPoint &pos) const { return locationImage.contains(pos); }

    /// The row's veil under hover or selection, as wide as the viewport allows.
    static QRect background(const QRect &cell, int viewportWidth);
    static QRect row(const QRect &cell, int viewportWidth);

    QRect repairBadge() const;
    /// The room for a name of which \a suffixWidth pixels go to what follows it.
    QRect nameText(int suffixWidth) const;
    /// What follows a name that takes \a nameWidth pixels.
    QRect suffix(int nameWidth, int suffixWidth) const;

    Qt::LayoutDirection direction;
    int column;
    QRect cell;
    QRect checkArea;
    QRect checkBox;
    QRect icon; ///< of a file: where a press means "preview"
    QRect name;
    QRect text;        ///< of the other columns
    int textWidth = 0; ///< what a text is cut to; 0: it is not cut
    QRect locationImage;
};
