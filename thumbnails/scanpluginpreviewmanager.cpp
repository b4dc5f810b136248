#include "thumbnails/scanpluginpreviewmanager.h"

#include "thumbnails/filetypeicons.h"
#include "thumbnails/getthumbnailthread.h"
#include "thumbnails/roundedthumbnail.h"
#include "thumbnails/thumbnailfiles.h"
#include "thumbnails/thumbnailimage.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int FileKind = 2;
constexpr int MostSmallPictures = 512; // 4 KiB each
constexpr int SweepStep = 512;         // well under a millisecond
/// The host may hand over a photo as the camera took it; no view shows more than this.
constexpr int LargestSide = 640;

const char *const s_repairedProperty = "previewRepaired";
const char *const s_repairedPathProperty = "previewRepairedPath";

ScanPluginPreviewManager *s_instance = nullptr;

void joinThreads()
{
    if (s_instance)
        s_instance->stop();
}

/// An application may end without its loop having run: then nobody hears aboutToQuit().
void joinThreadsAtTheEnd()
{
    qRemovePostRoutine(joinThreads);
    qAddPostRoutine(joinThreads);
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
    : m_pictures(ThumbnailStore::Limits())
    , m_small(MostSmallPictures)
    , m_worker(new GetThumbnailThread(this))
    , m_thread(new QThread)
{
    qRegisterMetaType<TreeItemData *>("TreeItemData*");
    createFolder();
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
        if (const QPixmap *const small = m_small.object(item->fileId))
            return *small;
        const QPixmap large = gridThumbnail(item->fileId);
        if (!large.isNull()) {
            const QPixmap small = roundedThumbnail(large);
            m_small.insert(item->fileId, new QPixmap(small));
            return small;
        }
        requestThumbnail(item);
    }
    return FileTypeIcons::icon(*item, FileTypeIcons::Size::List);
}

QPixmap ScanPluginPreviewManager::gridThumbnail(qint64 fileId)
{
    return m_pictures.picture(fileId);
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
    return m_pictures.contains(fileId) || m_nothingToShow.contains(fileId);
}

void ScanPluginPreviewManager::createFolder()
{
    const QString folder = ThumbnailFiles::root();
    if (ThumbnailFiles::createRoot() || folder == m_uselessFolder)
        return;
    m_uselessFolder = folder; // said once
    qWarning() << "ScanPluginPreviewManager cannot create the folder for thumbnails:" << folder;
}

void ScanPluginPreviewManager::startWorker()
{
    if (m_thread->isRunning())
        return;
    createFolder();
    joinThreadsAtTheEnd();
    m_thread->start();
}

bool ScanPluginPreviewManager::hasRepairedPreview(TreeItemData *item)
{
    if (!isFile(item))
        return false;
    const qint64 fileId = item->fileId;
    m_pictures.adopt(fileId, item);
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
    // what the host handed over last comes back, not what was there before
    const HostFiles::File fromHost = m_hostFiles.file(fileId);
    if (!fromHost.path.isEmpty() && loadAny({fromHost.path}, fromHost, epoch, fileId))
        return true;
    return hasLocalThumbnail(fileId, extension)
        && loadAny(ThumbnailFiles::candidates(fileId, extension), {}, epoch, fileId);
}

bool ScanPluginPreviewManager::loadAny(const QStringList &files, const HostFiles::File &like,
                                       int epoch, qint64 fileId)
{
    for (const QString &file : files) {
        QImage image = ThumbnailImage::load(file, like.size);
        if (image.isNull())
            continue;
        image.setDevicePixelRatio(like.devicePixelRatio);
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
        announce(loaded.fileId, QPixmap::fromImage(std::move(loaded.image)),
                 ThumbnailStore::Source::File);
    }
}

