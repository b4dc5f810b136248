#include "delegates/itemcolors.h"

ItemColors::ItemColors(THEMETYPE theme)
    : text(theme == DarkTheme ? QColor(255, 255, 255, 178) : QColor(0, 0, 0, 178))
    , highlightBackground(theme == DarkTheme ? QColor(22, 66, 110) : QColor(159, 202, 253))
    , highlightForeground(text)
{
}
