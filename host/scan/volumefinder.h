#pragma once

#include "host/scan/card.h"
#include "host/scan/founditem.h"

#include <QVector>

/// A file system that was found on a medium, and how it is shown.
struct FoundVolume
{
    CardVolume volume;
    VolumeInfo info;
};

/// The file systems on \a card that we can read: the one that fills it, or one in each partition.
/// Empty when there is none.
QVector<FoundVolume> findVolumes(Card &card);

/// \a fs is one of FAT12/16/32 or exFAT, where a file's record is its directory entry.
bool isFatFamily(const TSK_FS_INFO *fs);

/// The text that a volume label has in the listing of a root folder; empty for anything else.
QString volumeLabelOf(const TSK_FS_INFO *fs, const TSK_FS_NAME *name);
