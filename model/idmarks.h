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
namespace IdMarks {

constexpr int ByteBits = 8;

inline quint16 byteOf(qint64 id)
{
    constexpr quint64 GoldenRatio = 0x9E3779B97F4A7C15; // neighbours get bytes far apart
    return quint16((quint64(id) * GoldenRatio) >> (64 - ByteBits));
}

inline quint16 of(const TreeItemData &record)
{
    return quint16(byteOf(record.fileId) | byteOf(record.secondaryId) << ByteBits);
}

class Pattern
{
public:
    Pattern(RecordId which, qint64 id)
        : m_shift(which == RecordId::File ? 0 : ByteBits)
        , m_byte(byteOf(id))
    {
    }
    bool fits(quint16 marks) const { return ((marks >> m_shift) & 0xFF) == m_byte; }

private:
    int m_shift;
    quint16 m_byte;
};

} // namespace IdMarks
