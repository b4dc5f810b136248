#pragma once

#include "platform/item/treeitemdata.h"

#include <QItemSelection>
#include <QPair>
#include <QPoint>
#include <QPointer>
#include <QVector>

class ScanDataModel;
class ViewPlace;

/// What a reset of the model takes from a view, kept by record and put back afterwards: what is
/// selected, what a selection with Shift starts from, the press and the rubber band under way, and
/// the item under the eye. Selected rows are kept as ranges, and the model, which must have been
/// told to remember its rows, says where their records are now: a selection of a million costs
/// little while results stream in.
class ViewMemory
{
public:
    void capture(ViewPlace &place, const ScanDataModel &model);
    /// Call when the model has been reset with the same tree, grown or changed, and the current
    /// item has been put back.
    void restore(ViewPlace &place, const ScanDataModel &model);

    /// Around a sort, which would follow each selected index on its own: takes the selection off
    /// the view and puts it back where its records are, without anyone being told.
    void liftSelection(ViewPlace &place);
    void layDownSelection(ViewPlace &place, const ScanDataModel &model) const;
    /// Of the first column, without dead records at the ends of its ranges.
    static QItemSelection selectionOf(const ScanDataModel &model,
                                      const QVector<QPair<int, int>> &rows);

    /// What is selected in \a from becomes so in \a to, and so does the start of a Shift selection.
    static void copySelection(ViewPlace &from, ViewPlace &to, const ScanDataModel &model);

private:
    /// Rows of before.
    struct Rows
    {
        void capture(const QItemSelection &selection);
        QItemSelection now(const ScanDataModel &model) const;

        QVector<QPair<int, int>> ranges;
    };
    struct Mark
    {
        void capture(int newRow, const ScanDataModel &model);
        int rowIn(const ScanDataModel &model) const;
        QModelIndex now(const ScanDataModel &model) const;

        QPointer<TreeItemData> item;
        int row = -1;
    };

    void captureEye(ViewPlace &place, const ScanDataModel &model);
    void restoreEye(ViewPlace &place, const ScanDataModel &model);
    void restoreBand(ViewPlace &place, const ScanDataModel &model, int scrolledBy) const;

    Rows m_selected;
    Rows m_settled;
    Rows m_beforeBand;
    Mark m_anchor;
    Mark m_pressed;
    Mark m_held; ///< the item under the eye
    QPoint m_pressedAt;
    bool m_rangeRunning = false;
    bool m_hadBand = false;
    bool m_heldIsCurrent = false;
    int m_heldY = 0;
    int m_scrollValue = 0;
    int m_restoredValue = -1; ///< where restore() left the view; elsewhere the user has scrolled
};
