#include "delegates/checkboxlook.h"

#include "common/checkicon.h"
#include "common/commonfunction.h"
#include "delegates/delegateitem.h"

#include "platform/item/treeitemdata.h"

CheckBox::Look CheckBox::lookOf(const TreeItemData &item, int state, bool emptyFolderCheckable)
{
    if (!emptyFolderCheckable) {
        // exactly 0: an unknown count is negative and looks like any other folder's
        if (ItemKind::isFolderLike(item.kind) && item.itemCount == 0)
            return Look::Disabled;
        if (item.kind != ItemKind::File && item.parent
            && item.parent->checkState != Qt::PartiallyChecked)
            state = item.parent->checkState;
    }
    switch (state) {
    case Qt::Checked:
        return Look::Checked;
    case Qt::PartiallyChecked:
        return Look::Partial;
    default:
        return Look::Unchecked;
    }
}

Qt::CheckState CheckBox::toggled(int state)
{
    return state == Qt::Checked ? Qt::Unchecked : Qt::Checked;
}

void CheckBoxPictures::load()
{
    m_checked = {CommonFunction::themePixmap, checkIconName(Qt::Checked)};
    m_partial = {CommonFunction::themePixmap, checkIconName(Qt::PartiallyChecked)};
    m_unchecked = {CommonFunction::themePixmap, checkIconName(Qt::Unchecked)};
    m_disabled = {CommonFunction::themePixmap, QStringLiteral("icon16_uncheck_disable")};
}

const QPixmap &CheckBoxPictures::picture(CheckBox::Look look) const
{
    switch (look) {
    case CheckBox::Look::Checked:
        return m_checked;
    case CheckBox::Look::Partial:
        return m_partial;
    case CheckBox::Look::Disabled:
        return m_disabled;
    case CheckBox::Look::Unchecked:
        break;
    }
    return m_unchecked;
}