void ScanPluginPreviewManager::announce(qint64 fileId, const QPixmap &pixmap,
                                        ThumbnailStore::Source source)
{
    const QScopedValueRollback<ThumbnailStore::Source> rollback(m_source, source);
    emit signalUpdateThumBnail(fileId, pixmap);
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
    takeFromHost(fileId, QString(), pixmap);
}

void ScanPluginPreviewManager::storeThumbnail(qint64 fileId, const QString &path,
                                              const QPixmap &pixmap)
{
    if (ThumbnailFiles::isRepairedPreview(fileId, path))
        storeRepairResult(fileId, path, pixmap);
    else
        takeFromHost(fileId, path, pixmap);
}

void ScanPluginPreviewManager::storeRepairResult(qint64 fileId, const QString &path,
                                                 const QPixmap &pixmap)
{
    if (fileId < 0)
        return;
    m_repairChecked.insert(fileId);
    if (!path.isEmpty())
        m_repairedPaths.insert(fileId, path);
    takeFromHost(fileId, path, pixmap);
}

void ScanPluginPreviewManager::takeFromHost(qint64 fileId, const QString &path,
                                            const QPixmap &pixmap)
{
    if (fileId < 0) {
        qWarning() << "ScanPluginPreviewManager thumbnail for an invalid file id:" << fileId;
        return;
    }
    const QPixmap picture = withinBounds(pixmap);
    const bool hasFile = !picture.isNull() && QFileInfo(path).isFile();
    if (hasFile)
        m_hostFiles.remember(fileId, {path, picture.size(), picture.devicePixelRatio()});
    else
        m_hostFiles.forget(fileId);
    if (!picture.isNull() && m_pending.contains(fileId))
        m_overtaken.insert(fileId);
    announce(fileId, picture,
             hasFile ? ThumbnailStore::Source::File : ThumbnailStore::Source::OnlyCopy);
}

void ScanPluginPreviewManager::slotUpdateThumBnail(qint64 catalogId, QPixmap pixmap)
{
    joinThreadsAtTheEnd(); // one may pack the pictures that this one pushes aside
    const bool wanted = m_pending.contains(catalogId) || m_askedOfHost.contains(catalogId);
    Guard owner = m_pending.take(catalogId);
    const Guard asker = m_askedOfHost.take(catalogId);
    if (!owner)
        owner = asker;
    m_small.remove(catalogId);
    m_pictures.insert(catalogId, pixmap, m_source, owner);
    if (wanted && !owner)
        m_pictures.orphan(catalogId);
    if (pixmap.isNull())
        m_nothingToShow.insert(catalogId);
    else
        m_nothingToShow.remove(catalogId);
    emit signalUpdateListView(catalogId);
}

bool ScanPluginPreviewManager::claimHostRequest(TreeItemData *item)
{
    if (m_askedOfHost.contains(item->fileId))
        return false;
    m_askedOfHost.insert(item->fileId, item);
    return true;
}

void ScanPluginPreviewManager::dropOrphans()
{
    m_sweepAgain = m_sweeping;
    if (m_sweeping)
        return;
    m_sweeping = true;
    m_pictures.startSweep();
    sweepOn();
}

void ScanPluginPreviewManager::sweepOn()
{
    // later, as who replaces the records may delete the old ones only after this; and between two
    // steps the user comes first
    QTimer::singleShot(0, this, [this] {
        if (m_pictures.sweep(SweepStep))
            return sweepOn();
        m_sweeping = false;
        if (m_sweepAgain)
            dropOrphans();
    });
}

void ScanPluginPreviewManager::stop()
{
    m_thread->requestInterruption();
    m_worker->pause();
    m_thread->quit();
    m_thread->wait();
    ++m_epoch;

    m_pictures.clear();
    m_small.clear();
    m_nothingToShow.clear();
    m_repairedPaths.clear();
    m_repairChecked.clear();
    m_pending.clear();
    m_missed.clear();
    m_overtaken.clear();
    m_askedOfHost.clear();
    m_hostFiles.clear();
}
