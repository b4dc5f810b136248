#include "model/listedrecords.h"

#include "model/earlierrows.h"
#include "model/keyfingerprint.h"
#include "model/recordcheck.h"

#include <QStringView>

#include <array>
#include <atomic>
#include <cstring>

namespace {

TreeItemData *plausible(TreeItemData *record)
{
    return isPlausible(record) ? record : nullptr;
}

} // namespace

ListedRecords::Parts ListedRecords::replace(const TreeItemData &folder, EarlierRows &earlier)
{
    const Parts before = parts();
    Parts same;
    same.files = replacePart(before.folders, before.files, folder.childFiles, earlier);
    same.folders = replacePart(0, before.folders, folder.childFolders, earlier);
    m_folderCount = size_t(folder.childFolders.size());
    return same;
}

void ListedRecords::clear()
{
    shrinkGuards(0);
    *this = ListedRecords();
}

size_t ListedRecords::replacePart(size_t first, size_t size, const QList<TreeItemData *> &children,
                                  EarlierRows &earlier)
{
    const size_t newSize = size_t(children.size());
    const size_t common = std::min(size, newSize);
    const size_t same = firstDifference(first, common, children);
    if (earlier.isKnown()) {
        const auto leaves = [&](size_t i) {
            earlier.leaves(first + i, std::move(m_guards[first + i]));
        };
        listChanged(first, same, common, children, leaves);
        for (size_t i = newSize; i < size; ++i)
            leaves(i);
    } else {
        const size_t middle = same + (common - same) / 2;
        const auto forget = [](size_t) {};
        runInParallel(
            common - same >= WorthTwoThreads,
            [&] { listChanged(first, same, middle, children, forget); },
            [&] { listChanged(first, middle, common, children, forget); });
    }
    if (newSize < size) {
        if (first + size == m_guards.size())
            shrinkGuards(first + newSize);
        else
            m_guards.remove(first + newSize, size - newSize);
        m_letters.remove(first + newSize, size - newSize);
        m_fileMarks.remove(first + newSize, size - newSize);
        m_secondaryMarks.remove(first + newSize, size - newSize);
    } else if (newSize > size) {
        m_guards.insert(first + size, newSize - size);
        m_letters.insert(first + size, newSize - size);
        m_fileMarks.insert(first + size, newSize - size);
        m_secondaryMarks.insert(first + size, newSize - size);
        listInParallel(first, size, newSize, children);
    }
    return same;
}

void ListedRecords::shrinkGuards(size_t size)
{
    // each guard gives up its share in a counter of its own
    const size_t leaving = m_guards.size() - size;
    Blocks<Guard> half = m_guards.takeBlocksFrom(size + leaving / 2);
    runInParallel(
        leaving >= WorthTwoThreads, [&half] { half.resize(0); }, [&] { m_guards.resize(size); });
}

size_t ListedRecords::firstDifference(size_t first, size_t end,
                                      const QList<TreeItemData *> &children) const
{
    const size_t middle = end / 2;
    size_t upper = 0;
    size_t lower = 0;
    runInParallel(
        end >= WorthTwoThreads, [&] { upper = difference(first, 0, middle, children); },
        [&] { lower = difference(first, middle, end, children); });
    return upper < middle ? upper : lower;
}

size_t ListedRecords::difference(size_t first, size_t from, size_t end,
                                 const QList<TreeItemData *> &children) const
{
    const auto child = children.constBegin();
    while (from < end) {
        const Guard *const guards = &m_guards[first + from];
        const size_t count = m_guards.adjacent(first + from, first + end);
        for (size_t i = 0; i < count; ++i) {
            TreeItemData *const record = child[int(from + i)];
            // the guard, not the address: another record may live where one has died
            const TreeItemData *const listed = guards[i].data();
            if (listed != record && listed != plausible(record))
                return from + i;
        }
        from += count;
    }
    return end;
}

template <typename Leaves>
void ListedRecords::listChanged(size_t first, size_t from, size_t end,
                                const QList<TreeItemData *> &children, Leaves leaves)
{
    // neighbours together: most lists that change at all change in all that follows
    while ((from = difference(first, from, end, children)) < end) {
        size_t next = from;
        do
            leaves(next++);
        while (next < end && difference(first, next, next + 1, children) == next);
        listInParallel(first, from, next, children);
        from = next;
    }
}

void ListedRecords::listInParallel(size_t first, size_t from, size_t end,
                                   const QList<TreeItemData *> &children)
{
    const size_t middle = from + (end - from) / 2;
    runInParallel(
        end - from >= WorthTwoThreads, [&] { list(first, from, middle, children); },
        [&] { list(first, middle, end, children); });
}

void ListedRecords::list(size_t first, size_t from, size_t end,
                         const QList<TreeItemData *> &children)
{
    // A processor fetches many records at once as long as it is asked for little of each, and for
    // nothing atomic, as the count of a guard is. So a batch is gone through three times.
    constexpr size_t Batch = 64;
    std::array<QStringView, Batch> names;
    const auto child = children.constBegin();
    while (from < end) {
        const size_t at = first + from;
        const size_t count = std::min(Batch, m_guards.adjacent(at, first + end));
        quint8 *const fileMarks = &m_fileMarks[at];
        quint8 *const secondaryMarks = &m_secondaryMarks[at];
        for (size_t i = 0; i < count; ++i) {
            const TreeItemData *const record = plausible(child[int(from + i)]);
            names[i] = record ? QStringView(record->name) : QStringView();
            fileMarks[i] = record ? idMarkOf(record->fileId) : quint8(0);
            secondaryMarks[i] = record ? idMarkOf(record->secondaryId) : quint8(0);
        }
        quint16 *const letters = &m_letters[at];
        for (size_t i = 0; i < count; ++i)
            letters[i] = NameLetters::of(names[i]);
        Guard *const guards = &m_guards[at];
        for (size_t i = 0; i < count; ++i)
            guards[i] = plausible(child[int(from + i)]);
        from += count;
    }
}

