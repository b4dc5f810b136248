#include "host/scan/volumefinder.h"

#include "host/scan/scantexts.h"

namespace {

// The library knows more kinds; those would only see ghosts in random bytes.
constexpr TSK_FS_TYPE_ENUM BootSectorTypes[] = {TSK_FS_TYPE_NTFS_DETECT, TSK_FS_TYPE_FAT_DETECT};
constexpr TSK_FS_TYPE_ENUM SuperblockTypes[] = {TSK_FS_TYPE_EXT_DETECT};

QString nameOf(TSK_FS_TYPE_ENUM type)
{
    switch (type) {
    case TSK_FS_TYPE_FAT12:
        return QStringLiteral("FAT12");
    case TSK_FS_TYPE_FAT16:
        return QStringLiteral("FAT16");
    case TSK_FS_TYPE_FAT32:
        return QStringLiteral("FAT32");
    case TSK_FS_TYPE_EXFAT:
        return QStringLiteral("exFAT");
    case TSK_FS_TYPE_NTFS:
        return QStringLiteral("NTFS");
    case TSK_FS_TYPE_EXT2:
        return QStringLiteral("ext2");
    case TSK_FS_TYPE_EXT3:
        return QStringLiteral("ext3");
    case TSK_FS_TYPE_EXT4:
        return QStringLiteral("ext4");
    default:
        return QString();
    }
}

QString labelInRoot(TSK_FS_INFO *fs)
{
    QString label;
    TSK_FS_DIR *root = tsk_fs_dir_open_meta(fs, fs->root_inum);
    if (!root)
        return label;
    for (size_t i = 0; i < tsk_fs_dir_getsize(root) && label.isEmpty(); ++i)
        label = volumeLabelOf(fs, tsk_fs_dir_get_name(root, i));
    tsk_fs_dir_close(root);
    return label;
}

QString labelInSuperblock(TSK_FS_INFO *fs)
{
    constexpr TSK_OFF_T LabelOffset = 1024 + 120;
    char label[16 + 1] = {};
    tsk_fs_read(fs, LabelOffset, label, sizeof(label) - 1);
    return QString::fromUtf8(label).trimmed();
}

QString labelInVolumeRecord(TSK_FS_INFO *fs)
{
    constexpr TSK_INUM_T VolumeRecord = 3;
    constexpr int MaxLetters = 128;
    QString label;
    TSK_FS_FILE *file = tsk_fs_file_open_meta(fs, nullptr, VolumeRecord);
    const TSK_FS_ATTR *name = file
        ? tsk_fs_file_attr_get_type(file, TSK_FS_ATTR_TYPE_NTFS_VNAME, 0, 0)
        : nullptr;
    char letters[MaxLetters * 2] = {};
    const ssize_t got = name
        ? tsk_fs_attr_read(name, 0, letters, sizeof(letters), TSK_FS_FILE_READ_FLAG_NONE)
        : 0;
    for (ssize_t i = 0; i + 1 < got; i += 2)
        label += QChar(uchar(letters[i]), uchar(letters[i + 1]));
    if (file)
        tsk_fs_file_close(file);
    return label;
}

QString labelIn(TSK_FS_INFO *fs)
{
    if (isFatFamily(fs))
        return labelInRoot(fs);
    return fs->ftype == TSK_FS_TYPE_NTFS ? labelInVolumeRecord(fs) : labelInSuperblock(fs);
}

template <size_t Count>
bool addAt(Card &card, TSK_OFF_T offset, const TSK_FS_TYPE_ENUM (&types)[Count],
           QVector<FoundVolume> &found)
{
    for (const TSK_FS_TYPE_ENUM type : types) {
        TSK_FS_INFO *fs = card.fileSystem({offset, type});
        if (!fs || nameOf(fs->ftype).isEmpty())
            continue;
        FoundVolume volume;
        volume.volume.offset = offset;
        volume.volume.type = type;
        volume.info.fileSystem = nameOf(fs->ftype);
        volume.info.bytes = qint64(fs->block_count) * fs->block_size;
        volume.info.label = labelIn(fs);
        found.append(volume);
        return true;
    }
    return false;
}

void addPartitions(Card &card, TSK_VS_TYPE_ENUM type, QVector<FoundVolume> &found)
{
    TSK_VS_INFO *table = tsk_vs_open(card.image(), 0, type);
    if (!table)
        return;
    for (TSK_PNUM_T i = 0; i < table->part_count; ++i) {
        const TSK_VS_PART_INFO *part = tsk_vs_part_get(table, i);
        if (!part || !(part->flags & TSK_VS_PART_FLAG_ALLOC)
            || (part->flags & TSK_VS_PART_FLAG_META))
            continue;
        const TSK_DADDR_T offset = part->start * table->block_size;
        if (offset >= TSK_DADDR_T(card.size()))
            continue; // a table of a larger medium, or of nonsense
        if (!addAt(card, TSK_OFF_T(offset), BootSectorTypes, found))
            addAt(card, TSK_OFF_T(offset), SuperblockTypes, found);
    }
    tsk_vs_close(table);
}

} // namespace

QVector<FoundVolume> findVolumes(Card &card)
{
    QVector<FoundVolume> found;
    // A boot sector of a file system and a partition table cannot both be in the first sector. A
    // superblock may be a leftover from before the medium was partitioned.
    if (!addAt(card, 0, BootSectorTypes, found)) {
        for (const TSK_VS_TYPE_ENUM type : {TSK_VS_TYPE_GPT, TSK_VS_TYPE_DOS}) {
            if (found.isEmpty())
                addPartitions(card, type, found);
        }
        if (found.isEmpty())
            addAt(card, 0, SuperblockTypes, found);
    }
    for (int i = 0; found.size() > 1 && i < found.size(); ++i) {
        VolumeInfo &info = found[i].info;
        info.root = info.label.isEmpty()
            ? ScanTexts::tr("Volume %1").arg(i + 1)
            : ScanTexts::tr("Volume %1 (%2)").arg(i + 1).arg(info.label);
    }
    return found;
}

bool isFatFamily(const TSK_FS_INFO *fs)
{
    return TSK_FS_TYPE_ISFAT(fs->ftype);
}

QString volumeLabelOf(const TSK_FS_INFO *fs, const TSK_FS_NAME *name)
{
    // The library marks the entry by this text and by nothing else.
    static const QString s_mark = QStringLiteral(" (Volume Label Entry)");
    if (!isFatFamily(fs) || !name || !name->name || name->par_addr != fs->root_inum)
        return QString();
    const QString text = QString::fromUtf8(name->name);
    return text.endsWith(s_mark) ? text.left(text.size() - s_mark.size()).trimmed() : QString();
}
