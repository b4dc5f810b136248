#pragma once

#include "platform/item/treeitemdata.h"

#include <QItemSelection>
#include <QObject>

class IconDelegate;
class ScanDataModel;
class ThumbnailGrid;

/// The grid of view mode 0: the form's view with its cards, and what is selected in it. GUI thread.
class GridMode : public QObject
{
    Q_OBJECT

public:
    GridMode(ThumbnailGrid *view, ScanDataModel *model, QObject *parent);

    ThumbnailGrid *view() const { return m_view; }

    /// The card that shows as the current one.
    void setCurrentIndex(const QModelIndex &index);
    void setSearchKeyword(const QString &keyword);
    void setAssessmentFinished(bool finished);
    /// Repaints the card of this file.
    void showThumbnail(qint64 fileId);
    /// What is selected; the cards of the last multi-selection where the view has one at most.
    QItemSelection selection() const;
    void forgetMultiSelection();
    QItemSelection markedCards() const;
    void markCards(const QItemSelection &cards);

signals:
    void checkChanged(const QModelIndex &index, Qt::CheckState state);
    void pressed(const QModelIndex &index);
    void openRequested(TreeItemData *item, const QString &source);
    void thumbnailMissing(TreeItemData *item);
    void tooltipWanted(const QString &text);
    void contextMenuWanted(const QModelIndex &index);

private:
    void connectCards();
    void onPressed(const QModelIndex &index);
    void onSelectionChanged(const QItemSelection &selected);
    void onMultiSelectEvent();

    ThumbnailGrid *m_view;
    ScanDataModel *m_model;
    IconDelegate *m_delegate;
};
