#include "detail/itemlocation.h"

#include "common/commonfunction.h"
#include "platform/item/treeitemdata.h"

#include <QFileInfo>

namespace {

/// The volume is one that the tree was made from, or one that is mounted.
bool volumeIsKnown(const TreeItemData &item)
{
    const TreeItemData *top = &item;
    // A host's broken links must not hold us here for ever.
    for (int depth = 0; top->parent && depth < 1000; ++depth)
        top = top->parent;
    return top->volumeRoot == item.volumeRoot || QFileInfo(item.volumeRoot).isDir();
}

} // namespace

QString detailLocation(const TreeItemData &item)
{
    const QString location = CommonFunction::combinedPath(item.path, item.volumeRoot);
    if (!location.isEmpty() || item.volumeRoot.isEmpty() || !volumeIsKnown(item))
        return location;
    return CommonFunction::combinedPath(QStringLiteral("Volume"), item.volumeRoot);
}
