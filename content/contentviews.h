#pragma once

#include "content/viewmemory.h"

#include <QObject>

class GridMode;
class ListMode;
class OverlayScrollBar;
class QAbstractItemView;
class ScanDataModel;
class TreeItemData;
class ViewPlace;

namespace Ui {
class SDCardContentDataWidgetClass;
}

/// The two views of a content area over its one model, grid and list: which of them is in use, the
/// frames, headers and scroll bar that come and go with it, and the keys that mean the same in
/// both. The form is the content area's. GUI thread.
class ContentViews : public QObject
{
    Q_OBJECT

public:
    enum Mode { GridOnly = 0, ListWithPane = 1, ListOnly = 2 };

    ContentViews(Ui::SDCardContentDataWidgetClass &form, ScanDataModel *model, QWidget *parent);

    GridMode *grid() const { return m_grid; }
    ListMode *list() const { return m_list; }

    int mode() const { return m_mode; }
    static bool isKnown(int mode) { return mode >= GridOnly && mode <= ListOnly; }
    /// The view that comes into use takes the selection over and shows \a current.
    void setMode(int mode, const QModelIndex &current);
    /// The view on screen.
    QAbstractItemView *inUse() const;

    /// By rows; in the grid the last multi-selection where the view has one item at most.
    QList<TreeItemData *> selectedItems() const;
    /// Around a reset of the model with a tree that is shown already: in the view in use all that
    /// belongs to an item stays with it. Recall after the current item has been put back.
    void remember();
    void recall();

    /// What assistive technology calls the views.
    void setName(const QString &name);
    /// Sorts the model; whatever is selected stays selected. The new order of many rows is painted
    /// at once.
    void sort(int column, Qt::SortOrder order);

    void setAssessmentFinished(bool finished);
    void setSearchKeyword(const QString &keyword);
    void showThumbnail(qint64 fileId);
    void showHeaders();
    void repaint();
    /// The grid has another place, size or page.
    void placeOverlay();

signals:
    // Of whichever view the user is in.
    void itemChecked(TreeItemData *item, Qt::CheckState state);
    void openRequested(TreeItemData *item, const QString &source);
    void tooltipWanted(const QString &text);
    void thumbnailMissing(TreeItemData *item);
    void contextMenuWanted(const QModelIndex &index);
    /// By a finger or a pen that rests.
    void longPressed(const QModelIndex &index, const QPoint &globalPos);
    /// By assistive technology.
    void itemToggleWanted(const QModelIndex &index);
    // By key.
    void toggleWanted();
    void menuWanted();

private:
    template <typename View>
    void relay(const View *view);
    void connectKeys();
    void orderTabs();
    void describeItems();
    void connectTouch();
    void sortRows(int column, Qt::SortOrder order);
    ViewPlace &placeInUse() const;
    /// Of the view in use; the other takes its selection over when it is shown.
    ViewMemory &memory() { return m_mode == GridOnly ? m_gridMemory : m_tableMemory; }

    Ui::SDCardContentDataWidgetClass &m_form;
    ScanDataModel *m_model;
    GridMode *m_grid;
    ListMode *m_list;
    OverlayScrollBar *m_overlay;
    ViewMemory m_gridMemory;
    ViewMemory m_tableMemory;
    int m_mode = GridOnly;
    bool m_assessmentFinished = false;
};
