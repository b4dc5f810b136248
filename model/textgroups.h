#pragma once

#include "model/rowsort.h"

#include <optional>

/// Sorting for texts that many records share, as folders and file types are: each text is compared
/// once, whatever the number of records that have it.
namespace TextGroups {

/// The same order as by comparing every record, equal ones as they were given. Nothing when the
/// texts are too different for this to be worthwhile.
std::optional<RowSort::Order> sorted(const std::vector<const TreeItemData *> &records, int sortRole,
                                     Qt::SortOrder order);

} // namespace TextGroups
