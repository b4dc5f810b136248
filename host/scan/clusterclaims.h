#pragma once

#include "host/scan/founditem.h"

#include <QString>
#include <QVector>

#include <mutex>
#include <vector>

#include <tsk/libtsk.h>

/// Which entries of a FAT or exFAT volume say that clusters are theirs. A deleted entry keeps only
/// the first cluster and the size; whether the contents are still the file's shows only when it is
/// held against all others. Filled by a scan, asked by readers, on any threads.
class ClusterClaims
{
public:
    void clear();

    /// Tells of an entry. \a named: it was found in a folder, not among bytes that look like one.
    void add(const TSK_FS_FILE *file, bool deleted, bool named);

    /// Whether the clusters in \a contents, those that are free from the first of \a file on, are
    /// most likely the contents of that deleted file; false with a sentence in \a error otherwise.
    ///
    /// - Another deleted file that claims some of them: they are this file's only when its first
    ///   cluster lies within the other one's, and it was created after it. (Where the other begins
    ///   within this one, this may have been written around it: which parts then is not known.)
    /// - Files between them: this file was written around those that are older, and overwritten by
    ///   younger ones.
    bool belongTo(TSK_FS_FILE *file, const TSK_FS_ATTR *contents, QString *error);

private:
    struct Claim
    {
        TSK_INUM_T address;
        TSK_DADDR_T first; // cluster
        qint64 size;       // bytes
        qint64 created;    // ms; 0: unknown
    };
    struct Owner
    {
        TSK_DADDR_T first; // sector
        TSK_DADDR_T end;   // sector after the last
        qint64 created;
        TSK_INUM_T address;
    };
    struct Live
    {
        TSK_INUM_T address;
        qint64 created;
    };

    static qint64 createdAt(const TSK_FS_META *meta);
    bool isOnlyClaim(TSK_FS_FILE *file, const TSK_FS_ATTR *contents);
    bool isWrittenAround(TSK_FS_FILE *file, const TSK_FS_ATTR *contents, QString *error);
    void findOwners(TSK_FS_INFO *fs);

    std::mutex m_mutex; // guards what follows
    std::vector<Claim> m_deleted;
    std::vector<Live> m_live;
    std::vector<Owner> m_owners;      // by first sector; of m_live, found when first needed
    TSK_DADDR_T m_clusterSectors = 0; // 0: not read yet
    size_t m_ownersOf = 0;            // how many of m_live they were found for
};
