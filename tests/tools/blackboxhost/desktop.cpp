#include "proofs.h"
#include "report.h"
#include "stage.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QIcon>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int IconSide = 64;

/// Where a card has the icon of its type.
QImage iconOn(const Side &side, const QString &name)
{
    const QImage card = side.pictureOf(side.index(name));
    return card.copy((card.width() - IconSide) / 2, 9, IconSide, IconSide);
}

bool isDrawnOn(const QImage &icon)
{
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            if (icon.pixel(x, y) != icon.pixel(0, 0))
                return true;
        }
    }
    return false;
}

} // namespace

void provideDesktopIcons(const QString &folder)
{
    const QString theme = folder + QStringLiteral("/proof");
    QFile index(theme + QStringLiteral("/index.theme"));
    QImage icon(IconSide, IconSide, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter(&icon).fillRect(8, 16, 48, 32, Qt::darkMagenta);
    if (!QDir().mkpath(theme + QStringLiteral("/64x64")) || !index.open(QIODevice::WriteOnly)
        || !icon.save(theme + QStringLiteral("/64x64/text-vcard.png")))
        qFatal("no place for an icon theme");
    index.write("[Icon Theme]\nName=proof\nDirectories=64x64\n[64x64]\nSize=64\n");
    index.close();
    QIcon::setThemeSearchPaths({folder});
    QIcon::setThemeName(QStringLiteral("proof"));
}

void proveDesktopIcons(Stage &stage)
{
    stage.begin();
    const QImage own = iconOn(stage.scan, stage.card.unknown->name);
    const QImage ofDesktop = iconOn(stage.scan, stage.card.contact->name);
    Report::tell(isDrawnOn(own), QStringLiteral("a file of no type has the general icon"));
    Report::tell(isDrawnOn(ofDesktop) && ofDesktop != own,
                 QStringLiteral("a type of the desktop has the desktop's icon"));
}

void proveFonts(Stage &stage)
{
    stage.begin();
    const auto nameOn = [&](const QString &name) {
        const QImage card = stage.scan.pictureOf(stage.scan.index(name));
        return card.copy(0, card.height() - 42, card.width(), 22);
    };
    const QImage one = nameOn(QStringLiteral("IMG_0028.JPG"));
    const QImage other = nameOn(QStringLiteral("IMG_0031.JPG")); // as many letters
    Report::tell(isDrawnOn(one) && one != other, QStringLiteral("names are written in letters"),
                 QFontInfo(stage.scan.child("sizeButton")->font()).family());
    stage.view->setViewMode(View::ListWithDetailView);
    const QString family = stage.scan.child("sizeButton")->font().family();
    QStringList others;
    const auto widgets = stage.scan.frame()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->property("text").toString().isEmpty() && widget->isVisible()
            && !widget->font().family().startsWith(family))
            others << widget->objectName();
    }
    Report::tell(others.isEmpty(), QStringLiteral("all texts in one family"),
                 others.isEmpty() ? family : others.join(QLatin1Char(' ')));
    const QString text = stage.scan.child<QPushButton>("sizeButton")->text();
    Report::tell(text == QLatin1String("Size"), QStringLiteral("the catalogue has the texts"),
                 text);
}
