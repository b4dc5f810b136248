#pragma once

#include "delegates/repairedpreviewcheck.h"

#include <QCache>
#include <QPair>
#include <QPixmap>

class TreeItemData;

/// The small pictures of files, in the pixels of the screen: those of the thumbnail cache are made
/// for a screen of scale 1. Of a file that has a large thumbnail the small one is made once, and
/// painting it again does not touch the disk.
class RowThumbnails
{
public:
    RowThumbnails();

    /// The file's thumbnail or the icon of its type. What is not there is looked up on disk.
    QPixmap picture(TreeItemData *file, int deviceSide);

private:
    RepairedPreviewCheck m_repairedCheck;
    QCache<QPair<qint64, int>, QPixmap> m_small; ///< by large picture and side
};
