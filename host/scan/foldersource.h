#pragma once

#include "host/scan/scansource.h"

#include <QHash>

#include <filesystem>
#include <mutex>

/// The files below a folder of this computer. Links are not followed: what they lead to is found
/// where it lies, and a walk cannot turn in circles. Special files are left out.
class FolderSource : public ScanSource
{
public:
    static std::unique_ptr<ScanSource> open(const QString &path, QString *error);

    ScanOutcome scan(const Sink &sink, const std::atomic<bool> &cancel,
                     const Progress &progress = {}) override;
    std::unique_ptr<QIODevice> openFile(const FoundItem &item, QString *error) const override;

private:
    explicit FolderSource(const QString &path);

    std::filesystem::path pathOf(const FoundItem &item) const;

    mutable std::mutex m_mutex;                      // guards what follows
    QHash<qint64, std::filesystem::path> m_oddNames; // files whose name is no valid Unicode
};
