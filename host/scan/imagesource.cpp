#include "host/scan/imagesource.h"

#include "host/scan/card.h"
#include "host/scan/cardfile.h"
#include "host/scan/clusterclaims.h"
#include "host/scan/scantexts.h"
#include "host/scan/shownpath.h"
#include "host/scan/volumefinder.h"
#include "host/scan/volumewalker.h"

std::unique_ptr<ScanSource> ImageSource::open(const QString &path, QString *error)
{
    std::unique_ptr<Card> card = Card::open(path, error);
    if (!card)
        return nullptr;
    const QVector<FoundVolume> found = findVolumes(*card);
    if (found.isEmpty()) {
        const QString cause = card->readError();
        const QString shown = shownPath(path);
        *error = cause.isEmpty()
            ? ScanTexts::tr("%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).")
                  .arg(shown)
            : ScanTexts::tr("%1 cannot be read: %2.").arg(shown, cause);
        return nullptr;
    }
    std::vector<CardVolume> places;
    for (const FoundVolume &volume : found)
        places.push_back(volume.volume);
    auto pool = std::make_shared<CardPool>(path, places);
    pool->giveBack(std::move(card));
    std::unique_ptr<ImageSource> source(new ImageSource(path, std::move(pool)));
    for (const FoundVolume &volume : found)
        source->m_volumes.append(volume.info);
    return source;
}

ImageSource::ImageSource(const QString &path, std::shared_ptr<CardPool> pool)
    : ScanSource(path)
    , m_pool(std::move(pool))
{
}

ImageSource::~ImageSource() = default;

QString ImageSource::orphansName()
{
    return ScanTexts::tr("Deleted files without a folder");
}

ScanOutcome ImageSource::scan(const Sink &sink, const std::atomic<bool> &cancel,
                              const Progress &progress)
{
    ScanOutcome outcome;
    // Not one that has been in use: the library remembers what it has seen.
    std::unique_ptr<Card> card = Card::open(path(), &outcome.error);
    if (!card)
        return outcome;
    card->setCancel(&cancel);
    ScanIds ids;
    Warnings warnings;
    const std::vector<CardVolume> &volumes = m_pool->volumes();
    for (size_t i = 0; i < volumes.size() && !cancel; ++i) {
        TSK_FS_INFO *fs = card->fileSystem(volumes[i]);
        if (!fs) {
            warnings.add(ScanTexts::tr("Volume %1 could not be opened.").arg(i + 1));
            continue;
        }
        if (card->size() - volumes[i].offset < m_volumes.at(int(i)).bytes)
            warnings.add(
                ScanTexts::tr("The card ends before its file system does; files may be cut off."));
        m_pool->claims(int(i)).clear();
        VolumeWalker walker(fs, int(i), ids, sink, cancel, warnings, m_pool->claims(int(i)));
        if (!walker.walkFolders() && !cancel)
            outcome.error = ScanTexts::tr("The card's top folder cannot be read.");
        // The search for orphans goes through the whole volume, and takes nearly all the time.
        double reached = 0;
        card->setWatcher([&](qint64 offset) {
            const double part = double(offset - volumes[i].offset)
                / double(m_volumes.at(int(i)).bytes);
            if (!progress || part <= reached || part > 1)
                return;
            reached = part;
            progress((double(i) + reached) / double(volumes.size()));
        });
        if (!cancel)
            walker.walkOrphans(orphansName());
        card->setWatcher({});
    }
    const QString cause = card->readError();
    if (!cancel && !cause.isEmpty())
        outcome.error = ScanTexts::tr("The card could not be read everywhere: %1.").arg(cause);
    outcome.cancelled = cancel;
    outcome.warnings = warnings.lines();
    outcome.skipped = warnings.count();
    return outcome;
}

std::unique_ptr<QIODevice> ImageSource::openFile(const FoundItem &item, QString *error) const
{
    return CardFile::open(m_pool, item, error);
}
