#include "host/scan/card.h"

#include "host/scan/clusterclaims.h"
#include "host/scan/scantexts.h"
#include "host/scan/shownpath.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <fstream>

namespace {

constexpr unsigned SectorSize = 512;

/// Also of a block device, whose size a directory entry does not tell.
qint64 sizeOf(const std::filesystem::path &path)
{
    std::ifstream stream(path, std::ios::binary | std::ios::ate);
    return stream ? qint64(stream.tellg()) : -1;
}

} // namespace

struct Card::Medium
{
    TSK_IMG_INFO info; // first: the library hands out its address, we get back to ours
    QFile file;
    const std::atomic<bool> *cancel = nullptr;
    QString readError;
    std::function<void(qint64)> watcher;
    bool opened = false;

    static Medium *of(TSK_IMG_INFO *info) { return reinterpret_cast<Medium *>(info); }
    static ssize_t read(TSK_IMG_INFO *info, TSK_OFF_T offset, char *buffer, size_t length);
    static void close(TSK_IMG_INFO *) { }
    static void describe(TSK_IMG_INFO *, FILE *) { }
};

ssize_t Card::Medium::read(TSK_IMG_INFO *info, TSK_OFF_T offset, char *buffer, size_t length)
{
    Medium *self = of(info);
    const auto fail = [self](const QString &reason) {
        if (self->readError.isEmpty())
            self->readError = reason;
        tsk_error_reset();
        tsk_error_set_errno(TSK_ERR_IMG_READ);
        tsk_error_set_errstr("read failed");
        return ssize_t(-1);
    };
    if (self->cancel && *self->cancel)
        return fail(ScanTexts::tr("cancelled"));
    if (self->watcher)
        self->watcher(offset);
    if (offset < 0 || offset >= info->size)
        return fail(ScanTexts::tr("a read past the end"));
    if (!self->file.seek(offset))
        return fail(self->file.errorString());
    const qint64 want = qMin<qint64>(qint64(length), info->size - offset);
    const qint64 got = self->file.read(buffer, want);
    if (got < want) // it has become shorter, or it is gone
        return fail(got < 0 ? self->file.errorString()
                            : ScanTexts::tr("the medium ends too early"));
    return ssize_t(got);
}

std::unique_ptr<Card> Card::open(const QString &path, QString *error)
{
    const QString shown = shownPath(path);
    const std::filesystem::path native = std::filesystem::u8path(
        QFileInfo(path).absoluteFilePath().toStdString());
    std::error_code failure;
    const auto status = std::filesystem::status(native, failure);
    if (!std::filesystem::is_regular_file(status) && !std::filesystem::is_block_file(status)) {
        // A pipe or a character device would make the reader wait for ever.
        *error = ScanTexts::tr("%1 is neither a folder nor a disk image nor a disk.").arg(shown);
        return nullptr;
    }
    auto medium = std::make_unique<Medium>();
    medium->file.setFileName(path);
    if (!medium->file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        *error = ScanTexts::tr("%1 cannot be read: %2.").arg(shown, medium->file.errorString());
        return nullptr;
    }
    const qint64 size = sizeOf(native);
    if (size < qint64(SectorSize)) {
        *error = size == 0 ? ScanTexts::tr("%1 is empty.").arg(shown)
                           : ScanTexts::tr("%1 is too small to be a disk image.").arg(shown);
        return nullptr;
    }
    medium->opened = tsk_img_open_external(&medium->info, size, SectorSize, &Medium::read,
                                           &Medium::close, &Medium::describe)
        != nullptr;
    if (!medium->opened) {
        *error = ScanTexts::tr("%1 cannot be read.").arg(shown);
        return nullptr;
    }
    return std::unique_ptr<Card>(new Card(std::move(medium)));
}

Card::Card(std::unique_ptr<Medium> medium)
    : m_medium(std::move(medium))
{
}

Card::~Card()
{
    if (m_fileSystem)
        tsk_fs_close(m_fileSystem);
    tsk_img_close(&m_medium->info);
}

qint64 Card::size() const
{
    return m_medium->info.size;
}

TSK_IMG_INFO *Card::image() const
{
    return &m_medium->info;
}

TSK_FS_INFO *Card::fileSystem(const CardVolume &volume)
{
    if (m_fileSystem && m_volume.offset == volume.offset && m_volume.type == volume.type)
        return m_fileSystem;
    if (m_fileSystem)
        tsk_fs_close(m_fileSystem);
    m_volume = volume;
    m_fileSystem = tsk_fs_open_img(image(), volume.offset, volume.type);
    return m_fileSystem;
}

void Card::setCancel(const std::atomic<bool> *cancel)
{
    m_medium->cancel = cancel;
}

QString Card::readError() const
{
    return m_medium->readError;
}

void Card::clearReadError()
{
    m_medium->readError.clear();
}

void Card::setWatcher(std::function<void(qint64)> watcher)
{
    m_medium->watcher = std::move(watcher);
}

CardPool::CardPool(const QString &path, const std::vector<CardVolume> &volumes)
    : m_path(path)
    , m_volumes(volumes)
{
    for (size_t i = 0; i < m_volumes.size(); ++i)
        m_claims.push_back(std::make_unique<ClusterClaims>());
}

CardPool::~CardPool() = default;

std::unique_ptr<Card> CardPool::take(QString *error)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_idle.empty()) {
            std::unique_ptr<Card> card = std::move(m_idle.back());
            m_idle.pop_back();
            return card;
        }
    }
    return Card::open(m_path, error);
}

void CardPool::giveBack(std::unique_ptr<Card> card)
{
    card->setCancel(nullptr);
    card->setWatcher({});
    card->clearReadError();
    std::lock_guard<std::mutex> lock(m_mutex);
    m_idle.push_back(std::move(card));
}
