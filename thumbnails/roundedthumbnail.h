#pragma once

#include <QPixmap>

/// The 32 x 32 version of a thumbnail for list rows: its middle, with rounded corners. Null for a
/// null one. GUI thread.
QPixmap roundedThumbnail(const QPixmap &thumbnail);
