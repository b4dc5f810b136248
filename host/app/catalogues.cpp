#include "host/app/catalogues.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace {

QString folder()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/translations");
}

} // namespace

Catalogues::Catalogues(QObject *parent)
    : QTranslator(parent)
{
    add(&m_english, QStringLiteral("quarvo-host_en"), folder());
    add(&m_english, QStringLiteral("quarvo_en"), folder());
}

bool Catalogues::add(List *list, const QString &name, const QString &folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(name, folder))
        return false;
    list->push_back(std::move(translator));
    return true;
}

bool Catalogues::load(const QString &code)
{
    List list;
    const bool hasHost = add(&list, QLatin1String("quarvo-host_") + code, folder());
    const bool hasPlugin = add(&list, QLatin1String("quarvo_") + code, folder());
    // the file dialogs' own words; Qt does not have them in every language
    const QString qt = QLatin1String("qtbase_") + code;
    if (!add(&list, qt, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        add(&list, qt, folder());
    const QWriteLocker lock(&m_lock);
    m_chosen.swap(list);
    return hasHost && hasPlugin;
}

QString Catalogues::translate(const char *context, const char *sourceText,
                              const char *disambiguation, int n) const
{
    const QReadLocker lock(&m_lock);
    for (const List *list : {&m_chosen, &m_english}) {
        for (const auto &translator : *list) {
            const QString text = translator->translate(context, sourceText, disambiguation, n);
            if (!text.isNull())
                return text;
        }
    }
    return {};
}
