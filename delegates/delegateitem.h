#pragma once

#include <QtGlobal>

class QModelIndex;
class TreeItemData;

/// What the delegates tell apart by a record's `kind`.
namespace ItemKind {

constexpr int Folder = 1;
constexpr int File = 2;

/// 0 is a node that holds items without being a folder on the medium.
constexpr bool isFolderLike(int kind)
{
    return kind == 0 || kind == Folder;
}

/// Audio, video and camera video: what is played rather than looked at.
constexpr bool isPlayable(int fileCategory)
{
    return fileCategory >= 2 && fileCategory <= 4;
}

} // namespace ItemKind

/// The record behind \a index; null when the index is invalid or the record has died. An index may
/// outlive its record, so the model is asked; only a foreign model's pointer is taken as it is.
TreeItemData *itemOf(const QModelIndex &index);
