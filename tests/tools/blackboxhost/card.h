#pragma once

#include <treeitemdata.h>

/// The records of a made-up card, with fileIds that no other program writes thumbnails for.
struct Card
{
    Card();

    TreeItemData *file(const QString &name) const;
    void uncheckAll();

    TreeItemData root;
    TreeItemData nothing; ///< a root without children
    TreeItemData *folder;
    TreeItemData *contact; ///< of a type for which the desktop has an icon and the view has none
    TreeItemData *unknown; ///< of no type

private:
    TreeItemData *add(TreeItemData *holder, const QString &name, qint64 size, int category);
};
