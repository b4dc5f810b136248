#include "content/currentitem.h"

#include "model/scandatamodel.h"

#include <QAbstractItemView>
#include <QScopedValueRollback>

#include <algorithm>

CurrentItem::CurrentItem(ScanDataModel *model, const QVector<QAbstractItemView *> &views,
                         QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_views(views)
{
    for (const QAbstractItemView *view : views) {
        connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex &current) {
                    if (!m_restoring && current.isValid())
                        save(current);
                });
    }
}

bool CurrentItem::belongsTo(const TreeItemData &root) const
{
    return m_rootKey == root.secondaryId;
}

void CurrentItem::save(const QModelIndex &index)
{
    TreeItemData *item = m_model->itemAt(index);
    const bool other = m_item != item;
    m_index = index;
    m_item = item;
    m_row = index.row();
    emit saved(index);
    if (other)
        emit changed(item);
}

void CurrentItem::restore(const TreeItemData &root)
{
    int row = 0;
    if (belongsTo(root) && m_item) {
        row = m_model->itemAt(m_row) == m_item ? m_row : m_model->rowOf(m_item);
        if (row < 0)
            row = std::min(m_row, m_model->rowCount() - 1);
    }
    m_rootKey = root.secondaryId;
    makeCurrent(row);
}

void CurrentItem::makeCurrent(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    if (!index.isValid())
        return;
    {
        const QScopedValueRollback<bool> restoring(m_restoring, true);
        for (QAbstractItemView *view : qAsConst(m_views)) {
            const bool autoScroll = view->hasAutoScroll();
            view->setAutoScroll(false);
            view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
            view->setAutoScroll(autoScroll);
        }
    }
    save(index);
}

void CurrentItem::forget()
{
    m_index = QModelIndex();
    m_item = nullptr;
    m_row = -1;
    m_rootKey = 0;
    emit changed(nullptr);
}
