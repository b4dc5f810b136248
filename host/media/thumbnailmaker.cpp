#include "host/media/thumbnailmaker.h"

#include "host/media/pictureloader.h"
#include "host/scan/filecategory.h"

#include <QSize>

#include <algorithm>

namespace {

constexpr int Threads = 2;
// A card's picture area is 150 x 82; a list row and the detail pane need less.
const QSize CoverSize(300, 166);

} // namespace

ThumbnailMaker::ThumbnailMaker(QObject *parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(Threads);
    m_pool.start(&ThumbnailFiles::sweep);
}

ThumbnailMaker::~ThumbnailMaker()
{
    drop();
    m_pool.waitForDone();
}

void ThumbnailMaker::setSource(std::shared_ptr<const ScanSource> source)
{
    drop();
    ++m_generation; // what is at work answers for a source that is gone
    m_pending.clear();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_files.clear();
    }
    m_made = 0;
    m_source = std::move(source);
}

void ThumbnailMaker::request(const FoundItem &item, const QString &extension)
{
    if (m_pending.contains(item.id))
        return;
    m_pending.insert(item.id);
    if (!m_source || item.folder || categoryOfExtension(extension) != PhotoCategory) {
        // Later, as every other answer: the caller may still be at work on its own request.
        const int generation = m_generation;
        QMetaObject::invokeMethod(
            this,
            [this, generation, id = item.id] {
                answer(generation, id, QString(), QImage(),
                       tr("There is no picture in such a file."));
            },
            Qt::QueuedConnection);
        return;
    }
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stack.push_back({item, extension, m_source, m_generation});
    }
    m_pool.start([this] { work(); });
}

void ThumbnailMaker::drop()
{
    m_pool.clear();
    std::lock_guard<std::mutex> lock(m_mutex);
    for (const Request &request : m_stack)
        m_pending.remove(request.item.id);
    m_stack.clear();
}

bool ThumbnailMaker::takeLatest(Request *request)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stack.empty())
        return false;
    *request = std::move(m_stack.back());
    m_stack.pop_back();
    return true;
}

void ThumbnailMaker::work()
{
    Request request;
    if (!takeLatest(&request))
        return; // dropped
    QString reason;
    QString path;
    QImage image;
    if (const std::unique_ptr<QIODevice> device = request.source->openFile(request.item, &reason))
        image = loadPicture(*device, CoverSize, &reason);
    if (!image.isNull())
        path = ThumbnailFiles::write(request.item.id, request.extension, image);
    if (!path.isEmpty()) {
        // Here, because the answer is lost when the maker goes.
        std::lock_guard<std::mutex> lock(m_mutex);
        m_files.add(path);
    }
    QMetaObject::invokeMethod(
        this,
        [this, generation = request.generation, id = request.item.id, path, image, reason] {
            answer(generation, id, path, image, reason);
        },
        Qt::QueuedConnection);
}

void ThumbnailMaker::answer(int generation, qint64 fileId, const QString &path, const QImage &image,
                            const QString &reason)
{
    if (generation != m_generation) {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_files.remove(path);
        return;
    }
    m_pending.remove(fileId);
    if (image.isNull()) {
        emit thumbnailFailed(fileId, reason);
    } else {
        ++m_made;
        emit thumbnailReady(fileId, path, image);
    }
    if (m_pending.isEmpty())
        emit settled();
}
