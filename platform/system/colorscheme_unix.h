#pragma once

/// What the common desktops say about dark applications.
namespace ColorScheme {

/// The first source that says anything decides: GTK_THEME, then the running desktop's own
/// setting, then the setting files of KDE and GTK. Light when none does.
bool isDark();

} // namespace ColorScheme
