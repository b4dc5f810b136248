#pragma once

#include <QCache>
#include <QPair>
#include <QPixmap>

class TreeItemData;

/// The small pictures of files, as sharp as the screen can show them: the thumbnail cache makes
/// them for a screen of scale 1, and a denser one gets its own from the large thumbnail.
class RowThumbnails
{
public:
    RowThumbnails();

    /// The file's thumbnail or the icon of its type. What is not there is looked up on disk.
    QPixmap picture(TreeItemData *file, int deviceSide);

private:
    QCache<QPair<qint64, int>, QPixmap> m_sharp; ///< by large picture and side
};
