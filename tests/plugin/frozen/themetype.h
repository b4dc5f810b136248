#pragma once

#include <QMetaType>

/// Has a fixed underlying type because a host may hand over values that have no name here; every
/// value but LightTheme is drawn dark.
enum THEMETYPE : int {
    LightTheme = 0,
    DarkTheme = 1,
};

Q_DECLARE_METATYPE(THEMETYPE)
