#pragma once

#include "platform/item/treeitemdata.h"

/// Which of its two ids a record is looked for by.
enum class RecordId { File, Secondary };

inline qint64 idOf(const TreeItemData &record, RecordId which)
{
    return which == RecordId::File ? record.fileId : record.secondaryId;
}

/// A byte for each id of a record: what a million records are looked through for without reading
/// them. Different ids may share one; a record with the right byte is still to be read.
inline quint8 idMarkOf(qint64 id)
{
    constexpr quint64 GoldenRatio = 0x9E3779B97F4A7C15; // neighbours get bytes far apart
    return quint8((quint64(id) * GoldenRatio) >> 56);
}
