#pragma once

class QString;
class Stage;

/// Calls every operation of the interface, each from a fresh start, and looks at what came of it.
void proveOperations(Stage &stage);
/// Causes every signal by mouse or keyboard.
void proveSignals(Stage &stage);

/// Gives the desktop an icon for contacts where desktops take theirs from themes. Before the first
/// frame is made.
void provideDesktopIcons(const QString &folder);
/// The desktop's icon stands on the card of a type that the view has no picture for.
void proveDesktopIcons(Stage &stage);
/// Names are painted with glyphs.
void proveFonts(Stage &stage);
