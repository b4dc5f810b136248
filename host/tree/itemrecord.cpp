#include "host/tree/itemrecord.h"

FoundItem ItemRecord::found() const
{
    FoundItem item;
    item.id = fileId;
    item.parentId = parent && !folder()->isRoot ? parent->fileId : -1;
    item.name = name;
    item.path = path.mid(1); // a record's path begins at the root
    item.folder = isFolder();
    item.deleted = !exists;
    item.size = fileSize;
    item.modifiedTime = modifiedTime;
    item.volume = volume;
    item.address = address;
    item.sequence = sequence;
    return item;
}

QString ItemRecord::cardPath(bool withVolume) const
{
    const QString below = path.size() > 1 ? path.mid(1) + QLatin1Char('/') + name : name;
    return withVolume ? volumeRoot + QLatin1Char('/') + below : below;
}
