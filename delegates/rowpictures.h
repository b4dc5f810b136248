#pragma once

#include "common/lazypixmap.h"
#include "delegates/checkboxlook.h"

/// The pictures of list rows, of one theme.
struct RowPictures
{
    void load();

    CheckBoxPictures checkBox;
    LazyPixmap folderIcon;
    LazyPixmap playButton;
    LazyPixmap recycleBinBadge;
    LazyPixmap repairBadge;
    LazyPixmap location;
    LazyPixmap locationHover;
    LazyPixmap locationPressed;
};
