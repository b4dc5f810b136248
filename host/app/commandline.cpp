#include "host/app/commandline.h"

#include "host/app/languages.h"
#include "host/scan/syntheticsource.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

namespace {

constexpr int MaxSide = 16384;

/// Index of \a name among \a names; -1 with a message when it is none of them.
int choice(const QString &option, const QString &name, const QStringList &names, QString *message)
{
    const int index = names.indexOf(name);
    if (index < 0)
        *message = QStringLiteral("--%1 takes %2, not \"%3\"")
                       .arg(option, names.join(QLatin1String(", ")), name);
    return index;
}

bool parseSize(const QString &text, QSize *size)
{
    static const QRegularExpression s_form(QStringLiteral("^(\\d{1,5})[xX](\\d{1,5})$"));
    const QRegularExpressionMatch match = s_form.match(text);
    *size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() && size->width() > 0 && size->height() > 0 && size->width() <= MaxSide
        && size->height() <= MaxSide;
}

} // namespace

CommandLine::Answer CommandLine::parse(const QStringList &arguments, QString *message)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows the files on a card, deleted ones too, and recovers them."));
    parser.addPositionalArgument(
        QStringLiteral("SOURCE"),
        QStringLiteral("A folder, a disk image or a device; without it, the sample card."),
        QStringLiteral("[SOURCE]"));
    const auto add = [&parser](const char *name, const char *text, const char *value) {
        parser.addOption({QLatin1String(name), QLatin1String(text), QLatin1String(value)});
    };
    add("items", "Shows a made-up card of N files and folders, for example 1000000.", "N");
    add("view", "How results are shown: grid, list or list-detail.", "VIEW");
    add("theme", "light or dark.", "THEME");
    add("language", "Language, for example German or \"Chinese Simplified\".", "NAME");
    add("search", "Searches for names that contain TEXT.", "TEXT");
    add("describe", "Searches for what TEXT describes, for example \"photos may 2024\".", "TEXT");
    add("check",
        "Chooses what PATTERN means: a wildcard over the path from the card's root, \"*\" is "
        "everything. May be given more than once.",
        "PATTERN");
    add("recover-to", "Recovers what is chosen into DIR when the scan has ended.", "DIR");
    add("screenshot", "Writes a picture of the window when the scan has ended.", "FILE");
    add("size", "Size of the window, for example 1280x800.", "WxH");
    add("report", "Writes what was found and done, as JSON.", "FILE");
    parser.addOption(
        {QStringLiteral("quit"), QStringLiteral("Ends when all that was asked for is done.")});
    QCommandLineOption pluginOption(QStringLiteral("plugin"), QString(), QStringLiteral("FILE"));
    pluginOption.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(pluginOption);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();

    if (!parser.parse(arguments)) {
        *message = parser.errorText();
        return Usage;
    }
    if (parser.isSet(help)) {
        *message = parser.helpText();
        return Help;
    }
    if (parser.isSet(version)) {
        *message = QCoreApplication::applicationName() + QLatin1Char(' ')
            + QCoreApplication::applicationVersion();
        return Version;
    }

    const QStringList sources = parser.positionalArguments();
    if (sources.size() > 1) {
        *message = QStringLiteral("one source at a time, not %1").arg(sources.size());
        return Usage;
    }
    source = sources.value(0);
    if (parser.isSet(QStringLiteral("items"))) {
        const QString value = parser.value(QStringLiteral("items"));
        bool isNumber = false;
        const int items = value.toInt(&isNumber);
        if (!isNumber || items < 1 || items > SyntheticSource::MaxItems || !source.isEmpty()) {
            *message = source.isEmpty() ? QStringLiteral("--items takes a number from 1 to %1")
                                              .arg(SyntheticSource::MaxItems)
                                        : QStringLiteral("--items makes a card of its own: name no "
                                                         "source beside it");
            return Usage;
        }
        source = SyntheticSource::pathFor(items);
    }
    described = parser.isSet(QStringLiteral("describe"));
    search = parser.value(described ? QStringLiteral("describe") : QStringLiteral("search"));
    checkPatterns = parser.values(QStringLiteral("check"));
    recoverTo = parser.value(QStringLiteral("recover-to"));
    screenshot = parser.value(QStringLiteral("screenshot"));
    report = parser.value(QStringLiteral("report"));
    plugin = parser.value(pluginOption);
    quit = parser.isSet(QStringLiteral("quit"));
    for (const char *name : {"recover-to", "screenshot", "report", "check", "plugin"}) {
        const QString option = QLatin1String(name);
        const QStringList values = parser.values(option);
        for (const QString &value : values) {
            if (value.isEmpty() || value.startsWith(QLatin1String("--"))) {
                *message = QStringLiteral("--%1 needs a value").arg(option);
                return Usage;
            }
        }
    }
    if (parser.isSet(QStringLiteral("view"))) {
        viewMode = choice(
            QStringLiteral("view"), parser.value(QStringLiteral("view")),
            {QStringLiteral("grid"), QStringLiteral("list-detail"), QStringLiteral("list")},
            message);
        if (viewMode < 0)
            return Usage;
    }
    if (parser.isSet(QStringLiteral("theme"))) {
        theme = choice(QStringLiteral("theme"), parser.value(QStringLiteral("theme")),
                       {QStringLiteral("light"), QStringLiteral("dark")}, message);
        if (theme < 0)
            return Usage;
    }
    if (parser.isSet(QStringLiteral("language"))) {
        language = parser.value(QStringLiteral("language"));
        if (!Languages::find(language)) {
            *message = QStringLiteral("no language \"%1\"; there are %2")
                           .arg(language, Languages::names().join(QLatin1String(", ")));
            return Usage;
        }
    }
    if (parser.isSet(QStringLiteral("size"))
        && !parseSize(parser.value(QStringLiteral("size")), &size)) {
        *message = QStringLiteral("--size takes WIDTHxHEIGHT, such as 1280x800");
        return Usage;
    }
    return Run;
}
