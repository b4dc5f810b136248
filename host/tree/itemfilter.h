#pragma once

#include "platform/item/filtercondition.h"

#include <QVector>

struct ItemRecord;

/// What the filter bar asks for, in the form that a million records can be tested against.
/// How the host uses the record: `list1` holds the keys of the kinds to show, `mode` tells deleted
/// files from those that are still there.
class ItemFilter
{
public:
    enum Mode { ExistingOnly = 0, DeletedOnly = 1, AnyState = FilterCondition::NoMode };

    ItemFilter() = default;
    explicit ItemFilter(const FilterCondition &condition);

    bool isActive() const { return m_active; }
    /// For files; a folder is shown when something in it is.
    bool accepts(const ItemRecord &file) const;

private:
    FilterCondition m_condition;
    QVector<int> m_rootTypes; // empty: every kind
    bool m_active = false;
};