template <typename Matches>
std::vector<size_t> ListedRecords::positionsByMark(RecordId which, qint64 id, bool one,
                                                   Matches matches) const
{
    const Blocks<quint8> &marks = which == RecordId::File ? m_fileMarks : m_secondaryMarks;
    std::vector<size_t> found;
    std::vector<size_t> candidates; // apart from looking for them, so that many are read at once
    for (size_t from = 0; from < size(); from += marks.adjacent(from, size())) {
        const quint8 *const first = &marks[from];
        const quint8 *const end = first + marks.adjacent(from, size());
        candidates.clear();
        const auto next = [&](const quint8 *mark) {
            return static_cast<const quint8 *>(std::memchr(mark, idMarkOf(id), size_t(end - mark)));
        };
        for (const quint8 *mark = next(first); mark; mark = next(mark + 1))
            candidates.push_back(from + size_t(mark - first));
        for (const size_t position : candidates) {
            const TreeItemData *const record = at(position);
            if (!record || !matches(*record))
                continue;
            found.push_back(position);
            if (one)
                return found;
        }
    }
    return found;
}

template <typename Matches>
std::vector<size_t> ListedRecords::positionsOneByOne(bool one, Matches matches) const
{
    std::atomic<bool> settled{false}; // by the first half: nothing comes earlier
    const auto positions = [&](size_t from, size_t end) {
        std::vector<size_t> found;
        for (size_t position = from; position < end && !settled; ++position) {
            const TreeItemData *const record = at(position);
            if (!record || !matches(*record))
                continue;
            found.push_back(position);
            if (one) {
                if (from == 0)
                    settled = true;
                break;
            }
        }
        return found;
    };
    std::vector<size_t> found;
    std::vector<size_t> later;
    runInParallel(
        size() >= WorthTwoThreads, [&] { found = positions(0, size() / 2); },
        [&] { later = positions(size() / 2, size()); });
    if (!one || found.empty())
        found.insert(found.end(), later.begin(), later.end());
    return found;
}

std::vector<size_t> ListedRecords::positionsOfId(RecordId which, qint64 id, bool one) const
{
    const auto hasId = [which, id](const TreeItemData &record) {
        return idOf(record, which) == id;
    };
    const std::vector<size_t> found = positionsByMark(which, id, one, hasId);
    return found.empty() ? positionsOneByOne(one, hasId) : found;
}

std::vector<size_t> ListedRecords::positionsOf(const TreeItemData *record, bool one) const
{
    const auto isIt = [record](const TreeItemData &listed) { return &listed == record; };
    const std::vector<size_t> found = positionsByMark(RecordId::File, record->fileId, one, isIt);
    return found.empty() ? positionsOneByOne(one, isIt) : found;
}

std::vector<const TreeItemData *> ListedRecords::all() const
{
    std::vector<const TreeItemData *> records(size());
    const auto collect = [&](size_t from, size_t end) {
        for (; from < end; ++from)
            records[from] = at(from);
    };
    runInParallel(
        size() >= WorthTwoThreads, [&] { collect(0, size() / 2); },
        [&] { collect(size() / 2, size()); });
    return records;
}

template <typename RecordAt>
quint64 ListedRecords::fingerprintOf(int sortRole, size_t size, RecordAt recordAt)
{
    const auto half = [=](size_t from, size_t end) {
        KeyFingerprint print(sortRole);
        std::array<const TreeItemData *, KeyFingerprint::MostAtOnce> records;
        while (from < end) {
            const size_t count = std::min(records.size(), end - from);
            for (size_t i = 0; i < count; ++i)
                records[i] = recordAt(from + i);
            print.add(records.data(), count);
            from += count;
        }
        return print.value();
    };
    quint64 first = 0;
    quint64 second = 0;
    runInParallel(
        size >= WorthTwoThreads, [&] { first = half(0, size / 2); },
        [&] { second = half(size / 2, size); });
    KeyFingerprint both(sortRole);
    both.add(first);
    both.add(second);
    return both.value();
}

quint64 ListedRecords::fingerprint(int sortRole, const std::vector<const TreeItemData *> &records)
{
    return fingerprintOf(sortRole, records.size(),
                         [&records](size_t position) { return records[position]; });
}

quint64 ListedRecords::fingerprint(int sortRole, const TreeItemData &folder)
{
    // without a look at the guards, whose counters lie elsewhere again
    const QList<TreeItemData *> &folders = folder.childFolders;
    const QList<TreeItemData *> &files = folder.childFiles;
    const auto folderCount = size_t(folders.size());
    return fingerprintOf(sortRole, folderCount + size_t(files.size()), [&](size_t position) {
        return plausible(position < folderCount ? folders.at(int(position))
                                                : files.at(int(position - folderCount)));
    });
}
