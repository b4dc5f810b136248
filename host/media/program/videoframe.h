#pragma once

#include <QIODevice>
#include <QImage>
#include <QSize>

/// A frame from the beginning of a video, where titles are over, that covers \a cover (unless the
/// video is smaller; empty: full size). Null when none can be decoded; then \a error says why.
QImage loadVideoFrame(QIODevice &file, const QString &extension, const QSize &cover,
                      QString *error);
