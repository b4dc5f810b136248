#pragma once

#include "common/themetype.h"

#include <QObject>
#include <QStringList>

#include <mutex>

/// The one theme of the process. Reads its settings once, when made; announces every change.
/// Published as the application property "ThemeManager" (void*), so that all modules of a process
/// share one. The theme is published as the application property "ThemeType", always 0 or 1.
/// Every function may be called from any thread.
class ThemeManager : public QObject
{
    Q_OBJECT

public:
    static ThemeManager *instance();

    THEMETYPE getThemeType();
    void setThemeType(THEMETYPE type);
    bool isFollowSystemTheme();
    /// Takes effect at the next start.
    void setFollowSystemTheme(bool follow);

    /// The texts of \a paths, one after the other; an unreadable file is logged and left out.
    QString loadThemeFile(const QStringList &paths);
    Q_INVOKABLE void saveSettings();
    void saveSettings(bool follow, THEMETYPE type);

    static bool isSystemDarkTheme();

Q_SIGNALS:
    void singleThemeChanged(THEMETYPE newTheme);

private:
    explicit ThemeManager(QObject *parent);
    void loadSettings();

    std::mutex m_mutex; // race detectors see through it and not through Qt's
    THEMETYPE m_theme = LightTheme;
    bool m_followSystem = false;
};
