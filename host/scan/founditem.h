#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// One file system on the scanned medium, or the scanned folder.
struct VolumeInfo
{
    QString label;      ///< as the file system holds it; may be empty
    QString fileSystem; ///< "FAT32", "exFAT", "NTFS", "ext4" …; "folder" for a folder
    qint64 bytes = 0;   ///< size of the file system; 0: unknown
    QString
        root; ///< what an item's path is relative to: a folder, or a name such as "Volume 2 (CARD)"
};

/// A file or folder that a scan has found: a plain value that crosses threads.
struct FoundItem
{
    qint64 id = -1; ///< positive; unique over all scans, also those of earlier runs (see ScanIds)
    qint64 parentId =
        -1;       ///< -1: directly under the volume's root. A parent comes before its children
    QString name; ///< as the file system holds it, with extension
    QString path; ///< folders from the volume's root, '/' between, none at the ends, no name; empty
                  ///< at the root
    bool folder = false;
    bool deleted = false;    ///< no longer on the medium as a file
    qint64 size = 0;         ///< bytes; 0 for folders
    qint64 modifiedTime = 0; ///< seconds since the epoch, UTC; 0: unknown
    int volume = 0;          ///< index into ScanSource::volumes()

    /// How the source that found the item finds it again. Nobody else reads these.
    quint64 address = 0;
    quint32 sequence = 0;

    /// The path with the name, '/' between.
    QString fullPath() const { return path.isEmpty() ? name : path + QLatin1Char('/') + name; }
};

Q_DECLARE_TYPEINFO(FoundItem, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(FoundItem)
Q_DECLARE_METATYPE(QVector<FoundItem>)
Q_DECLARE_METATYPE(VolumeInfo)
