#pragma once

#include "common/themetype.h"
#include "platform/item/treeitemdata.h"

#include <QObject>
#include <QPointer>

class ItemDetailView;
class ListDelegate;
class ScanDataModel;
class ScanTableHeader;
class ScanTableView;
class QModelIndex;
class QWidget;

/// The list of the view modes 1 and 2: the table with its header and its rows, and the detail pane
/// beside it. Places nothing; its owner puts table and pane into the form. GUI thread.
class ListMode : public QObject
{
    Q_OBJECT

public:
    /// The table becomes a child of \a parent; the pane is for the owner to place, and has no
    /// parent until then.
    ListMode(ScanDataModel *model, QWidget *parent);

    ScanTableView *table() const { return m_table; }
    ScanTableHeader *header() const { return m_header; }
    ItemDetailView *pane() const { return m_pane; }
    ListDelegate *delegate() const { return m_delegate; }

    /// Which of the two list modes it is: with the pane there is no room for the location column.
    void setPaneShown(bool shown);
    /// The item of the pane; shown when the pane is.
    void setCurrentItem(TreeItemData *item);
    void fitColumns();
    void setSearchKeyword(const QString &keyword);
    void setAssessmentFinished(bool finished);
    /// Repaints the rows of this file and the pane's picture of it.
    void showThumbnail(qint64 fileId);
    void updateTheme();
    void retranslate();

signals:
    void checkChanged(const QModelIndex &index, Qt::CheckState state);
    void openRequested(TreeItemData *item, const QString &source);
    void thumbnailMissing(TreeItemData *item);
    void metaDataWanted(TreeItemData *item);
    void locationClicked(TreeItemData *item);
    void tooltipWanted(const QString &text);
    void contextMenuWanted(const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectRows();
    void connectPane();

    ScanDataModel *m_model;
    ScanTableView *m_table;
    ScanTableHeader *m_header;
    ListDelegate *m_delegate;
    ItemDetailView *m_pane;
    QPointer<TreeItemData> m_current;
    bool m_paneShown = false;
};
