#include "model/textkeys.h"

#include "model/inparallel.h"
#include "model/scanitemrole.h"
#include "platform/item/treeitemdata.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t WorthTwoThreads = 20000;
constexpr ushort FirstTwoByteUnit = 0x80;
constexpr ushort FirstThreeByteUnit = 0x800;
constexpr size_t MostBytesPerUnit = 3;

char *encode(char *out, ushort unit)
{
    if (unit < FirstTwoByteUnit) {
        *out++ = char(unit);
    } else if (unit < FirstThreeByteUnit) {
        *out++ = char(0xC0 | (unit >> 6));
        *out++ = char(0x80 | (unit & 0x3F));
    } else {
        // surrogates one by one: their order among the other units is what counts here
        *out++ = char(0xE0 | (unit >> 12));
        *out++ = char(0x80 | ((unit >> 6) & 0x3F));
        *out++ = char(0x80 | (unit & 0x3F));
    }
    return out;
}

quint64 firstBytes(const char *text, size_t length)
{
    if (length == 0)
        return 0;
    char bytes[sizeof(quint64)] = {};
    std::memcpy(bytes, text, std::min(length, sizeof bytes));
    return qFromBigEndian<quint64>(bytes);
}

size_t commonLength(const char *a, size_t lengthA, const char *b, size_t lengthB)
{
    const size_t most = std::min(lengthA, lengthB);
    return size_t(std::mismatch(a, a + most, b).first - a);
}

} // namespace

const QString &TextKeys::textOf(const TreeItemData *record, int sortRole)
{
    static const QString none;
    if (!record)
        return none;
    switch (sortRole) {
    case PathTextRole:
        return record->path;
    case KindRole:
        return record->extension;
    default:
        return record->name;
    }
}

TextKeys::TextKeys(const std::vector<const TreeItemData *> &records, int sortRole)
    : m_middle(records.size() / 2)
    , m_keys(records.size())
{
    const bool worthwhile = records.size() >= WorthTwoThreads;
    runInParallel(
        worthwhile, [&] { collect(m_arenas[0], records, 0, m_middle, sortRole); },
        [&] { collect(m_arenas[1], records, m_middle, records.size(), sortRole); });
    m_skipped = sharedLength();
    runInParallel(
        worthwhile, [this] { fillKeys(0, m_skipped); }, [this] { fillKeys(1, m_skipped); });
}

int TextKeys::compare(const TextKey &a, const TextKey &b) const
{
    if (a.high != b.high)
        return a.high < b.high ? -1 : 1;
    if (a.low != b.low)
        return a.low < b.low ? -1 : 1;
    if (a.length > PrefixLength && b.length > PrefixLength) {
        const size_t rest = std::min(a.length, b.length) - PrefixLength;
        const int difference = std::memcmp(text(a.position) + PrefixLength,
                                           text(b.position) + PrefixLength, rest);
        if (difference != 0)
            return difference;
    }
    if (a.length == b.length)
        return 0;
    return a.length < b.length ? -1 : 1;
}

void TextKeys::collect(Arena &arena, const std::vector<const TreeItemData *> &records, size_t from,
                       size_t to, int sortRole)
{
    const bool lowerCase = sortRole != PathTextRole;
    arena.ends.reserve(to - from);
    for (size_t i = from; i < to; ++i)
        arena.append(textOf(records[i], sortRole), lowerCase);
}

size_t TextKeys::sharedLength() const
{
    const Arena &first = m_arenas[0];
    const Arena &second = m_arenas[1];
    if (first.ends.empty())
        return second.sharedLength;
    return commonLength(first.bytes.data(), first.sharedLength, second.bytes.data(),
                        second.sharedLength);
}

void TextKeys::fillKeys(size_t arenaNumber, size_t skipped)
{
    const Arena &arena = m_arenas[arenaNumber];
    size_t position = arenaNumber == 0 ? 0 : m_middle;
    size_t begin = 0;
    for (const size_t end : arena.ends) {
        const char *start = arena.bytes.data() + begin + skipped;
        const size_t length = end - begin - skipped;
        TextKey &key = m_keys[position];
        key.high = firstBytes(start, length);
        if (length > sizeof(quint64))
            key.low = firstBytes(start + sizeof(quint64), length - sizeof(quint64));
        key.length = quint32(length);
        key.position = quint32(position);
        begin = end;
        ++position;
    }
}

const char *TextKeys::text(quint32 position) const
{
    const bool isSecond = position >= m_middle;
    const Arena &arena = m_arenas[isSecond ? 1 : 0];
    const size_t number = isSecond ? position - m_middle : position;
    return arena.bytes.data() + (number == 0 ? 0 : arena.ends[number - 1]) + m_skipped;
}

void TextKeys::Arena::append(const QString &text, bool lowerCase)
{
    const size_t begin = used;
    if (!lowerCase) {
        append(text.constData(), text.size());
    } else if (!appendLoweredAscii(text.constData(), text.size())) {
        // may be longer than the original: the order is that of the true lower-cased text
        const QString lowered = text.toLower();
        append(lowered.constData(), lowered.size());
    }
    ends.push_back(used);
    sharedLength = begin == 0 && ends.size() == 1
        ? used
        : commonLength(bytes.data(), sharedLength, bytes.data() + begin, used - begin);
}

void TextKeys::Arena::append(const QChar *text, int size)
{
    char *const start = grow(size_t(size) * MostBytesPerUnit);
    char *out = start;
    for (int i = 0; i < size; ++i)
        out = encode(out, text[i].unicode());
    used += size_t(out - start);
}

bool TextKeys::Arena::appendLoweredAscii(const QChar *text, int size)
{
    char *const out = grow(size_t(size));
    for (int i = 0; i < size; ++i) {
        const ushort unit = text[i].unicode();
        if (unit >= FirstTwoByteUnit)
            return false;
        out[i] = char(unit >= 'A' && unit <= 'Z' ? unit + ('a' - 'A') : unit);
    }
    used += size_t(size);
    return true;
}

char *TextKeys::Arena::grow(size_t size)
{
    if (bytes.size() < used + size)
        bytes.resize(std::max(used + size, 2 * bytes.size()));
    return bytes.data() + used;
}
