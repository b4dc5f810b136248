#pragma once

#include "host/media/mediapool.h"

#include <QObject>
#include <QSet>

/// Reads what photos and videos say about themselves. The latest request is served first. Every
/// request is answered once, by metadataReady() or metadataFailed(), unless it is dropped.
///
/// GUI thread; the signals come on it too.
class MetadataReader : public QObject
{
    Q_OBJECT

public:
    explicit MetadataReader(QObject *parent = nullptr,
                            std::shared_ptr<MediaPool> pool = MediaPool::shared());
    ~MetadataReader() override;

    /// Requests are for items of \a source from now on. Drops what was asked for.
    void setSource(std::shared_ptr<const ScanSource> source);

    /// Nothing happens when \a item has been asked for and not been answered.
    void request(const FoundItem &item);

    /// Forgets requests that nobody works on yet.
    void drop();

    /// Requests not answered yet.
    int pending() const { return m_pending.size(); }

signals:
    /// \a metaData are keys with values fit to be shown, "Resolution" among them; \a scenes the ids
    /// of the scenes that the file is tagged with. Either may be empty.
    void metadataReady(qint64 fileId, const QVector<QPair<QString, QString>> &metaData,
                       const QStringList &scenes);
    void metadataFailed(qint64 fileId, const QString &reason);

private:
    void answer(int generation, qint64 fileId, const MediaAnswer &answer);

    std::shared_ptr<MediaPool> m_pool;
    std::shared_ptr<const ScanSource> m_source;
    QSet<qint64> m_pending;
    int m_generation = 0;
};
