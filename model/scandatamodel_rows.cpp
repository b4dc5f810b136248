// Which records are listed, and in which order.
#include "model/nameletters.h"
#include "model/recordcheck.h"
#include "model/scandatamodel.h"

#include <algorithm>

namespace {

constexpr auto SortHint = QAbstractItemModel::VerticalSortHint;

int sortRoleOf(int column)
{
    switch (column) {
    case ScanDataModel::SizeColumn:
        return SizeRole;
    case ScanDataModel::TypeColumn:
        return KindRole;
    case ScanDataModel::DateColumn:
        return ModifiedTimeRole;
    case ScanDataModel::PathColumn:
        return PathTextRole;
    default:
        return NameRole;
    }
}

int rootTypeOf(const TreeItemData *item)
{
    constexpr int DeepestTree = 4096; // a ring of parents must not hold the window up
    for (int depth = 0; depth < DeepestTree && isPlausible(item->parent); ++depth)
        item = item->parent;
    return item->rootType;
}

bool isOfUnknownContents(const TreeItemData &folder)
{
    return folder.itemCount < 0 && folder.extraCount < 1;
}

TreeItemData *plausible(TreeItemData *record)
{
    return isPlausible(record) ? record : nullptr;
}

quint32 lettersOf(const TreeItemData *record)
{
    return record ? NameLetters::of(record->name) : 0;
}

} // namespace

void ScanDataModel::openFolder(TreeItemData *folder)
{
    if (!isPlausible(folder) || isOfUnknownContents(*folder))
        return;
    const Guard guard(folder);
    const QMutexLocker lock(&m_lock);
    m_rootType = rootTypeOf(folder);
    beginResetModel();
    if (guard)
        takeChildren(*guard);
    else
        takeChildren(TreeItemData());
    endResetModel();
}

void ScanDataModel::clear()
{
    const QMutexLocker lock(&m_lock);
    beginResetModel();
    std::vector<Guard>().swap(m_items);
    std::vector<quint32>().swap(m_letters);
    RowSort::Order().swap(m_order);
    m_folderCount = 0;
    m_unchangedPrefix = 0;
    m_earlier.forget();
    endResetModel();
}

void ScanDataModel::clearSort()
{
    m_sorted = false;
}

void ScanDataModel::takeChildren(const TreeItemData &folder)
{
    const size_t oldFolders = m_folderCount;
    const size_t oldFiles = m_items.size() - m_folderCount;
    const size_t newFolders = size_t(folder.childFolders.size());
    const size_t newFiles = size_t(folder.childFiles.size());
    const size_t newSize = newFolders + newFiles;
    if (m_items.capacity() < newSize) {
        m_items.reserve(newSize + newSize / 8); // a scan comes back for more
        m_letters.reserve(newSize + newSize / 8);
    }
    m_earlier.note(m_order, oldFolders, oldFiles);
    const size_t sameFiles = replacePart(oldFolders, oldFiles, folder.childFiles);
    const size_t sameFolders = replacePart(0, oldFolders, folder.childFolders);
    m_folderCount = newFolders;
    m_earlier.noteParts(newFolders, newFiles);

    RowSort::Order previous;
    previous.swap(m_order);
    const size_t oldSize = oldFolders + oldFiles;
    const auto oldPosition = [&](size_t row) { return previous.empty() ? row : previous[row]; };
    // where a position of before is now
    const auto moved = [&](size_t position) {
        return position < oldFolders ? position : position - oldFolders + newFolders;
    };
    if (m_sorted) {
        RowSort::Order known;
        const bool grown = newFolders >= oldFolders && newFiles >= oldFiles;
        if (grown && !previous.empty()) {
            known.resize(oldSize);
            std::transform(previous.begin(), previous.end(), known.begin(),
                           [&](quint32 position) { return quint32(moved(position)); });
        }
        m_order = sortedOrder(known);
    }

    const size_t comparable = std::min(oldSize, newSize);
    size_t row = 0;
    for (; row < comparable; ++row) {
        const size_t position = oldPosition(row);
        const bool same = position < oldFolders ? position < sameFolders
                                                : position - oldFolders < sameFiles;
        if (!same || moved(position) != positionOf(row))
            break;
    }
    m_unchangedPrefix = int(row);
}

