#pragma once

#include <QRect>

namespace HeaderMetrics {
constexpr int Height = 32;
constexpr int FontPixelSize = 12;
constexpr int NameMinimum = 220;
constexpr int CheckSide = 16;
constexpr int CheckInset = 8;
constexpr int CheckSlack = 4;
constexpr int CheckRoom = 22; // what the box takes from the text of its section
constexpr int TextInset = 8;  // as in the cells below
constexpr int ArrowSide = 16;
constexpr int ArrowGap = 2;
constexpr int EdgeReach = 6; // how far from an edge it can be grasped
} // namespace HeaderMetrics

/// Where things stand in one section of the table's header, for painting and for the mouse. The
/// leading edge is the left one, or the right one where the layout runs from right to left.
struct HeaderSection
{
    /// \a rect of the whole section, in the viewport.
    HeaderSection(const QRect &rect, int logicalIndex, Qt::LayoutDirection direction);

    bool hitsCheckBox(const QPoint &pos) const;
    bool isNearLeadingEdge(int x) const;
    /// Reaches into the next section.
    bool isNearTrailingEdge(int x) const;
    /// The same without an end: all that lies beyond the edge too.
    bool isAtOrBeyondTrailingEdge(int x) const;
    /// The space for a text and the arrow behind it, and what they get when the text is
    /// \a textWidth wide. The arrow stays whole as long as the section has room for it.
    QRect textRect(int textWidth, bool withArrow) const;
    QRect arrowRect(int textWidth) const;

    /// Room that a section needs beside its text.
    static int roomBesideText(int logicalIndex, bool withArrow);

    QRect rect;
    QRect checkBox; ///< null where there is none
    Qt::LayoutDirection direction;

private:
    /// Distance from the leading edge; pixels of the section count from 0.
    int leadingDistance(int x) const;
    /// A rectangle of full height, \a from pixels behind the leading edge.
    QRect mirrored(int from, int width) const;
    int textLimit(bool withArrow) const;

    int m_textFrom;
};
