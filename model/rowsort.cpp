#include "model/rowsort.h"

#include "model/inparallel.h"
#include "model/itemtext.h"
#include "model/scanitemrole.h"
#include "model/textgroups.h"
#include "model/textkeys.h"
#include "platform/item/treeitemdata.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <optional>

namespace {

using Records = std::vector<const TreeItemData *>;
using RowSort::Order;

constexpr size_t WorthTwoThreads = 20000;

Order identity(size_t size)
{
    Order order(size);
    std::iota(order.begin(), order.end(), 0u);
    return order;
}

// ---- numbers: least significant digit first

struct NumberKey
{
    quint64 number;
    quint32 position;
};

constexpr int DigitBits = 11;
constexpr size_t DigitCount = size_t(1) << DigitBits;
constexpr size_t Passes = (std::numeric_limits<quint64>::digits + DigitBits - 1) / DigitBits;

size_t digitOf(quint64 number, size_t pass)
{
    return size_t(number >> (pass * DigitBits)) & (DigitCount - 1);
}

qint64 numberOf(const TreeItemData *record, int sortRole)
{
    if (!record)
        return 0;
    return sortRole == ModifiedTimeRole ? record->modifiedTime : ItemText::bytes(*record);
}

std::vector<NumberKey> numberKeys(const Records &records, int sortRole, Qt::SortOrder order)
{
    constexpr quint64 SignBit = quint64(1) << 63;
    std::vector<NumberKey> keys(records.size());
    const auto collect = [&](size_t from, size_t end) {
        for (size_t i = from; i < end; ++i) {
            const quint64 number = quint64(numberOf(records[i], sortRole)) ^ SignBit;
            keys[i] = {order == Qt::AscendingOrder ? number : ~number, quint32(i)};
        }
    };
    const size_t middle = keys.size() / 2;
    runInParallel(
        keys.size() >= WorthTwoThreads, [&] { collect(0, middle); },
        [&] { collect(middle, keys.size()); });
    return keys;
}

/// Nothing when \a known is not right any more.
std::optional<Order> mergedNumbers(const std::vector<NumberKey> &keys, const Order &known)
{
    const auto before = [&keys](quint32 a, quint32 b) {
        return keys[a].number != keys[b].number ? keys[a].number < keys[b].number : a < b;
    };
    const auto middle = known.begin() + std::ptrdiff_t(known.size() / 2);
    bool first = false;
    bool second = false;
    runInParallel(
        known.size() >= WorthTwoThreads,
        [&] { first = std::is_sorted(known.begin(), middle + 1, before); },
        [&] { second = std::is_sorted(middle, known.end(), before); });
    if (!first || !second)
        return std::nullopt;
    std::vector<bool> isKnown(keys.size());
    for (const quint32 position : known)
        isKnown[position] = true;
    Order added;
    for (quint32 position = 0; position < keys.size(); ++position) {
        if (!isKnown[position])
            added.push_back(position);
    }
    std::sort(added.begin(), added.end(), before);
    Order order(keys.size());
    std::merge(known.begin(), known.end(), added.begin(), added.end(), order.begin(), before);
    return order;
}

Order sortedNumbers(std::vector<NumberKey> keys)
{
    std::vector<std::array<quint32, DigitCount>> counts(Passes);
    for (const NumberKey &key : keys) {
        for (size_t pass = 0; pass < Passes; ++pass)
            ++counts[pass][digitOf(key.number, pass)];
    }

    std::vector<NumberKey> target(keys.size());
    for (size_t pass = 0; pass < Passes; ++pass) {
        auto &starts = counts[pass];
        if (starts[digitOf(keys.front().number, pass)] == keys.size())
            continue; // all have the same digit here
        quint32 start = 0;
        for (quint32 &count : starts)
            start += std::exchange(count, start);
        for (const NumberKey &key : keys)
            target[starts[digitOf(key.number, pass)]++] = key;
        keys.swap(target);
    }

    Order order(keys.size());
    std::transform(keys.begin(), keys.end(), order.begin(),
                   [](const NumberKey &key) { return key.position; });
    return order;
}

// ---- texts

template <Qt::SortOrder Direction>
struct ComesBefore
{
    const TextKeys &texts;

    bool operator()(const TextKey &a, const TextKey &b) const
    {
        const int difference = texts.compare(a, b);
        if (difference == 0)
            return a.position < b.position;
        return Direction == Qt::AscendingOrder ? difference < 0 : difference > 0;
    }
};

template <typename Before>
Order mergedPositions(const std::vector<TextKey> &keys, size_t middle, Before before)
{
    Order order;
    order.reserve(keys.size());
    auto first = keys.begin();
    const auto firstEnd = keys.begin() + std::ptrdiff_t(middle);
    auto second = firstEnd;
    while (first != firstEnd && second != keys.end())
        order.push_back((before(*second, *first) ? second++ : first++)->position);
    for (; first != firstEnd; ++first)
        order.push_back(first->position);
    for (; second != keys.end(); ++second)
        order.push_back(second->position);
    return order;
}

/// The keys of \a known first, in that order, then all others.
std::vector<TextKey> knownFirst(const std::vector<TextKey> &keys, const Order &known)
{
    std::vector<TextKey> arranged;
    arranged.reserve(keys.size());
    std::vector<bool> isKnown(keys.size());
    for (const quint32 position : known) {
        arranged.push_back(keys[position]);
        isKnown[position] = true;
    }
    for (const TextKey &key : keys) {
        if (!isKnown[key.position])
            arranged.push_back(key);
    }
    return arranged;
}

template <typename Before>
Order sortedTexts(const TextKeys &texts, const Order &known, Before before)
{
    if (!known.empty()) {
        std::vector<TextKey> keys = knownFirst(texts.keys(), known);
        const auto middle = keys.begin() + std::ptrdiff_t(known.size());
        // a record may have been given another name since
        if (std::is_sorted(keys.begin(), middle, before)) {
            std::sort(middle, keys.end(), before);
            return mergedPositions(keys, known.size(), before);
        }
    }

    std::vector<TextKey> keys = texts.keys();
    const auto middle = keys.begin() + std::ptrdiff_t(keys.size() / 2);
    runInParallel(
        keys.size() >= WorthTwoThreads, [&] { std::sort(keys.begin(), middle, before); },
        [&] { std::sort(middle, keys.end(), before); });
    return mergedPositions(keys, keys.size() / 2, before);
}

} // namespace

namespace RowSort {

Order sorted(const Records &records, int sortRole, Qt::SortOrder order, const Order &known)
{
    if (records.empty())
        return {};
    switch (sortRole) {
    case SizeRole:
    case ModifiedTimeRole: {
        std::vector<NumberKey> keys = numberKeys(records, sortRole, order);
        if (!known.empty()) {
            if (std::optional<Order> merged = mergedNumbers(keys, known))
                return std::move(*merged);
        }
        return sortedNumbers(std::move(keys));
    }
    case NameRole:
    case KindRole:
    case PathTextRole: {
        if (std::optional<Order> grouped = TextGroups::sorted(records, sortRole, order))
            return std::move(*grouped);
        const TextKeys texts(records, sortRole);
        if (order == Qt::AscendingOrder)
            return sortedTexts(texts, known, ComesBefore<Qt::AscendingOrder>{texts});
        return sortedTexts(texts, known, ComesBefore<Qt::DescendingOrder>{texts});
    }
    default:
        return identity(records.size());
    }
}

} // namespace RowSort
