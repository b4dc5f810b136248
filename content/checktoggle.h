#pragma once

#include "content/selectedrows.h"
#include "platform/item/treeitemdata.h"

#include <QPointer>

#include <vector>

class ScanDataModel;

/// Checks of many items at once, as a key does it. A record that has died is never touched.
namespace CheckToggle {

struct Result
{
    std::vector<QPointer<TreeItemData>> items; ///< whose state was written, in row order
    Qt::CheckState state = Qt::Unchecked;
};

/// Unchecks the items when all are checked, else checks them all. Items whose box takes no clicks
/// are left out. Each record is written once, and the rows are announced in a few ranges.
Result toggle(ScanDataModel &model, const QVector<SelectedRows::Run> &rows);

/// The state that every item of \a model gets when all are toggled together.
Qt::CheckState nextForAll(const ScanDataModel &model);

/// The state that stands for the children of \a root together.
Qt::CheckState ofChildren(const TreeItemData &root);

} // namespace CheckToggle
