#pragma once

#include "cardfile.h"
#include "scenes/canvas.h"

#include <QSize>
#include <QStringList>
#include <QVector>

/// One photo that the card holds.
struct Photo
{
    using Motif = void (*)(Canvas &, int);

    CardFile file; ///< without content
    Motif motif = nullptr;
    int variant = 0;
    QSize size;            ///< as seen, in pixels
    QStringList scenes;    ///< keywords
    int camera = 0;        ///< index of the camera that took it
    bool sideways = false; ///< stored turned, with the orientation that says so
    bool embedsThumbnail = false;
};

QVector<Photo> cardPhotos();

/// Draws, develops and encodes; thread-safe. \a shrink divides both sides.
QByteArray photoContent(const Photo &photo, int shrink);
