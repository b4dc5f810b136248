#include "content/checktoggle.h"

#include "delegates/delegateitem.h"
#include "model/scandatamodel.h"

namespace {

bool takesClicks(const TreeItemData &item)
{
    return item.kind == ItemKind::File || (ItemKind::isFolderLike(item.kind) && item.itemCount > 0);
}

/// Many short runs are announced as what lies between the first and the last.
void announce(ScanDataModel &model, const QVector<SelectedRows::Run> &rows)
{
    constexpr int FewRanges = 16;
    if (rows.size() > FewRanges) {
        model.refreshCheckStates(rows.first().first, rows.last().last);
        return;
    }
    for (const SelectedRows::Run &run : rows)
        model.refreshCheckStates(run.first, run.last);
}

} // namespace

namespace CheckToggle {

Result toggle(ScanDataModel &model, const QVector<SelectedRows::Run> &rows)
{
    Result result;
    bool allChecked = true;
    for (const SelectedRows::Run &run : rows) {
        model.visitRows(run.first, run.last, [&](TreeItemData &item) {
            if (!takesClicks(item))
                return;
            result.items.emplace_back(&item);
            allChecked = allChecked && item.checkState == Qt::Checked;
        });
    }
    result.state = allChecked ? Qt::Unchecked : Qt::Checked;
    for (const auto &item : result.items)
        item->checkState = result.state;
    if (!result.items.empty())
        announce(model, rows);
    return result;
}

Qt::CheckState nextForAll(const ScanDataModel &model)
{
    bool allChecked = true;
    model.visitRows(0, model.rowCount() - 1, [&](const TreeItemData &item) {
        allChecked = allChecked && item.checkState == Qt::Checked;
    });
    return allChecked ? Qt::Unchecked : Qt::Checked;
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
