#pragma once

#include "platform/item/treeitemdata.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QSet>

class GetThumbnailThread;
class QThread;

/// The process's thumbnails of scan items, by file id. Answers from memory; what it does not have
/// is looked up on disk by a worker thread, and a file that is not there is asked of the host once.
/// Made on first use, never destroyed. GUI thread, but for the functions that say otherwise.
class ScanPluginPreviewManager : public QObject
{
    Q_OBJECT

public:
    static ScanPluginPreviewManager *instance();

    /// 32 x 32 and rounded for list rows; the icon of the file type while there is no thumbnail.
    QPixmap listThumbnail(TreeItemData *item);
    /// Null when there is none (yet).
    QPixmap gridThumbnail(qint64 fileId) const;
    /// Has the item's thumbnail looked up on disk, unless that has been done or is under way.
    void requestThumbnail(TreeItemData *item);
    /// Settles whether the item has a repaired preview and records that on the item.
    bool hasRepairedPreview(TreeItemData *item);

    /// Any thread.
    static bool hasLocalThumbnail(qint64 fileId, const QString &extension);
    /// Worker thread: reads, scales and announces the item's thumbnail file. False: there is none.
    bool loadSavedThumbnailToCache(qint64 fileId, const QString &extension);

    /// A picture from the host; a null one says that there is nothing to show and stops the asking.
    void storeThumbnail(qint64 fileId, const QPixmap &pixmap);
    /// The same, and remembers the file that it came from. A file that bears the name of the item's
    /// repaired preview marks the item as repaired.
    void storeThumbnail(qint64 fileId, const QString &path, const QPixmap &pixmap);
    void storeRepairResult(qint64 fileId, const QString &path, const QPixmap &pixmap);

    /// True for the first who wants to ask the host for this item, until it is answered or cleared.
    bool claimHostRequest(qint64 fileId);

    /// Ends the worker, joins its thread and forgets all pictures. Requests start it again.
    void stop();

Q_SIGNALS:
    void signalUpdateThumBnail(qint64 catalogId, QPixmap pixmap);
    void signalSaveThumBnail(TreeItemData *itemData);
    void signalUpdateListView(qint64 fileId);

public Q_SLOTS:
    void slotUpdateThumBnail(qint64 catalogId, QPixmap pixmap);
};
