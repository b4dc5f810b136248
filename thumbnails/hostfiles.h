#pragma once

#include <QHash>
#include <QSet>
#include <QSize>
#include <QString>

#include <mutex>

/// The files that pictures from the host came from, by file id. Paths that differ in nothing but
/// the id share one text. Any thread.
class HostFiles
{
public:
    struct File
    {
        QString path; ///< empty: none is known
        QSize size;   ///< of the picture that the host handed over, in pixels
        qreal devicePixelRatio = 1;
    };

    void remember(qint64 fileId, const File &file);
    File file(qint64 fileId) const;
    void forget(qint64 fileId);
    void clear();

private:
    struct Known
    {
        QString pattern;
        QSize size;
        qreal devicePixelRatio = 1;
        bool shared = false; ///< the pattern has a mark in place of the id
    };

    mutable std::mutex m_lock;
    QHash<qint64, Known> m_files;
    QSet<QString> m_patterns;
};
