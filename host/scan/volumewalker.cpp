#include "host/scan/volumewalker.h"

#include "host/scan/clusterclaims.h"
#include "host/scan/fatentries.h"
#include "host/scan/scantexts.h"
#include "host/scan/volumefinder.h"

#include <cstring>

namespace {

constexpr int BatchSize = 1024;
constexpr int BatchMs = 50;
constexpr int MaxDepth = 200; // deeper is a fault of the medium, not somebody's folders
constexpr TSK_INUM_T FirstNtfsUserRecord = 24;

bool isFolderType(const TSK_FS_NAME *name, const TSK_FS_META *meta)
{
    return meta ? meta->type == TSK_FS_META_TYPE_DIR : name->type == TSK_FS_NAME_TYPE_DIR;
}

bool isFileType(const TSK_FS_NAME *name, const TSK_FS_META *meta)
{
    return meta ? meta->type == TSK_FS_META_TYPE_REG : name->type == TSK_FS_NAME_TYPE_REG;
}

/// Names that were not written as UTF-8 keep their bytes readable.
QString decoded(const char *name)
{
    const QByteArray bytes(name);
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar::ReplacementCharacter) && !bytes.contains("\xEF\xBF\xBD")
        ? QString::fromLatin1(bytes)
        : text;
}

} // namespace

VolumeWalker::VolumeWalker(TSK_FS_INFO *fs, int volume, ScanIds &ids, const ScanSource::Sink &sink,
                           const std::atomic<bool> &cancel, Warnings &warnings,
                           ClusterClaims &claims)
    : m_fs(fs)
    , m_volume(volume)
    , m_ids(ids)
    , m_sink(sink)
    , m_cancel(cancel)
    , m_warnings(warnings)
    , m_claims(claims)
{
    if (isFatFamily(fs))
        m_fat = std::make_unique<FatEntries>(fs);
    m_sinceBatch.start();
}

VolumeWalker::~VolumeWalker() = default;

bool VolumeWalker::walkFolders()
{
    m_walked.insert(m_fs->root_inum);
    if (!list({m_fs->root_inum, QString(), -1, 0, false}))
        return false;
    walk();
    return true;
}

void VolumeWalker::walkOrphans(const QString &folderName)
{
    m_orphansName = folderName;
    const TSK_INUM_T address = TSK_FS_ORPHANDIR_INUM(m_fs);
    m_walked.insert(address);
    m_deleted.push_back({address, folderName, -1, 0, true});
    walk();
}

void VolumeWalker::walk()
{
    while (!m_cancel && !(m_live.empty() && m_deleted.empty())) {
        std::deque<Folder> &next = m_live.empty() ? m_deleted : m_live;
        const Folder folder = std::move(next.front());
        next.pop_front();
        list(folder);
    }
    flush();
}

bool VolumeWalker::list(const Folder &folder)
{
    TSK_FS_DIR *dir = tsk_fs_dir_open_meta(m_fs, folder.address);
    if (!dir) {
        // Of a deleted folder it is no fault that nothing is left.
        if (!m_cancel && !folder.deleted)
            m_warnings.add(ScanTexts::tr("The folder /%1 could not be read.").arg(folder.path));
        return false;
    }
    const size_t count = tsk_fs_dir_getsize(dir);
    for (size_t i = 0; i < count && !m_cancel; ++i) {
        TSK_FS_FILE *file = tsk_fs_dir_get(dir, i);
        if (!file)
            continue;
        if (file->name && file->name->name) {
            // The library leaves the records of orphans out.
            if (!file->meta && m_fat)
                m_fs->file_add_meta(m_fs, file, file->name->meta_addr);
            take(file, folder);
        }
        tsk_fs_file_close(file);
    }
    tsk_fs_dir_close(dir);
    return true;
}

