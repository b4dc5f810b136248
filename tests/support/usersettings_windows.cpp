#include "support/usersettings.h"

#include <QSettings>
#include <QVariantMap>

namespace {

/// Keeps what a key of the registry holds and puts it back.
class RegistryKey
{
public:
    explicit RegistryKey(const QString &path)
        : settings(path, QSettings::NativeFormat)
    {
        const QStringList keys = settings.allKeys();
        for (const QString &key : keys)
            m_before.insert(key, settings.value(key));
    }
    ~RegistryKey()
    {
        settings.clear();
        for (auto it = m_before.cbegin(); it != m_before.cend(); ++it)
            settings.setValue(it.key(), it.value());
    }

    QSettings settings;

private:
    QVariantMap m_before;
};

} // namespace

class UserSettings::Private
{
public:
    RegistryKey own{QStringLiteral("HKEY_CURRENT_USER\\Software\\Zenvoor\\Quarvo")};
    RegistryKey system{QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                      "CurrentVersion\\Themes\\Personalize")};
};

UserSettings::UserSettings()
    : d(new Private)
{
    d->own.settings.clear();
    d->own.settings.sync();
    setSystemDark(false);
}

UserSettings::~UserSettings() = default;

void UserSettings::store(const QVector<QPair<QString, QString>> &values)
{
    d->own.settings.clear();
    for (const auto &value : values)
        d->own.settings.setValue(value.first, value.second);
    d->own.settings.sync();
}

void UserSettings::setSystemDark(bool dark)
{
    d->system.settings.setValue(QStringLiteral("AppsUseLightTheme"), dark ? 0 : 1);
    d->system.settings.sync();
}

QList<QPair<QString, QString>> UserSettings::environment() const
{
    return {};
}
