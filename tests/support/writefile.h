#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Writes a file, and makes the folders that it stands in.
inline bool writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
        && file.write(contents) == contents.size();
}
