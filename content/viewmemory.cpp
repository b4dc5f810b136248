#include "content/viewmemory.h"

#include "content/layeredselection.h"
#include "content/viewplace.h"
#include "model/scandatamodel.h"

#include <QAbstractItemView>
#include <QScrollBar>

#include <algorithm>

namespace {

/// A range whose ends are alive: one with a dead end would select nothing.
void appendRange(QItemSelection &selection, const ScanDataModel &model, int top, int bottom)
{
    while (top <= bottom && !model.itemAt(top))
        ++top;
    while (bottom > top && !model.itemAt(bottom))
        --bottom;
    if (top <= bottom)
        selection.append(QItemSelectionRange(model.index(top, 0), model.index(bottom, 0)));
}

/// In a table whole rows are selected.
QItemSelectionModel::SelectionFlags rowFlagOf(const QAbstractItemView &view)
{
    return view.selectionBehavior() == QAbstractItemView::SelectRows
        ? QItemSelectionModel::SelectionFlags(QItemSelectionModel::Rows)
        : QItemSelectionModel::NoUpdate;
}

LayeredSelection *layersOf(const QAbstractItemView &view)
{
    return qobject_cast<LayeredSelection *>(view.selectionModel());
}

bool isInView(const QAbstractItemView &view, const QModelIndex &index)
{
    return index.isValid() && view.visualRect(index).intersects(view.viewport()->rect());
}

} // namespace

void ViewMemory::Rows::capture(const QItemSelection &selection)
{
    ranges.clear();
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid())
            ranges.append({range.top(), range.bottom()});
    }
}

QItemSelection ViewMemory::Rows::now(const ScanDataModel &model) const
{
    int lastRow = -1;
    for (const auto &range : ranges)
        lastRow = std::max(lastRow, range.second);
    return selectionOf(model, lastRow < model.unchangedPrefix() ? ranges : model.rowsNow(ranges));
}

QItemSelection ViewMemory::selectionOf(const ScanDataModel &model,
                                       const QVector<QPair<int, int>> &rows)
{
    QItemSelection selection;
    for (const auto &run : rows)
        appendRange(selection, model, run.first, run.second);
    return selection;
}

void ViewMemory::liftSelection(ViewPlace &place)
{
    QItemSelectionModel *selection = place.itemView()->selectionModel();
    m_selected.capture(selection->selection());
    m_rangeRunning = layersOf(*place.itemView())->isRangeRunning();
    const QSignalBlocker quiet(selection);
    selection->select(QItemSelection(), QItemSelectionModel::Clear);
}

void ViewMemory::layDownSelection(ViewPlace &place, const ScanDataModel &model) const
{
    QAbstractItemView &view = *place.itemView();
    const QSignalBlocker quiet(view.selectionModel());
    const QItemSelection all = m_selected.now(model);
    // a range is none after a sort: the next one replaces all of it
    layersOf(view)->setLayers(m_rangeRunning ? QItemSelection() : all, all, m_rangeRunning,
                              rowFlagOf(view));
    view.viewport()->update();
}

void ViewMemory::Mark::capture(int newRow, const ScanDataModel &model)
{
    row = newRow;
    item = newRow < 0 ? nullptr : model.itemAt(newRow);
}

int ViewMemory::Mark::rowIn(const ScanDataModel &model) const
{
    if (!item)
        return -1;
    return model.itemAt(row) == item ? row : model.rowOf(item);
}

QModelIndex ViewMemory::Mark::now(const ScanDataModel &model) const
{
    return model.index(rowIn(model), 0);
}

void ViewMemory::capture(ViewPlace &place, const ScanDataModel &model)
{
    const QAbstractItemView &view = *place.itemView();
    m_selected.capture(view.selectionModel()->selection());
    const LayeredSelection *layers = layersOf(view);
    m_settled.capture(layers->settled());
    m_rangeRunning = layers->isRangeRunning();
    m_anchor.capture(place.selectionAnchor().row(), model);
    const QModelIndex pressed = place.pressedItem().siblingAtColumn(0);
    m_pressed.capture(pressed.row(), model);
    m_pressedAt = place.contentPosition(pressed);
    m_hadBand = place.hasBand();
    m_beforeBand.capture(m_hadBand ? place.selectionBeforeBand() : QItemSelection());
    captureEye(place, model);
}

