#include "host/scan/deletedcontents.h"

#include "host/scan/volumefinder.h"

#include <QCoreApplication>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("ScanSource", text);
}

bool isInUse(TSK_FS_INFO *fs, TSK_DADDR_T block)
{
    return fs->block_getflags(fs, block) & TSK_FS_BLOCK_FLAG_ALLOC;
}

} // namespace

bool checkContents(TSK_FS_FILE *file, bool deleted, QString *error)
{
    TSK_FS_INFO *fs = file->fs_info;
    const qint64 size = file->meta->size;
    const TSK_FS_ATTR *contents = tsk_fs_file_attr_get(file);
    if (size == 0 && isFatFamily(fs))
        return true; // an empty file has no place on the card
    if (!contents) {
        *error = deleted ? tr("The card no longer says where the contents are.")
                         : tr("The list of the file's places on the card is broken.");
        return false;
    }
    if (contents->flags & TSK_FS_ATTR_RES)
        return true; // held in the record itself
    if (size == 0 && deleted) {
        *error = tr("The card no longer says how long the file was and where its contents are.");
        return false;
    }

    qint64 covered = 0;
    TSK_DADDR_T expected = 0;
    for (const TSK_FS_ATTR_RUN *run = contents->nrd.run; run; run = run->next) {
        if (run->flags & TSK_FS_ATTR_RUN_FLAG_FILLER)
            break;
        const bool sparse = run->flags & TSK_FS_ATTR_RUN_FLAG_SPARSE;
        if (!sparse) {
            if (run->addr + run->len > fs->last_block_act + 1) {
                *error = tr("The contents lie past the end of the card.");
                return false;
            }
            if (deleted && isFatFamily(fs) && expected != 0 && run->addr != expected) {
                *error = tr(
                    "Other files lie between the parts of this one; which parts were its own "
                    "is no longer known.");
                return false;
            }
            for (TSK_DADDR_T block = run->addr; deleted && block < run->addr + run->len; ++block) {
                if (isInUse(fs, block)) {
                    *error = tr("A part of the contents has been overwritten by another file.");
                    return false;
                }
            }
            expected = run->addr + run->len;
        }
        covered += qint64(run->len) * fs->block_size;
    }
    if (covered < size && !(contents->flags & TSK_FS_ATTR_COMP)) {
        *error = deleted ? tr("A part of the contents has been overwritten by another file.")
                         : tr("The list of the file's places on the card is broken.");
        return false;
    }
    return true;
}
