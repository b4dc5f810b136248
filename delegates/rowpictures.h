#pragma once

#include "delegates/checkboxlook.h"

#include <QPixmap>

/// The pictures of list rows, loaded once per theme.
struct RowPictures
{
    void load();

    CheckBoxPictures checkBox;
    QPixmap folderIcon;
    QPixmap playButton;
    QPixmap recycleBinBadge;
    QPixmap repairBadge;
    QPixmap location;
    QPixmap locationHover;
    QPixmap locationPressed;
};
