#include "host/app/languages.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>
#include <QVariant>

namespace {

constexpr Language All[] = {
    {"English", "en", "en-us"},
    {"French", "fr", "fr-fr"},
    {"German", "de", "de-de"},
    {"Portuguese", "pt", "pt-pt"},
    {"Italiano", "it", "it-it"},
    {"Spanish", "es", "es-es"},
    {"Arab", "ar", "ar-ar"},
    {"Indonesia", "id", "id-id"},
    {"Netherland", "nl", "nl-nl"},
    {"Russian", "ru", "ru-ru"},
    {"Sweden", "sv", "sv-se"},
    {"Thai", "th", "th-th"},
    {"Japanese", "ja", "ja-jp"},
    {"Korean", "ko", "ko-kr"},
    {"Chinese Simplified", "zh_CN", "zh-cn"},
    {"Chinese Traditional", "zh_TW", "zh-tw"},
};

/// An object that the modules of a process share; null when nobody has made it.
QObject *sharedObject(const char *name)
{
    return static_cast<QObject *>(qApp->property(name).value<void *>());
}

} // namespace

const Language *Languages::find(const QString &name)
{
    for (const Language &language : All) {
        if (name.compare(QLatin1String(language.name), Qt::CaseInsensitive) == 0)
            return &language;
    }
    return nullptr;
}

QStringList Languages::names()
{
    QStringList names;
    for (const Language &language : All)
        names.append(QLatin1String(language.name));
    return names;
}

bool Languages::apply(const Language &language)
{
    static QTranslator *s_translator = nullptr;
    static QTranslator *s_english = nullptr; // where another language has a gap, or no texts at all
    const QString name = QLatin1String(language.name);
    const QString locale = QLatin1String(language.locale);
    QLocale::setDefault(QLocale(locale));
    if (QObject *fonts = sharedObject("FontManager"))
        QMetaObject::invokeMethod(fonts, "setLanguage", Q_ARG(QString, name));
    if (QObject *service = sharedObject("ZVLangManager")) {
        QMetaObject::invokeMethod(service, "init", Q_ARG(QString, QStringLiteral("quarvo-host")),
                                  Q_ARG(QString, QString()), Q_ARG(QString, QString()),
                                  Q_ARG(QString, QCoreApplication::applicationVersion()),
                                  Q_ARG(QString, locale));
    }

    const QString folder = QCoreApplication::applicationDirPath() + QLatin1String("/translations");
    if (!s_english) {
        s_english = new QTranslator(qApp);
        s_english->load(QStringLiteral("quarvo_en"), folder);
        QCoreApplication::installTranslator(s_english);
    }
    delete s_translator; // sends the change of language, as does installing the next one
    s_translator = new QTranslator(qApp);
    const bool found = s_translator->load(QStringLiteral("quarvo_") + QLatin1String(language.code),
                                          folder);
    QCoreApplication::installTranslator(s_translator);
    // last: a change of language puts the direction back to what the catalogues say
    QApplication::setLayoutDirection(QLocale(locale).textDirection());
    return found;
}
