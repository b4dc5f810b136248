#include "host/tree/indexset.h"

#include <QtAlgorithms>

#include <algorithm>

namespace {

quint64 bitOf(int index)
{
    return quint64(1) << (index % 64);
}

} // namespace

quint64 *IndexSet::word(int index)
{
    const int at = index / WordBits;
    if (m_words.empty())
        m_firstWord = at;
    if (at < m_firstWord) {
        m_words.insert(m_words.begin(), std::size_t(m_firstWord - at), 0);
        m_firstWord = at;
    }
    const auto place = std::size_t(at - m_firstWord);
    if (place >= m_words.size())
        m_words.resize(place + 1);
    return &m_words[place];
}

void IndexSet::insert(int index)
{
    *word(index) |= bitOf(index);
}

void IndexSet::remove(int index)
{
    if (contains(index))
        *word(index) &= ~bitOf(index);
}

bool IndexSet::contains(int index) const
{
    const int place = index / WordBits - m_firstWord;
    return place >= 0 && std::size_t(place) < m_words.size()
        && (m_words[std::size_t(place)] & bitOf(index)) != 0;
}

int IndexSet::next(int index) const
{
    const int from = std::max(index - m_firstWord * WordBits, 0);
    auto place = std::size_t(from / WordBits);
    quint64 passed = bitOf(from) - 1; // of the first word only
    for (; place < m_words.size(); ++place, passed = 0) {
        if (const quint64 rest = m_words[place] & ~passed)
            return (m_firstWord + int(place)) * WordBits + int(qCountTrailingZeroBits(rest));
    }
    return -1;
}

void IndexSet::squeeze()
{
    const auto isUsed = [](quint64 word) { return word != 0; };
    const auto first = std::find_if(m_words.begin(), m_words.end(), isUsed);
    const auto last = std::find_if(m_words.rbegin(), m_words.rend(), isUsed).base();
    m_firstWord += int(first - m_words.begin());
    m_words = first < last ? std::vector<quint64>(first, last) : std::vector<quint64>();
}
