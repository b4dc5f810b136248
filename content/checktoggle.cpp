#include "content/checktoggle.h"

#include "delegates/delegateitem.h"
#include "model/scandatamodel.h"

namespace {

bool takesClicks(const TreeItemData &item)
{
    return item.kind == ItemKind::File || (ItemKind::isFolderLike(item.kind) && item.itemCount > 0);
}

} // namespace

namespace CheckToggle {

Result toggle(ScanDataModel &model, const QModelIndexList &indexes)
{
    Result result;
    bool allChecked = true;
    for (const QModelIndex &index : indexes) {
        TreeItemData *item = model.itemAt(index);
        if (!item || !takesClicks(*item))
            continue;
        result.items.append(item);
        allChecked = allChecked && item->checkState == Qt::Checked;
    }
    result.state = allChecked ? Qt::Unchecked : Qt::Checked;
    for (const auto &item : qAsConst(result.items))
        item->checkState = result.state;
    if (!result.items.isEmpty())
        model.refreshCheckStates();
    return result;
}

Qt::CheckState ofChildren(const TreeItemData &root)
{
    int items = 0;
    int checked = 0;
    for (const auto *list : {&root.childFolders, &root.childFiles}) {
        for (const TreeItemData *item : *list) {
            if (!item)
                continue;
            ++items;
            checked += item->checkState == Qt::Checked ? 1 : 0;
        }
    }
    if (checked == 0)
        return Qt::Unchecked;
    return checked == items ? Qt::Checked : Qt::PartiallyChecked;
}

} // namespace CheckToggle
