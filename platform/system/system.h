#pragma once

#include <QPixmap>
#include <QString>
#include <qwindowdefs.h>

/// All that differs between operating systems, behind plain functions. Each has one
/// implementation for Windows and one for Unix; no other file of the project tests for a system.
namespace System {

/// The user has chosen dark applications. False where the system does not say. May take a few
/// hundredths of a second: ask once.
bool appsUseDarkTheme();

/// Physical memory that can be had now, in bytes; 0 where the system does not say.
quint64 availablePhysicalMemory();

/// Bounds the memory that this process may use; what asks for more is refused it. A program that
/// reads strangers' files does this first. Nothing happens in builds that watch memory themselves.
void limitMemory(quint64 bytes);

/// The desktop's icon for files that end in \a extension (no dot), \a side device pixels wide and
/// high; null where the desktop has none. GUI thread.
QPixmap fileTypeIcon(const QString &extension, int side);

/// Makes fonts that stand in for the families which exist on Windows only known to Qt. Does
/// nothing on Windows and when called again. Needs a QGuiApplication. GUI thread.
void registerFontSubstitutes();

/// Takes the system's own shadow off \a window and every window of its class, where the system
/// draws one for a class.
void removeClassShadow(WId window);

/// Translucent parts of a window let through what lies behind it. Where they do not, they are
/// black. May change while the program runs. Needs a QGuiApplication. GUI thread.
bool windowsAreBlended();

/// Windows can be shown to somebody. May be called before there is an application object.
bool hasDisplay();

/// Keeps the library that holds \a address mapped until the process ends.
void pinModule(const void *address);

} // namespace System
