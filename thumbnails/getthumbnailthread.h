#pragma once

#include <QList>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QString>

#include <condition_variable>
#include <mutex>

class ScanPluginPreviewManager;
class TreeItemData;

/// Works through the items whose thumbnails are wanted, first in first out. Lives in a thread of
/// its own; what it needs of a record is copied when the item is queued, on the GUI thread, and the
/// record itself is never read afterwards.
class GetThumbnailThread : public QObject
{
    Q_OBJECT

public:
    explicit GetThumbnailThread(ScanPluginPreviewManager *cache);
    ~GetThumbnailThread() override;

    /// GUI thread. False for a null item and for one that is queued already.
    bool enqueue(TreeItemData *item);
    /// GUI thread. Empties the queue and ends the work loop, at once when it is asleep.
    void pause();

public Q_SLOTS:
    /// The work loop. Returns after pause(), or when its thread is asked to end.
    void startThread();

Q_SIGNALS:
    /// No thumbnail file of the item. \a itemData says which item it was and may be dead by now:
    /// receivers check it on the GUI thread. Follows signalLocalThumbnailMiss() of the same item.
    void signalSaveThumbnail(TreeItemData *itemData);
    void signalLocalThumbnailMiss(qint64 fileId);
    void signalPauseThread();

private:
    struct Request
    {
        TreeItemData *item = nullptr; ///< only ever compared and handed back
        qint64 fileId = 0;
        QString extension;
        bool isFile = false;
    };
    /// With the id, as another record may live where a queued one has died.
    using Identity = QPair<TreeItemData *, qint64>;

    bool isStopped() const;
    bool takeFirst(Request *request);
    void serve(const Request &request);

    ScanPluginPreviewManager *const m_cache;
    // the standard library's, because race detectors see through them and not through Qt's
    mutable std::mutex m_mutex;
    std::condition_variable m_paused;
    QList<Request> m_queue;
    QSet<Identity> m_queued;
    bool m_stopped = true;
};
