#pragma once

#include "common/themetype.h"

#include <QColor>

/// Text colours that cards and rows share.
struct ItemColors
{
    explicit ItemColors(THEMETYPE theme = LightTheme);

    QColor text;
    QColor highlightBackground;
    QColor highlightForeground;
};
