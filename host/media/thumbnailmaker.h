#pragma once

#include "host/media/mediapool.h"
#include "host/media/thumbnailfiles.h"

#include <QFuture>
#include <QImage>
#include <QObject>
#include <QSet>

#include <mutex>

/// Has thumbnails of photos and videos made by the helper program and writes them where the plug-in
/// looks for them. The latest request is served first: it is for what is on screen now. Every
/// request is answered once, by thumbnailReady() or thumbnailFailed(), unless it is dropped.
///
/// GUI thread; the signals come on it too. Destroying the maker ends what is at work.
class ThumbnailMaker : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailMaker(QObject *parent = nullptr,
                            std::shared_ptr<MediaPool> pool = MediaPool::shared());
    ~ThumbnailMaker() override;

    /// Requests are for items of \a source from now on. Drops what was asked for, and removes the
    /// files of the source before.
    void setSource(std::shared_ptr<const ScanSource> source);

    /// Asks for the thumbnail of \a item; \a extension is the record's, which names the file's
    /// folder. Nothing happens when it has been asked for and not been answered.
    void request(const FoundItem &item, const QString &extension);

    /// Forgets requests that nobody works on yet.
    void drop();

    /// Requests not answered yet.
    int pending() const { return m_pending.size(); }
    /// Thumbnails made since the source was set.
    int made() const { return m_made; }

signals:
    /// \a image covers a card on a screen of double density. \a path is empty when the file could
    /// not be written.
    void thumbnailReady(qint64 fileId, const QString &path, const QImage &image);
    void thumbnailFailed(qint64 fileId, const QString &reason);
    /// The last pending request has been answered.
    void settled();

private:
    void store(int generation, qint64 fileId, const QString &extension, MediaAnswer &&answer);
    void answer(int generation, qint64 fileId, const QString &path, const QImage &image,
                const QString &reason);

    std::shared_ptr<MediaPool> m_pool;
    std::shared_ptr<const ScanSource> m_source;
    QSet<qint64> m_pending;
    int m_generation = 0;
    int m_made = 0;

    std::mutex m_mutex; // guards what follows
    ThumbnailFiles m_files;

    QFuture<void> m_sweeping;
};
