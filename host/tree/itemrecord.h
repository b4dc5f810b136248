#pragma once

#include "host/scan/founditem.h"
#include "platform/item/treeitemdata.h"

/// A record with what only the host knows about it.
///
/// One record serves every view of an item: `parent` is always the folder that holds it, while the
/// root of a kind and the root of a search merely list it. Checks are therefore the same
/// everywhere.
struct ItemRecord : TreeItemData
{
    quint64 address = 0; ///< see FoundItem
    quint32 sequence = 0;
    qint32 volume = 0;
    qint32 index = 0;        ///< its place in the store
    quint32 newcomersBy = 0; ///< the step of the history that set `checksNewcomers`
    ItemRecord *kindRoot =
        nullptr; ///< files: the root of the kind that lists it; null while hidden

    /// A leaf is a file, or a folder with nothing in it. Containers count the shown ones below.
    qint32 leaves = 0;
    qint32 checkedLeaves = 0;
    bool isLeaf = false;
    bool isRoot = false;    ///< a volume, a kind or all files: made by the host, not found
    bool isShown = false;   ///< the filter lets it through
    bool isChecked = false; ///< leaves: what the user chose; the plug-in writes `checkState` only
    /// Checked as a whole: what is found in it later is checked too.
    bool checksNewcomers = false;

    ItemRecord *folder() const { return static_cast<ItemRecord *>(parent); }
    bool isFolder() const { return kind == FolderKind; }
    qint64 size() const { return isFolder() ? folderSize : fileSize; }

    /// The item as the source knows it.
    FoundItem found() const;
    /// Path from the card's root, with the name, '/' between; several volumes: theirs in front.
    QString cardPath(bool withVolume) const;

    static constexpr qint32 FolderKind = 1;
    static constexpr qint32 FileKind = 2;
};
