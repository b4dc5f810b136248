#pragma once

#include "host/media/protocol/mediaanswer.h"

#include <QIODevice>

/// Once, before photoMetadata().
void setUpPhotoMetadata();

/// What a photo says about itself: EXIF, and the scenes that its XMP and IPTC keywords name. The
/// answer's error is set when it says nothing at all. One thread.
MediaAnswer photoMetadata(QIODevice &file);
