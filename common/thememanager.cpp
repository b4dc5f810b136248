#include "common/thememanager.h"

#include "platform/system/system.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QSettings>
#include <QThread>

#include <utility>

namespace {

constexpr auto SharedPointerProperty = "ThemeManager";
constexpr auto ThemeProperty = "ThemeType";

ThemeManager *s_instance = nullptr;

struct Keys
{
    QString organisation = QStringLiteral("Zenvoor");
    QString application = QStringLiteral("Quarvo");
    QString theme = QStringLiteral("theme");
    QString follow = QStringLiteral("followSystemTheme");
};

void publishTheme(THEMETYPE type)
{
    if (QCoreApplication *app = QCoreApplication::instance())
        app->setProperty(ThemeProperty, type == LightTheme ? 0 : 1);
}

/// Widgets read the property on the GUI thread, and Qt wants it written there.
bool mayPublish()
{
    const QCoreApplication *app = QCoreApplication::instance();
    return !app || QThread::currentThread() == app->thread();
}

/// With the theme of then: the one of now may have been overtaken.
void publishLater(ThemeManager *manager)
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [manager] { publishTheme(manager->getThemeType()); },
        Qt::QueuedConnection);
}

void writeSettings(bool follow, THEMETYPE type)
{
    const Keys keys;
    QSettings settings(keys.organisation, keys.application);
    settings.setValue(keys.theme, int(type));
    settings.setValue(keys.follow, follow);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning() << "ThemeManager: the theme could not be saved to" << settings.fileName();
}

} // namespace

ThemeManager *ThemeManager::instance()
{
    static std::mutex mutex;
    const std::lock_guard<std::mutex> lock(mutex);
    if (s_instance)
        return s_instance;

    QCoreApplication *app = QCoreApplication::instance();
    if (app)
        s_instance = static_cast<ThemeManager *>(
            app->property(SharedPointerProperty).value<void *>());
    if (!s_instance) {
        s_instance = new ThemeManager(nullptr);
        if (app)
            app->setProperty(SharedPointerProperty,
                             QVariant::fromValue(static_cast<void *>(s_instance)));
    }
    if (app && s_instance->thread() != app->thread())
        s_instance->moveToThread(app->thread());
    return s_instance;
}

ThemeManager::ThemeManager(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<THEMETYPE>("THEMETYPE");
    loadSettings();
}

THEMETYPE ThemeManager::getThemeType()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_theme;
}

void ThemeManager::setThemeType(THEMETYPE type)
{
    const bool publishesHere = mayPublish();
    if (publishesHere)
        publishTheme(type);
    bool changed = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        changed = std::exchange(m_theme, type) != type;
    }
    if (!publishesHere)
        publishLater(this);
    if (!changed)
        return;
    QMetaObject::invokeMethod(this, qOverload<>(&ThemeManager::saveSettings), Qt::QueuedConnection);
    emit singleThemeChanged(type);
}

bool ThemeManager::isFollowSystemTheme()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_followSystem;
}

void ThemeManager::setFollowSystemTheme(bool follow)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (follow == m_followSystem)
        return;
    m_followSystem = follow;
    QMetaObject::invokeMethod(this, qOverload<>(&ThemeManager::saveSettings), Qt::QueuedConnection);
}

QString ThemeManager::loadThemeFile(const QStringList &paths)
{
    QString text;
    for (const QString &path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly | QIODevice::Text))
            text += QString::fromUtf8(file.readAll());
        else
            qWarning() << "ThemeManager::loadThemeFile Failed to open QSS file:" << path;
    }
    return text;
}

void ThemeManager::loadSettings()
{
    const Keys keys;
    const QSettings settings(keys.organisation, keys.application);
    m_followSystem = settings.value(keys.follow, true).toBool();
    if (m_followSystem)
        m_theme = isSystemDarkTheme() ? DarkTheme : LightTheme;
    else if (settings.contains(keys.theme))
        m_theme = THEMETYPE(settings.value(keys.theme).toInt());
    if (mayPublish())
        publishTheme(m_theme);
    else
        publishLater(this);
}

void ThemeManager::saveSettings()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    writeSettings(m_followSystem, m_theme);
}

void ThemeManager::saveSettings(bool follow, THEMETYPE type)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    writeSettings(follow, type);
}

bool ThemeManager::isSystemDarkTheme()
{
    return System::appsUseDarkTheme();
}
