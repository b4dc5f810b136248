#pragma once

#include "cardfile.h"

#include <QTemporaryDir>
#include <QVector>

/// Writes a FAT32 card with dosfstools and mtools, then deletes what is to be deleted: last, so
/// that nothing is written over it, but for the one file that is meant to be. Every operation
/// throws std::runtime_error with a message for a person.
class CardImage
{
public:
    /// \a path is written anew. Throws at once when it cannot be, or when a tool is missing: then
    /// the message names the package to install.
    explicit CardImage(const QString &path);

    void write(const QVector<CardFile> &files);

private:
    void format(qint64 bytes);
    void makeFolders(const QVector<CardFile> &files);
    void copy(const CardFile &file);
    void overwrite(const CardFile &victim, const CardFile &by);
    void remove(const QVector<CardFile> &files);
    void run(const QString &program, const QStringList &arguments,
             QByteArray *output = nullptr) const;

    QString m_path;
    QTemporaryDir m_staging;
};
