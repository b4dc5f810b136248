#pragma once

#include "platform/item/treeitemdata.h"
#include "thumbnails/hostfiles.h"
#include "thumbnails/thumbnailstore.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QSet>

#include <atomic>
#include <mutex>
#include <vector>

class GetThumbnailThread;
class QThread;

/// The process's thumbnails of scan items, by file id. Answers from memory; what it does not have
/// is looked up on disk by a worker thread, and a file that is not there is asked of the host once.
/// Memory is bounded: of very many pictures the ones not shown for longest are given up, and loaded
/// from their files again when they are wanted. Made on first use, never destroyed; its threads are
/// joined at the latest when the application object goes. GUI thread, but for the functions that
/// say otherwise.
class ScanPluginPreviewManager : public QObject
{
    Q_OBJECT

public:
    static ScanPluginPreviewManager *instance();

    /// 32 x 32 and rounded for list rows; the icon of the file type while there is no thumbnail.
    QPixmap listThumbnail(TreeItemData *item);
    /// Null when there is none (yet).
    QPixmap gridThumbnail(qint64 fileId);
    /// The same in parts, for who keeps what it has made of a picture: which one it is, and its
    /// pixels. Of very many pictures the latter costs less than a pixmap.
    ThumbnailStore::Info gridThumbnailInfo(qint64 fileId) { return m_pictures.info(fileId); }
    QImage gridImage(qint64 fileId) const { return m_pictures.image(fileId); }
    bool hasGridThumbnail(qint64 fileId) const { return m_pictures.contains(fileId); }
    /// Has the item's thumbnail looked up on disk, unless that has been done or is under way.
    void requestThumbnail(TreeItemData *item);
    /// Settles whether the item has a repaired preview and records that on the item.
    bool hasRepairedPreview(TreeItemData *item);

    /// Any thread.
    static bool hasLocalThumbnail(qint64 fileId, const QString &extension);
    /// Worker thread: reads and scales the item's thumbnail file and has it announced on the GUI
    /// thread. False: there is none that can be read.
    bool loadSavedThumbnailToCache(qint64 fileId, const QString &extension);

    /// A picture from the host; a null one says that there is nothing to show and stops the asking.
    void storeThumbnail(qint64 fileId, const QPixmap &pixmap);
    /// The same, and remembers the file that it came from: it can be given up and loaded again. A
    /// file that bears the name of the item's repaired preview marks the item as repaired.
    void storeThumbnail(qint64 fileId, const QString &path, const QPixmap &pixmap);
    void storeRepairResult(qint64 fileId, const QString &path, const QPixmap &pixmap);

    /// True for the first who wants to ask the host for this item, until it is answered or cleared.
    /// \a item is not null.
    bool claimHostRequest(TreeItemData *item);

    /// Gives up the pictures of records that have died, bit by bit while nothing else is to be
    /// done.
    void dropOrphans();
    /// What all pictures together take in memory.
    qint64 bytesInUse() { return m_pictures.bytes(); }

    /// Ends the worker, joins all threads and forgets all pictures. Requests start it again.
    void stop();

Q_SIGNALS:
    /// A thumbnail was loaded or handed in. Always emitted on the GUI thread.
    void signalUpdateThumBnail(qint64 catalogId, QPixmap pixmap);
    /// The item, which is alive, has no thumbnail file: the host may make one.
    void signalSaveThumBnail(TreeItemData *itemData);
    /// There is a new picture for this id; views repaint the item.
    void signalUpdateListView(qint64 fileId);

public Q_SLOTS:
    void slotUpdateThumBnail(qint64 catalogId, QPixmap pixmap);

private:
    using Guard = QPointer<TreeItemData>;

    ScanPluginPreviewManager();
    ~ScanPluginPreviewManager() override = default;

    /// Where the host puts the files. What keeps it from being there is said once a folder.
    void createFolder();
    void startWorker();
    bool isAnswered(qint64 fileId) const;
    /// What the worker has loaded, on its way to the GUI thread.
    struct Loaded
    {
        int epoch = 0;
        qint64 fileId = 0;
        QImage image;
    };
    bool loadAny(const QStringList &files, const HostFiles::File &like, int epoch, qint64 fileId);
    void handOver(Loaded loaded);
    void takeLoaded();
    void forgetPending(qint64 fileId);
    void relayMiss(TreeItemData *item);
    void takeFromHost(qint64 fileId, const QString &path, const QPixmap &pixmap);
    void announce(qint64 fileId, const QPixmap &pixmap, ThumbnailStore::Source source);
    void sweepOn();

    ThumbnailStore m_pictures;
    ThumbnailStore::Source m_source = ThumbnailStore::Source::OnlyCopy; ///< of what arrives now
    QCache<qint64, QPixmap> m_small; ///< made from the large ones when they are asked for
    bool m_sweeping = false;
    bool m_sweepAgain = false;
    QSet<qint64> m_nothingToShow; ///< null answers: kept for good, so that nobody asks again
    QMap<qint64, QString> m_repairedPaths;
    QSet<qint64> m_repairChecked;
    QHash<qint64, Guard> m_pending;        ///< handed to the worker, not answered yet
    QHash<TreeItemData *, Guard> m_missed; ///< by address, between a miss and its relay
    QSet<qint64> m_overtaken;              ///< pending ones that the host has answered meanwhile
    QHash<qint64, Guard> m_askedOfHost;
    HostFiles m_hostFiles;
    QString m_uselessFolder; ///< the last one that could not be created
    std::mutex m_loadedLock; ///< guards m_loaded
    std::vector<Loaded> m_loaded;
    std::atomic<int> m_epoch{0}; ///< grows with each stop(): what was loaded before is dropped
    GetThumbnailThread *const m_worker;
    QThread *const m_thread;
};
