#include "content/gridnavigation.h"

namespace {

int linesAway(const GridGeometry &grid, int row, int lines)
{
    const int line = qBound(0, grid.lineOf(row) + lines, grid.lineCount() - 1);
    return qMin(line * grid.columns + row % grid.columns, grid.lastRow());
}

} // namespace

int GridNavigation::target(const GridGeometry &grid, int row, Step step, int linesPerPage)
{
    if (grid.isEmpty())
        return row;
    switch (step) {
    case Step::Left:
    case Step::Right:
        return qBound(0, row + direction(grid, step), grid.lastRow());
    case Step::Up:
        return linesAway(grid, row, -1);
    case Step::Down:
        return linesAway(grid, row, 1);
    case Step::PageUp:
        return linesAway(grid, row, -linesPerPage);
    case Step::PageDown:
        return linesAway(grid, row, linesPerPage);
    case Step::Home:
        return 0;
    case Step::End:
        return grid.lastRow();
    }
    return row;
}

int GridNavigation::direction(const GridGeometry &grid, Step step)
{
    const int toTheRight = grid.mirrorWidth > 0 ? -1 : 1;
    switch (step) {
    case Step::Left:
        return -toTheRight;
    case Step::Right:
        return toTheRight;
    case Step::Up:
    case Step::PageUp:
    case Step::End:
        return -1;
    case Step::Down:
    case Step::PageDown:
    case Step::Home:
        return 1;
    }
    return 1;
}
