#include "host/ui/messagebanner.h"

#include "host/ui/glyphs.h"
#include "host/ui/hosttheme.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVariant>

namespace {
constexpr int IconSide = 20;
constexpr int OfferMs = 8000;
constexpr int Distance = 16;
} // namespace

MessageBanner::MessageBanner(Form form, QWidget *parent)
    : QFrame(parent)
    , m_form(form)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_act(new QToolButton(this))
    , m_close(new QToolButton(this))
{
    setObjectName(form == Bar ? QStringLiteral("banner") : QStringLiteral("toast"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 8, 8);
    row->setSpacing(10);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    row->addWidget(m_act);
    row->addWidget(m_close);
    m_text->setWordWrap(form == Bar);
    m_text->setTextFormat(Qt::PlainText); // names on a card are not ours to interpret
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_act->setObjectName(QStringLiteral("bannerAction"));
    m_close->setProperty("iconOnly", true);
    m_leave.setSingleShot(true);
    m_leave.setInterval(OfferMs);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_act, &QToolButton::clicked, this, [this] {
        const std::function<void()> action = m_action; // it may put another message here
        hide();
        if (action)
            action();
    });
    connect(&m_leave, &QTimer::timeout, this, [this] {
        if (underMouse() || m_act->hasFocus() || m_close->hasFocus())
            m_leave.start();
        else
            hide();
    });
    hide();
}

void MessageBanner::tell(Kind kind, const Words &words)
{
    m_kind = kind;
    m_words = words;
    m_action = nullptr;
    m_leave.stop();
    m_act->hide();
    retranslate();
    refreshIcon();
    show();
    QAccessibleEvent heard(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&heard);
}

void MessageBanner::tell(Kind kind, const QString &text)
{
    tell(kind, [text] { return text; });
}

void MessageBanner::offer(const Words &words, const Words &title,
                          const std::function<void()> &action)
{
    tell(Hint, words);
    m_title = title;
    m_action = action;
    m_act->setVisible(bool(action));
    retranslate();
    m_leave.start();
}

void MessageBanner::retranslate()
{
    m_close->setToolTip(tr("Close"));
    m_close->setAccessibleName(tr("Close"));
    m_text->setText(m_words ? m_words() : QString());
    setAccessibleName(m_text->text());
    m_act->setText(m_action ? m_title() : QString());
    m_act->setAccessibleName(m_act->text());
    place();
}

void MessageBanner::setRoom(const QRect &room)
{
    m_room = room;
    place();
}

void MessageBanner::place()
{
    if (m_form == Bar)
        return;
    layout()->activate();
    QRect box(QPoint(), sizeHint().boundedTo(m_room.size() - QSize(2 * Distance, 0)));
    box.moveCenter(m_room.center());
    box.moveBottom(m_room.bottom() - Distance);
    setGeometry(box);
    raise();
}

void MessageBanner::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
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
