#pragma once

#include <QImage>

/// \a picture in the smallest format that shows the same pixels at the same device pixel ratio: a
/// byte a pixel for grey and for few colours, three where nothing is transparent. Any thread.
QImage packedPicture(const QImage &picture);
