#include "host/scan/deletedcontents.h"

#include "host/scan/clusterclaims.h"
#include "host/scan/scantexts.h"
#include "host/scan/volumefinder.h"

namespace {

QString overwritten()
{
    return ScanTexts::tr("A part of the contents has been overwritten by another file.");
}

QString brokenList()
{
    return ScanTexts::tr("The list of the file's places on the card is broken.");
}

/// One stretch of the contents is on the medium and, of a deleted file, still free.
bool isSound(TSK_FS_INFO *fs, const TSK_FS_ATTR_RUN &run, bool deleted, QString *error)
{
    if (run.addr > fs->last_block_act || run.len > fs->last_block_act + 1 - run.addr) {
        *error = ScanTexts::tr("The contents lie past the end of the card.");
        return false;
    }
    for (TSK_DADDR_T block = run.addr; deleted && block < run.addr + run.len; ++block) {
        if (fs->block_getflags(fs, block) & TSK_FS_BLOCK_FLAG_ALLOC) {
            *error = overwritten();
            return false;
        }
    }
    return true;
}

} // namespace

bool checkContents(TSK_FS_FILE *file, bool deleted, ClusterClaims *claims, QString *error)
{
    TSK_FS_INFO *fs = file->fs_info;
    const qint64 size = file->meta->size;
    const TSK_FS_ATTR *contents = tsk_fs_file_attr_get(file);
    if (size == 0 && isFatFamily(fs))
        return true; // an empty file has no place on the card
    if (!contents) {
        if (!deleted)
            *error = brokenList();
        else if (isFatFamily(fs))
            *error = overwritten(); // its first place is taken
        else
            *error = ScanTexts::tr("The card no longer says where the contents are.");
        return false;
    }
    if (contents->flags & TSK_FS_ATTR_RES)
        return true; // held in the record itself
    if (size == 0 && deleted) {
        *error = ScanTexts::tr(
            "The card no longer says how long the file was and where its contents are.");
        return false;
    }

    qint64 covered = 0;
    for (const TSK_FS_ATTR_RUN *run = contents->nrd.run; run; run = run->next) {
        if (run->flags & TSK_FS_ATTR_RUN_FLAG_FILLER)
            break;
        if (!(run->flags & TSK_FS_ATTR_RUN_FLAG_SPARSE) && !isSound(fs, *run, deleted, error))
            return false;
        covered += qint64(run->len) * fs->block_size;
    }
    if (covered < size && !(contents->flags & TSK_FS_ATTR_COMP)) {
        *error = deleted ? overwritten() : brokenList();
        return false;
    }
    return !deleted || !claims || claims->belongTo(file, contents, error);
}
