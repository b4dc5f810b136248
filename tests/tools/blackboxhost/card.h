#pragma once

#include <treeitemdata.h>

#include <QPixmap>

/// The records of a made-up card, with fileIds that no other program writes thumbnails for.
struct Card
{
    Card();

    TreeItemData *file(const QString &name) const;
    void uncheckAll();
    /// What a host would have made of \a item.
    static QPixmap thumbnailOf(const TreeItemData &item);

    TreeItemData root;
    TreeItemData nothing; ///< a root without children
    TreeItemData *folder;
    TreeItemData *contact; ///< of a type for which the desktop has an icon and the view has none
    TreeItemData *unknown; ///< of no type

private:
    TreeItemData *add(TreeItemData *holder, const QString &name, qint64 size, int category);
};
