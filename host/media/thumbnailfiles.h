#pragma once

#include <QImage>
#include <QSet>
#include <QString>

/// The thumbnail files in the folder that the plug-in reads. Ids are never given twice (ScanIds),
/// so a file that an earlier run left behind is never shown; what this run wrote goes with it.
class ThumbnailFiles
{
public:
    ThumbnailFiles() = default;
    ~ThumbnailFiles() { clear(); }
    ThumbnailFiles(const ThumbnailFiles &) = delete;
    ThumbnailFiles &operator=(const ThumbnailFiles &) = delete;

    /// Writes \a image, as JPEG or, where it has transparency, as PNG; the file is there whole or
    /// not at all. Its path; empty when it could not be written or \a extension makes no folder's
    /// name. Any thread.
    static QString write(qint64 fileId, const QString &extension, const QImage &image);

    /// \a path has been written, and goes with the others.
    void add(const QString &path) { m_written.insert(path); }

    void remove(const QString &path);

    /// Removes the files that were added.
    void clear();

    /// Removes what runs that crashed have left, older than a day. Any thread.
    static void sweep();

private:
    QSet<QString> m_written;
};
