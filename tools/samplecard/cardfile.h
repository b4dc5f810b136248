#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// One file of the card, before it is written.
struct CardFile
{
    enum Fate {
        Live,
        Deleted,     ///< its entry is marked, its clusters are untouched
        Overwritten, ///< deleted, and a live file has taken its clusters since
        Overwriting, ///< the live file that did
    };

    QString path;   ///< from the card's root, '/' separates
    QDateTime time; ///< UTC
    Fate fate = Live;
    QByteArray content;
};