bool VolumeWalker::isNoise(const TSK_FS_NAME *name, const TSK_FS_META *meta) const
{
    if (std::strcmp(name->name, ".") == 0 || std::strcmp(name->name, "..") == 0)
        return true;
    if (!isFolderType(name, meta) && !isFileType(name, meta))
        return true; // links, devices, and what the library makes up itself
    if (!volumeLabelOf(m_fs, name).isEmpty())
        return true;
    if (m_fs->ftype == TSK_FS_TYPE_EXFAT && name->par_addr == m_fs->root_inum
        && (std::strcmp(name->name, "$ALLOC_BITMAP") == 0
            || std::strcmp(name->name, "$UPCASE_TABLE") == 0))
        return true;
    if (m_fs->ftype == TSK_FS_TYPE_NTFS && name->meta_addr < FirstNtfsUserRecord)
        return true; // the file system's own
    const bool deleted = name->flags & TSK_FS_NAME_FLAG_UNALLOC;
    if (!deleted || m_fat)
        return false;
    // A name that was left behind by a rename, or whose record serves another file by now: there is
    // nothing behind it that is not found elsewhere.
    return !meta || (meta->flags & TSK_FS_META_FLAG_ALLOC)
        || (m_fs->ftype == TSK_FS_TYPE_NTFS && name->meta_seq != meta->seq
            && name->meta_seq + 1 != meta->seq);
}

bool VolumeWalker::isFirstSight(const TSK_FS_NAME *name, const Folder &folder)
{
    if (m_fat) {
        const int before = m_entries.size();
        m_entries.insert(name->meta_addr);
        return m_entries.size() > before;
    }
    const QString key = QStringLiteral("%1 %2 %3")
                            .arg(name->meta_addr)
                            .arg(folder.address)
                            .arg(QString::fromUtf8(name->name));
    const int before = m_names.size();
    m_names.insert(key);
    return m_names.size() > before;
}

QString VolumeWalker::nameOf(const TSK_FS_FILE *file, bool orphan) const
{
    // Of orphans the library gives the short name only.
    const QString longName = orphan && m_fat ? m_fat->longName(file->name->meta_addr) : QString();
    return longName.isEmpty() ? decoded(file->name->name) : longName;
}

void VolumeWalker::take(TSK_FS_FILE *file, const Folder &folder)
{
    const TSK_FS_NAME *name = file->name;
    const TSK_FS_META *meta = file->meta;
    if (isNoise(name, meta) || !isFirstSight(name, folder))
        return;
    const bool inOrphans = !m_orphansName.isEmpty();
    FoundItem item;
    item.name = nameOf(file, inOrphans && folder.depth == 0);
    item.deleted = folder.deleted || (name->flags & TSK_FS_NAME_FLAG_UNALLOC)
        || (meta && (meta->flags & TSK_FS_META_FLAG_UNALLOC));
    item.folder = isFolderType(name, meta);
    item.address = name->meta_addr;
    item.sequence = meta ? meta->seq : 0;
    item.volume = m_volume;
    item.path = folder.path;
    item.parentId = folder.id;
    if (inOrphans && folder.depth == 0) {
        if (m_orphansId < 0) {
            FoundItem top;
            top.id = m_orphansId = m_ids.next();
            top.name = m_orphansName;
            top.folder = true;
            top.deleted = true;
            top.volume = m_volume;
            deliver(top);
        }
        item.parentId = m_orphansId;
    }
    if (meta) {
        item.size = item.folder ? 0 : qMax<qint64>(0, meta->size);
        const qint64 time = meta->mtime;
        const qint64 correction = m_fat ? m_fat->timeCorrection(name->meta_addr, time) : 0;
        item.modifiedTime = qMax<qint64>(0, time + correction);
    }
    item.id = m_ids.next();
    deliver(item);
    if (m_fat)
        m_claims.add(file, item.deleted, !inOrphans);

    if (!item.folder || m_walked.contains(item.address))
        return;
    if (folder.depth >= MaxDepth) {
        m_warnings.add(
            ScanTexts::tr("The folder /%1 lies too deep and was not read.").arg(item.fullPath()));
        return;
    }
    m_walked.insert(item.address);
    auto &queue = item.deleted ? m_deleted : m_live;
    queue.push_back({item.address, item.fullPath(), item.id, folder.depth + 1, item.deleted});
}

void VolumeWalker::deliver(const FoundItem &item)
{
    m_batch.append(item);
    if (m_batch.size() >= BatchSize || m_sinceBatch.elapsed() >= BatchMs)
        flush();
}

void VolumeWalker::flush()
{
    if (!m_batch.isEmpty())
        m_sink(std::move(m_batch));
    m_batch = {};
    m_sinceBatch.restart();
}
