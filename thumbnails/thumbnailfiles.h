#pragma once

#include <QString>
#include <QStringList>

/// Names of the thumbnail files that the host writes, one folder per extension, case kept. Any
/// thread.
namespace ThumbnailFiles {

/// Ends in '/'.
QString root();
/// True when it is there, be it from before.
bool createRoot();

QString repairedPreview(qint64 fileId, const QString &extension);
QString pngThumbnail(qint64 fileId, const QString &extension);
QString jpegThumbnail(qint64 fileId, const QString &extension);
QString plainImage(qint64 fileId, const QString &extension);

/// True when any of the four is there.
bool anyExists(qint64 fileId, const QString &extension);
/// What to load, best first: those that are there, and the plain image in any case.
QStringList candidates(qint64 fileId, const QString &extension);
/// True for a file that bears the name of a repaired preview of \a fileId, in whatever folder.
bool isRepairedPreview(qint64 fileId, const QString &path);

} // namespace ThumbnailFiles
