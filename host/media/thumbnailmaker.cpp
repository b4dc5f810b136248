#include "host/media/thumbnailmaker.h"

#include "host/media/mediajobs.h"

#include <QSize>
#include <QtConcurrent>

namespace {
// A card's picture area is 150 x 82; a list row and the detail pane need less.
const QSize CoverSize(300, 166);
} // namespace

ThumbnailMaker::ThumbnailMaker(QObject *parent, std::shared_ptr<MediaPool> pool)
    : QObject(parent)
    , m_pool(std::move(pool))
    , m_sweeping(QtConcurrent::run(&ThumbnailFiles::sweep))
{
}

ThumbnailMaker::~ThumbnailMaker()
{
    m_pool->leave(this);
    m_sweeping.waitForFinished();
}

void ThumbnailMaker::setSource(std::shared_ptr<const ScanSource> source)
{
    m_pool->abandon(this);
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
    MediaPool::Job job;
    if (!m_source || !MediaJobs::prepare(item, extension, &job)) {
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
    job.owner = this;
    job.source = m_source;
    job.request.task = MediaRequest::Picture;
    job.request.cover = CoverSize;
    job.done = [this, generation = m_generation, id = item.id, extension](MediaAnswer &&made) {
        store(generation, id, extension, std::move(made));
    };
    m_pool->add(std::move(job));
}

void ThumbnailMaker::drop()
{
    const QVector<qint64> dropped = m_pool->drop(this);
    for (const qint64 id : dropped)
        m_pending.remove(id);
}

/// On a thread of the pool: encoding and writing take their time.
void ThumbnailMaker::store(int generation, qint64 fileId, const QString &extension,
                           MediaAnswer &&made)
{
    QString path;
    if (!made.image.isNull())
        path = ThumbnailFiles::write(fileId, extension, made.image);
    if (!path.isEmpty()) {
        // Here, because the answer is lost when the maker goes.
        std::lock_guard<std::mutex> lock(m_mutex);
        m_files.add(path);
    }
    QMetaObject::invokeMethod(
        this,
        [this, generation, fileId, path, image = made.image, reason = made.error] {
            answer(generation, fileId, path, image, reason);
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
