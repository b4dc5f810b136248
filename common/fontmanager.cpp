#include "common/fontmanager.h"

#include "platform/system/system.h"

#include <QCoreApplication>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <array>

namespace {

constexpr auto SharedPointerProperty = "FontManager";
constexpr auto DefaultFamily = "Segoe UI";

/// Another module that has adopted the object may delete it.
QPointer<FontManager> &sharedInstance()
{
    static QPointer<FontManager> pointer;
    return pointer;
}

/// Languages that share a family. The first family is the one in use; the others follow it where
/// the machine does not have it.
struct LanguageGroup
{
    QStringList languages;
    QStringList families;
};

const std::array<LanguageGroup, 4> &languageGroups()
{
    static const std::array<LanguageGroup, 4> groups{{
        {{"English", "French", "German", "Portuguese", "Italiano", "Spanish", "Arab", "Indonesia",
          "Netherland", "Russian", "Sweden", "Thai"},
         {DefaultFamily, "Arial", "Tahoma"}},
        {{"Japanese"}, {"Yu Gothic UI", "Tahoma", "Arial"}},
        {{"Korean"}, {"Malgun Gothic", "Tahoma", "Arial"}},
        {{"Chinese Simplified", "ChineseSimplified", "Chinese Traditional", "ChineseTraditional"},
         {"Microsoft JhengHei UI", "Tahoma", "Arial"}},
    }};
    return groups;
}

QFont::Weight fromCssWeight(int weight)
{
    struct Step
    {
        int below;
        QFont::Weight weight;
    };
    static constexpr Step steps[] = {
        {150, QFont::Thin},   {250, QFont::ExtraLight}, {350, QFont::Light},
        {450, QFont::Normal}, {550, QFont::Medium},     {650, QFont::DemiBold},
        {750, QFont::Bold},   {850, QFont::ExtraBold},
    };
    for (const Step &step : steps) {
        if (weight < step.below)
            return step.weight;
    }
    return QFont::Black;
}

QFont makeFont(const QString &family, int pixelSize, int weight)
{
    QFont font(family);
    font.setPixelSize(std::max(1, pixelSize));
    font.setWeight(fromCssWeight(weight));
    return font;
}

} // namespace

FontManager *FontManager::instance()
{
    QPointer<FontManager> &shared = sharedInstance();
    if (shared)
        return shared;
    QCoreApplication *app = QCoreApplication::instance();
    if (app)
        shared = static_cast<FontManager *>(app->property(SharedPointerProperty).value<void *>());
    if (!shared) {
        shared = new FontManager;
        if (app)
            app->setProperty(SharedPointerProperty,
                             QVariant::fromValue(static_cast<void *>(shared.data())));
    }
    return shared;
}

void FontManager::release()
{
    FontManager *shared = sharedInstance();
    if (!shared)
        return;
    // nobody may adopt what is about to be freed
    if (QCoreApplication *app = QCoreApplication::instance())
        app->setProperty(SharedPointerProperty, QVariant());
    delete shared;
}

FontManager::FontManager(QObject *parent)
    : QObject(parent)
    , m_family(DefaultFamily)
{
    System::registerFontSubstitutes();
    for (const LanguageGroup &group : languageGroups())
        QFont::insertSubstitutions(group.families.first(), group.families.mid(1));
}

void FontManager::setLanguage(const QString &languageName)
{
    m_language = languageName;
    m_family = DefaultFamily;
    for (const LanguageGroup &group : languageGroups()) {
        const bool matches = std::any_of(
            group.languages.cbegin(), group.languages.cend(),
            [&](const QString &name) { return languageName.contains(name); });
        if (matches) {
            m_family = group.families.first();
            return;
        }
    }
}

QFont FontManager::getFont(int pixelSize, int weight) const
{
    return makeFont(m_family, pixelSize, weight);
}

QFont FontManager::getFixedFont(int pixelSize, int weight)
{
    return makeFont(DefaultFamily, pixelSize, weight);
}

QFont FontManager::getFont(bool semibold) const
{
    if (!semibold || m_family != DefaultFamily)
        return QFont(m_family);
    QFont font(QStringLiteral("Segoe UI Semibold"));
    font.setWeight(QFont::DemiBold); // what stands in for the family elsewhere has all weights
    return font;
}

QFont FontManager::styledFont(bool semibold, int pixelSize) const
{
    QFont font = getFont(semibold);
    font.setPixelSize(pixelSize);
    return font;
}

void FontManager::setWidgetFont(QWidget *widget, int pixelSize, int weight) const
{
    if (widget)
        widget->setFont(getFont(pixelSize, weight));
}
