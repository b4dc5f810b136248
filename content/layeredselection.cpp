#include "content/layeredselection.h"

#include "content/selectedrows.h"

#include <QAbstractItemModel>

#include <algorithm>

namespace {

void mark(QVector<bool> *rows, const QItemSelection &selection,
          QItemSelectionModel::SelectionFlags command)
{
    const QVector<SelectedRows::Run> runs = SelectedRows::runs(selection);
    for (const SelectedRows::Run &run : runs) {
        for (int row = run.first; row <= qMin(run.last, rows->size() - 1); ++row) {
            const bool flip = command & QItemSelectionModel::Toggle;
            (*rows)[row] = flip ? !rows->at(row) : !(command & QItemSelectionModel::Deselect);
        }
    }
}

} // namespace

LayeredSelection::LayeredSelection(QAbstractItemModel *model, QObject *parent)
    : QItemSelectionModel(model, parent)
{
    if (model)
        connect(model, &QAbstractItemModel::layoutChanged, this,
                &LayeredSelection::onLayoutChanged);
}

void LayeredSelection::select(const QItemSelection &selected,
                              QItemSelectionModel::SelectionFlags command)
{
    if (command == NoUpdate)
        return;
    const QItemSelection before = selection();
    if (command & Clear)
        m_settled.clear();
    else if (!(command & Current))
        m_settled = before;
    m_rangeRunning = command & Current;
    if (!(command & (Select | Deselect | Toggle))) {
        QItemSelectionModel::select(selected, command);
        return;
    }
    const QItemSelection wanted = command & Rows ? wholeRows(selected) : selected;
    QItemSelectionModel::select(command & Clear ? wanted : combined(m_settled, wanted, command),
                                ClearAndSelect | (command & Rows));
}

QItemSelection LayeredSelection::wholeRows(const QItemSelection &selection) const
{
    QItemSelection rows;
    for (const QItemSelectionRange &range : selection) {
        if (!range.isValid())
            continue;
        int top = range.top();
        int bottom = range.bottom();
        while (top <= bottom && !model()->index(top, 0).isValid())
            ++top;
        while (bottom > top && !model()->index(bottom, 0).isValid())
            --bottom;
        if (top <= bottom)
            rows.append(QItemSelectionRange(model()->index(top, 0),
                                            model()->index(bottom, model()->columnCount() - 1)));
    }
    return rows;
}

QItemSelection LayeredSelection::combined(const QItemSelection &lower, const QItemSelection &upper,
                                          QItemSelectionModel::SelectionFlags command) const
{
    if (isCutAtDeadRow(lower) || isCutAtDeadRow(upper))
        return combinedByRows(lower, upper, command);
    QItemSelection result = lower;
    result.merge(upper, command);
    return result;
}

bool LayeredSelection::isCutAtDeadRow(const QItemSelection &selection) const
{
    const int rows = model() ? model()->rowCount() : 0;
    const auto isDead = [&](int row) {
        return row >= 0 && row < rows && !model()->index(row, 0).isValid();
    };
    return std::any_of(selection.begin(), selection.end(), [&](const QItemSelectionRange &range) {
        return isDead(range.top() - 1) || isDead(range.top()) || isDead(range.bottom())
            || isDead(range.bottom() + 1);
    });
}

QItemSelection LayeredSelection::combinedByRows(const QItemSelection &lower,
                                                const QItemSelection &upper,
                                                QItemSelectionModel::SelectionFlags command) const
{
    QVector<bool> rows(model()->rowCount());
    mark(&rows, lower, Select);
    mark(&rows, upper, command);
    int lastColumn = 0;
    for (const QItemSelection &part : {lower, upper}) {
        for (const QItemSelectionRange &range : part)
            lastColumn = qMax(lastColumn, range.right());
    }
    QItemSelection result;
    for (int row = 0; row < rows.size(); ++row) {
        const QModelIndex first = rows.at(row) ? model()->index(row, 0) : QModelIndex();
        if (!first.isValid())
            continue;
        QModelIndex last = first;
        while (row + 1 < rows.size() && rows.at(row + 1)) {
            const QModelIndex next = model()->index(++row, 0);
            if (next.isValid())
                last = next;
        }
        result.append(QItemSelectionRange(first, last.siblingAtColumn(lastColumn)));
    }
    return result;
}

void LayeredSelection::reset()
{
    QItemSelectionModel::reset();
    m_settled.clear();
    m_rangeRunning = false;
}

void LayeredSelection::setLayers(const QItemSelection &settledPart, const QItemSelection &all,
                                 bool rangeRunning, QItemSelectionModel::SelectionFlags flags)
{
    select(all, ClearAndSelect | flags);
    m_settled = flags & Rows ? wholeRows(settledPart) : settledPart;
    m_rangeRunning = rangeRunning;
}

void LayeredSelection::onLayoutChanged()
{
    // Ranges do not survive a sort. What was in the running range is now anywhere: the next range
    // replaces it all.
    m_settled = m_rangeRunning ? QItemSelection() : selection();
}
