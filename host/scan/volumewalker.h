#pragma once

#include "host/scan/scanids.h"
#include "host/scan/scansource.h"
#include "host/scan/warnings.h"

#include <QElapsedTimer>
#include <QSet>

#include <deque>
#include <memory>

#include <tsk/libtsk.h>

class ClusterClaims;
class FatEntries;

/// Finds the files of one file system, live ones first, and hands them on in batches. One thread,
/// which owns the file system while the walk runs.
///
/// On a broken medium folders may contain themselves or each other, and the same entry may turn up
/// below a live and a deleted folder: each folder is walked once and each entry is told once, the
/// live place first.
class VolumeWalker
{
public:
    VolumeWalker(TSK_FS_INFO *fs, int volume, ScanIds &ids, const ScanSource::Sink &sink,
                 const std::atomic<bool> &cancel, Warnings &warnings, ClusterClaims &claims);
    ~VolumeWalker();

    /// What can be reached from the root. False when the root itself cannot be read.
    bool walkFolders();
    /// Deleted files whose folder is gone.
    void walkOrphans(const QString &folderName);

private:
    struct Folder
    {
        TSK_INUM_T address;
        QString path;
        qint64 id;
        int depth;
        bool deleted;
    };

    void walk();
    bool list(const Folder &folder);
    void take(TSK_FS_FILE *file, const Folder &folder);
    QString nameOf(const TSK_FS_FILE *file, bool orphan) const;
    bool isNoise(const TSK_FS_NAME *name, const TSK_FS_META *meta) const;
    bool isFirstSight(const TSK_FS_NAME *name, const Folder &folder);
    void deliver(const FoundItem &item);
    void flush();

    TSK_FS_INFO *m_fs;
    std::unique_ptr<FatEntries> m_fat; // null on other file systems
    const int m_volume;
    ScanIds &m_ids;
    const ScanSource::Sink &m_sink;
    const std::atomic<bool> &m_cancel;
    Warnings &m_warnings;
    ClusterClaims &m_claims;

    std::deque<Folder> m_live; // walked before any of m_deleted
    std::deque<Folder> m_deleted;
    QSet<quint64> m_walked;  // folders, by address
    QSet<quint64> m_entries; // FAT: entries by address
    QSet<QString> m_names;   // elsewhere: a record has many names; address, folder and name
    QVector<FoundItem> m_batch;
    QElapsedTimer m_sinceBatch;
    QString m_orphansName;
    qint64 m_orphansId = -1;
};
