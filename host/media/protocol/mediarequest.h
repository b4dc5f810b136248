#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/// What the helper shall make of one file.
struct MediaRequest
{
    enum Task : quint8 { Picture, Metadata };
    enum Kind : quint8 { Photo, Video };

    Task task = Picture;
    Kind kind = Photo;
    QString extension; ///< of the file, without the dot, any case
    qint64 fileSize = 0;
    /// The picture covers this (both sides at least as long), unless it is smaller itself; empty:
    /// full size. Of no meaning for metadata.
    QSize cover;

    QByteArray encode() const;
    static bool decode(const QByteArray &payload, MediaRequest *request);
};
