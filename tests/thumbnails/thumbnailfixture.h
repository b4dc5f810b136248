#pragma once

#include "platform/item/treeitemdata.h"
#include "thumbnails/thumbnailfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
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

    static bool write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    /// A picture that takes long to read: 144 MB, nearly none of it on the disk.
    static bool saveSlowOne(const QString &path)
    {
        constexpr int Side = 6000;
        QImage image(Side, 1, QImage::Format_RGB32);
        image.fill(Qt::red);
        QDir().mkpath(QFileInfo(path).path());
        if (!image.save(path, "bmp"))
            return false;
        QFile file(path);
        const quint8 height[] = {Side & 0xFF, Side >> 8, 0, 0};
        constexpr qint64 HeightOffset = 22;
        return file.open(QIODevice::ReadWrite) && file.seek(HeightOffset)
            && file.write(reinterpret_cast<const char *>(height), sizeof height) == sizeof height
            && file.resize(file.size() + qint64(Side) * Side * 3);
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
