#include "host/scan/foldersource.h"

#include "host/scan/scanids.h"
#include "host/scan/scantexts.h"
#include "host/scan/shownpath.h"
#include "host/scan/warnings.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr int BatchSize = 1024;
constexpr int BatchMs = 50;

QString toText(const fs::path &path)
{
    return QString::fromStdString(path.u8string());
}

/// A path's text leads back to the file only where the name is valid Unicode.
bool survivesAsText(const fs::path &name)
{
    return fs::u8path(toText(name).toStdString()).native() == name.native();
}

/// Reads files that Qt cannot name.
class OddNameFile : public QIODevice
{
public:
    explicit OddNameFile(const fs::path &path)
        : m_stream(path, std::ios::binary)
    {
        std::error_code failure;
        m_size = qint64(fs::file_size(path, failure));
        if (!failure && m_stream.is_open())
            open(QIODevice::ReadOnly);
    }
    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        m_stream.clear();
        m_stream.seekg(pos());
        m_stream.read(data, length);
        if (m_stream.bad()) {
            setErrorString(ScanTexts::tr("The file could not be read."));
            return -1;
        }
        return m_stream.gcount();
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::ifstream m_stream;
    qint64 m_size = 0;
};

} // namespace

std::unique_ptr<ScanSource> FolderSource::open(const QString &path, QString *error)
{
    std::error_code failure;
    const fs::path native = fs::u8path(QFileInfo(path).absoluteFilePath().toStdString());
    fs::directory_iterator probe(native, failure);
    if (failure) {
        *error = ScanTexts::tr("The folder %1 cannot be read: %2.")
                     .arg(shownPath(path), QString::fromStdString(failure.message()));
        return nullptr;
    }
    return std::unique_ptr<ScanSource>(new FolderSource(path));
}

FolderSource::FolderSource(const QString &path)
    : ScanSource(path)
{
    VolumeInfo volume;
    volume.label = QFileInfo(m_path).fileName();
    volume.fileSystem = QStringLiteral("folder");
    volume.root = m_path;
    m_volumes.append(volume);
}

ScanOutcome FolderSource::scan(const Sink &sink, const std::atomic<bool> &cancel,
                               const Progress &progress)
{
    Q_UNUSED(progress) // the number of files is not known before the end
    struct Folder
    {
        fs::path native;
        QString path;
        qint64 id;
    };
    const fs::path root = fs::u8path(m_path.toStdString());
    ScanIds ids;
    Warnings warnings;
    QVector<FoundItem> batch;
    QElapsedTimer sinceBatch;
    sinceBatch.start();
    const auto flush = [&] {
        if (!batch.isEmpty())
            sink(std::move(batch));
        batch = {};
        sinceBatch.restart();
    };

    std::vector<Folder> open{{root, QString(), -1}};
    while (!open.empty() && !cancel) {
        const Folder folder = std::move(open.back());
        open.pop_back();
        std::error_code failure;
        fs::directory_iterator entry(folder.native, failure);
        for (; !failure && entry != fs::directory_iterator() && !cancel; entry.increment(failure)) {
            std::error_code unknown;
            const fs::file_status status = entry->symlink_status(unknown);
            const bool isFolder = fs::is_directory(status);
            if (!isFolder && !fs::is_regular_file(status))
                continue;
            FoundItem item;
            item.id = ids.next();
            item.parentId = folder.id;
            const fs::path name = entry->path().filename();
            item.name = toText(name);
            item.path = folder.path;
            item.folder = isFolder;
            const QFileInfo info(toText(entry->path()));
            item.size = isFolder ? 0 : info.size();
            const qint64 modified = info.lastModified().toSecsSinceEpoch();
            item.modifiedTime = info.exists() ? qMax<qint64>(0, modified) : 0;
            if (!survivesAsText(entry->path())) {
                if (!isFolder) {
                    const auto size = fs::file_size(entry->path(), unknown);
                    item.size = unknown ? 0 : qint64(size);
                }
                std::lock_guard<std::mutex> lock(m_mutex);
                m_oddNames.insert(item.id, entry->path());
            }
            if (isFolder)
                open.push_back({entry->path(), item.fullPath(), item.id});
            batch.append(item);
            if (batch.size() >= BatchSize || sinceBatch.elapsed() >= BatchMs)
                flush();
        }
        if (failure) {
            warnings.add(
                ScanTexts::tr("The folder %1 could not be read whole: %2.")
                    .arg(toText(folder.native), QString::fromStdString(failure.message())));
        }
    }
    flush();
    ScanOutcome outcome;
    outcome.cancelled = cancel;
    outcome.warnings = warnings.lines();
    outcome.skipped = warnings.count();
    if (!cancel && !QFileInfo::exists(m_path))
        outcome.error = ScanTexts::tr("%1 went away during the scan.").arg(shownPath(m_path));
    return outcome;
}

fs::path FolderSource::pathOf(const FoundItem &item) const
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto odd = m_oddNames.constFind(item.id);
        if (odd != m_oddNames.constEnd())
            return *odd;
    }
    return fs::u8path((m_path + QLatin1Char('/') + item.fullPath()).toStdString());
}

std::unique_ptr<QIODevice> FolderSource::openFile(const FoundItem &item, QString *error) const
{
    const fs::path path = pathOf(item);
    std::error_code failure;
    // Not a link that has taken the place of the file since the scan, and nothing that blocks.
    if (!fs::is_regular_file(fs::symlink_status(path, failure))) {
        *error = ScanTexts::tr("The file is no longer there.");
        return nullptr;
    }
    if (!survivesAsText(path)) {
        auto odd = std::make_unique<OddNameFile>(path);
        if (odd->isOpen())
            return odd;
        *error = ScanTexts::tr("The file cannot be opened.");
        return nullptr;
    }
    auto file = std::make_unique<QFile>(toText(path));
    if (!file->open(QIODevice::ReadOnly)) {
        *error = ScanTexts::tr("The file cannot be opened: %1.").arg(file->errorString());
        return nullptr;
    }
    return file;
}
