#include "model/recoverability.h"

#include "platform/item/treeitemdata.h"

namespace {

/// Only pictures and videos are judged by whether a picture could be made of them.
bool isAssessed(int fileCategory)
{
    constexpr int Video = 3;
    constexpr int CameraVideo = 4;
    constexpr int Photo = 8;
    return fileCategory == Video || fileCategory == CameraVideo || fileCategory == Photo;
}

} // namespace

Recoverability recoverabilityOf(const TreeItemData *item, bool hasThumbnail,
                                bool assessmentFinished)
{
    if (!item || !isAssessed(item->fileCategory) || hasThumbnail)
        return Recoverability::High;
    return assessmentFinished ? Recoverability::Medium : Recoverability::Assessing;
}

const char *recoverabilityKey(Recoverability level)
{
    switch (level) {
    case Recoverability::High:
        return "recoverability_high";
    case Recoverability::Medium:
        return "recoverability_medium";
    case Recoverability::Assessing:
        break;
    }
    return "recoverability_assessing";
}
