#include "content/thumbnailrequests.h"

#include "thumbnails/scanpluginpreviewmanager.h"

#include <QAbstractItemModel>

ThumbnailRequests::ThumbnailRequests(QObject *parent)
    : QObject(parent)
{
    auto *manager = ScanPluginPreviewManager::instance();
    connect(manager, &ScanPluginPreviewManager::signalSaveThumBnail, this,
            &ThumbnailRequests::onMissing);
    connect(manager, &ScanPluginPreviewManager::signalUpdateListView, this,
            &ThumbnailRequests::onAnswered);
}

void ThumbnailRequests::request(TreeItemData *item)
{
    if (!item)
        return;
    m_requested.insert(item->fileId);
    ScanPluginPreviewManager::instance()->requestThumbnail(item);
}

void ThumbnailRequests::followModel(QAbstractItemModel *model)
{
    connect(model, &QAbstractItemModel::modelReset, ScanPluginPreviewManager::instance(),
            &ScanPluginPreviewManager::dropOrphans);
}

void ThumbnailRequests::clear()
{
    m_requested.clear();
}

void ThumbnailRequests::onMissing(TreeItemData *item)
{
    if (!item || !m_requested.contains(item->fileId))
        return;
    if (ScanPluginPreviewManager::instance()->claimHostRequest(item))
        emit wanted(item);
}

void ThumbnailRequests::onAnswered(qint64 fileId)
{
    m_requested.remove(fileId);
    emit answered(fileId);
}
