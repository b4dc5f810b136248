#include "platform/system/system.h"

namespace System {

bool appsUseDarkTheme() { return false; }
quint64 availablePhysicalMemory() { return 0; }
QPixmap fileTypeIcon(const QString &, int) { return {}; }
void registerFontSubstitutes() { }
void pinModule(const void *) { }

} // namespace System
