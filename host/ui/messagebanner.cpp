#include "host/ui/messagebanner.h"

#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int IconSide = 20;
}

MessageBanner::MessageBanner(QWidget *parent)
    : QFrame(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("banner"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 8, 8);
    row->setSpacing(10);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_close);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText); // names on a card are not ours to interpret
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_close->setProperty("iconOnly", true);
    m_close->setAccessibleName(tr("Close"));
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void MessageBanner::tell(Kind kind, const QString &text)
{
    m_kind = kind;
    m_text->setText(text);
    setAccessibleName(text);
    refreshIcon();
    show();
}

void MessageBanner::setTheme(const HostTheme &theme)
{
    theme.applyTo(this);
    m_colors[Failure] = theme.bad;
    m_colors[Success] = theme.good;
    m_colors[Hint] = theme.accentText;
    m_close->setIcon(glyphIcon(Glyph::Close, theme.icon));
    refreshIcon();
}

void MessageBanner::refreshIcon()
{
    const Glyph glyph = m_kind == Failure ? Glyph::Warning : Glyph::Done;
    m_icon->setPixmap(
        glyphIcon(glyph, m_colors[m_kind]).pixmap(window()->windowHandle(), {IconSide, IconSide}));
}
