#pragma once

#include "model/headerviewsorttype.h"

/// Sorting as both headers know it: a section, in the model's order of columns, and a direction.
namespace SortCycle {

constexpr int NoSection = -1;
constexpr int SectionCount = 4; ///< the sections that sort; those after them do not

/// NoSort for a section that does not sort.
constexpr HeaderViewSortType sortType(int section, bool descending)
{
    return section < 0 || section >= SectionCount
        ? NoSort
        : static_cast<HeaderViewSortType>(NameAscending + 2 * section + (descending ? 1 : 0));
}

/// NoSection for NoSort and for values that have no name.
constexpr int section(HeaderViewSortType type)
{
    return type < NameAscending || type > DateDescending ? NoSection : (type - NameAscending) / 2;
}

constexpr bool isDescending(HeaderViewSortType type)
{
    return section(type) != NoSection && type % 2 == 0;
}

/// What a click on \a clicked makes of \a current: ascending first, then to and fro.
constexpr HeaderViewSortType next(HeaderViewSortType current, int clicked)
{
    return sortType(clicked, current == sortType(clicked, false));
}

} // namespace SortCycle
