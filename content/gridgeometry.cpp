#include "content/gridgeometry.h"

namespace {

/// First and last of the bands [gap + n * pitch, gap + n * pitch + size) that [from, to] touches.
GridGeometry::Run bandsIn(int from, int to, int gap, int size, int count)
{
    const int pitch = size + gap;
    const int first = from < gap ? 0 : (from - gap) / pitch;
    const int last = to < gap ? -1 : qMin((to - gap) / pitch, count - 1);
    const bool startsInGap = from >= gap && (from - gap) % pitch >= size;
    return {startsInGap ? first + 1 : first, last};
}

} // namespace

int GridGeometry::columnsFor(const QSize &cell, int spacing, int width)
{
    const int pitch = cell.width() + spacing;
    return pitch > 0 ? qMax(1, (width - 1 - spacing) / pitch) : 1;
}

QSize GridGeometry::contentSize() const
{
    if (isEmpty())
        return {0, 0};
    const int width = qMin(columns, rowCount) * columnWidth();
    return {width, spacing + lineCount() * lineHeight()};
}

QRect GridGeometry::cardRect(int row) const
{
    if (isEmpty() || row < 0 || row >= rowCount)
        return {};
    const int x = spacing + row % columns * columnWidth();
    const int y = spacing + lineOf(row) * lineHeight();
    return {QPoint(mirrored(x, cell.width()), y), cell};
}

QRect GridGeometry::lineRect(const Run &run) const
{
    return cardRect(run.first) | cardRect(run.last);
}

int GridGeometry::rowAt(const QPoint &point) const
{
    const QVector<Run> runs = runsIn(QRect(point, QSize(1, 1)));
    return runs.isEmpty() ? -1 : runs.first().first;
}

GridGeometry::Run GridGeometry::linesIn(const QRect &area) const
{
    if (isEmpty() || area.isEmpty())
        return {0, -1};
    const Run lines = bandsIn(area.top(), area.bottom(), spacing, cell.height(), lineCount());
    if (lines.first > lines.last)
        return {0, -1};
    return {lines.first * columns, qMin(lines.last * columns + columns - 1, lastRow())};
}

QVector<GridGeometry::Run> GridGeometry::runsIn(const QRect &area) const
{
    const Run rows = linesIn(area);
    if (rows.first > rows.last)
        return {};
    const int left = mirrored(area.left(), area.width());
    const Run across = bandsIn(left, left + area.width() - 1, spacing, cell.width(), columns);
    if (across.first > across.last)
        return {};
    if (across.first == 0 && across.last == columns - 1)
        return {rows};

    QVector<Run> runs;
    for (int start = rows.first; start <= rows.last; start += columns) {
        const Run run{start + across.first, qMin(start + across.last, lastRow())};
        if (run.first <= run.last)
            runs.append(run);
    }
    return runs;
}
