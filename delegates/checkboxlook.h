#pragma once

#include "common/lazypixmap.h"

class QModelIndex;
class TreeItemData;

/// Look and behaviour of an item's check box, the same on cards and in rows.
namespace CheckBox {

enum class Look { Unchecked, Partial, Checked, Disabled };

/// \a state is the item's own; a folder follows its parent unless \a emptyFolderCheckable.
Look lookOf(const TreeItemData &item, int state, bool emptyFolderCheckable);
/// A click on a box in \a state leads here: only a checked box is unchecked.
Qt::CheckState toggled(int state);

} // namespace CheckBox

/// The check-box pictures of a theme.
class CheckBoxPictures
{
public:
    void load();
    const QPixmap &picture(CheckBox::Look look) const;

private:
    LazyPixmap m_checked;
    LazyPixmap m_partial;
    LazyPixmap m_unchecked;
    LazyPixmap m_disabled;
};
