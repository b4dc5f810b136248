#pragma once

class QString;
class Stage;

/// Gives the desktop an icon for contacts where desktops take theirs from themes. Before the first
/// frame is made.
void provideDesktopIcons(const QString &folder);
/// The desktop's icon stands on the card of a type that the view has no picture for.
void proveDesktopIcons(Stage &stage);
/// Names are painted with glyphs.
void proveFonts(Stage &stage);
/// Writes what a user sees, in both themes, to PNG files in \a folder.
void takePictures(Stage &stage, const QString &folder);
