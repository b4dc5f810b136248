#pragma once

#include <QByteArray>
#include <QString>

#include <tsk/libtsk.h>

/// The directory entries of a FAT or exFAT volume as they lie on the medium, for what the library
/// does not pass on. An entry's address is that of the library's record. Belongs to the thread that
/// uses the file system.
class FatEntries
{
public:
    explicit FatEntries(TSK_FS_INFO *fs);

    /// Bytes in a cluster; 0: neither the boot sector nor its copy could be made sense of, and
    /// nothing else is known either.
    qint64 clusterBytes() const { return m_clusterBytes; }

    /// The long name that belongs to the short entry at \a address of a FAT volume, empty when it
    /// has none or parts of it are lost.
    QString longName(TSK_INUM_T address) const;

    /// What is to be added to the time that the library gives for the file at \a address, seconds:
    /// it takes all times for local ones, but an exFAT entry may name its own time zone. \a time is
    /// the library's.
    qint64 timeCorrection(TSK_INUM_T address, qint64 time) const;

private:
    QByteArray entryAt(TSK_INUM_T address) const;
    bool readBoot(TSK_OFF_T sector);

    TSK_FS_INFO *m_fs;
    qint64 m_clusterBytes = 0;
    TSK_OFF_T m_entries = 0; // byte in the file system where the library begins to count entries
};
