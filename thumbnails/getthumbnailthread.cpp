#include "thumbnails/getthumbnailthread.h"

#include "platform/item/treeitemdata.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QThread>

#include <chrono>

namespace {

constexpr int FileKind = 2;
constexpr std::chrono::milliseconds IdleSleep(1000);

} // namespace

GetThumbnailThread::GetThumbnailThread(ScanPluginPreviewManager *cache)
    : m_cache(cache)
{
}

GetThumbnailThread::~GetThumbnailThread() = default;

bool GetThumbnailThread::enqueue(TreeItemData *item)
{
    if (!item)
        return false;
    const Identity identity(item, item->fileId);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_queued.contains(identity))
        return false;
    m_queued.insert(identity);
    m_queue.append({item, item->fileId, item->extension, item->kind == FileKind});
    return true;
}

void GetThumbnailThread::pause()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stopped = true;
    m_queue.clear();
    m_queued.clear();
    m_paused.notify_all();
}

void GetThumbnailThread::startThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_stopped = false;
    }
    while (!isStopped()) {
        Request request;
        if (takeFirst(&request))
            serve(request);
    }
}

bool GetThumbnailThread::isStopped() const
{
    // a pause may come before the loop has begun; the thread remembers that it is to end
    if (QThread::currentThread()->isInterruptionRequested())
        return true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_stopped;
}

bool GetThumbnailThread::takeFirst(Request *request)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_queue.isEmpty())
        m_paused.wait_for(lock, IdleSleep, [this] { return m_stopped; }); // only a pause wakes
    if (m_stopped || m_queue.isEmpty())
        return false;
    *request = m_queue.takeFirst();
    m_queued.remove(Identity(request->item, request->fileId));
    return true;
}

void GetThumbnailThread::serve(const Request &request)
{
    if (!request.isFile || m_cache->loadSavedThumbnailToCache(request.fileId, request.extension))
        return;
    if (isStopped())
        return; // given up half way: nobody knows whether there is a thumbnail
    emit signalLocalThumbnailMiss(request.fileId);
    emit signalSaveThumbnail(request.item);
}
