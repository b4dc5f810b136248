#include "host/media/thumbnailfiles.h"

#include "host/recovery/safename.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>

namespace {

constexpr int JpegQuality = 88;
constexpr int KeptDays = 1;

QString rootFolder()
{
    return QDir::tempPath() + QStringLiteral("/Zenvoor_Quarvo/");
}

} // namespace

QString ThumbnailFiles::write(qint64 fileId, const QString &extension, const QImage &image)
{
    // The folder is named exactly as the plug-in will look for it, or not at all.
    if (!extension.isEmpty() && safeFileName(extension) != extension)
        return QString();
    const QString folder = rootFolder() + extension;
    const bool transparent = image.hasAlphaChannel();
    const QString path = QStringLiteral("%1/%2_thumbnail.%3")
                             .arg(folder)
                             .arg(fileId)
                             .arg(transparent ? QStringLiteral("png") : QStringLiteral("jpg"));
    if (QDir::tempPath().isEmpty() || !QDir().mkpath(folder))
        return QString();
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly)
        && image.save(&file, transparent ? "PNG" : "JPG", transparent ? -1 : JpegQuality)
        && file.commit();
    return written ? path : QString();
}

void ThumbnailFiles::remove(const QString &path)
{
    if (m_written.remove(path))
        QFile::remove(path);
}

void ThumbnailFiles::clear()
{
    for (const QString &path : qAsConst(m_written))
        QFile::remove(path);
    m_written.clear();
}

void ThumbnailFiles::sweep()
{
    // Ids of scans are long; a short number is somebody else's file.
    static const QRegularExpression s_ours(QStringLiteral("^\\d{18,}_thumbnail\\.(jpg|png)$"));
    const QDateTime limit = QDateTime::currentDateTime().addDays(-KeptDays);
    QDirIterator files(rootFolder(), QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (s_ours.match(files.fileName()).hasMatch() && files.fileInfo().lastModified() < limit)
            QFile::remove(path);
    }
}
