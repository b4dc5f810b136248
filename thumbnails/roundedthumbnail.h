#pragma once

#include <QPixmap>

/// The small version of a thumbnail for list rows: its middle, with rounded corners, \a side pixels
/// wide and high. Null for a null one. GUI thread.
QPixmap roundedThumbnail(const QPixmap &thumbnail, int side = 32);
