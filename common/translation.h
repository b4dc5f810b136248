#pragma once

#include <QCoreApplication>
#include <QString>

/// The text of a translation key of the application family; the key itself where no catalogue has
/// it.
inline QString translatedKey(const char *key)
{
    return QCoreApplication::translate("QuarvoTRS", key);
}
