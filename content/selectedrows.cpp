#include "content/selectedrows.h"

#include <algorithm>

QVector<SelectedRows::Run> SelectedRows::runs(const QItemSelection &selection)
{
    QVector<Run> sorted;
    sorted.reserve(selection.size());
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid())
            sorted.append({range.top(), range.bottom()});
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const Run &a, const Run &b) { return a.first < b.first; });

    QVector<Run> joined;
    for (const Run &run : qAsConst(sorted)) {
        if (!joined.isEmpty() && run.first <= joined.last().last + 1)
            joined.last().last = std::max(joined.last().last, run.last);
        else
            joined.append(run);
    }
    return joined;
}

int SelectedRows::count(const QItemSelection &selection)
{
    int rows = 0;
    const QVector<Run> all = runs(selection);
    for (const Run &run : all)
        rows += run.last - run.first + 1;
    return rows;
}
