#pragma once

#include <QByteArray>

struct Photo;

/// The JPEG with what a camera writes beside the picture: EXIF, an embedded thumbnail when there
/// is one, and the scenes as XMP and IPTC keywords. Thread-safe; throws std::exception.
QByteArray withPhotoMetadata(const QByteArray &jpeg, const Photo &photo,
                             const QByteArray &thumbnail);
