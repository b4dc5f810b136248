#include "host/scan/syntheticsource.h"

#include "host/scan/scanids.h"
#include "host/scan/scantexts.h"
#include "host/scan/syntheticshots.h"

#include <chrono>
#include <cstring>
#include <thread>

namespace {

const QLatin1String Prefix("items:");

constexpr int BatchSize = 1250;
constexpr std::chrono::milliseconds BatchTime(10); // a million in eight seconds

/// The bytes of a picture, and zeros behind it up to a size.
class FilledUpFile : public QIODevice
{
public:
    FilledUpFile(const QByteArray &head, qint64 size)
        : m_head(head)
        , m_size(qMax(size, qint64(head.size())))
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *data, qint64 length) override
    {
        const qint64 from = pos();
        const qint64 count = qBound<qint64>(0, m_size - from, length);
        const qint64 ofHead = qBound<qint64>(0, m_head.size() - from, count);
        if (ofHead > 0)
            std::memcpy(data, m_head.constData() + from, size_t(ofHead));
        std::memset(data + ofHead, 0, size_t(count - ofHead));
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_head;
    const qint64 m_size;
};

} // namespace

QString SyntheticSource::pathFor(int items)
{
    return Prefix + QString::number(items);
}

int SyntheticSource::countOf(const QString &path)
{
    if (!path.startsWith(Prefix))
        return 0;
    const int count = path.midRef(Prefix.size()).toInt();
    return count > 0 && count <= MaxItems ? count : 0;
}

SyntheticSource::SyntheticSource(int items)
    : ScanSource(QString())
    , m_items(items)
{
    m_path = pathFor(items);
    VolumeInfo volume;
    volume.label = QStringLiteral("MANYFILES");
    volume.fileSystem = QStringLiteral("exFAT");
    volume.root = QStringLiteral("Volume 1 (MANYFILES)");
    m_volumes = {volume};
}

ScanOutcome SyntheticSource::scan(const Sink &sink, const std::atomic<bool> &cancel,
                                  const Progress &progress)
{
    ScanIds ids;
    SyntheticShots shots(m_items, [&ids] { return ids.next(); });
    QVector<FoundItem> batch;
    int found = 0;
    auto due = std::chrono::steady_clock::now();
    while (found < m_items && !cancel) {
        batch.reserve(BatchSize);
        while (found < m_items && batch.size() < BatchSize) {
            batch.append(shots.next());
            ++found;
        }
        sink(std::move(batch));
        batch = {};
        if (progress)
            progress(double(found) / m_items);
        due += BatchTime;
        std::this_thread::sleep_until(due);
    }
    ScanOutcome outcome;
    outcome.cancelled = cancel;
    return outcome;
}

std::unique_ptr<QIODevice> SyntheticSource::openFile(const FoundItem &item, QString *error) const
{
    if (SyntheticShots::isOverwritten(item)) {
        *error = ScanTexts::tr("A part of the contents has been overwritten by another file.");
        return nullptr;
    }
    if (!item.name.endsWith(QLatin1String(".jpg"), Qt::CaseInsensitive)) {
        *error = ScanTexts::tr("The card no longer says where the contents are.");
        return nullptr;
    }
    return std::make_unique<FilledUpFile>(m_photos.jpeg(SyntheticShots::pictureOf(item)),
                                          item.size);
}
