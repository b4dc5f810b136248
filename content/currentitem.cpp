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
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        if (m_index.isValid()) // a sort may have moved it
            m_row = m_index.row();
    });
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

int CurrentItem::rowIn(const TreeItemData &root) const
{
    const int last = m_model->rowCount() - 1;
    int row = 0;
    if (belongsTo(root) && m_row >= 0) {
        row = m_item && m_model->itemAt(m_row) != m_item ? m_model->rowOf(m_item) : m_row;
        row = std::min(row < 0 ? m_row : row, last);
    }
    // past the dead ones, or else before them
    int alive = row;
    while (alive <= last && !m_model->itemAt(alive))
        ++alive;
    while (alive > last || (alive >= 0 && !m_model->itemAt(alive)))
        --alive;
    return alive;
}

void CurrentItem::restore(const TreeItemData &root)
{
    const QModelIndex index = m_model->index(rowIn(root), 0);
    m_rootKey = root.secondaryId;
    m_restored = index;
    if (!index.isValid())
        return;
    const QScopedValueRollback<bool> restoring(m_restoring, true);
    for (QAbstractItemView *view : qAsConst(m_views)) {
        const bool autoScroll = view->hasAutoScroll();
        view->setAutoScroll(false);
        view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        view->setAutoScroll(autoScroll);
    }
}

void CurrentItem::announce()
{
    if (m_restored.isValid())
        save(m_restored);
}

void CurrentItem::forget()
{
    m_index = QModelIndex();
    m_item = nullptr;
    m_row = -1;
    m_rootKey = 0;
    emit changed(nullptr);
}
