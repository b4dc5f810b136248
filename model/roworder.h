#pragma once

#include "model/rowsort.h"

#include <QtEndian>

#include <cstring>
#include <vector>

/// The position of each row's record, in three bytes as long as that is enough: for sixteen million
/// rows.
class RowOrder
{
public:
    RowOrder() = default;
    explicit RowOrder(const RowSort::Order &positions);

    bool empty() const { return m_bytes.empty(); }
    size_t size() const { return m_bytes.size() / m_width; } // the overlap is less than one
    size_t operator[](size_t row) const
    {
        quint32 bytes = 0;
        std::memcpy(&bytes, m_bytes.data() + row * m_width, sizeof bytes);
        return qFromLittleEndian(bytes) & m_mask;
    }
    /// The row of a position that is there.
    size_t rowOf(size_t position) const;
    RowSort::Order unpacked() const;

private:
    static constexpr size_t Overlap = 1; // the last one is read in four bytes, too

    std::vector<uchar> m_bytes;
    size_t m_width = 3;
    quint32 m_mask = 0xFFFFFF;
};
