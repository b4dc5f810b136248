#pragma once

#include <QString>

/// What the host remembers from one run to the next. Its own file: that of the plug-in is the
/// plug-in's. GUI thread.
namespace HostSettings {

/// The name of a language; empty until somebody has chosen one.
QString language();
void setLanguage(const QString &name);

/// The folder recovered to; empty before the first recovery.
QString target();
void setTarget(const QString &folder);

} // namespace HostSettings
