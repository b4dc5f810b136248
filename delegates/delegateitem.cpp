#include "delegates/delegateitem.h"

#include "model/scandatamodel.h"

TreeItemData *itemOf(const QModelIndex &index)
{
    if (!index.isValid())
        return nullptr;
    if (const auto *model = qobject_cast<const ScanDataModel *>(index.model()))
        return model->itemAt(index);
    return static_cast<TreeItemData *>(index.internalPointer());
}
