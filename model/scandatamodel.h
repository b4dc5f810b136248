#pragma once

#include "model/earlierrows.h"
#include "model/listedrecords.h"
#include "model/recoverability.h"
#include "model/roworder.h"
#include "model/rowsort.h"
#include "model/scanitemrole.h"

#include "platform/item/treeitemdata.h"

#include <QAbstractItemModel>
#include <QMutex>
#include <QMutexLocker>
#include <QPointer>
#include <QVector>

#include <functional>
#include <optional>
#include <vector>

/// Flat, sortable rows over the host's scan records. The host owns the records and may destroy one
/// at any time: each is held by a QPointer, and a dead one answers every role with nothing. The
/// only thing written into a record is its check state. Lives on the GUI thread.
class ScanDataModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, SizeColumn, TypeColumn, DateColumn, PathColumn, ColumnCount };

    explicit ScanDataModel(QObject *parent = nullptr);
    ~ScanDataModel() override;

    /// Rows become the children of \a folder, folders first, in the host's order, or in the order
    /// that was chosen by sort(). Ignored for a null folder and for one of which nothing is known.
    /// Always a reset; cheap when the folder has only grown since it was opened last.
    void openFolder(TreeItemData *folder);
    void clear();
    /// Forgets the order chosen by sort(); the rows stay where they are until the next
    /// openFolder().
    void clearSort();
    bool isSorted() const { return m_sorted; }
    int sortRole() const { return m_sortRole; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }
    int rootType() const { return m_rootType; }

    /// The record of a row; null when the row is outside or its record has died.
    TreeItemData *itemAt(int row) const;
    TreeItemData *itemAt(const QModelIndex &index) const;
    /// First row that had this id when it was listed and still has it, or else the first one that
    /// has it now; -1 when there is none.
    int rowOfFileId(qint64 fileId) const;
    int rowOfSecondaryId(qint64 secondaryId) const;

    /// To put selection and scroll position back after a reset:
    /// How many of the first rows show the same records as before the last openFolder(): row
    /// numbers below it still hold. Never too many; all of them when the folder has only grown.
    int unchangedPrefix() const { return m_unchangedPrefix; }
    /// Row of a living record, -1 when it is not listed.
    int rowOf(const TreeItemData *item) const;
    /// The next openFolder() or sort() notes where its rows come from, until forgetRows().
    void rememberRows() { m_earlier.expect(); }
    void forgetRows() { m_earlier.forget(); }
    /// Where the records of these rows of before are now, by rows; a record that has died or left
    /// is not among them. The same rows when nothing has changed since rememberRows().
    EarlierRows::Runs rowsNow(const EarlierRows::Runs &before) const;

    /// What the model cannot know by itself, for its accessible description.
    using RecoverabilitySource = std::function<Recoverability(const TreeItemData &)>;
    void setRecoverabilitySource(RecoverabilitySource source);

    /// Writes \a state into every listed record in one sweep and announces one range.
    void setAllCheckStates(int state);
    /// The host has changed check states: announces all rows as one range.
    void refreshCheckStates();
    /// The same for the rows \a first to \a last.
    void refreshCheckStates(int first, int last);
    /// Hands the living records of the rows \a first to \a last to \a visit, in one sweep. \a visit
    /// must leave the model alone.
    template <typename Visit>
    void visitRows(int first, int last, Visit visit) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    /// All rows, whatever \a parent: the model is flat and is asked about its top only.
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Writes a check state; returns false always, as callers may not rely on the result.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// Names are found without reading them all, which is what a view does when the user types.
    QModelIndexList match(const QModelIndex &start, int role, const QVariant &value, int hits,
                          Qt::MatchFlags flags) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    /// Takes over the children of \a folder, keeping the guards that still fit.
    void takeChildren(const TreeItemData &folder);
    /// How many of the first rows show the same records as with \a previous, the order of before,
    /// when there were \a before records, of which the first \a same of each part have stayed.
    int prefixSince(const RowOrder &previous, const ListedRecords::Parts &before,
                    const ListedRecords::Parts &same) const;
    /// The first row from \a from on, and then from the top, whose name begins with \a text.
    int rowOfName(const QString &text, int from) const;
    /// The rows need not be put in order again when all children of \a folder are where they were.
    bool isStillInOrder(const TreeItemData &folder) const;
    RowOrder sortedOrder(const RowSort::Order &known) const;
    /// Gives persistent indexes the rows that their records have now.
    void remapPersistentIndexes(const RowOrder &previous);
    QVariant displayText(const TreeItemData &item, int column) const;
    QString spokenDescription(const TreeItemData &item) const;

    size_t positionOf(size_t row) const { return m_order.empty() ? row : m_order[row]; }
    int firstRow(const std::vector<size_t> &positions) const;
    int rowOfId(RecordId which, qint64 id) const;

    ListedRecords m_records;
    RowOrder m_order;                    ///< position in m_records by row; empty: the same
    std::optional<quint64> m_sortedKeys; ///< what m_order was made from, when that is known
    EarlierRows m_earlier;
    int m_sortRole = NameRole;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    RecoverabilitySource m_recoverability;
    mutable QRecursiveMutex m_lock;
    int m_rootType = 0;
    int m_unchangedPrefix = 0;
    bool m_sorted = false;
};

template <typename Visit>
void ScanDataModel::visitRows(int first, int last, Visit visit) const
{
    const QMutexLocker lock(&m_lock);
    const size_t end = size_t(qBound(0, last + 1, int(m_records.size())));
    const size_t from = size_t(qMax(0, first));
    if (m_order.empty()) {
        m_records.visit(from, end, visit);
        return;
    }
    for (size_t row = from; row < end; ++row) {
        if (TreeItemData *const item = m_records.at(m_order[row]))
            visit(*item);
    }
}
