#pragma once

#include <QtGlobal>

#include <vector>

/// Places of records in their store: one bit each, so that a check of a million files is remembered
/// in 125 kB.
class IndexSet
{
public:
    void insert(int index);
    void remove(int index);
    bool contains(int index) const;
    bool isEmpty() const { return m_words.empty(); }
    /// The first one from \a index on; below 0: none.
    int next(int index) const;
    /// Gives back what is not needed; to be called when the set is complete.
    void squeeze();

private:
    static constexpr int WordBits = 64;
    quint64 *word(int index);

    int m_firstWord = 0; // what lies before it is not in the set
    std::vector<quint64> m_words;
};
