#include "host/tree/itemkinds.h"

#include "host/scan/filecategory.h"

#include <QCoreApplication>

int ItemKinds::indexOfCategory(int fileCategory)
{
    const int rootType = rootTypeOfCategory(FileCategory(fileCategory));
    for (std::size_t i = 0; i < All.size(); ++i) {
        if (All[i].rootType == rootType)
            return int(i);
    }
    return int(All.size()) - 1;
}

QString ItemKinds::titleOf(int rootType)
{
    if (rootType == AllFilesRootType)
        return QCoreApplication::translate("ItemKinds", "All files");
    for (const ItemKind &kind : All) {
        if (kind.rootType == rootType)
            return QCoreApplication::translate("ItemKinds", kind.title);
    }
    return {};
}
