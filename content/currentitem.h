#pragma once

#include "platform/item/treeitemdata.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QVector>

class QAbstractItemView;
class ScanDataModel;

/// The current item of all views of a content area. An index dies with each reset of the model:
/// the item and its row are remembered beside it, and the key of the tree that they belong to.
/// GUI thread.
class CurrentItem : public QObject
{
    Q_OBJECT

public:
    CurrentItem(ScanDataModel *model, const QVector<QAbstractItemView *> &views, QObject *parent);

    /// Invalid when nothing is current.
    QModelIndex index() const { return m_index; }
    /// True when \a root is the tree that the current item was saved in.
    bool belongsTo(const TreeItemData &root) const;

    void save(const QModelIndex &index);
    /// The model has been filled from \a root: the item of before is made current again, its
    /// neighbour when it has left, or the first item of another tree. Nothing scrolls, and nobody
    /// hears of it before announce().
    void restore(const TreeItemData &root);
    void announce();
    /// Always announces null.
    void forget();

signals:
    /// Another item is current; null: none.
    void changed(TreeItemData *item);
    /// The index of the current item, also when it is still the same item.
    void saved(const QModelIndex &index);

private:
    int rowIn(const TreeItemData &root) const;

    ScanDataModel *m_model;
    QVector<QAbstractItemView *> m_views;
    QPersistentModelIndex m_index;
    QPersistentModelIndex m_restored;
    QPointer<TreeItemData> m_item;
    int m_row = -1;
    qint64 m_rootKey = 0;
    bool m_restoring = false; // what the views then report is not the user's doing
};
