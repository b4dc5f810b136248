#pragma once

#include <QRect>
#include <QVector>

/// Where the cards of a grid lie: a pure computation over a handful of numbers, the same for
/// painting and for hit-testing. Rows are those of the model; a line is a row of cards on screen.
/// Points and rectangles are in content coordinates.
struct GridGeometry
{
    /// Rows \a first to \a last without a gap between them.
    struct Run
    {
        int first;
        int last;
    };

    QSize cell;       ///< of one card; an empty one leaves nothing to show
    int spacing = 0;  ///< before, between and after the cards
    int rowCount = 0; ///< so few that all lines together fit into an int of pixels
    int columns = 1;
    int mirrorWidth = 0; ///< right-to-left: the width that x is mirrored in; 0: left-to-right

    /// As many columns as a stock icon view puts into \a width, at least one.
    static int columnsFor(const QSize &cell, int spacing, int width);

    bool isEmpty() const { return rowCount <= 0 || cell.isEmpty(); }
    int lineHeight() const { return cell.height() + spacing; }
    int columnWidth() const { return cell.width() + spacing; }
    int lineCount() const { return isEmpty() ? 0 : (rowCount - 1) / columns + 1; }
    int lineOf(int row) const { return row / columns; }
    int lastRow() const { return rowCount - 1; }

    /// All cards and the spacing around them.
    QSize contentSize() const;
    /// Null for a row that does not exist.
    QRect cardRect(int row) const;
    /// The smallest rectangle around the cards of \a run, which must lie in one line.
    QRect lineRect(const Run &run) const;
    /// -1 in the gaps and outside.
    int rowAt(const QPoint &point) const;
    /// From the first to the last row of the lines that \a area touches; first > last when none.
    Run linesIn(const QRect &area) const;
    /// The rows whose cards \a area touches, in ascending order; whole lines are joined to one run.
    QVector<Run> runsIn(const QRect &area) const;

private:
    int mirrored(int x, int width) const { return mirrorWidth > 0 ? mirrorWidth - x - width : x; }
};
