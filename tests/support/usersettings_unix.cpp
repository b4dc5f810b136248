#include "support/usersettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class UserSettings::Private
{
public:
    QTemporaryDir folder;
    bool dark = false;
};

UserSettings::UserSettings()
    : d(new Private)
{
}

UserSettings::~UserSettings() = default;

void UserSettings::store(const QVector<QPair<QString, QString>> &values)
{
    const QString folder = d->folder.filePath(QStringLiteral("Zenvoor"));
    QFile file(folder + QStringLiteral("/Quarvo.conf"));
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly))
        qFatal("no place for settings");
    file.write("[General]\n");
    for (const auto &value : values)
        file.write(QStringLiteral("%1=%2\n").arg(value.first, value.second).toUtf8());
}

void UserSettings::setSystemDark(bool dark)
{
    d->dark = dark;
}

QList<QPair<QString, QString>> UserSettings::environment() const
{
    return {{QStringLiteral("XDG_CONFIG_HOME"), d->folder.path()},
            {QStringLiteral("GTK_THEME"),
             d->dark ? QStringLiteral("Adwaita:dark") : QStringLiteral("Adwaita")}};
}
