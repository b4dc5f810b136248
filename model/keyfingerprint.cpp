#include "model/keyfingerprint.h"

#include "model/itemtext.h"
#include "model/scanitemrole.h"
#include "model/textkeys.h"
#include "platform/item/treeitemdata.h"

#include <QStringView>

#include <array>
#include <cstring>

quint64 KeyFingerprint::mixed(quint64 value, quint64 number)
{
    constexpr quint64 Odd = 0x9E3779B97F4A7C15;
    value = (value ^ number) * Odd;
    return value ^ (value >> 29); // or the low bits would never hear of the high ones
}

void KeyFingerprint::add(const TreeItemData *const *records, size_t count)
{
    switch (m_sortRole) {
    case SizeRole:
        for (size_t i = 0; i < count; ++i)
            add(records[i] ? quint64(ItemText::bytes(*records[i])) : 0);
        break;
    case ModifiedTimeRole:
        for (size_t i = 0; i < count; ++i)
            add(records[i] ? quint64(records[i]->modifiedTime) : 0);
        break;
    default:
        addTexts(records, count);
    }
}

void KeyFingerprint::addTexts(const TreeItemData *const *records, size_t count)
{
    // first where the texts are: many of them are then fetched at once
    std::array<QStringView, MostAtOnce> texts;
    for (size_t i = 0; i < count; ++i)
        texts[i] = TextKeys::textOf(records[i], m_sortRole);
    for (size_t i = 0; i < count; ++i) {
        const auto *bytes = reinterpret_cast<const char *>(texts[i].utf16());
        size_t left = size_t(texts[i].size()) * sizeof(char16_t);
        quint64 value = left; // on its own, so that texts can be worked on side by side
        for (; left >= sizeof(quint64); left -= sizeof(quint64), bytes += sizeof(quint64)) {
            quint64 part = 0;
            std::memcpy(&part, bytes, sizeof part);
            value = mixed(value, part);
        }
        quint64 rest = 0;
        if (left > 0)
            std::memcpy(&rest, bytes, left);
        add(mixed(value, rest));
    }
}
