#pragma once

#include <QItemSelection>
#include <QModelIndex>
#include <QPair>
#include <QPoint>

class QAbstractItemView;

/// What a view holds beside its selection, a LayeredSelection, and its current item, and what a
/// reset of the model would take from it. All indexes may be invalid.
class ViewPlace
{
public:
    virtual ~ViewPlace() = default;

    virtual QAbstractItemView *itemView() = 0;
    /// First and last row of which any part is in the viewport; an empty range when none is.
    virtual QPair<int, int> visibleRows() const = 0;
    /// Top left corner of an item in content coordinates.
    virtual QPoint contentPosition(const QModelIndex &index) const = 0;

    /// The item that a selection with Shift starts from.
    virtual QModelIndex selectionAnchor() const = 0;
    /// Selection and current item stay.
    virtual void setSelectionAnchor(const QModelIndex &index) = 0;

    /// The item of the last press: a click or a double click on it may be under way.
    virtual QModelIndex pressedItem() const = 0;
    virtual void resumePress(const QModelIndex &index) = 0;

    /// A rubber band is being drawn, or would be with a few pixels more.
    virtual bool hasBand() const = 0;
    /// What was selected when the rubber band appeared.
    virtual QItemSelection selectionBeforeBand() const = 0;
    /// The band goes on, its origin moved in the content by \a originMoved.
    virtual void resumeBand(const QItemSelection &before, const QPoint &originMoved) = 0;
};
