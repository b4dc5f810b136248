#include "host/tree/itemfilter.h"

#include "host/tree/itemkinds.h"
#include "host/tree/itemrecord.h"

ItemFilter::ItemFilter(const FilterCondition &condition)
    : m_condition(condition)
{
    for (const ItemKind &kind : ItemKinds::All) {
        if (condition.list1.contains(QLatin1String(kind.key)))
            m_rootTypes.append(kind.rootType);
    }
    m_active = !m_rootTypes.isEmpty() || condition.mode != AnyState
        || condition.minSize != FilterCondition::Unset
        || condition.maxSize != FilterCondition::Unset
        || condition.minTime != FilterCondition::Unset
        || condition.maxTime != FilterCondition::Unset;
}

bool ItemFilter::accepts(const ItemRecord &file) const
{
    if (!m_active)
        return true;
    const auto outside = [](qint64 value, qint64 min, qint64 max) {
        return (min != FilterCondition::Unset && value < min)
            || (max != FilterCondition::Unset && value > max);
    };
    if (m_condition.mode == DeletedOnly && file.exists)
        return false;
    if (m_condition.mode == ExistingOnly && !file.exists)
        return false;
    if (outside(file.fileSize, m_condition.minSize, m_condition.maxSize)
        || outside(file.modifiedTime, m_condition.minTime, m_condition.maxTime))
        return false;
    if (m_rootTypes.isEmpty())
        return true;
    const int index = ItemKinds::indexOfCategory(file.fileCategory);
    return m_rootTypes.contains(ItemKinds::All[std::size_t(index)].rootType);
}
