#pragma once

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

/// Makes Qt believe that a screen reader runs; a platform without a screen has none otherwise.
namespace AssistiveTechnology {

inline bool start()
{
    QPlatformIntegration *platform = QGuiApplicationPrivate::platformIntegration();
    QPlatformAccessibility *accessibility = platform ? platform->accessibility() : nullptr;
    if (accessibility)
        accessibility->setActive(true);
    return QAccessible::isActive();
}

} // namespace AssistiveTechnology
