#include "delegates/markedcards.h"

#include <algorithm>

void MarkedCards::set(const QModelIndexList &indexes)
{
    QModelIndexList sorted = indexes;
    sorted.erase(std::remove_if(sorted.begin(), sorted.end(),
                                [](const QModelIndex &index) { return !index.isValid(); }),
                 sorted.end());
    if (sorted.isEmpty()) {
        clear();
        return;
    }
    if (!std::is_sorted(sorted.cbegin(), sorted.cend()))
        std::sort(sorted.begin(), sorted.end());

    QItemSelection ranges;
    QModelIndex first = sorted.first();
    QModelIndex last = first;
    for (const QModelIndex &index : qAsConst(sorted)) {
        if (index.row() > last.row() + 1) {
            ranges.append(QItemSelectionRange(first, last));
            first = index;
        }
        last = index;
    }
    ranges.append(QItemSelectionRange(first, last));

    set(ranges);
}

void MarkedCards::set(const QItemSelection &selection)
{
    clear(); // first: select() compares with what was selected, range by range
    if (selection.isEmpty())
        return;
    auto *model = const_cast<QAbstractItemModel *>(selection.first().model());
    if (m_selection.model() != model)
        m_selection.setModel(model);
    m_selection.select(selection, QItemSelectionModel::Select);
}
