#pragma once

#include <QPersistentModelIndex>
#include <QSet>
#include <QVector>

/// The cards that are marked as selected beside those the view has selected. They follow their
/// items through a sort; whether a card is among them is answered in constant time.
class MarkedCards
{
public:
    void set(const QModelIndexList &indexes)
    {
        clear();
        m_indexes.reserve(indexes.size());
        m_lookup.reserve(indexes.size());
        for (const QModelIndex &index : indexes) {
            m_indexes.append(index);
            m_lookup.insert(m_indexes.constLast());
        }
    }
    void clear()
    {
        m_indexes.clear();
        m_lookup.clear();
    }
    bool contains(const QModelIndex &index) const
    {
        return !m_lookup.isEmpty() && m_lookup.contains(index);
    }
    /// In the order that was set, without those that have gone from the model.
    QModelIndexList indexes() const
    {
        QModelIndexList alive;
        alive.reserve(m_indexes.size());
        for (const QPersistentModelIndex &index : m_indexes) {
            if (index.isValid())
                alive.append(index);
        }
        return alive;
    }

private:
    QVector<QPersistentModelIndex> m_indexes;
    QSet<QPersistentModelIndex> m_lookup;
};
