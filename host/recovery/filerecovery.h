#pragma once

#include "host/recovery/recoveryreport.h"
#include "host/recovery/targettree.h"
#include "host/scan/scansource.h"

#include <QFile>

#include <atomic>
#include <functional>

/// Writes items of a source below a target folder, one after the other, on the calling thread. See
/// RecoveryJob for what it promises.
class FileRecovery
{
public:
    using Tell = std::function<void(const RecoveryProgress &)>;

    FileRecovery(const ScanSource &source, const QString &target, const std::atomic<bool> &cancel,
                 const Tell &tell);

    RecoveryReport recover(const QVector<FoundItem> &items);
    /// What is to be reported when the work cannot begin.
    RecoveryReport refuse(const QVector<FoundItem> &items, const QString &reason);

private:
    enum Outcome { Done, Failed, Cancelled };

    QString cardPath(const FoundItem &item) const; ///< with the volume where there are several
    QString cardFolder(const FoundItem &item) const;
    Outcome recoverFile(const FoundItem &item, QString *reason);
    Outcome copy(QIODevice &from, QFile &to, const FoundItem &item, QString *sha256,
                 QString *reason);
    bool isPointless(qint64 size, QString *reason);
    void keepFolderTimes(const QVector<FoundItem> &items);
    void fail(const FoundItem &item, const QString &reason);

    const ScanSource &m_source;
    const QVector<VolumeInfo> m_volumes;
    TargetTree m_tree;
    const std::atomic<bool> &m_cancel;
    const Tell &m_tell;
    RecoveryReport m_report;
    RecoveryProgress m_progress;
};
