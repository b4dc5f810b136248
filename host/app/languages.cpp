#include "host/app/languages.h"

#include "host/app/catalogues.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QLocale>
#include <QVariant>

namespace {

const Language *s_current = nullptr;

/// An object that the modules of a process share; null when nobody has made it.
QObject *sharedObject(const char *name)
{
    return static_cast<QObject *>(qApp->property(name).value<void *>());
}

/// What is left of a name when its spelling does not matter.
QString core(const QString &name)
{
    QString letters;
    for (const QChar c : name) {
        if (!c.isSpace() && c != QLatin1Char('-') && c != QLatin1Char('_'))
            letters += c;
    }
    return letters.normalized(QString::NormalizationForm_KC).toCaseFolded();
}

QStringList namesOf(const Language &language)
{
    QStringList names =
        QString::fromUtf8(language.otherNames).split(QLatin1Char(','), Qt::SkipEmptyParts);
    names << QLatin1String(language.name) << QString::fromUtf8(language.nativeName)
          << QLatin1String(language.code) << QLatin1String(language.locale);
    return names;
}

/// Of the window's own widgets; the plug-in chooses for itself.
void applyFont(const Language &language)
{
    const QString name = QLatin1String(language.name);
    QFont font = QApplication::font();
    font.setFamily(name == QLatin1String("Japanese")     ? QStringLiteral("Yu Gothic UI")
                       : name == QLatin1String("Korean") ? QStringLiteral("Malgun Gothic")
                       : name.startsWith(QLatin1String("C"))
                       ? QStringLiteral("Microsoft JhengHei UI")
                       : QStringLiteral("Segoe UI"));
    QApplication::setFont(font);
}

} // namespace

const QVector<Language> &Languages::all()
{
    static const QVector<Language> languages{
        {"English", "English", "en", "en-us", ""},
        {"French", "Français", "fr", "fr-fr", ""},
        {"German", "Deutsch", "de", "de-de", ""},
        {"Portuguese", "Português", "pt", "pt-pt", ""},
        {"Italiano", "Italiano", "it", "it-it", "Italian"},
        {"Spanish", "Español", "es", "es-es", ""},
        {"Arab", "العربية", "ar", "ar-ae", "Arabic,ar-ar"},
        {"Indonesia", "Bahasa Indonesia", "id", "id-id", "Indonesian"},
        {"Netherland", "Nederlands", "nl", "nl-nl", "Dutch,Netherlands"},
        {"Russian", "Русский", "ru", "ru-ru", ""},
        {"Sweden", "Svenska", "sv", "sv-se", "Swedish"},
        {"Thai", "ไทย", "th", "th-th", ""},
        {"Hindi", "हिन्दी", "hi", "hi-in", ""},
        {"Japanese", "日本語", "ja", "ja-jp", ""},
        {"Korean", "한국어", "ko", "ko-kr", ""},
        {"Chinese Simplified", "简体中文", "zh_CN", "zh-cn", "Simplified Chinese,zh-Hans,zh"},
        {"Chinese Traditional", "繁體中文", "zh_TW", "zh-tw", "Traditional Chinese,zh-Hant"},
    };
    return languages;
}

const Language *Languages::find(const QString &name)
{
    const QString wanted = core(name);
    if (wanted.isEmpty())
        return nullptr;
    for (const Language &language : all()) {
        const QStringList names = namesOf(language);
        for (const QString &each : names) {
            if (core(each) == wanted)
                return &language;
        }
    }
    return nullptr;
}

QStringList Languages::names()
{
    QStringList names;
    for (const Language &language : all())
        names.append(QLatin1String(language.name));
    return names;
}

const Language *Languages::ofSystem()
{
    const QString locale = QLocale::system().name(); // "de_AT"
    const Language *language = find(locale);
    if (!language)
        language = find(locale.section(QLatin1Char('_'), 0, 0));
    return language ? language : find(QStringLiteral("English"));
}

bool Languages::apply(const Language &language)
{
    static Catalogues *s_catalogues = nullptr;
    const QString name = QLatin1String(language.name);
    const QString locale = QLatin1String(language.locale);
    s_current = &language;
    QLocale::setDefault(QLocale(locale));
    if (QObject *fonts = sharedObject("FontManager"))
        QMetaObject::invokeMethod(fonts, "setLanguage", Q_ARG(QString, name));
    if (QObject *service = sharedObject("ZVLangManager")) {
        QMetaObject::invokeMethod(service, "init", Q_ARG(QString, QStringLiteral("quarvo-host")),
                                  Q_ARG(QString, QString()), Q_ARG(QString, QString()),
                                  Q_ARG(QString, QCoreApplication::applicationVersion()),
                                  Q_ARG(QString, locale));
    }
    applyFont(language);

    const bool isFirst = !s_catalogues;
    if (isFirst)
        s_catalogues = new Catalogues(qApp);
    const bool found = s_catalogues->load(QLatin1String(language.code));
    if (isFirst) {
        QCoreApplication::installTranslator(s_catalogues); // tells everybody
    } else {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(qApp, &change);
    }
    // last: a change of language puts the direction back to what the catalogues say
    QApplication::setLayoutDirection(QLocale(locale).textDirection());
    return found;
}

const Language *Languages::current()
{
    return s_current;
}
