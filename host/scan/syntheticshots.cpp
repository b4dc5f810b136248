#include "host/scan/syntheticshots.h"

#include <QDateTime>

namespace {

constexpr qint64 FirstShot = 1'546'765'200;           // January 2019
constexpr qint64 Years = qint64(7) * 365 * 24 * 3600; // that they were taken in
constexpr int FirstFolder = 100;                      // as cameras count, 100 to 999
constexpr int FolderNumbers = 900;
constexpr int FoldersADevice = 2; // one after the other before another device is used
constexpr int MaxShot = 9999;
constexpr int DeletedSeries = 64; // people delete whole series

struct Suffix
{
    const char *text;
    int share; // per cent
    int minKilobytes;
    int maxKilobytes;
};

struct Device
{
    const char *above;  // folders above, '/' between
    const char *folder; // behind its number; null: no numbered folder
    const char *form;   // of a file's name; null: by date and time
    Suffix suffixes[4];
};

constexpr Device Devices[] = {
    {"DCIM",
     "CANON",
     "IMG_%04d",
     {{"JPG", 58, 3200, 9800}, {"CR2", 30, 21000, 34000}, {"MP4", 12, 24000, 1600000}}},
    {"DCIM",
     "APPLE",
     "IMG_%04d",
     {{"JPG", 70, 1500, 5200},
      {"HEIC", 10, 900, 3100},
      {"PNG", 8, 300, 4200},
      {"MOV", 12, 9000, 420000}}},
    {"DCIM",
     "NIKON",
     "DSC_%04d",
     {{"JPG", 60, 4100, 12400}, {"NEF", 32, 22000, 48000}, {"MOV", 8, 40000, 2100000}}},
    {"DCIM/Camera", nullptr, nullptr, {{"jpg", 82, 1800, 6400}, {"mp4", 18, 8000, 380000}}},
    {"DCIM", "MSDCF", "DSC%05d", {{"JPG", 64, 5200, 14800}, {"ARW", 36, 24000, 62000}}},
    {"DCIM",
     "MEDIA",
     "DJI_%04d",
     {{"JPG", 56, 4600, 11800}, {"DNG", 22, 24000, 41000}, {"MP4", 22, 120000, 3800000}}},
    {"DCIM",
     "GOPRO",
     "GOPR%04d",
     {{"JPG", 66, 2100, 7200}, {"MP4", 28, 200000, 3900000}, {"LRV", 6, 4000, 36000}}},
    {"PRIVATE/AVCHD/BDMV/STREAM", nullptr, "%05d", {{"MTS", 100, 9000, 2090000}}},
    {"Music",
     nullptr,
     "Track %02d",
     {{"mp3", 70, 2800, 11000}, {"flac", 18, 16000, 48000}, {"m4a", 12, 3000, 12000}}},
    {"Documents",
     nullptr,
     "Document %04d",
     {{"pdf", 46, 40, 8800}, {"docx", 28, 20, 2400}, {"xlsx", 18, 12, 1600}, {"txt", 8, 1, 64}}},
};
constexpr int DeviceCount = int(sizeof Devices / sizeof *Devices);

/// Well mixed bits of a number (the finalizer of SplitMix64): chance without a state.
quint64 mixed(quint64 value)
{
    value += 0x9e3779b97f4a7c15U;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9U;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebU;
    return value ^ (value >> 31);
}

} // namespace

SyntheticShots::SyntheticShots(int count, std::function<qint64()> nextId)
    : m_count(qMax(1, count))
    , m_nextId(std::move(nextId))
{
}

bool SyntheticShots::isOverwritten(const FoundItem &item)
{
    return item.deleted && mixed(item.address) % 3 == 0;
}

quint64 SyntheticShots::pictureOf(const FoundItem &item)
{
    return mixed(item.address ^ 0x91c7U);
}

FoundItem SyntheticShots::next()
{
    if (m_left == 0)
        planFolder();
    ++m_made;
    if (m_open.size() < m_levels.size())
        return enter(m_open.size());
    --m_left;
    return nextFile();
}

/// Which folder comes next, and how many files it will have. The folders above it that have been
/// delivered before are not delivered again.
void SyntheticShots::planFolder()
{
    ++m_folderNumber;
    const quint64 chance = mixed(quint64(m_folderNumber) ^ 0xf01dU);
    m_device = m_folderNumber / FoldersADevice % DeviceCount;
    const Device &device = Devices[m_device];
    m_levels = QString::fromLatin1(device.above).split(QLatin1Char('/'));
    const int round = m_folderNumber / FolderNumbers; // past 999 the numbers begin anew elsewhere
    const int number = FirstFolder + m_folderNumber % FolderNumbers;
    m_levels.append(device.folder ? QString::number(number) + QLatin1String(device.folder)
                                  : QStringLiteral("%1").arg(number));
    if (round > 0)
        m_levels.prepend(QStringLiteral("Backup %1").arg(round));
    m_left = 400 + int(chance % 900);

    m_open.clear();
    QString path;
    for (const QString &name : qAsConst(m_levels)) {
        path = path.isEmpty() ? name : path + QLatin1Char('/') + name;
        const auto known = m_known.constFind(path);
        if (known == m_known.constEnd())
            break;
        m_open.append({*known, path});
    }
}

FoundItem SyntheticShots::newItem(const Folder &in, const QString &name)
{
    FoundItem item;
    item.id = m_nextId();
    item.parentId = in.id;
    item.name = name;
    item.path = in.path;
    item.address = m_made;
    item.modifiedTime = FirstShot + Years / m_count * qint64(m_made);
    return item;
}

FoundItem SyntheticShots::enter(int level)
{
    FoundItem item = newItem(m_open.isEmpty() ? Folder() : m_open.last(), m_levels.at(level));
    item.folder = true;
    m_open.append({item.id, item.fullPath()});
    m_known.insert(item.fullPath(), item.id);
    return item;
}

FoundItem SyntheticShots::nextFile()
{
    const Device &device = Devices[m_device];
    const quint64 chance = mixed(m_made);
    m_shot = m_shot % MaxShot + 1;

    const Suffix *suffix = device.suffixes;
    for (int share = int(chance % 100); share >= suffix->share && suffix[1].text; ++suffix)
        share -= suffix->share;

    FoundItem item = newItem(m_open.last(), QString());
    item.modifiedTime += qint64(chance >> 8) % 30;
    item.name = device.form ? QString::asprintf(device.form, m_shot)
                            : QDateTime::fromSecsSinceEpoch(item.modifiedTime, Qt::UTC)
                                  .toString(QStringLiteral("'IMG_'yyyyMMdd_HHmmss"))
            + QString::asprintf("_%04d", m_shot);
    item.name += QLatin1Char('.') + QLatin1String(suffix->text);
    const qint64 spread = qint64(suffix->maxKilobytes - suffix->minKilobytes) * 1024;
    // squared, since most videos are short
    const double place = double(chance >> 40) / double(1 << 24);
    item.size = qint64(suffix->minKilobytes) * 1024 + qint64(double(spread) * place * place);
    const bool seriesDeleted = mixed(m_made / DeletedSeries) % 7 == 0;
    item.deleted = seriesDeleted || (chance >> 16) % 20 == 0;
    return item;
}
