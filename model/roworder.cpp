#include "model/roworder.h"

RowOrder::RowOrder(const RowSort::Order &positions)
{
    if (positions.empty())
        return;
    if (positions.size() > size_t(m_mask) + 1) {
        m_width = sizeof(quint32);
        m_mask = ~0u;
    }
    m_bytes.resize(positions.size() * m_width + Overlap);
    uchar *to = m_bytes.data();
    for (const quint32 position : positions) {
        const quint32 bytes = qToLittleEndian(position);
        std::memcpy(to, &bytes, sizeof bytes); // the highest one is the next one's first
        to += m_width;
    }
}

size_t RowOrder::rowOf(size_t position) const
{
    size_t row = 0;
    while ((*this)[row] != position)
        ++row;
    return row;
}

RowSort::Order RowOrder::unpacked() const
{
    RowSort::Order positions(size());
    for (size_t row = 0; row < positions.size(); ++row)
        positions[row] = quint32((*this)[row]);
    return positions;
}
