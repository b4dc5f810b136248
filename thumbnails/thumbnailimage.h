#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// Pictures at the size that a card shows. Any thread.
namespace ThumbnailImage {

/// The size of the thumbnail of a picture of \a size: 146 wide when it is upright or square, else
/// 83 high; the other side keeps the shape, truncated. Empty for an empty size.
QSize targetSize(const QSize &size);

/// The picture in \a path, turned upright, scaled and ready to become a pixmap: to its
/// targetSize(), or into \a room where that is given. Null when it cannot be read, when it does not
/// say its size or is a monster, and when the thread has been asked to end meanwhile.
QImage load(const QString &path, const QSize &room = {});

} // namespace ThumbnailImage
