#include "delegates/cardpictures.h"

#include "common/commonfunction.h"

void CardPictures::load()
{
    previewMask = {CommonFunction::themePixmap, QStringLiteral("thumbmask_preview")};
    previewButton = {CommonFunction::themePixmap, QStringLiteral("icon40_preview_normal")};
    playButton = {CommonFunction::themePixmap, QStringLiteral("icon40_play_normal")};
    checkBox.load();
    folderIcon = {CommonFunction::highDpiPixmap, QStringLiteral(":/Images/icon64_File_Folder")};
    recycleBinBadge = {CommonFunction::highDpiPixmap, QStringLiteral(":/Images/icon16_recycleBin")};
    repairBadge = {CommonFunction::highDpiPixmap, QStringLiteral(":/Images/icon20_repair")};
    assessingIcon = {CommonFunction::highDpiPixmap,
                     QStringLiteral(":/Images/icon_recoverability_assessing")};
}
