#include "host/scan/fatentries.h"

#include <QDateTime>
#include <QtEndian>

namespace {

constexpr int EntryBytes = 32;
constexpr TSK_INUM_T FirstEntry = 3; // the library keeps the numbers below for itself
constexpr int MaxNameEntries = 20;
constexpr int FatBackup = 6; // sectors
constexpr int ExFatBackup = 12;
constexpr char Deleted = char(0xe5);

/// Places of the letters in an entry of a long name.
constexpr int Letters[] = {1, 3, 5, 7, 9, 14, 16, 18, 20, 22, 24, 28, 30};

template <typename Number>
Number numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

bool isPartOfName(const QByteArray &entry)
{
    constexpr int AttributesOffset = 11;
    constexpr char LongName = 0x0f;
    return entry.size() == EntryBytes && entry.at(AttributesOffset) == LongName;
}

uchar checksumIn(const QByteArray &entry)
{
    constexpr int ChecksumOffset = 13;
    return uchar(entry.at(ChecksumOffset));
}

uchar checksumOf(const QByteArray &shortEntry)
{
    uchar sum = 0;
    for (int i = 0; i < 11; ++i)
        sum = uchar(((sum & 1) << 7) + (sum >> 1) + uchar(shortEntry.at(i)));
    return sum;
}

} // namespace

FatEntries::FatEntries(TSK_FS_INFO *fs)
    : m_fs(fs)
{
    if (!readBoot(0))
        readBoot(fs->ftype == TSK_FS_TYPE_EXFAT ? ExFatBackup : FatBackup);
}

bool FatEntries::readBoot(TSK_OFF_T sector)
{
    const qint64 sectorBytes = m_fs->block_size;
    QByteArray boot(512, 0);
    if (tsk_fs_read(m_fs, sector * sectorBytes, boot.data(), size_t(boot.size())) != boot.size())
        return false;
    qint64 clusterSectors = 0;
    qint64 firstSector = 0;
    if (m_fs->ftype == TSK_FS_TYPE_EXFAT) {
        constexpr uchar MaxShift = 16;
        const uchar shift = uchar(boot.at(109));
        clusterSectors = shift <= MaxShift ? qint64(1) << shift : 0;
        firstSector = numberAt<quint32>(boot, 88);
    } else {
        clusterSectors = uchar(boot.at(13));
        const qint64 tables = uchar(boot.at(16));
        const qint64 small = numberAt<quint16>(boot, 22);
        const qint64 tableSectors = small ? small : numberAt<quint32>(boot, 36);
        firstSector = numberAt<quint16>(boot, 14) + tables * tableSectors;
    }
    if (clusterSectors == 0 || (clusterSectors & (clusterSectors - 1)) != 0 || firstSector == 0
        || TSK_DADDR_T(firstSector) > m_fs->last_block)
        return false;
    m_clusterBytes = clusterSectors * sectorBytes;
    m_entries = firstSector * sectorBytes;
    return true;
}

QByteArray FatEntries::entryAt(TSK_INUM_T address) const
{
    QByteArray entry(EntryBytes, 0);
    if (m_clusterBytes == 0 || address < FirstEntry || address > m_fs->last_inum)
        return QByteArray();
    const TSK_OFF_T offset = m_entries + TSK_OFF_T(address - FirstEntry) * EntryBytes;
    return tsk_fs_read(m_fs, offset, entry.data(), EntryBytes) == EntryBytes ? entry : QByteArray();
}

QString FatEntries::longName(TSK_INUM_T address) const
{
    if (m_fs->ftype == TSK_FS_TYPE_EXFAT)
        return QString();
    const QByteArray shortEntry = entryAt(address);
    if (shortEntry.isEmpty())
        return QString();
    QString name;
    uchar checksum = 0;
    for (TSK_INUM_T back = 1; back <= MaxNameEntries && back < address; ++back) {
        const QByteArray part = entryAt(address - back);
        if (!isPartOfName(part) || (back > 1 && checksumIn(part) != checksum))
            return QString(); // the parts run into another file's: the last one is lost
        checksum = checksumIn(part);
        // Of a deleted entry the first letter is gone, and with it what the checksum was made of.
        if (shortEntry.at(0) != Deleted && checksum != checksumOf(shortEntry))
            return QString();
        bool last = false;
        for (const int offset : Letters) {
            const quint16 letter = numberAt<quint16>(part, offset);
            last = letter == 0 || letter == 0xffff;
            if (last)
                break;
            name += QChar(letter);
        }
        const QByteArray next = entryAt(address - back - 1);
        if (last || !isPartOfName(next) || checksumIn(next) != checksum)
            return name;
    }
    return QString();
}

qint64 FatEntries::timeCorrection(TSK_INUM_T address, qint64 time) const
{
    constexpr int ModifiedZoneOffset = 23;
    constexpr uchar Known = 0x80;
    constexpr int QuarterHour = 15 * 60;
    if (m_fs->ftype != TSK_FS_TYPE_EXFAT || time <= 0)
        return 0;
    const QByteArray entry = entryAt(address);
    if (entry.isEmpty())
        return 0;
    const uchar zone = uchar(entry.at(ModifiedZoneOffset));
    if (!(zone & Known))
        return 0;
    const int quarters = zone & 0x40 ? int(zone & 0x7f) - 0x80 : int(zone & 0x7f);
    const int assumed = QDateTime::fromSecsSinceEpoch(time).offsetFromUtc();
    return assumed - quarters * QuarterHour;
}
