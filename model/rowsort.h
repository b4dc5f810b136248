#pragma once

#include <Qt>

#include <vector>

class TreeItemData;

/// Orders records by the key of a sort role. Every key is computed once, whatever the number of
/// comparisons. Equal keys keep the order in which the records were given, in both directions; a
/// null record counts as one with an empty text or the number 0. Long lists are worked on by two
/// threads; the caller waits, so the records need no lock of their own.
namespace RowSort {

/// Positions in the list of records, in display order.
using Order = std::vector<quint32>;

/// \a known: an earlier result for some of the positions. The answer is the same without it, but
/// comes sooner with it as long as it is still right, because only the rest has to be sorted.
Order sorted(const std::vector<const TreeItemData *> &records, int sortRole, Qt::SortOrder order,
             const Order &known = {});

} // namespace RowSort
