#include "host/app/hostsettings.h"

#include <QSettings>

namespace {

constexpr char LanguageKey[] = "language";
constexpr char TargetKey[] = "target";

QSettings settings()
{
    return QSettings(QStringLiteral("Zenvoor"), QStringLiteral("Quarvo Host"));
}

} // namespace

QString HostSettings::language()
{
    return settings().value(QLatin1String(LanguageKey)).toString();
}

void HostSettings::setLanguage(const QString &name)
{
    QSettings file = settings();
    file.setValue(QLatin1String(LanguageKey), name);
}

QString HostSettings::target()
{
    return settings().value(QLatin1String(TargetKey)).toString();
}

void HostSettings::setTarget(const QString &folder)
{
    QSettings file = settings();
    file.setValue(QLatin1String(TargetKey), folder);
}
