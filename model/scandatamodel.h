#pragma once

#include "model/scanitemrole.h"

#include "platform/item/treeitemdata.h"

#include <QAbstractItemModel>
#include <QMutex>
#include <QPointer>

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
    void openFolder(TreeItemData *folder);
    void clear();
    /// Forgets the order chosen by sort(); the rows stay where they are until the next openFolder().
    void clearSort();
    bool isSorted() const { return m_sorted; }
    int sortRole() const { return m_sortRole; }
    Qt::SortOrder sortOrder() const { return m_sortOrder; }
    int rootType() const { return m_rootType; }

    /// The record of a row; null when the row is outside or its record has died.
    TreeItemData *itemAt(int row) const;
    TreeItemData *itemAt(const QModelIndex &index) const;
    /// First row with this id; -1 when there is none.
    int rowOfFileId(qint64 fileId) const;
    int rowOfSecondaryId(qint64 secondaryId) const;

    /// Writes \a state into every listed record in one sweep and announces one range.
    void setAllCheckStates(int state);
    /// The host has changed check states: announces all rows as one range.
    void refreshCheckStates();

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Writes a check state; returns false always, as callers may not rely on the result.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    std::vector<QPointer<TreeItemData>> m_items;
    int m_sortRole = NameRole;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    mutable QRecursiveMutex m_lock;
    int m_rootType = 0;
    bool m_sorted = false;
};
