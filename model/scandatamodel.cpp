#include "model/scandatamodel.h"

#include "common/translation.h"
#include "model/itemtext.h"
#include "model/nameletters.h"
#include "model/recordcheck.h"
#include "model/spokentext.h"

#include <QFileInfo>
#include <QIcon>

#include <algorithm>

namespace {

constexpr int TextAlignment = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int NumberAlignment = Qt::AlignRight | Qt::AlignVCenter;
constexpr auto SortHint = QAbstractItemModel::VerticalSortHint;

const char *const s_headerKeys[ScanDataModel::ColumnCount] = {"name", "size", "type",
                                                              "date_modified", "path"};

int alignmentOf(int column)
{
    return column == ScanDataModel::SizeColumn ? NumberAlignment : TextAlignment;
}

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

QIcon driveOrFolderIcon(const TreeItemData &item)
{
    QString path = item.path;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QFileInfo info(path + QLatin1Char('/') + item.name);
    if (info.isRoot())
        return QIcon(QStringLiteral(":/Resources/icon80_local disk-normal@2x.png"));
    if (info.isDir())
        return QIcon(QStringLiteral(":/Resources/icon80_folder@2x.png"));
    return {};
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

ScanDataModel::ScanDataModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

ScanDataModel::~ScanDataModel() = default;

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

TreeItemData *ScanDataModel::itemAt(int row) const
{
    const QMutexLocker lock(&m_lock);
    if (row < 0 || size_t(row) >= m_items.size())
        return nullptr;
    return guardAt(size_t(row)).data();
}

TreeItemData *ScanDataModel::itemAt(const QModelIndex &index) const
{
    return index.model() == this ? itemAt(index.row()) : nullptr;
}

template <typename Matches>
int ScanDataModel::findRow(Matches matches) const
{
    const QMutexLocker lock(&m_lock);
    for (size_t row = 0; row < m_items.size(); ++row) {
        const TreeItemData *const item = guardAt(row).data();
        if (item && matches(item))
            return int(row);
    }
    return -1;
}

int ScanDataModel::rowOfFileId(qint64 fileId) const
{
    return findRow([fileId](const TreeItemData *item) { return item->fileId == fileId; });
}

int ScanDataModel::rowOfSecondaryId(qint64 secondaryId) const
{
    return findRow(
        [secondaryId](const TreeItemData *item) { return item->secondaryId == secondaryId; });
}

int ScanDataModel::rowOf(const TreeItemData *item) const
{
    return findRow([item](const TreeItemData *listed) { return listed == item; });
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

void ScanDataModel::setAllCheckStates(int state)
{
    {
        const QMutexLocker lock(&m_lock);
        for (const Guard &item : m_items) {
            if (item)
                item->checkState = state;
        }
    }
    refreshCheckStates();
}

void ScanDataModel::refreshCheckStates()
{
    refreshCheckStates(0, rowCount() - 1);
}

void ScanDataModel::refreshCheckStates(int first, int last)
{
    first = std::max(first, 0);
    last = std::min(last, rowCount() - 1);
    if (first > last)
        return;
    // not index(): it is invalid where a record has died, and then nothing would be repainted
    emit dataChanged(createIndex(first, 0), createIndex(last, ColumnCount - 1),
                     {Qt::CheckStateRole});
}

QModelIndex ScanDataModel::index(int row, int column, const QModelIndex &parent) const
{
    const QMutexLocker lock(&m_lock);
    if (!hasIndex(row, column, parent))
        return {};
    TreeItemData *const item = itemAt(row);
    return item ? createIndex(row, column, item) : QModelIndex();
}

QModelIndex ScanDataModel::parent(const QModelIndex &) const
{
    return {};
}

int ScanDataModel::rowCount(const QModelIndex &) const
{
    const QMutexLocker lock(&m_lock);
    return int(m_items.size());
}

int ScanDataModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

Qt::ItemFlags ScanDataModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

QVariant ScanDataModel::data(const QModelIndex &index, int role) const
{
    const QMutexLocker lock(&m_lock);
    const TreeItemData *const item = itemAt(index);
    if (!item)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return displayText(*item, index.column());
    case Qt::DecorationRole:
        return driveOrFolderIcon(*item);
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::CheckStateRole:
        return item->checkState;
    case Qt::AccessibleTextRole:
        return index.column() == NameColumn ? ItemText::displayName(*item)
                                            : displayText(*item, index.column());
    case Qt::AccessibleDescriptionRole:
        return spokenDescription(*item);
    case PathTextRole:
        return ItemText::displayPath(item, m_rootType);
    case NameRole:
        return item->name;
    case ModifiedTimeRole:
        return item->modifiedTime;
    case KindRole:
        return item->kind;
    case FileIdRole:
        return item->fileId;
    case SecondaryIdRole:
        return item->secondaryId;
    case SizeRole:
        return ItemText::bytes(*item);
    case CountRole:
        return item->itemCount;
    default:
        return {};
    }
}

QVariant ScanDataModel::displayText(const TreeItemData &item, int column) const
{
    switch (column) {
    case NameColumn:
        return item.name;
    case SizeColumn:
        return ItemText::size(item);
    case TypeColumn:
        return ItemText::type(item);
    case DateColumn:
        return ItemText::modified(item);
    case PathColumn:
        return ItemText::displayPath(&item, m_rootType);
    default:
        return {};
    }
}

QString ScanDataModel::spokenDescription(const TreeItemData &item) const
{
    return SpokenText::description(
        item, m_recoverability ? m_recoverability(item) : recoverabilityOf(&item, false, true));
}

void ScanDataModel::setRecoverabilitySource(RecoverabilitySource source)
{
    m_recoverability = std::move(source);
}

bool ScanDataModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole)
        return false;
    bool isNumber = false;
    const int state = value.toInt(&isNumber);
    if (!isNumber)
        return false;
    {
        const QMutexLocker lock(&m_lock);
        TreeItemData *const item = itemAt(index);
        if (!item)
            return false;
        item->checkState = state;
    }
    emit dataChanged(index, index, {Qt::CheckStateRole});
    return false;
}

QModelIndexList ScanDataModel::match(const QModelIndex &start, int role, const QVariant &value,
                                     int hits, Qt::MatchFlags flags) const
{
    const bool isName = role == NameRole
        || (role == Qt::DisplayRole && start.column() == NameColumn);
    if (!start.isValid() || !isName || hits != 1 || flags != (Qt::MatchStartsWith | Qt::MatchWrap))
        return QAbstractItemModel::match(start, role, value, hits, flags);
    const QModelIndex found = index(rowOfName(value.toString(), start.row()), start.column());
    return found.isValid() ? QModelIndexList{found} : QModelIndexList();
}

int ScanDataModel::rowOfName(const QString &text, int from) const
{
    const NameLetters::Pattern pattern(text);
    const QMutexLocker lock(&m_lock);
    const auto search = [&](size_t row, size_t end) {
        for (; row < end; ++row) {
            const size_t position = positionOf(row);
            if (!pattern.fits(m_letters[position]))
                continue;
            const TreeItemData *const item = m_items[position].data();
            if (item && item->name.startsWith(text, Qt::CaseInsensitive))
                return int(row);
        }
        return -1;
    };
    const size_t first = size_t(from);
    const int row = search(first, m_items.size());
    return row >= 0 ? row : search(0, std::min(first, m_items.size()));
}

QVariant ScanDataModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(section);
    if (role == Qt::DisplayRole && section >= 0 && section < ColumnCount)
        return translatedKey(s_headerKeys[section]);
    return {};
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
