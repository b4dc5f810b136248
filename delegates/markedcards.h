#pragma once

#include <QItemSelectionModel>

/// The cards that are marked as selected beside those the view has selected. Kept as ranges of
/// rows, so that marking a million costs little; a selection model of their own has them follow
/// their items through a sort and forgets them at a reset.
class MarkedCards
{
public:
    void set(const QModelIndexList &indexes);
    /// \a selection is of one column; its cost is that of its ranges, however long they are.
    void set(const QItemSelection &selection);
    void clear() { m_selection.reset(); }
    bool contains(const QModelIndex &index) const { return m_selection.isSelected(index); }
    /// By rows, without those whose record has died.
    QModelIndexList indexes() const { return m_selection.selectedIndexes(); }
    QItemSelection selection() const { return m_selection.selection(); }

private:
    QItemSelectionModel m_selection;
};
