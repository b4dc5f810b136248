#include "host/ui/segments.h"

#include "host/ui/hosttheme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int IconSide = 18;
constexpr char GlyphProperty[] = "glyph";
} // namespace

Segments::Segments(QWidget *parent)
    : QFrame(parent)
    , m_group(new QButtonGroup(this))
    , m_row(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("segments"));
    m_row->setContentsMargins(1, 1, 1, 1);
    m_row->setSpacing(0);
    m_group->setExclusive(true);
    connect(m_group, &QButtonGroup::idClicked, this, &Segments::picked);
}

void Segments::addText(int id, const QString &text)
{
    auto *button = new QToolButton(this);
    button->setText(text);
    button->setCheckable(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_group->addButton(button, id);
    m_row->addWidget(button);
}

void Segments::addGlyph(int id, Glyph glyph, const QString &name)
{
    addText(id, QString());
    QAbstractButton *button = m_group->button(id);
    button->setProperty(GlyphProperty, int(glyph));
    button->setIconSize({IconSide, IconSide});
    setText(id, name);
}

void Segments::setText(int id, const QString &text)
{
    QAbstractButton *button = m_group->button(id);
    if (button->property(GlyphProperty).isValid())
        button->setToolTip(text);
    else
        button->setText(text);
    button->setAccessibleName(text);
}

void Segments::setChosen(int id)
{
    m_group->button(id)->setChecked(true);
}

int Segments::chosen() const
{
    return m_group->checkedId();
}

void Segments::setTheme(const HostTheme &theme)
{
    const auto buttons = m_group->buttons();
    for (QAbstractButton *button : buttons) {
        const QVariant glyph = button->property(GlyphProperty);
        if (glyph.isValid())
            button->setIcon(
                glyphIcon(Glyph(glyph.toInt()), theme.icon, theme.offText, theme.accentText));
    }
}
