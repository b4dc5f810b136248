#pragma once

#include <QMetaType>

enum THEMETYPE {
    LightTheme = 0,
    DarkTheme = 1,
};

Q_DECLARE_METATYPE(THEMETYPE)
