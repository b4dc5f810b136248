#pragma once

#include "platform/item/treeitemdata.h"

#include <QObject>
#include <QSet>

class QAbstractItemModel;

/// What one side has asked the thumbnail cache for. Files that are not on disk come back here and
/// reach the host once, through the side that shows the item. GUI thread.
class ThumbnailRequests : public QObject
{
    Q_OBJECT

public:
    explicit ThumbnailRequests(QObject *parent = nullptr);

    void request(TreeItemData *item);
    /// Has the cache look after each reset for records that have gone, and give up their pictures.
    void followModel(QAbstractItemModel *model);
    void clear();

signals:
    /// The host is to make this item's thumbnail.
    void wanted(TreeItemData *item);
    /// The cache has an answer for this file.
    void answered(qint64 fileId);

private:
    void onMissing(TreeItemData *item);
    void onAnswered(qint64 fileId);

    QSet<qint64> m_requested;
};
