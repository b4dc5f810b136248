#pragma once

#include "content/gridgeometry.h"

/// Where the cursor keys lead in a grid of cards.
namespace GridNavigation {

enum class Step { Left, Right, Up, Down, PageUp, PageDown, Home, End };

/// The row that \a step leads to from \a row, \a row itself where there is no way on. Left and
/// right run across the ends of lines; a step down to where the last line has no card ends on the
/// last card.
int target(const GridGeometry &grid, int row, Step step, int linesPerPage);

/// +1 or -1: where to look on when the target cannot be entered.
int direction(const GridGeometry &grid, Step step);

} // namespace GridNavigation
