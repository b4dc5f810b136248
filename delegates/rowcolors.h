#pragma once

#include "delegates/itemcolors.h"

/// The colours of list rows.
struct RowColors : ItemColors
{
    explicit RowColors(THEMETYPE theme = LightTheme);

    QColor secondaryText;
    QColor hoverRow;
    QColor selectedRow;
    QColor link;
};
