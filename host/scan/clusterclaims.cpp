#include "host/scan/clusterclaims.h"

#include "host/scan/fatentries.h"
#include "host/scan/scantexts.h"

#include <algorithm>

namespace {

constexpr TSK_DADDR_T ClusterMask = 0x0fffffff; // the rest of the number is reserved on FAT32

/// Where the contents begin, as the entry says; 0: nowhere.
TSK_DADDR_T firstCluster(const TSK_FS_FILE *file)
{
    if (!file->meta->content_ptr || file->meta->content_len < sizeof(TSK_DADDR_T))
        return 0;
    const TSK_DADDR_T cluster = *static_cast<const TSK_DADDR_T *>(file->meta->content_ptr);
    return file->fs_info->ftype == TSK_FS_TYPE_EXFAT ? cluster : cluster & ClusterMask;
}

QString nameOf(TSK_FS_INFO *fs, TSK_INUM_T address)
{
    QString name = FatEntries(fs).longName(address);
    TSK_FS_FILE *file = name.isEmpty() ? tsk_fs_file_open_meta(fs, nullptr, address) : nullptr;
    if (file && file->meta && file->meta->name2)
        name = QString::fromUtf8(file->meta->name2->name);
    if (file)
        tsk_fs_file_close(file);
    return name;
}

} // namespace

qint64 ClusterClaims::createdAt(const TSK_FS_META *meta)
{
    constexpr qint64 NanosPerMs = 1000000;
    return qint64(meta->crtime) * 1000 + meta->crtime_nano / NanosPerMs;
}

void ClusterClaims::clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_deleted.clear();
    m_live.clear();
    m_owners.clear();
    m_ownersOf = 0;
    m_clusterSectors = 0;
}

void ClusterClaims::add(const TSK_FS_FILE *file, bool deleted, bool named)
{
    if (!file->meta)
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!deleted) {
        m_live.push_back({file->meta->addr, createdAt(file->meta)});
        return;
    }
    const TSK_DADDR_T first = firstCluster(file);
    if (named && first >= 2 && file->meta->type == TSK_FS_META_TYPE_REG && file->meta->size > 0)
        m_deleted.push_back({file->meta->addr, first, file->meta->size, createdAt(file->meta)});
}

bool ClusterClaims::belongTo(TSK_FS_FILE *file, const TSK_FS_ATTR *contents, QString *error)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    // First what is certain: behind a part that was overwritten, the free clusters that make up for
    // its length often are those of the next deleted file.
    if (!isWrittenAround(file, contents, error))
        return false;
    if (!isOnlyClaim(file, contents)) {
        *error = ScanTexts::tr(
            "Another deleted file was in the same place; which of the two is still there is "
            "not known.");
        return false;
    }
    return true;
}

bool ClusterClaims::isOnlyClaim(TSK_FS_FILE *file, const TSK_FS_ATTR *contents)
{
    if (m_clusterSectors == 0)
        m_clusterSectors = TSK_DADDR_T(FatEntries(file->fs_info).clusterBytes())
            / file->fs_info->block_size;
    if (m_clusterSectors == 0 || !contents->nrd.run)
        return false;
    const TSK_DADDR_T cluster = firstCluster(file);
    const TSK_DADDR_T sector = contents->nrd.run->addr;
    const qint64 bytes = qint64(m_clusterSectors) * file->fs_info->block_size;
    const qint64 created = createdAt(file->meta);
    for (const Claim &claim : m_deleted) {
        if (claim.address == file->meta->addr)
            continue;
        if (claim.first == cluster && claim.size == file->meta->size)
            continue; // the same file under an earlier name
        const TSK_DADDR_T clusters = TSK_DADDR_T((claim.size + bytes - 1) / bytes);
        bool shared = false;
        for (const TSK_FS_ATTR_RUN *run = contents->nrd.run; run && !shared; run = run->next) {
            const TSK_DADDR_T begin = cluster + (run->addr - sector) / m_clusterSectors;
            const TSK_DADDR_T end = begin + (run->len + m_clusterSectors - 1) / m_clusterSectors;
            shared = claim.first < end && begin < claim.first + clusters;
        }
        if (shared && (claim.first > cluster || created <= claim.created))
            return false;
    }
    return true;
}

bool ClusterClaims::isWrittenAround(TSK_FS_FILE *file, const TSK_FS_ATTR *contents, QString *error)
{
    const QString overwritten = ScanTexts::tr(
        "A part of the contents has been overwritten by another file.");
    const qint64 created = createdAt(file->meta);
    for (const TSK_FS_ATTR_RUN *run = contents->nrd.run; run && run->next; run = run->next) {
        TSK_DADDR_T sector = run->addr + run->len;
        const TSK_DADDR_T gapEnd = run->next->addr;
        if (sector < gapEnd && m_ownersOf != m_live.size())
            findOwners(file->fs_info);
        while (sector < gapEnd) {
            auto owner = std::upper_bound(
                m_owners.cbegin(), m_owners.cend(), sector,
                [](TSK_DADDR_T place, const Owner &each) { return place < each.first; });
            if (owner == m_owners.cbegin() || sector >= (--owner)->end) {
                *error = overwritten; // in use by nobody that we know
                return false;
            }
            if (owner->created > created) {
                const QString name = nameOf(file->fs_info, owner->address);
                *error = name.isEmpty()
                    ? overwritten
                    : ScanTexts::tr(
                          "A part of the contents has been overwritten by the newer file %1.")
                          .arg(name);
                return false;
            }
            sector = owner->end;
        }
    }
    return true;
}

void ClusterClaims::findOwners(TSK_FS_INFO *fs)
{
    m_owners.clear();
    for (const Live &live : m_live) {
        TSK_FS_FILE *file = tsk_fs_file_open_meta(fs, nullptr, live.address);
        const TSK_FS_ATTR *contents = file ? tsk_fs_file_attr_get(file) : nullptr;
        for (const TSK_FS_ATTR_RUN *run = contents ? contents->nrd.run : nullptr; run;
             run = run->next)
            m_owners.push_back({run->addr, run->addr + run->len, live.created, live.address});
        if (file)
            tsk_fs_file_close(file);
    }
    std::sort(m_owners.begin(), m_owners.end(),
              [](const Owner &a, const Owner &b) { return a.first < b.first; });
    m_ownersOf = m_live.size();
}
