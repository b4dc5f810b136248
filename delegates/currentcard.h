#pragma once

#include "platform/item/treeitemdata.h"

#include <QPersistentModelIndex>
#include <QPointer>

/// The card that was pressed last. While results stream in the model is reset again and again; the
/// card is then found by its record, so that the look stays with the item and does not jump.
class CurrentCard
{
public:
    /// An invalid \a index forgets the card.
    void set(const QModelIndex &index, TreeItemData *item)
    {
        m_index = index;
        m_item = index.isValid() ? item : nullptr;
    }
    bool isSet() const { return m_index.isValid() || m_item; }
    bool is(const QModelIndex &index, const TreeItemData *item)
    {
        if (m_index.isValid())
            return m_index == index;
        if (!m_item || m_item != item)
            return false;
        m_index = index;
        return true;
    }
    QModelIndex index() const { return m_index; }

private:
    QPersistentModelIndex m_index;
    QPointer<TreeItemData> m_item;
};
