#include "delegates/locationtext.h"

#include "common/commonfunction.h"
#include "delegates/delegateitem.h"
#include "model/itemtext.h"
#include "model/recordcheck.h"
#include "platform/item/treeitemdata.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

constexpr int DeepestTree = 512; // deeper is no tree but a ring of parents

using Chain = QVarLengthArray<const TreeItemData *, 32>;

/// The folders above \a item, the nearest first, without the root of the tree. Empty when the
/// chain has no end.
Chain foldersAbove(const TreeItemData &item)
{
    Chain folders;
    const TreeItemData *node = item.parent;
    while (isPlausible(node) && isPlausible(node->parent) && ItemKind::isFolderLike(node->kind)) {
        if (folders.size() == DeepestTree)
            return {};
        folders.append(node);
        node = node->parent;
    }
    return folders;
}

/// A folder lies somewhere when it or a folder above it has a path; the nodes of a category tree
/// do not.
bool isLocated(const TreeItemData &folder)
{
    if (!folder.path.isEmpty())
        return true;
    const TreeItemData *node = folder.parent;
    for (int depth = 0; depth < DeepestTree && isPlausible(node); ++depth) {
        if (!ItemKind::isFolderLike(node->kind))
            return false;
        if (!node->path.isEmpty())
            return true;
        node = node->parent;
    }
    return false;
}

QString pathThroughParents(const TreeItemData &folder)
{
    const Chain above = foldersAbove(folder);
    if (above.isEmpty())
        return {};
    QString path;
    std::for_each(above.rbegin(), above.rend(), [&path](const TreeItemData *node) {
        path += ItemText::displayName(*node) + QLatin1Char('\\');
    });
    return CommonFunction::combinedPath(path, above.last()->volumeRoot);
}

} // namespace

namespace LocationText {

QString unknown()
{
    return QStringLiteral("--");
}

bool isKnown(const QString &text)
{
    return text != QLatin1String("--");
}

QString of(const TreeItemData *item, Folders folders)
{
    if (!item)
        return unknown();
    const bool folderLike = ItemKind::isFolderLike(item->kind);
    if (folderLike && (folders == Folders::Placeholder || !isLocated(*item)))
        return unknown();
    QString text = CommonFunction::combinedPath(item->path, item->volumeRoot);
    if (!text.isEmpty())
        return text;
    if (folderLike)
        text = pathThroughParents(*item);
    else if (!item->volumeRoot.isEmpty())
        text = CommonFunction::combinedPath(QStringLiteral("Volume"), item->volumeRoot);
    return text.isEmpty() ? unknown() : text;
}

} // namespace LocationText
