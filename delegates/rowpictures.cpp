#include "delegates/rowpictures.h"

#include "common/commonfunction.h"

void RowPictures::load()
{
    const auto picture = [](const char *name) {
        return LazyPixmap(CommonFunction::highDpiPixmap,
                          QLatin1String(":/Images/") + QLatin1String(name));
    };
    checkBox.load();
    folderIcon = picture("icon32/icon32_File_Folder");
    playButton = picture("icon32/icon32_play_normal");
    recycleBinBadge = picture("icon16_recycleBin");
    repairBadge = picture("icon20_repair");
    location = picture("icon24_location-normal");
    locationHover = picture("icon24_location-hover");
    locationPressed = picture("icon24_location-pressed");
}
