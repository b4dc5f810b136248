#include "model/scandatamodel.h"

#include "common/translation.h"
#include "model/itemtext.h"
#include "model/spokentext.h"

#include <QFileInfo>
#include <QIcon>

#include <algorithm>

namespace {

constexpr int TextAlignment = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int NumberAlignment = Qt::AlignRight | Qt::AlignVCenter;

const char *const s_headerKeys[ScanDataModel::ColumnCount] = {"name", "size", "type",
                                                              "date_modified", "path"};

int alignmentOf(int column)
{
    return column == ScanDataModel::SizeColumn ? NumberAlignment : TextAlignment;
}

QIcon driveOrFolderIcon(const TreeItemData &item)
{
    QString path = item.path;
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (path != QLatin1String("/")) // with another slash the name would be that of a server
        path += QLatin1Char('/');
    const QFileInfo info(path + item.name);
    if (info.isRoot())
        return QIcon(QStringLiteral(":/Resources/icon80_local disk-normal@2x.png"));
    if (info.isDir())
        return QIcon(QStringLiteral(":/Resources/icon80_folder@2x.png"));
    return {};
}

} // namespace

ScanDataModel::ScanDataModel(QObject *parent)
    : QAbstractItemModel(parent)
{
}

ScanDataModel::~ScanDataModel() = default;

TreeItemData *ScanDataModel::itemAt(int row) const
{
    const QMutexLocker lock(&m_lock);
    if (row < 0 || size_t(row) >= m_records.size())
        return nullptr;
    return m_records.at(positionOf(size_t(row)));
}

TreeItemData *ScanDataModel::itemAt(const QModelIndex &index) const
{
    return index.model() == this ? itemAt(index.row()) : nullptr;
}

int ScanDataModel::firstRow(const std::vector<size_t> &positions) const
{
    if (positions.empty())
        return -1;
    if (m_order.empty())
        return int(positions.front());
    if (positions.size() == 1)
        return int(m_order.rowOf(positions.front()));
    size_t row = 0;
    while (!std::binary_search(positions.begin(), positions.end(), m_order[row]))
        ++row;
    return int(row);
}

int ScanDataModel::rowOfId(RecordId which, qint64 id) const
{
    const QMutexLocker lock(&m_lock);
    return firstRow(m_records.positionsOfId(which, id, m_order.empty()));
}

int ScanDataModel::rowOfFileId(qint64 fileId) const
{
    return rowOfId(RecordId::File, fileId);
}

int ScanDataModel::rowOfSecondaryId(qint64 secondaryId) const
{
    return rowOfId(RecordId::Secondary, secondaryId);
}

int ScanDataModel::rowOf(const TreeItemData *item) const
{
    const QMutexLocker lock(&m_lock);
    return firstRow(m_records.positionsOf(item, m_order.empty()));
}

void ScanDataModel::setAllCheckStates(int state)
{
    {
        const QMutexLocker lock(&m_lock);
        m_records.visitAll([state](TreeItemData &item) { item.checkState = state; });
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
    return int(m_records.size());
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
            if (!m_records.mayBegin(position, pattern))
                continue;
            const TreeItemData *const item = m_records.at(position);
            if (item && item->name.startsWith(text, Qt::CaseInsensitive))
                return int(row);
        }
        return -1;
    };
    const size_t first = size_t(from);
    const int row = search(first, m_records.size());
    return row >= 0 ? row : search(0, std::min(first, m_records.size()));
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
