#pragma once

#include "platform/item/treeitemdata.h"

#include <QPair>
#include <QPointer>
#include <QVector>

class ScanDataModel;
class ThumbnailGrid;

/// What a reset of the model takes from a view, kept by record and put back afterwards: selected
/// rows and the item at the top of the viewport. Rows that kept their numbers are put back as plain
/// ranges, so that a large selection costs little while results stream in.
class ViewMemory
{
public:
    void capture(const ThumbnailGrid &view, const ScanDataModel &model);
    /// Call when the model has been reset with the same tree, grown or changed.
    void restore(ThumbnailGrid &view, const ScanDataModel &model);

private:
    void captureAnchor(const ThumbnailGrid &view, const ScanDataModel &model);
    void restoreSelection(ThumbnailGrid &view, const ScanDataModel &model) const;
    void restoreScroll(ThumbnailGrid &view, const ScanDataModel &model) const;

    QVector<QPair<int, int>> m_selectedRanges;
    QVector<QPointer<TreeItemData>> m_selectedItems;
    QPointer<TreeItemData> m_topItem;
    int m_topRow = -1;
    int m_topOffset = 0;
    int m_scrollValue = 0;
    int m_restoredValue = -1; ///< where restore() left the view; elsewhere the user has scrolled
};
