#include "host/recovery/filerecovery.h"

#include "host/recovery/recoverytexts.h"
#include "host/scan/shownpath.h"
#include "host/tree/texts.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>

#include <chrono>
#include <filesystem>

namespace {

constexpr qint64 ChunkBytes = 1 << 20;
constexpr qint64 FullBelow = 64 * 1024; // with less room than this not even small files fit

void setFolderTime(const QString &folder, qint64 seconds)
{
    namespace chrono = std::chrono;
    using FileClock = std::filesystem::file_time_type::clock;
    // The clocks have no common epoch before C++20; a millisecond keeps rounding on the right side.
    const auto age = chrono::system_clock::now()
        - chrono::system_clock::from_time_t(time_t(seconds));
    const auto time = FileClock::now() - age + chrono::milliseconds(1);
    std::error_code ignored; // a time is no reason to fail
    std::filesystem::last_write_time(std::filesystem::u8path(folder.toStdString()),
                                     chrono::time_point_cast<FileClock::duration>(time), ignored);
}

} // namespace

FileRecovery::FileRecovery(const ScanSource &source, const QString &target,
                           const std::atomic<bool> &cancel, const Tell &tell)
    : m_source(source)
    , m_volumes(source.volumes())
    , m_tree(target)
    , m_cancel(cancel)
    , m_tell(tell)
{
}

QString FileRecovery::cardFolder(const FoundItem &item) const
{
    if (m_volumes.size() < 2 || item.volume < 0 || item.volume >= m_volumes.size())
        return item.path;
    const QString &volume = m_volumes.at(item.volume).root;
    return item.path.isEmpty() ? volume : volume + QLatin1Char('/') + item.path;
}

QString FileRecovery::cardPath(const FoundItem &item) const
{
    const QString folder = cardFolder(item);
    return folder.isEmpty() ? item.name : folder + QLatin1Char('/') + item.name;
}

void FileRecovery::fail(const FoundItem &item, const QString &reason)
{
    m_report.failed.append({cardPath(item), reason});
}

RecoveryReport FileRecovery::recover(const QVector<FoundItem> &items)
{
    for (const FoundItem &item : items) {
        m_progress.filesTotal += !item.folder;
        m_progress.bytesTotal += item.size;
    }
    m_tree.prepare(&m_report.stopReason);
    for (const FoundItem &item : items) {
        if (m_cancel) {
            m_report.cancelled = true;
            break;
        }
        if (!m_report.stopReason.isEmpty()) {
            fail(item, m_report.stopReason);
            continue;
        }
        QString reason;
        if (item.folder) {
            if (m_tree.folderFor(cardPath(item), &reason).isEmpty()) {
                fail(item, reason);
                m_tree.isWritable(&m_report.stopReason);
            }
            continue;
        }
        m_progress.current = cardPath(item);
        m_tell(m_progress);
        const qint64 before = m_progress.bytesDone;
        const Outcome outcome = recoverFile(item, &reason);
        if (outcome == Cancelled) {
            m_report.cancelled = true;
            break;
        }
        if (outcome == Failed)
            fail(item, reason);
        m_progress.bytesDone = before + item.size;
        ++m_progress.filesDone;
        m_tell(m_progress);
    }
    keepFolderTimes(items);
    return m_report;
}

RecoveryReport FileRecovery::refuse(const QVector<FoundItem> &items, const QString &reason)
{
    m_report.stopReason = reason;
    for (const FoundItem &item : items)
        fail(item, reason);
    return m_report;
}

bool FileRecovery::isPointless(qint64 size, QString *reason)
{
    // Not QStorageInfo: it knows only what the list of mounts names, which a sandbox may hide.
    std::error_code unknown;
    const std::filesystem::space_info space = std::filesystem::space(
        std::filesystem::u8path(m_tree.root().toStdString()), unknown);
    if (unknown || space.capacity == 0)
        return false;
    const qint64 room = qint64(space.available);
    if (room >= size + FullBelow)
        return false;
    const QString folder = shownPath(m_tree.root());
    if (room < FullBelow) {
        m_report.stopReason = RecoveryTexts::tr("There is no room left at %1.").arg(folder);
        *reason = m_report.stopReason;
    } else {
        *reason = RecoveryTexts::tr(
                      "There is not enough room at %1: the file needs %2, %3 are free.")
                      .arg(folder, Texts::size(size), Texts::size(room));
    }
    return true;
}

FileRecovery::Outcome FileRecovery::recoverFile(const FoundItem &item, QString *reason)
{
    const std::unique_ptr<QIODevice> from = m_source.openFile(item, reason);
    if (!from || isPointless(item.size, reason))
        return Failed;
    const QString folder = m_tree.folderFor(cardFolder(item), reason);
    if (folder.isEmpty()) {
        m_tree.isWritable(&m_report.stopReason);
        return Failed;
    }
    QFile to(folder + QStringLiteral("/.quarvo-%1.part").arg(item.id));
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        *reason = RecoveryTexts::tr("The file cannot be created: %1.").arg(to.errorString());
        m_tree.isWritable(&m_report.stopReason);
        return Failed;
    }
    QString sha256;
    Outcome outcome = copy(*from, to, item, &sha256, reason);
    to.close();
    if (outcome == Done) {
        const QString path = m_tree.settle(to.fileName(), folder, item.name, reason);
        if (!path.isEmpty()) {
            m_report.recovered.append({cardPath(item), path, item.size, sha256});
            m_report.bytes += item.size;
            return Done;
        }
        outcome = Failed;
    }
    QFile::remove(to.fileName());
    if (outcome == Failed)
        m_tree.isWritable(&m_report.stopReason);
    return outcome;
}

FileRecovery::Outcome FileRecovery::copy(QIODevice &from, QFile &to, const FoundItem &item,
                                         QString *sha256, QString *reason)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray chunk(int(qMin(ChunkBytes, qMax<qint64>(1, item.size))), Qt::Uninitialized);
    qint64 done = 0;
    while (done < item.size) {
        if (m_cancel)
            return Cancelled;
        const qint64 got = from.read(chunk.data(), qMin<qint64>(chunk.size(), item.size - done));
        if (got <= 0) {
            *reason = got < 0 ? from.errorString()
                              : RecoveryTexts::tr("The contents end at byte %L1 of %L2.")
                                    .arg(done)
                                    .arg(item.size);
            return Failed;
        }
        if (to.write(chunk.constData(), got) != got) {
            *reason = RecoveryTexts::tr("Writing failed: %1.").arg(to.errorString());
            return Failed;
        }
        hash.addData(chunk.constData(), int(got));
        done += got;
        m_progress.bytesDone += got;
        m_tell(m_progress);
    }
    if (!to.flush()) {
        *reason = RecoveryTexts::tr("Writing failed: %1.").arg(to.errorString());
        return Failed;
    }
    if (item.modifiedTime > 0)
        to.setFileTime(QDateTime::fromSecsSinceEpoch(item.modifiedTime),
                       QFileDevice::FileModificationTime);
    *sha256 = QString::fromLatin1(hash.result().toHex());
    return Done;
}

void FileRecovery::keepFolderTimes(const QVector<FoundItem> &items)
{
    // Last and from the inside out: each file that was written has touched its folder.
    for (auto item = items.crbegin(); item != items.crend(); ++item) {
        if (item->folder && item->modifiedTime > 0 && m_report.stopReason.isEmpty()) {
            const QString folder = m_tree.knownFolder(cardPath(*item));
            if (!folder.isEmpty())
                setFolderTime(folder, item->modifiedTime);
        }
    }
}
