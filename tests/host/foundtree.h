#pragma once

#include "host/tree/itemtree.h"

/// What a scan finds, made up: a folder where \a size is negative.
inline FoundItem item(qint64 id, qint64 parentId, const QString &name, qint64 size = 5)
{
    FoundItem found;
    found.id = id;
    found.parentId = parentId;
    found.name = name;
    found.folder = size < 0;
    found.size = qMax<qint64>(size, 0);
    return found;
}

inline QVector<VolumeInfo> volumes(const QStringList &roots)
{
    QVector<VolumeInfo> infos(roots.size());
    for (int i = 0; i < roots.size(); ++i)
        infos[i].root = roots[i];
    return infos;
}
