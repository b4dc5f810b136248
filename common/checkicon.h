#pragma once

#include <QString>

/// Name of the picture of a check state, for CommonFunction::themePixmap().
inline QString checkIconName(int state)
{
    switch (state) {
    case Qt::Checked:
        return QStringLiteral("icon16_check_normal");
    case Qt::PartiallyChecked:
        return QStringLiteral("icon16_half_check");
    default:
        return QStringLiteral("icon16_uncheck_normal");
    }
}
