#include "thumbnails/scanpluginpreviewmanager.h"

#include "thumbnails/filetypeicons.h"
#include "thumbnails/getthumbnailthread.h"
#include "thumbnails/roundedthumbnail.h"
#include "thumbnails/thumbnailfiles.h"
#include "thumbnails/thumbnailimage.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QThread>

#include <algorithm>

namespace {

constexpr int FileKind = 2;
constexpr int GridCacheKiB = 256 * 1024;
constexpr int ListCacheKiB = 32 * 1024;
/// The host may hand over a photo as the camera took it; no view shows more than this.
constexpr int LargestSide = 640;

const char *const s_repairedProperty = "previewRepaired";
const char *const s_repairedPathProperty = "previewRepairedPath";

ScanPluginPreviewManager *s_instance = nullptr;

void joinWorker()
{
    if (s_instance)
        s_instance->stop();
}

int costInKiB(const QPixmap &pixmap)
{
    constexpr qint64 BytesPerPixel = 4;
    const qint64 cost = 1 + BytesPerPixel * pixmap.width() * pixmap.height() / 1024;
    return int(std::min<qint64>(cost, GridCacheKiB / 4));
}

void insertInto(QCache<qint64, QPixmap> &cache, qint64 fileId, const QPixmap &pixmap)
{
    cache.insert(fileId, new QPixmap(pixmap), costInKiB(pixmap));
}

QPixmap pictureIn(const QCache<qint64, QPixmap> &cache, qint64 fileId)
{
    const QPixmap *const pixmap = cache.object(fileId);
    return pixmap ? *pixmap : QPixmap();
}

QPixmap withinBounds(const QPixmap &pixmap)
{
    if (pixmap.width() <= LargestSide && pixmap.height() <= LargestSide)
        return pixmap;
    return pixmap.scaled(LargestSide, LargestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

bool isFile(const TreeItemData *item)
{
    return item && item->kind == FileKind;
}

} // namespace

ScanPluginPreviewManager *ScanPluginPreviewManager::instance()
{
    if (!s_instance)
        s_instance = new ScanPluginPreviewManager;
    return s_instance;
}

ScanPluginPreviewManager::ScanPluginPreviewManager()
    : m_gridCache(GridCacheKiB)
    , m_listCache(ListCacheKiB)
    , m_worker(new GetThumbnailThread(this))
    , m_thread(new QThread)
{
    qRegisterMetaType<TreeItemData *>("TreeItemData*");
    ThumbnailFiles::createRoot();
    connect(this, &ScanPluginPreviewManager::signalUpdateThumBnail, this,
            &ScanPluginPreviewManager::slotUpdateThumBnail);

    m_thread->setObjectName(QStringLiteral("thumbnails"));
    m_worker->moveToThread(m_thread);
    connect(m_thread, SIGNAL(started()), m_worker, SLOT(startThread()));
    connect(m_worker, &GetThumbnailThread::signalLocalThumbnailMiss, this,
            &ScanPluginPreviewManager::forgetPending);
    connect(m_worker, &GetThumbnailThread::signalSaveThumbnail, this,
            [this](TreeItemData *item) { relayMiss(item); });
    if (qApp)
        connect(qApp, &QCoreApplication::aboutToQuit, this, &ScanPluginPreviewManager::stop);
}

QPixmap ScanPluginPreviewManager::listThumbnail(TreeItemData *item)
{
    if (!item)
        return FileTypeIcons::generalIcon(FileTypeIcons::Size::List);
    if (isFile(item)) {
        hasRepairedPreview(item);
        const QPixmap small = pictureIn(m_listCache, item->fileId);
        if (!small.isNull())
            return small;
        const QPixmap large = gridThumbnail(item->fileId);
        if (!large.isNull()) {
            const QPixmap rounded = roundedThumbnail(large);
            insertInto(m_listCache, item->fileId, rounded);
            return rounded;
        }
        requestThumbnail(item);
    }
    return FileTypeIcons::icon(*item, FileTypeIcons::Size::List);
}

QPixmap ScanPluginPreviewManager::gridThumbnail(qint64 fileId) const
{
    return pictureIn(m_gridCache, fileId);
}

void ScanPluginPreviewManager::requestThumbnail(TreeItemData *item)
{
    if (!isFile(item))
        return;
    hasRepairedPreview(item);
    const qint64 fileId = item->fileId;
    if (isAnswered(fileId) || m_pending.contains(fileId))
        return;
    if (m_worker->enqueue(item))
        m_pending.insert(fileId, item);
    startWorker();
}

bool ScanPluginPreviewManager::isAnswered(qint64 fileId) const
{
    // a small picture alone is what is left of one that was given up: the large one comes back
    return m_gridCache.contains(fileId) || m_nothingToShow.contains(fileId);
}

void ScanPluginPreviewManager::startWorker()
{
    if (m_thread->isRunning())
        return;
    ThumbnailFiles::createRoot();
    // an application may end without its loop having run: then nobody hears aboutToQuit()
    qRemovePostRoutine(joinWorker);
    qAddPostRoutine(joinWorker);
    m_thread->start();
}

bool ScanPluginPreviewManager::hasRepairedPreview(TreeItemData *item)
{
    if (!isFile(item))
        return false;
    const qint64 fileId = item->fileId;
    if (item->property(s_repairedProperty).toBool()) {
        m_repairChecked.insert(fileId);
        const QString path = item->property(s_repairedPathProperty).toString();
        if (!path.isEmpty())
            m_repairedPaths.insert(fileId, path);
        return true;
    }

    QString path = m_repairedPaths.value(fileId);
    if (path.isEmpty())
        path = ThumbnailFiles::repairedPreview(fileId, item->extension);
    const bool exists = QFileInfo::exists(path);
    if (!exists && !m_repairChecked.contains(fileId))
        return false;
    m_repairChecked.insert(fileId);
    if (exists) {
        m_repairedPaths.insert(fileId, path);
        item->setProperty(s_repairedPathProperty, path);
    }
    item->setProperty(s_repairedProperty, true);
    return true;
}

bool ScanPluginPreviewManager::hasLocalThumbnail(qint64 fileId, const QString &extension)
{
    return ThumbnailFiles::anyExists(fileId, extension);
}

bool ScanPluginPreviewManager::loadSavedThumbnailToCache(qint64 fileId, const QString &extension)
{
    const int epoch = m_epoch;
    QStringList files;
    if (hasLocalThumbnail(fileId, extension))
        files = ThumbnailFiles::candidates(fileId, extension);
    const QString fromHost = thumbnailPath(fileId);
    if (!fromHost.isEmpty())
        files.append(fromHost);

    for (const QString &file : qAsConst(files)) {
        QImage image = ThumbnailImage::load(file);
        if (image.isNull())
            continue;
        handOver({epoch, fileId, std::move(image)});
        return true;
    }
    return false;
}

void ScanPluginPreviewManager::handOver(Loaded loaded)
{
    {
        const std::lock_guard<std::mutex> lock(m_loadedLock);
        m_loaded.push_back(std::move(loaded));
    }
    // pixmaps are made on the GUI thread only
    QMetaObject::invokeMethod(this, [this] { takeLoaded(); });
}

void ScanPluginPreviewManager::takeLoaded()
{
    std::vector<Loaded> arrived;
    {
        const std::lock_guard<std::mutex> lock(m_loadedLock);
        arrived.swap(m_loaded);
    }
    for (Loaded &loaded : arrived) {
        if (loaded.epoch != m_epoch || m_overtaken.remove(loaded.fileId))
            continue;
        emit signalUpdateThumBnail(loaded.fileId, QPixmap::fromImage(std::move(loaded.image)));
    }
}

void ScanPluginPreviewManager::forgetPending(qint64 fileId)
{
    m_overtaken.remove(fileId);
    const Guard item = m_pending.take(fileId);
    if (item)
        m_missed.insert(item.data(), item);
}

void ScanPluginPreviewManager::relayMiss(TreeItemData *item)
{
    const Guard guard = m_missed.take(item);
    if (guard)
        emit signalSaveThumBnail(guard.data());
}

void ScanPluginPreviewManager::storeThumbnail(qint64 fileId, const QPixmap &pixmap)
{
    if (fileId < 0) {
        qWarning() << "ScanPluginPreviewManager thumbnail for an invalid file id:" << fileId;
        return;
    }
    if (!pixmap.isNull() && m_pending.contains(fileId))
        m_overtaken.insert(fileId);
    emit signalUpdateThumBnail(fileId, withinBounds(pixmap));
}

void ScanPluginPreviewManager::storeThumbnail(qint64 fileId, const QString &path,
                                              const QPixmap &pixmap)
{
    if (ThumbnailFiles::isRepairedPreview(fileId, path)) {
        storeRepairResult(fileId, path, pixmap);
        return;
    }
    if (fileId >= 0 && !path.isEmpty())
        rememberThumbnailPath(fileId, path);
    storeThumbnail(fileId, pixmap);
}

void ScanPluginPreviewManager::storeRepairResult(qint64 fileId, const QString &path,
                                                 const QPixmap &pixmap)
{
    if (fileId < 0)
        return;
    m_repairChecked.insert(fileId);
    if (!path.isEmpty())
        m_repairedPaths.insert(fileId, path);
    storeThumbnail(fileId, pixmap);
}

void ScanPluginPreviewManager::slotUpdateThumBnail(qint64 catalogId, QPixmap pixmap)
{
    m_pending.remove(catalogId);
    m_askedOfHost.remove(catalogId);
    if (pixmap.isNull()) {
        m_nothingToShow.insert(catalogId);
        m_gridCache.remove(catalogId);
        m_listCache.remove(catalogId);
    } else {
        m_nothingToShow.remove(catalogId);
        insertInto(m_gridCache, catalogId, pixmap);
        insertInto(m_listCache, catalogId, roundedThumbnail(pixmap));
    }
    emit signalUpdateListView(catalogId);
}

bool ScanPluginPreviewManager::claimHostRequest(qint64 fileId)
{
    if (m_askedOfHost.contains(fileId))
        return false;
    m_askedOfHost.insert(fileId);
    return true;
}

QString ScanPluginPreviewManager::thumbnailPath(qint64 fileId) const
{
    const std::lock_guard<std::mutex> lock(m_pathLock);
    return m_thumbnailPaths.value(fileId);
}

void ScanPluginPreviewManager::rememberThumbnailPath(qint64 fileId, const QString &path)
{
    const std::lock_guard<std::mutex> lock(m_pathLock);
    m_thumbnailPaths.insert(fileId, path);
}

void ScanPluginPreviewManager::stop()
{
    m_thread->requestInterruption();
    m_worker->pause();
    m_thread->quit();
    m_thread->wait();
    ++m_epoch;

    m_gridCache.clear();
    m_listCache.clear();
    m_nothingToShow.clear();
    m_repairedPaths.clear();
    m_repairChecked.clear();
    m_pending.clear();
    m_missed.clear();
    m_overtaken.clear();
    m_askedOfHost.clear();
    const std::lock_guard<std::mutex> lock(m_pathLock);
    m_thumbnailPaths.clear();
}
