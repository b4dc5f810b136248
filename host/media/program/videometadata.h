#pragma once

#include <QPair>
#include <QString>
#include <QVector>

class VideoFile;

/// Frame rate, bit rate and resolution, as far as \a video tells them.
QVector<QPair<QString, QString>> videoMetadata(const VideoFile &video);
