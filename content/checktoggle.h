#pragma once

#include "platform/item/treeitemdata.h"

#include <QModelIndex>
#include <QPointer>
#include <QVector>

class ScanDataModel;

/// Checks of many items at once, as a key does it.
namespace CheckToggle {

struct Result
{
    QVector<QPointer<TreeItemData>> items; ///< whose state was written
    Qt::CheckState state = Qt::Unchecked;
};

/// Unchecks the items when all are checked, else checks them all. Items whose box takes no clicks
/// are left out. Announces one range.
Result toggle(ScanDataModel &model, const QModelIndexList &indexes);

/// The state that stands for the children of \a root together.
Qt::CheckState ofChildren(const TreeItemData &root);

} // namespace CheckToggle
