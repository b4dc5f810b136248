#pragma once

#include <QtGlobal>

class TreeItemData;

/// True unless \a record is null or one of the values that freed or never written memory holds.
/// The last line of defence against a host's slip: a pointer that fails it must not be followed.
inline bool isPlausible(const TreeItemData *record)
{
    constexpr quint64 FirstUserAddress = 0x10000;
    constexpr quint64 AllOnesMinusEight = ~quint64(0) - 8;
    constexpr quint64 NeverWritten = 0xCDCDCDCDCDCDCDCD;
    constexpr quint64 Freed = 0xDDDDDDDDDDDDDDDD;
    const quint64 address = quint64(reinterpret_cast<quintptr>(record));
    return address >= FirstUserAddress && address != AllOnesMinusEight && address != NeverWritten
        && address != Freed;
}
