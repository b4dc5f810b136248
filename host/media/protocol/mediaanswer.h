#pragma once

#include <QImage>
#include <QPair>
#include <QStringList>
#include <QVector>

/// What the helper has made of a file: a picture, metadata, or neither with the reason.
struct MediaAnswer
{
    QImage image; ///< RGB32, or ARGB32_Premultiplied when something shows through
    QVector<QPair<QString, QString>> metaData; ///< key, value; one line of text each
    QStringList scenes;                        ///< scene ids
    QString error;                             ///< a sentence for the user; empty: it worked

    /// Payloads of the frames Picture and Metadata.
    QByteArray encodePicture() const;
    QByteArray encodeMetadata() const;

    /// These believe nothing: the helper may have lost its mind over a file. False when the payload
    /// is no answer.
    bool decodePicture(const QByteArray &payload);
    bool decodeMetadata(const QByteArray &payload);
};
