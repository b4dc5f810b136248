#pragma once

#include <QItemSelection>
#include <QVector>

/// The rows of a selection as ranges, so that a million selected rows cost no more than one.
namespace SelectedRows {

/// Rows \a first to \a last without a gap between them.
struct Run
{
    int first;
    int last;
};

/// In ascending order, each row once, whatever columns are selected.
QVector<Run> runs(const QItemSelection &selection);
/// How many rows, those included whose record has died.
int count(const QItemSelection &selection);

} // namespace SelectedRows
