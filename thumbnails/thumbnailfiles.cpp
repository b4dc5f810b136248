#include "thumbnails/thumbnailfiles.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace ThumbnailFiles {

QString root()
{
    return QDir::tempPath() + QLatin1String("/Zenvoor_Quarvo/");
}

bool createRoot()
{
    // where the system's folder is missing, some systems name none, and root() is one of the disk's
    return !QDir::tempPath().isEmpty() && QDir().mkpath(root());
}

// All markers of a name are replaced in one call: an extension that looks like one stays as it is.

QString repairedPreview(qint64 fileId, const QString &extension)
{
    // the file ends like its folder
    return QStringLiteral("%1%2/%3%4.%2")
        .arg(root(), extension, QString::number(fileId), QStringLiteral("_repaired"));
}

QString pngThumbnail(qint64 fileId, const QString &extension)
{
    return QStringLiteral("%1%2/%3_thumbnail.png").arg(root(), extension, QString::number(fileId));
}

QString jpegThumbnail(qint64 fileId, const QString &extension)
{
    return QStringLiteral("%1%2/%3_thumbnail.jpg").arg(root(), extension, QString::number(fileId));
}

QString plainImage(qint64 fileId, const QString &extension)
{
    return QStringLiteral("%1%2/%3.png").arg(root(), extension, QString::number(fileId));
}

bool anyExists(qint64 fileId, const QString &extension)
{
    return QFileInfo::exists(repairedPreview(fileId, extension))
        || QFileInfo::exists(pngThumbnail(fileId, extension))
        || QFileInfo::exists(jpegThumbnail(fileId, extension))
        || QFileInfo::exists(plainImage(fileId, extension));
}

QStringList candidates(qint64 fileId, const QString &extension)
{
    QStringList files = {repairedPreview(fileId, extension), pngThumbnail(fileId, extension),
                         jpegThumbnail(fileId, extension)};
    const auto isMissing = [](const QString &file) { return !QFileInfo::exists(file); };
    files.erase(std::remove_if(files.begin(), files.end(), isMissing), files.end());
    files.append(plainImage(fileId, extension));
    return files;
}

bool isRepairedPreview(qint64 fileId, const QString &path)
{
    return QFileInfo(path).completeBaseName()
        == QString::number(fileId) + QLatin1String("_repaired");
}

} // namespace ThumbnailFiles
