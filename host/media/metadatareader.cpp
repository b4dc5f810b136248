#include "host/media/metadatareader.h"

#include "host/media/mediajobs.h"

MetadataReader::MetadataReader(QObject *parent, std::shared_ptr<MediaPool> pool)
    : QObject(parent)
    , m_pool(std::move(pool))
{
}

MetadataReader::~MetadataReader()
{
    m_pool->leave(this);
}

void MetadataReader::setSource(std::shared_ptr<const ScanSource> source)
{
    m_pool->abandon(this);
    ++m_generation;
    m_pending.clear();
    m_source = std::move(source);
}

void MetadataReader::request(const FoundItem &item)
{
    if (m_pending.contains(item.id))
        return;
    m_pending.insert(item.id);
    const auto report = [this, generation = m_generation, id = item.id](MediaAnswer &&made) {
        QMetaObject::invokeMethod(
            this, [this, generation, id, made = std::move(made)] { answer(generation, id, made); },
            Qt::QueuedConnection);
    };
    MediaPool::Job job;
    if (!m_source || !MediaJobs::prepare(item, extensionOf(item.name), &job)) {
        MediaAnswer refusal;
        refusal.error = tr("Such a file has no metadata that can be read.");
        report(std::move(refusal));
        return;
    }
    job.owner = this;
    job.source = m_source;
    job.request.task = MediaRequest::Metadata;
    job.done = report;
    m_pool->add(std::move(job));
}

void MetadataReader::drop()
{
    const QVector<qint64> dropped = m_pool->drop(this);
    for (const qint64 id : dropped)
        m_pending.remove(id);
}

void MetadataReader::answer(int generation, qint64 fileId, const MediaAnswer &answer)
{
    if (generation != m_generation)
        return;
    m_pending.remove(fileId);
    if (answer.error.isEmpty())
        emit metadataReady(fileId, answer.metaData, answer.scenes);
    else
        emit metadataFailed(fileId, answer.error);
}
