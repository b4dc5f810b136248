#pragma once

#include <QtGlobal>

class TreeItemData;

/// One number for the sort keys of records, one after the other: another one as soon as one of the
/// keys is another, but for one chance in 2^64. Tells that a million rows are still in order
/// without comparing them.
class KeyFingerprint
{
public:
    explicit KeyFingerprint(int sortRole)
        : m_sortRole(sortRole)
    {
    }

    static constexpr size_t MostAtOnce = 64;
    /// MostAtOnce at most; null ones are without a key.
    void add(const TreeItemData *const *records, size_t count);
    void add(quint64 number) { m_value = mixed(m_value, number); }
    quint64 value() const { return m_value; }

private:
    static quint64 mixed(quint64 value, quint64 number);
    void addTexts(const TreeItemData *const *records, size_t count);

    quint64 m_value = 0;
    int m_sortRole;
};
