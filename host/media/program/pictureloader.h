#pragma once

#include <QIODevice>
#include <QImage>
#include <QSize>

/// Reads a picture from a stranger's card, smaller than it is: the header first, and nothing more
/// of a picture that claims more than 200 megapixels or does not say its size. Turned as its EXIF
/// orientation says. Any thread. Null when it cannot be read; then \a error says why.
///
/// The picture covers \a cover (both sides at least as long, the shape kept) unless it is smaller
/// itself; an empty \a cover reads it in full size.
QImage loadPicture(QIODevice &device, const QSize &cover, QString *error);
