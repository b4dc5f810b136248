#pragma once

#include "platform/item/treeitemdata.h"

#include <QPair>
#include <QPointer>
#include <QVector>

class QAbstractItemView;
class ScanDataModel;

/// What a reset of the model takes from a view, kept by record and put back afterwards: selected
/// rows and the item at the top of the viewport. Rows that kept their numbers are put back as plain
/// ranges, so that a large selection costs little while results stream in.
class ViewMemory
{
public:
    /// \a topRow: the first row of which any part is in the viewport; negative: none is.
    void capture(const QAbstractItemView &view, const ScanDataModel &model, int topRow);
    /// Call when the model has been reset with the same tree, grown or changed.
    void restore(QAbstractItemView &view, const ScanDataModel &model);

    /// The rows selected in \a from become those selected in \a to.
    static void copySelection(const QAbstractItemView &from, QAbstractItemView &to,
                              const ScanDataModel &model);

private:
    void captureAnchor(const QAbstractItemView &view, const ScanDataModel &model, int topRow);
    void restoreSelection(QAbstractItemView &view, const ScanDataModel &model) const;
    void restoreScroll(QAbstractItemView &view, const ScanDataModel &model) const;

    QVector<QPair<int, int>> m_selectedRanges;
    QVector<QPointer<TreeItemData>> m_selectedItems;
    QPointer<TreeItemData> m_topItem;
    int m_topRow = -1;
    int m_topOffset = 0;
    int m_scrollValue = 0;
    int m_restoredValue = -1; ///< where restore() left the view; elsewhere the user has scrolled
};
