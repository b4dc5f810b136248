#pragma once

#include <QCache>
#include <QElapsedTimer>

class TreeItemData;

/// Keeps painting off the disk. Whether an item has a repaired preview takes a look at the file
/// system; that is taken at the first paint, when the item's picture has changed, and after a
/// pause.
class RepairedPreviewCheck
{
public:
    RepairedPreviewCheck();

    /// Has the item's "previewRepaired" brought up to date where it is due. \a pictureKey tells one
    /// picture of the item from another.
    void refresh(TreeItemData *item, qint64 pictureKey);

private:
    struct Look
    {
        qint64 pictureKey;
        qint64 atMs;
    };

    QElapsedTimer m_clock;
    QCache<qint64, Look> m_looks;
};
