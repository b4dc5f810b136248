#include "model/earlierrows.h"

#include <algorithm>

void EarlierRows::note(const RowSort::Order &order, size_t folders, size_t files)
{
    if (!m_expected) {
        forget();
        return;
    }
    m_order = order;
    m_left.clear();
    m_folders = m_foldersNow = folders;
    m_files = m_filesNow = files;
    m_expected = false;
    m_known = true;
}

void EarlierRows::leaves(size_t position, Guard &&guard)
{
    m_left.emplace_back(quint32(position), std::move(guard));
}

void EarlierRows::noteParts(size_t folders, size_t files)
{
    m_foldersNow = folders;
    m_filesNow = files;
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
    for (const auto &left : m_left) {
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
