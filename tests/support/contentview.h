#pragma once

#include "content/scantableview.h"
#include "content/thumbnailgrid.h"

/// The view that \a content shows its items in when it is in this mode.
inline QAbstractItemView *viewOf(const QWidget &content, int mode)
{
    if (mode == 0)
        return content.findChild<ThumbnailGrid *>();
    return content.findChild<ScanTableView *>();
}
