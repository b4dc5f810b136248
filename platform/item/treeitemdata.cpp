#include "treeitemdata.h"

TreeItemData::TreeItemData(QObject *owner)
    : QObject(owner)
{
}

TreeItemData::~TreeItemData() = default;