size_t ScanDataModel::replacePart(size_t first, size_t size, const QList<TreeItemData *> &children)
{
    const size_t newSize = size_t(children.size());
    const size_t common = std::min(size, newSize);
    size_t same = common;
    for (size_t i = 0; i < common; ++i) {
        TreeItemData *const child = plausible(children.at(int(i)));
        // the guard, not the address: another record may live where one has died
        if (m_items[first + i].data() == child)
            continue;
        if (m_earlier.isKnown())
            m_earlier.leaves(first + i, std::move(m_items[first + i]));
        m_items[first + i] = child;
        m_letters[first + i] = lettersOf(child);
        same = std::min(same, i);
    }
    const auto begin = m_items.begin() + std::ptrdiff_t(first);
    const auto letters = m_letters.begin() + std::ptrdiff_t(first);
    if (newSize < size) {
        for (size_t i = newSize; i < size && m_earlier.isKnown(); ++i)
            m_earlier.leaves(first + i, std::move(m_items[first + i]));
        m_items.erase(begin + std::ptrdiff_t(newSize), begin + std::ptrdiff_t(size));
        m_letters.erase(letters + std::ptrdiff_t(newSize), letters + std::ptrdiff_t(size));
    } else if (newSize > size) {
        auto guard = m_items.insert(begin + std::ptrdiff_t(size), newSize - size, Guard());
        auto letter = m_letters.insert(letters + std::ptrdiff_t(size), newSize - size, 0);
        for (size_t i = size; i < newSize; ++i) {
            TreeItemData *const child = plausible(children.at(int(i)));
            *guard++ = child;
            *letter++ = lettersOf(child);
        }
    }
    return same;
}

RowSort::Order ScanDataModel::sortedOrder(const RowSort::Order &known) const
{
    std::vector<const TreeItemData *> records(m_items.size());
    std::transform(m_items.begin(), m_items.end(), records.begin(),
                   [](const Guard &guard) { return guard.data(); });
    return RowSort::sorted(records, m_sortRole, m_sortOrder, known);
}

EarlierRows::Runs ScanDataModel::rowsNow(const EarlierRows::Runs &before) const
{
    const QMutexLocker lock(&m_lock);
    if (!m_earlier.isKnown())
        return before;
    const EarlierRows::Places places = m_earlier.placesOf(before);
    EarlierRows::Runs runs;
    for (size_t row = 0; row < m_items.size(); ++row) {
        const size_t position = positionOf(row);
        const bool found = places.positions[position]
            || (!places.elsewhere.isEmpty() && places.elsewhere.contains(m_items[position].data()));
        if (!found)
            continue;
        if (!runs.isEmpty() && runs.last().second == int(row) - 1)
            runs.last().second = int(row);
        else
            runs.append({int(row), int(row)});
    }
    return runs;
}

void ScanDataModel::sort(int column, Qt::SortOrder order)
{
    m_sortOrder = order;
    m_sortRole = sortRoleOf(column);
    m_sorted = true;
    if (rowCount() == 0)
        return;
    emit layoutAboutToBeChanged({}, SortHint);
    {
        const QMutexLocker lock(&m_lock);
        m_earlier.note(m_order, m_folderCount, m_items.size() - m_folderCount);
        m_unchangedPrefix = 0;
        RowSort::Order previous = sortedOrder({});
        previous.swap(m_order);
        remapPersistentIndexes(previous);
    }
    emit layoutChanged({}, SortHint);
}

void ScanDataModel::remapPersistentIndexes(const RowSort::Order &previous)
{
    const QModelIndexList from = persistentIndexList();
    if (from.isEmpty())
        return;
    std::vector<int> rows(m_order.size());
    for (size_t row = 0; row < m_order.size(); ++row)
        rows[m_order[row]] = int(row);

    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &index : from) {
        const size_t oldRow = size_t(index.row());
        const int row = rows[previous.empty() ? oldRow : previous[oldRow]];
        to.append(createIndex(row, index.column(), index.internalPointer()));
    }
    changePersistentIndexList(from, to);
}
