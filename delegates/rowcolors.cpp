#include "delegates/rowcolors.h"

RowColors::RowColors(THEMETYPE theme)
    : ItemColors(theme)
    , secondaryText(theme == DarkTheme ? QColor(255, 255, 255, 204) : QColor(0, 0, 0, 200))
    , hoverRow(theme == DarkTheme ? QColor(119, 134, 182, 25) : QColor(48, 72, 150, 15))
    , selectedRow(theme == DarkTheme ? QColor(119, 134, 182, 40) : QColor(13, 44, 110, 25))
    , link(0, 145, 255)
{
}
