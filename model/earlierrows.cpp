#include "model/earlierrows.h"

#include <algorithm>

void EarlierRows::begin(size_t folders, size_t files)
{
    const bool expected = m_expected;
    forget();
    m_known = expected;
    m_folders = folders;
    m_files = files;
}

void EarlierRows::leaves(size_t position, Guard &&guard)
{
    const size_t next = m_left.size();
    m_left.resize(next + 1);
    m_left[next] = {quint32(position), std::move(guard)};
}

void EarlierRows::end(RowOrder &&order, size_t foldersNow, size_t filesNow)
{
    if (m_known)
        m_order = std::move(order);
    m_foldersNow = foldersNow;
    m_filesNow = filesNow;
}

EarlierRows::Places EarlierRows::placesOf(const Runs &rows) const
{
    std::vector<bool> asked(m_folders + m_files);
    for (const auto &run : rows) {
        const int last = std::min(run.second, int(asked.size()) - 1);
        for (int row = std::max(run.first, 0); row <= last; ++row)
            asked[m_order.empty() ? size_t(row) : m_order[size_t(row)]] = true;
    }

    Places places;
    for (size_t i = 0; i < m_left.size(); ++i) {
        const auto &left = m_left[i];
        if (asked[left.first] && left.second)
            places.elsewhere.insert(left.second.data());
        asked[left.first] = false;
    }
    places.positions.resize(m_foldersNow + m_filesNow);
    for (size_t i = 0; i < std::min(m_folders, m_foldersNow); ++i)
        places.positions[i] = asked[i];
    for (size_t i = 0; i < std::min(m_files, m_filesNow); ++i)
        places.positions[m_foldersNow + i] = asked[m_folders + i];
    return places;
}
