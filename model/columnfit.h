#pragma once

#include <vector>

/// Shares the width of a viewport out among the columns of a table.
namespace ColumnFit {

struct Column
{
    int wanted = 0;
    int minimum = 0; ///< not more than wanted
};

/// Widths that fill \a viewportWidth exactly: \a others get what they want, the first column what
/// is left. Where that is less than \a firstMinimum, the others give way down to their minimum,
/// the last one first; when all are at their minimum, the sum is wider than the viewport.
/// The answer holds the first column and then the others.
std::vector<int> fit(int viewportWidth, int firstMinimum, const std::vector<Column> &others);

} // namespace ColumnFit
