#include "host/scan/cardfile.h"

#include "host/scan/clusterclaims.h"
#include "host/scan/deletedcontents.h"
#include "host/scan/scantexts.h"
#include "host/scan/volumefinder.h"

CardFile::CardFile(std::shared_ptr<CardPool> pool, std::unique_ptr<Card> card)
    : m_pool(std::move(pool))
    , m_card(std::move(card))
{
}

CardFile::~CardFile()
{
    if (m_file)
        tsk_fs_file_close(m_file);
    m_pool->giveBack(std::move(m_card));
}

std::unique_ptr<QIODevice> CardFile::open(std::shared_ptr<CardPool> pool, const FoundItem &item,
                                          QString *error)
{
    std::unique_ptr<Card> card = pool->take(error);
    if (!card)
        return nullptr;
    std::unique_ptr<CardFile> file(new CardFile(std::move(pool), std::move(card)));
    if (!file->find(item, error))
        return nullptr;
    file->QIODevice::open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    return file;
}

bool CardFile::find(const FoundItem &item, QString *error)
{
    const std::vector<CardVolume> &volumes = m_pool->volumes();
    TSK_FS_INFO *fs = item.volume >= 0 && size_t(item.volume) < volumes.size()
        ? m_card->fileSystem(volumes[size_t(item.volume)])
        : nullptr;
    if (!fs) {
        *error = ScanTexts::tr("The card cannot be read any more.");
        return false;
    }
    m_file = tsk_fs_file_open_meta(fs, nullptr, item.address);
    if (!m_file || !m_file->meta) {
        const QString cause = m_card->readError();
        *error = cause.isEmpty() ? ScanTexts::tr("The file's record cannot be read.")
                                 : ScanTexts::tr("The card cannot be read: %1.").arg(cause);
        return false;
    }
    if (item.folder || item.sequence != m_file->meta->seq || item.size != m_file->meta->size) {
        *error = ScanTexts::tr("The file's record has changed since the scan.");
        return false;
    }
    m_size = item.size;
    if (m_size == 0 && !item.deleted)
        return true;
    ClusterClaims *claims = isFatFamily(fs) ? &m_pool->claims(item.volume) : nullptr;
    return checkContents(m_file, item.deleted, claims, error);
}

qint64 CardFile::readData(char *data, qint64 length)
{
    const qint64 offset = pos();
    const qint64 want = qMin(length, m_size - offset);
    if (want <= 0)
        return 0;
    m_card->clearReadError();
    const ssize_t got = tsk_fs_file_read(m_file, offset, data, size_t(want),
                                         TSK_FS_FILE_READ_FLAG_NONE);
    const QString cause = m_card->readError();
    if (got <= 0 || !cause.isEmpty()) {
        setErrorString(
            cause.isEmpty()
                ? ScanTexts::tr("The contents end at byte %L1 of %L2.").arg(offset).arg(m_size)
                : ScanTexts::tr("The card cannot be read at byte %L1 of the file: %2.")
                      .arg(offset)
                      .arg(cause));
        return -1;
    }
    return got;
}
