#pragma once

#include "delegates/checkboxlook.h"

#include <QPixmap>

/// The pictures that cards lay over their background, loaded once per theme.
struct CardPictures
{
    void load();

    QPixmap previewMask;
    QPixmap previewButton;
    QPixmap playButton;
    CheckBoxPictures checkBox;
    QPixmap folderIcon;
    QPixmap recycleBinBadge;
    QPixmap repairBadge;
    QPixmap assessingIcon;
};
