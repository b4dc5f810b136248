#pragma once

#include <QItemSelectionModel>

/// The cards that are marked as selected beside those the view has selected. Kept as ranges of
/// rows, so that marking a million costs little; a selection model of their own has them follow
/// their items through a sort and forgets them at a reset.
class MarkedCards
{
public:
    void set(const QModelIndexList &indexes);
    void clear() { m_selection.reset(); }
    bool contains(const QModelIndex &index) const { return m_selection.isSelected(index); }
    /// By rows, without those whose record has died.
    QModelIndexList indexes() const { return m_selection.selectedIndexes(); }

private:
    QItemSelectionModel m_selection;
};
