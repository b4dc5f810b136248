#pragma once

#include "content/selectedrows.h"
#include "platform/item/treeitemdata.h"

#include <QModelIndex>
#include <QObject>
#include <QPointer>

class CheckAll;
class ContentViews;
class ScanDataModel;

/// The check states of what a content area shows: select-all, the key that toggles all selected
/// items, and what the host has changed. Writes into records, shows it and announces it. GUI
/// thread.
class ItemChecks : public QObject
{
    Q_OBJECT

public:
    ItemChecks(ScanDataModel *model, ContentViews *views, CheckAll *control, QObject *parent);

    /// The top of the tree that is shown; null: none is.
    void setRoot(TreeItemData *root) { m_root = root; }

    /// Checks or unchecks the selected items together; \a current where nothing is selected that
    /// is still alive. Each is announced, but for a large tree that is selected as a whole: that is
    /// select-all.
    void toggleSelected(const QModelIndex &current);
    /// Checks or unchecks one item.
    void toggle(const QModelIndex &index);
    /// The host has changed check states: shows them, and the root's on the select-all control.
    void refresh();
    /// The state of select-all from the states of the root's children.
    void refreshAllState();

signals:
    void itemChecked(TreeItemData *item, Qt::CheckState state);
    void allChecked(TreeItemData *root, Qt::CheckState state);

private:
    void setAll(Qt::CheckState state);
    void toggleRows(const QVector<SelectedRows::Run> &rows);
    bool isAnyAlive(const QVector<SelectedRows::Run> &rows) const;
    bool isLargeWholeTree(const QVector<SelectedRows::Run> &rows) const;

    ScanDataModel *m_model;
    ContentViews *m_views;
    CheckAll *m_control;
    QPointer<TreeItemData> m_root;
};
