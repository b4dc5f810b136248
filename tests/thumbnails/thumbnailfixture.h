#pragma once

#include "platform/item/treeitemdata.h"
#include "support/writefile.h"
#include "thumbnails/thumbnailfiles.h"

#include <QImage>
#include <QTemporaryDir>

/// A temporary folder that is the system's temporary folder for the life of the object.
class TemporaryRoot
{
public:
    TemporaryRoot()
    {
        for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
            qputenv(variable, QFile::encodeName(m_folder.path()));
    }

    QString path() const { return m_folder.path(); }

    static bool save(const QString &path, const QColor &colour, const QSize &size = {300, 225})
    {
        QDir().mkpath(QFileInfo(path).path());
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        return image.save(path, path.endsWith(QLatin1String("png")) ? "png" : "jpg", 95);
    }

private:
    QTemporaryDir m_folder;
};

class Photo : public TreeItemData
{
public:
    explicit Photo(qint64 id)
    {
        kind = 2;
        fileCategory = 8;
        fileId = id;
        extension = QStringLiteral("jpg");
        name = QStringLiteral("%1.jpg").arg(id);
    }
};
