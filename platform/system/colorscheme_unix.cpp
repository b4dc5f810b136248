#include "platform/system/colorscheme_unix.h"

#include <QColor>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <optional>

namespace {

using Answer = std::optional<bool>;

constexpr int GSettingsTimeoutMs = 500;

bool isDarkName(const QString &theme)
{
    return theme.contains(QLatin1String("dark"), Qt::CaseInsensitive);
}

QString configFile(const QString &name)
{
    return QStandardPaths::locate(QStandardPaths::GenericConfigLocation, name);
}

Answer fromGtkThemeVariable()
{
    const QString theme = qEnvironmentVariable("GTK_THEME");
    return theme.isEmpty() ? Answer() : Answer(isDarkName(theme));
}

QColor colorOf(const QStringList &parts)
{
    constexpr int Channels = 3;
    if (parts.size() < Channels)
        return QColor(parts.value(0));
    return QColor(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt());
}

Answer fromKde()
{
    constexpr int MiddleGray = 128;
    const QString path = configFile(QStringLiteral("kdeglobals"));
    if (path.isEmpty())
        return {};
    const QSettings settings(path, QSettings::IniFormat);
    const QStringList background =
        settings.value(QStringLiteral("Colors:Window/BackgroundNormal")).toStringList();
    const QColor color = colorOf(background);
    if (!background.isEmpty() && color.isValid())
        return qGray(color.rgb()) < MiddleGray;
    const QString scheme = settings.value(QStringLiteral("ColorScheme")).toString();
    return scheme.isEmpty() ? Answer() : Answer(isDarkName(scheme));
}

/// The database of this setting has no documented format, only a tool that reads it.
Answer fromGSettings()
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("gsettings"));
    if (tool.isEmpty())
        return {};
    QProcess process;
    process.start(tool,
                  {QStringLiteral("get"), QStringLiteral("org.gnome.desktop.interface"),
                   QStringLiteral("color-scheme")});
    if (!process.waitForFinished(GSettingsTimeoutMs) || process.exitCode() != 0) {
        process.kill();
        process.waitForFinished(GSettingsTimeoutMs);
        return {};
    }
    const QString scheme = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    if (scheme.contains(QLatin1String("prefer-dark")))
        return true;
    return scheme.contains(QLatin1String("prefer-light")) ? Answer(false) : Answer();
}

Answer fromGtkFile(const QString &name)
{
    const QString path = configFile(name);
    if (path.isEmpty())
        return {};
    const QSettings settings(path, QSettings::IniFormat);
    const QVariant prefersDark = settings.value(
        QStringLiteral("Settings/gtk-application-prefer-dark-theme"));
    if (prefersDark.isValid())
        return prefersDark.toBool();
    const QString theme = settings.value(QStringLiteral("Settings/gtk-theme-name")).toString();
    return theme.isEmpty() ? Answer() : Answer(isDarkName(theme));
}

Answer fromRunningDesktop()
{
    const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    if (desktop.contains(QLatin1String("KDE")))
        return fromKde();
    for (const char *name : {"GNOME", "Unity", "Cinnamon", "Budgie", "Pantheon", "MATE"}) {
        if (desktop.contains(QLatin1String(name)))
            return fromGSettings();
    }
    return {};
}

} // namespace

bool ColorScheme::isDark()
{
    Answer dark = fromGtkThemeVariable();
    if (!dark)
        dark = fromRunningDesktop();
    if (!dark)
        dark = fromKde();
    if (!dark)
        dark = fromGtkFile(QStringLiteral("gtk-4.0/settings.ini"));
    if (!dark)
        dark = fromGtkFile(QStringLiteral("gtk-3.0/settings.ini"));
    return dark.value_or(false);
}
