#pragma once

#include "host/scan/scansource.h"

#include <QString>

class CardPool;

/// The files, live and deleted, of the file systems in a disk image or on a block device, with or
/// without a partition table: FAT12/16/32, exFAT, NTFS, ext2/3/4.
///
/// Deleted files whose folder is gone are delivered below a folder of their own, orphansName().
/// What only describes the file system (boot records, allocation tables, journals) is left out.
class ImageSource : public ScanSource
{
public:
    static std::unique_ptr<ScanSource> open(const QString &path, QString *error);
    ~ImageSource() override;

    /// Name of the root folder that holds deleted files without a parent.
    static QString orphansName();

    ScanOutcome scan(const Sink &sink, const std::atomic<bool> &cancel,
                     const Progress &progress = {}) override;
    std::unique_ptr<QIODevice> openFile(const FoundItem &item, QString *error) const override;

private:
    ImageSource(const QString &path, std::shared_ptr<CardPool> pool);

    std::shared_ptr<CardPool> m_pool;
};
