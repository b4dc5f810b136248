#pragma once

#include <QString>

#include <array>
#include <vector>

class TreeItemData;

/// A sortable stand-in for one text: its first bytes, ready to be compared as two numbers.
struct TextKey
{
    quint64 high = 0;
    quint64 low = 0;
    quint32 length = 0;   ///< of the whole text, in bytes, without the beginning that all share
    quint32 position = 0; ///< in the list of records
};

/// The texts that records are sorted by, one after the other in memory. They are kept in an 8-bit
/// form whose byte order is the order of the UTF-16 code units, so that one comparison of eight
/// bytes settles up to eight characters.
class TextKeys
{
public:
    TextKeys(const std::vector<const TreeItemData *> &records, int sortRole);

    /// What is compared for \a sortRole, as the record has it; empty for a null one.
    static const QString &textOf(const TreeItemData *record, int sortRole);

    const std::vector<TextKey> &keys() const { return m_keys; }
    /// Less than, equal to or greater than zero, as the text of \a a stands to that of \a b.
    int compare(const TextKey &a, const TextKey &b) const;

private:
    /// What one thread has collected.
    struct Arena
    {
        void append(const QString &text, bool lowerCase);
        void append(const QChar *text, int size);
        bool appendLoweredAscii(const QChar *text, int size);
        char *grow(size_t size);

        std::vector<char> bytes;
        std::vector<size_t> ends;
        size_t used = 0;
        size_t sharedLength = 0; ///< of the beginning that all texts have in common
    };
    static constexpr size_t PrefixLength = 2 * sizeof(quint64);

    void collect(Arena &arena, const std::vector<const TreeItemData *> &records, size_t from,
                 size_t to, int sortRole);
    size_t sharedLength() const;
    void fillKeys(size_t arenaNumber, size_t skipped);
    const char *text(quint32 position) const;

    std::array<Arena, 2> m_arenas;
    size_t m_middle = 0; ///< first position of the second arena
    size_t m_skipped = 0;
    std::vector<TextKey> m_keys;
};
