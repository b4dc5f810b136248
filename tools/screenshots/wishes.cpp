#include "wishes.h"

#include "host/app/languages.h"
#include "pages.h"

#include <QCommandLineParser>
#include <QTextStream>

namespace {

constexpr int WrongUsage = 2;

QStringList listOf(const QCommandLineParser &parser, const QString &option)
{
    return parser.value(option).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

/// The first of \a wanted that nobody offers; empty when all are known.
QString stranger(const QStringList &wanted, const QStringList &offered)
{
    for (const QString &name : wanted) {
        if (!offered.contains(name))
            return name;
    }
    return {};
}

} // namespace

bool Wishes::read(const QStringList &arguments, int *exitCode)
{
    const QStringList allThemes{QStringLiteral("light"), QStringLiteral("dark")};
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Renders every page of the content area."));
    parser.addHelpOption();
    const auto add = [&](const char *name, const QString &text, const QString &standard) {
        parser.addOption({QString::fromLatin1(name), text, QStringLiteral("list"), standard});
    };
    add("pages", QStringLiteral("Of: ") + Pages::names().join(QLatin1Char(',')),
        Pages::names().join(QLatin1Char(',')));
    add("languages", QStringLiteral("Of: all,") + Languages::names().join(QLatin1Char(',')),
        QStringLiteral("English,German,Arab,Japanese"));
    add("themes", QStringLiteral("light, dark"), allThemes.join(QLatin1Char(',')));
    add("scales", QStringLiteral("Pixels a unit"), QStringLiteral("1,1.25,1.5,2"));
    add("size", QStringLiteral("Of the window"), QStringLiteral("1100x720"));
    add("only-scale", QStringLiteral("In this process, which has that scale already"), {});
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where they go"));
    parser.process(arguments);

    const auto refuse = [exitCode](const QString &message) {
        QTextStream(stderr) << "quarvo-screenshots: " << message << '\n';
        *exitCode = WrongUsage;
        return false;
    };
    if (parser.positionalArguments().size() != 1)
        return refuse(QStringLiteral("one folder is wanted; see --help"));
    folder = parser.positionalArguments().constFirst();
    pages = listOf(parser, QStringLiteral("pages"));
    languages = listOf(parser, QStringLiteral("languages"));
    if (languages == QStringList{QStringLiteral("all")})
        languages = Languages::names();
    themes = listOf(parser, QStringLiteral("themes"));
    scales = listOf(parser, QStringLiteral("scales"));
    onlyScale = parser.value(QStringLiteral("only-scale"));
    for (const QString &name :
         {stranger(pages, Pages::names()), stranger(languages, Languages::names()),
          stranger(themes, allThemes)}) {
        if (!name.isEmpty())
            return refuse(QStringLiteral("there is no '%1'; see --help").arg(name));
    }
    const QStringList sides = parser.value(QStringLiteral("size")).split(QLatin1Char('x'));
    size = sides.size() == 2 ? QSize(sides.at(0).toInt(), sides.at(1).toInt()) : QSize();
    if (size.isEmpty())
        return refuse(QStringLiteral("a size is, for example, 1280x800"));
    for (const QString &scale : qAsConst(scales)) {
        if (scale.toDouble() < 1 || scale.toDouble() > 4)
            return refuse(QStringLiteral("a scale lies between 1 and 4"));
    }
    return true;
}

QStringList Wishes::argumentsFor(const QString &scale) const
{
    const QLatin1Char comma(',');
    return {QStringLiteral("--pages"),
            pages.join(comma),
            QStringLiteral("--languages"),
            languages.join(comma),
            QStringLiteral("--themes"),
            themes.join(comma),
            QStringLiteral("--size"),
            QStringLiteral("%1x%2").arg(size.width()).arg(size.height()),
            QStringLiteral("--only-scale"),
            scale,
            folder};
}

QString Wishes::fileName(const QString &page, const QString &language, const QString &theme,
                         const QString &scale) const
{
    const QStringList parts{page, language, theme, scale + QLatin1Char('x')};
    return parts.join(QLatin1Char('_')).remove(QLatin1Char(' ')) + QStringLiteral(".png");
}