void ViewMemory::captureEye(ViewPlace &place, const ScanDataModel &model)
{
    const QAbstractItemView &view = *place.itemView();
    m_scrollValue = view.verticalScrollBar()->value();
    const QModelIndex current = view.currentIndex();
    // In a grid new items also move the others from line to line: until the user scrolls, the item
    // that was held last is held again, or the view would creep line by line.
    const bool again = m_scrollValue == m_restoredValue && !m_heldIsCurrent && m_held.item;
    const int heldRow = again ? m_held.rowIn(model) : -1;
    const QPair<int, int> visible = place.visibleRows();
    // The first item of a tree is current without anybody having chosen it.
    m_heldIsCurrent = model.itemAt(current) && isInView(view, current)
        && view.selectionModel()->isSelected(current);
    int row = visible.first <= visible.second ? visible.first : -1;
    if (m_heldIsCurrent)
        row = current.row();
    else if (heldRow >= 0)
        row = heldRow;
    m_held.capture(row, model);
    m_heldY = m_held.item ? view.visualRect(model.index(row, 0)).top() : 0;
}

void ViewMemory::restore(ViewPlace &place, const ScanDataModel &model)
{
    QAbstractItemView &view = *place.itemView();
    layersOf(view)->setLayers(m_settled.now(model), m_selected.now(model), m_rangeRunning,
                              rowFlagOf(view));
    const QModelIndex anchor = m_anchor.now(model);
    place.setSelectionAnchor(anchor.isValid() ? anchor : place.itemView()->currentIndex());
    place.resumePress(m_pressed.now(model));
    restoreEye(place, model); // a scroll to the end asks for more, which may come at once
    if (m_hadBand && place.hasBand())
        restoreBand(place, model, m_restoredValue - m_scrollValue);
    m_hadBand = false;
}

void ViewMemory::restoreEye(ViewPlace &place, const ScanDataModel &model)
{
    QAbstractItemView &view = *place.itemView();
    QScrollBar *bar = view.verticalScrollBar();
    // Who is at the very top wants to see what comes first, not what was first a moment ago.
    const bool atTop = m_scrollValue == 0 && !m_heldIsCurrent;
    const QModelIndex held = m_held.now(model);
    const int top = view.visualRect(held).top(); // first: it lays out, which may scroll
    if (atTop || !held.isValid() || m_held.row < model.unchangedPrefix())
        bar->setValue(m_scrollValue);
    else
        bar->setValue(bar->value() + top - m_heldY);
    m_held.row = held.row();
    m_restoredValue = bar->value();
}

void ViewMemory::restoreBand(ViewPlace &place, const ScanDataModel &model, int scrolledBy) const
{
    // The band has begun at an item and goes with it; one from empty space stays where it is seen.
    const QModelIndex pressed = m_pressed.now(model);
    place.resumeBand(m_beforeBand.now(model),
                     pressed.isValid() ? place.contentPosition(pressed) - m_pressedAt
                                       : QPoint(0, scrolledBy));
}

void ViewMemory::copySelection(ViewPlace &from, ViewPlace &to, const ScanDataModel &model)
{
    const auto copied = [&model](const QItemSelection &selection) {
        QItemSelection rows;
        for (const QItemSelectionRange &range : selection) {
            if (range.isValid())
                appendRange(rows, model, range.top(), range.bottom());
        }
        return rows;
    };
    const LayeredSelection *source = layersOf(*from.itemView());
    const QAbstractItemView &target = *to.itemView();
    layersOf(target)->setLayers(copied(source->settled()), copied(source->selection()),
                                source->isRangeRunning(), rowFlagOf(target));
    const QModelIndex anchor = model.index(from.selectionAnchor().row(), 0);
    to.setSelectionAnchor(anchor.isValid() ? anchor : target.currentIndex());
}
