// Which records are listed, and in which order.
#include "model/recordcheck.h"
#include "model/scandatamodel.h"

#include <algorithm>
#include <utility>

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

} // namespace

void ScanDataModel::openFolder(TreeItemData *folder)
{
    if (!isPlausible(folder) || isOfUnknownContents(*folder))
        return;
    const QPointer<TreeItemData> guard(folder);
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
    m_records.clear();
    m_order = {};
    m_sortedKeys.reset();
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
    const ListedRecords::Parts before = m_records.parts();
    m_earlier.begin(before.folders, before.files);
    const ListedRecords::Parts same = m_records.replace(folder, m_earlier);
    const ListedRecords::Parts now = m_records.parts();
    const bool unchanged = same == before && now == before;
    if (unchanged && isStillInOrder(folder)) {
        m_earlier.forget();
        m_unchangedPrefix = int(now.total());
        return;
    }

    RowOrder previous = std::exchange(m_order, {});
    m_sortedKeys.reset();
    if (m_sorted) {
        const bool grown = now.folders >= before.folders && now.files >= before.files;
        if (!grown || previous.empty()) {
            m_order = sortedOrder({});
        } else if (now.folders == before.folders) {
            m_order = sortedOrder(previous.unpacked());
        } else {
            RowSort::Order known = previous.unpacked();
            for (quint32 &position : known) {
                if (position >= before.folders)
                    position += quint32(now.folders - before.folders);
            }
            m_order = sortedOrder(known);
        }
        if (unchanged) // and may be so again
            m_sortedKeys = ListedRecords::fingerprint(m_sortRole, folder);
    }
    m_unchangedPrefix = prefixSince(previous, before, same);
    m_earlier.end(std::move(previous), now.folders, now.files);
}

int ScanDataModel::prefixSince(const RowOrder &previous, const ListedRecords::Parts &before,
                               const ListedRecords::Parts &same) const
{
    const ListedRecords::Parts now = m_records.parts();
    const bool foldersStayed = same.folders == before.folders && now.folders == before.folders;
    if (previous.empty() && m_order.empty())
        return int(same.folders + (foldersStayed ? same.files : 0));
    const size_t comparable = std::min(before.total(), now.total());
    size_t row = 0;
    for (; row < comparable; ++row) {
        size_t position = previous.empty() ? row : previous[row];
        const bool isFolder = position < before.folders;
        if (isFolder ? position >= same.folders : position - before.folders >= same.files)
            break;
        if (!isFolder)
            position += now.folders - before.folders;
        if (position != positionOf(row))
            break;
    }
    return int(row);
}

bool ScanDataModel::isStillInOrder(const TreeItemData &folder) const
{
    if (!m_sorted || m_order.empty())
        return !m_sorted && m_order.empty();
    return m_sortedKeys && *m_sortedKeys == ListedRecords::fingerprint(m_sortRole, folder);
}

RowOrder ScanDataModel::sortedOrder(const RowSort::Order &known) const
{
    return RowOrder(RowSort::sorted(m_records.all(), m_sortRole, m_sortOrder, known));
}

EarlierRows::Runs ScanDataModel::rowsNow(const EarlierRows::Runs &before) const
{
    const QMutexLocker lock(&m_lock);
    if (!m_earlier.isKnown())
        return before;
    const EarlierRows::Places places = m_earlier.placesOf(before);
    EarlierRows::Runs runs;
    for (size_t row = 0; row < m_records.size(); ++row) {
        const size_t position = positionOf(row);
        const bool found = places.positions[position]
            || (!places.elsewhere.isEmpty() && places.elsewhere.contains(m_records.at(position)));
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
        const ListedRecords::Parts parts = m_records.parts();
        m_earlier.begin(parts.folders, parts.files);
        m_unchangedPrefix = 0;
        const auto records = m_records.all();
        RowOrder previous = std::exchange(
            m_order, RowOrder(RowSort::sorted(records, m_sortRole, m_sortOrder)));
        m_sortedKeys = ListedRecords::fingerprint(m_sortRole, records);
        remapPersistentIndexes(previous);
        m_earlier.end(std::move(previous), parts.folders, parts.files);
    }
    emit layoutChanged({}, SortHint);
}

void ScanDataModel::remapPersistentIndexes(const RowOrder &previous)
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
