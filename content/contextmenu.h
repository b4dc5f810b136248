#pragma once

#include "platform/item/treeitemdata.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;
class QModelIndex;
class QPoint;
class QWidget;
class RightMenuDialog;
class ScanDataModel;

/// The context menu of a file. The dialog is made when none is held, used again after it was only
/// closed, and forgotten after a choice. The item is remembered by its record: results that stream
/// in while the menu is open take the index away. GUI thread.
class ContextMenu : public QObject
{
    Q_OBJECT

public:
    /// Dialogs become children of \a parent.
    ContextMenu(ScanDataModel *model, QWidget *parent);

    /// At the mouse. Nothing happens for anything but a file.
    void openAtMouse(const QModelIndex &index);
    /// Under a finger or a pen that is still down; its release chooses nothing.
    void openByTouch(const QModelIndex &index, const QPoint &globalPos);
    /// Beside the current item of \a view, which is brought into sight, with an entry highlighted.
    void openAtCurrent(QAbstractItemView &view);
    void updateTheme();
    void retranslate();

signals:
    void openRequested(TreeItemData *item, const QString &source);
    void recoverRequested(TreeItemData *item);

private:
    /// False when there is no menu for this item.
    bool prepare(const QModelIndex &index);
    void finish();

    ScanDataModel *m_model;
    QWidget *m_parent;
    QPointer<RightMenuDialog> m_dialog;
    QPointer<TreeItemData> m_item;
};
