#include "model/textgroups.h"

#include "model/textkeys.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace {

using Records = std::vector<const TreeItemData *>;

constexpr size_t WorthGrouping = 4096;
constexpr size_t SampleSize = 2048;
constexpr size_t RecordsPerGroup = 8; // on average; fewer are sorted one by one

struct Groups
{
    Records first;               ///< one record of each group
    std::vector<quint32> number; ///< of the group, by position
};

std::optional<Groups> grouped(const Records &records, int sortRole)
{
    Groups groups;
    groups.number.resize(records.size());
    QHash<QString, quint32> numbers;
    const QString *last = nullptr;
    quint32 lastNumber = 0;
    for (size_t i = 0; i < records.size(); ++i) {
        const QString &text = TextKeys::textOf(records[i], sortRole);
        // what lies side by side mostly has the same folder
        if (!last || text != *last) {
            const quint32 next = quint32(groups.first.size());
            const auto known = numbers.constFind(text);
            lastNumber = known == numbers.constEnd() ? next : *known;
            if (lastNumber == next) {
                numbers.insert(text, next);
                groups.first.push_back(records[i]);
            }
            last = &text;
        }
        groups.number[i] = lastNumber;
        const size_t most = i < SampleSize ? SampleSize / 2 : records.size() / RecordsPerGroup;
        if (groups.first.size() > most)
            return std::nullopt;
    }
    return groups;
}

/// The rank of each group; texts that differ in case only may share one.
std::vector<quint32> ranks(const Records &groups, int sortRole, Qt::SortOrder order)
{
    const TextKeys texts(groups, sortRole);
    std::vector<TextKey> keys = texts.keys();
    std::sort(keys.begin(), keys.end(), [&](const TextKey &a, const TextKey &b) {
        const int difference = texts.compare(a, b);
        return order == Qt::AscendingOrder ? difference < 0 : difference > 0;
    });
    std::vector<quint32> ranks(keys.size());
    quint32 rank = 0;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (i > 0 && texts.compare(keys[i - 1], keys[i]) != 0)
            ++rank;
        ranks[keys[i].position] = rank;
    }
    return ranks;
}

} // namespace

std::optional<RowSort::Order> TextGroups::sorted(const Records &records, int sortRole,
                                                 Qt::SortOrder order)
{
    if (records.size() < WorthGrouping)
        return std::nullopt;
    const std::optional<Groups> groups = grouped(records, sortRole);
    if (!groups)
        return std::nullopt;
    const std::vector<quint32> rankOf = ranks(groups->first, sortRole, order);

    std::vector<quint32> starts(rankOf.size() + 1);
    for (const quint32 group : groups->number)
        ++starts[rankOf[group]];
    quint32 start = 0;
    for (quint32 &count : starts)
        start += std::exchange(count, start);

    RowSort::Order positions(records.size());
    for (size_t i = 0; i < records.size(); ++i)
        positions[starts[rankOf[groups->number[i]]]++] = quint32(i);
    return positions;
}
