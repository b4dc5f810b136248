#include "host/ui/hosttheme.h"

#include <QFile>
#include <QWidget>

namespace {

QColor veil(const QColor &color, int percent)
{
    QColor result = color;
    result.setAlpha(255 * percent / 100);
    return result;
}

QString css(const QColor &color)
{
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

} // namespace

HostTheme HostTheme::light()
{
    const QColor ink(13, 44, 110);
    HostTheme theme;
    theme.page = Qt::white;
    theme.chrome = QColor(246, 248, 251);
    theme.popup = Qt::white;
    theme.hairline = veil(ink, 10);
    theme.edge = veil(ink, 20);
    theme.hover = veil(QColor(48, 72, 150), 7);
    theme.press = veil(ink, 15);
    theme.field = Qt::white;
    theme.text = veil(Qt::black, 86);
    theme.softText = veil(Qt::black, 70);
    theme.faintText = veil(Qt::black, 58);
    theme.offText = veil(Qt::black, 32);
    theme.icon = QColor(74, 84, 112);
    theme.accent = QColor(65, 132, 248);
    theme.accentHover = QColor(47, 116, 236);
    theme.accentPress = QColor(36, 99, 214);
    theme.accentText = QColor(33, 99, 216);
    theme.accentVeil = veil(theme.accent, 12);
    theme.warn = QColor(150, 86, 0);
    theme.good = QColor(46, 148, 98);
    theme.bad = QColor(206, 66, 63);
    static const QString s_sheet = theme.makeStyleSheet();
    theme.m_sheet = s_sheet;
    return theme;
}

HostTheme HostTheme::dark()
{
    const QColor mist(119, 134, 182);
    HostTheme theme;
    theme.isDark = true;
    theme.page = QColor(30, 33, 45);
    theme.chrome = QColor(35, 39, 53);
    theme.popup = QColor(43, 47, 62);
    theme.hairline = veil(Qt::white, 8);
    theme.edge = veil(Qt::white, 16);
    theme.hover = veil(mist, 16);
    theme.press = veil(mist, 28);
    theme.field = QColor(26, 29, 40);
    theme.text = veil(Qt::white, 88);
    theme.softText = veil(Qt::white, 70);
    theme.faintText = veil(Qt::white, 56);
    theme.offText = veil(Qt::white, 30);
    theme.icon = QColor(195, 202, 223);
    theme.accent = QColor(65, 132, 248);
    theme.accentHover = QColor(90, 149, 250);
    theme.accentPress = QColor(54, 116, 228);
    theme.accentText = QColor(120, 168, 251);
    theme.accentVeil = veil(theme.accent, 22);
    theme.warn = QColor(255, 172, 46);
    theme.good = QColor(102, 187, 138);
    theme.bad = QColor(238, 110, 106);
    static const QString s_sheet = theme.makeStyleSheet();
    theme.m_sheet = s_sheet;
    return theme;
}

QPalette HostTheme::palette() const
{
    QPalette palette;
    palette.setColor(QPalette::Window, page);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, chrome);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, faintText);
    palette.setColor(QPalette::Button, chrome);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, popup);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accentText);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, offText);
    return palette;
}

QString HostTheme::makeStyleSheet() const
{
    QFile file(QStringLiteral(":/host/host.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    const QPair<const char *, QColor> names[] = {
        {"@page@", page},
        {"@chrome@", chrome},
        {"@popup@", popup},
        {"@hairline@", hairline},
        {"@edge@", edge},
        {"@hover@", hover},
        {"@press@", press},
        {"@field@", field},
        {"@text@", text},
        {"@soft@", softText},
        {"@faint@", faintText},
        {"@off@", offText},
        {"@accent@", accent},
        {"@accent_hover@", accentHover},
        {"@accent_press@", accentPress},
        {"@accent_text@", accentText},
        {"@accent_veil@", accentVeil},
        {"@warn@", warn},
        {"@bad@", bad},
        {"@good@", good},
    };
    for (const auto &name : names)
        sheet.replace(QLatin1String(name.first), css(name.second));
    return sheet;
}

void HostTheme::applyTo(QWidget *part) const
{
    part->setPalette(palette());
    part->setStyleSheet(styleSheet());
}
