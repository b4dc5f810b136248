#include "content/viewmemory.h"

#include "model/scandatamodel.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
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
QItemSelectionModel::SelectionFlags flagsOf(const QAbstractItemView &view)
{
    return view.selectionBehavior() == QAbstractItemView::SelectRows
        ? QItemSelectionModel::Select | QItemSelectionModel::Rows
        : QItemSelectionModel::Select;
}

/// As few ranges as possible; rows below 0 are left out.
QItemSelection selectionOfRows(const ScanDataModel &model, QVector<int> rows)
{
    QItemSelection selection;
    std::sort(rows.begin(), rows.end());
    int i = int(std::lower_bound(rows.cbegin(), rows.cend(), 0) - rows.cbegin());
    while (i < rows.size()) {
        int last = i;
        while (last + 1 < rows.size() && rows.at(last + 1) <= rows.at(last) + 1)
            ++last;
        appendRange(selection, model, rows.at(i), rows.at(last));
        i = last + 1;
    }
    return selection;
}

} // namespace

void ViewMemory::capture(const QAbstractItemView &view, const ScanDataModel &model, int topRow)
{
    m_selectedRanges.clear();
    m_selectedItems.clear();
    const QItemSelection selection = view.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        m_selectedRanges.append({range.top(), range.bottom()});
        for (int row = range.top(); row <= range.bottom(); ++row)
            m_selectedItems.append(model.itemAt(row));
    }

    captureAnchor(view, model, topRow);
}

void ViewMemory::captureAnchor(const QAbstractItemView &view, const ScanDataModel &model,
                               int topRow)
{
    m_scrollValue = view.verticalScrollBar()->value();
    // In a grid new items also move the others from line to line: until the user scrolls, the item
    // that was held last is held again, or the view would creep line by line.
    const int heldRow = m_scrollValue == m_restoredValue && m_topItem ? model.rowOf(m_topItem) : -1;
    m_topRow = heldRow >= 0 ? heldRow : topRow;
    m_topItem = m_topRow < 0 ? nullptr : model.itemAt(m_topRow);
    m_topOffset = m_topItem ? view.visualRect(model.index(m_topRow, 0)).top() : 0;
}

void ViewMemory::restore(QAbstractItemView &view, const ScanDataModel &model)
{
    restoreSelection(view, model);
    restoreScroll(view, model);
    m_restoredValue = view.verticalScrollBar()->value();
}

void ViewMemory::restoreSelection(QAbstractItemView &view, const ScanDataModel &model) const
{
    if (m_selectedRanges.isEmpty())
        return;
    int lastRow = 0;
    for (const auto &range : m_selectedRanges)
        lastRow = std::max(lastRow, range.second);

    QItemSelection selection;
    if (lastRow < model.unchangedPrefix()) {
        for (const auto &range : m_selectedRanges)
            appendRange(selection, model, range.first, range.second);
    } else {
        QVector<TreeItemData *> alive;
        alive.reserve(m_selectedItems.size());
        for (const auto &item : m_selectedItems) {
            if (item)
                alive.append(item);
        }
        selection = selectionOfRows(model, model.rowsOf(alive));
    }
    view.selectionModel()->select(selection, flagsOf(view));
}

void ViewMemory::restoreScroll(QAbstractItemView &view, const ScanDataModel &model) const
{
    QScrollBar *bar = view.verticalScrollBar();
    // Who is at the very top wants to see what comes first, not what was first a moment ago.
    if (m_scrollValue == 0 || m_topRow < model.unchangedPrefix() || !m_topItem) {
        bar->setValue(m_scrollValue);
        return;
    }
    const int row = model.rowOf(m_topItem);
    if (row < 0) {
        bar->setValue(m_scrollValue);
        return;
    }
    bar->setValue(bar->value() + view.visualRect(model.index(row, 0)).top() - m_topOffset);
}

void ViewMemory::copySelection(const QAbstractItemView &from, QAbstractItemView &to,
                               const ScanDataModel &model)
{
    QItemSelection selection;
    const QItemSelection selected = from.selectionModel()->selection();
    for (const QItemSelectionRange &range : selected)
        appendRange(selection, model, range.top(), range.bottom());
    to.selectionModel()->select(selection, flagsOf(to) | QItemSelectionModel::Clear);
}
