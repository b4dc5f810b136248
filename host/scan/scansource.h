#pragma once

#include "host/scan/founditem.h"

#include <QIODevice>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>

/// How a scan ended.
struct ScanOutcome
{
    QString error; ///< why the scan could not go on; empty: it went through (or was cancelled)
    QStringList warnings; ///< what had to be skipped, one readable line each (a limited number)
    int skipped = 0;      ///< how many things were skipped in all
    bool cancelled = false;
};

Q_DECLARE_METATYPE(ScanOutcome)

/// Something that files can be found in: a folder, or a disk image or block device. Only ever read.
///
/// Threads: create() and scan() may run on any thread, scan() once at a time. volumes(), path() and
/// openFile() may be called from any thread at any time, also while a scan runs. The source must
/// outlive the devices that it opened; hold it by shared_ptr.
class ScanSource
{
public:
    /// Takes a batch of items, parents before children. Called on the scanning thread.
    using Sink = std::function<void(QVector<FoundItem> &&batch)>;
    /// Takes how far the scan has come, 0 to 1. Called on the scanning thread, rarely.
    using Progress = std::function<void(double fraction)>;

    /// Opens \a path: a folder, a regular file that is a disk image, or a block device; or what
    /// SyntheticSource::pathFor() names. Null when it cannot be read or holds nothing that we know;
    /// then \a error is a sentence for the user.
    static std::unique_ptr<ScanSource> create(const QString &path, QString *error);

    virtual ~ScanSource();
    ScanSource(const ScanSource &) = delete;
    ScanSource &operator=(const ScanSource &) = delete;

    /// What create() was given, absolute.
    QString path() const { return m_path; }
    /// At least one. Fixed from creation on.
    QVector<VolumeInfo> volumes() const { return m_volumes; }

    /// Finds everything and hands it to \a sink in batches. Returns soon after \a cancel becomes
    /// true. What was found before a failure has been delivered.
    virtual ScanOutcome scan(const Sink &sink, const std::atomic<bool> &cancel,
                             const Progress &progress = {}) = 0;

    /// The contents of \a item (a file that this source found), open for reading, random access.
    /// Use the device on one thread at a time. Null when the contents are gone or damaged as far as
    /// the file system can tell; then \a error says why. A read that fails later returns -1 with
    /// the reason in errorString(); the device never delivers bytes that are known to be wrong.
    virtual std::unique_ptr<QIODevice> openFile(const FoundItem &item, QString *error) const = 0;

protected:
    explicit ScanSource(const QString &path);

    QString m_path;
    QVector<VolumeInfo> m_volumes;
};
