#pragma once

#include "common/lazypixmap.h"
#include "delegates/checkboxlook.h"

/// The pictures that cards lay over their background, of one theme.
struct CardPictures
{
    void load();

    LazyPixmap previewMask;
    LazyPixmap previewButton;
    LazyPixmap playButton;
    CheckBoxPictures checkBox;
    LazyPixmap folderIcon;
    LazyPixmap recycleBinBadge;
    LazyPixmap repairBadge;
    LazyPixmap assessingIcon;
};
