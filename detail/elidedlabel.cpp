#include "detail/elidedlabel.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>

namespace {

constexpr int LongestShown = 1000; // no screen is wider, and layout of a megabyte takes seconds

QString inOneLine(const QString &text)
{
    QString line = text.left(LongestShown);
    for (QChar &c : line) {
        if (!c.isPrint())
            c = QLatin1Char(' ');
    }
    return line.simplified();
}

/// Assistive technology hears the whole text, and can follow a link.
class LabelAccessible : public QAccessibleWidget
{
public:
    explicit LabelAccessible(ElidedLabel *label)
        : QAccessibleWidget(label)
    {
    }

    QAccessible::Role role() const override
    {
        return label()->isLink() ? QAccessible::Link : QAccessible::StaticText;
    }
    QStringList actionNames() const override
    {
        const QStringList names = QAccessibleWidget::actionNames();
        return label()->isLink() ? QStringList{pressAction()} + names : names;
    }
    void doAction(const QString &action) override
    {
        if (action == pressAction() && label()->isLink())
            emit label()->linkClicked();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    ElidedLabel *label() const { return static_cast<ElidedLabel *>(object()); }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *label = qobject_cast<ElidedLabel *>(object);
    return label ? new LabelAccessible(label) : nullptr;
}

void installAccessibleOnce()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeAccessible);
    installed = true;
}

} // namespace

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    installAccessibleOnce();
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    align();
}

void ElidedLabel::align()
{
    // By the interface, not by the text: a Latin name in an Arabic pane stands with its title.
    setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute
                 | Qt::AlignVCenter);
}

void ElidedLabel::setFullText(const QString &text)
{
    const QString line = inOneLine(text);
    setProperty("tooltipkey", line);
    if (line == m_fullText)
        return;
    m_fullText = line;
    elide();
}

void ElidedLabel::setElideMode(Qt::TextElideMode mode)
{
    m_mode = mode;
    elide();
}

void ElidedLabel::setLink(bool link)
{
    if (link == m_link)
        return;
    m_link = link;
    setFocusPolicy(link ? Qt::StrongFocus : Qt::ClickFocus);
    setProperty("link", link);
    if (link)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    style()->unpolish(this);
    style()->polish(this);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        align();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
}

void ElidedLabel::elide()
{
    // Each new stylesheet asks for it several times.
    const Elision now{m_fullText, m_mode, font(), contentsRect().width()};
    if (m_eliding || now == m_elision)
        return;
    m_eliding = true;
    m_elision = now;
    const QString shown = fontMetrics().elidedText(m_fullText, m_mode, now.width);
    if (shown != text())
        setText(shown);
    setToolTip(shown == m_fullText ? QString() : m_fullText);
    setAccessibleName(m_fullText);
    m_eliding = false;
}

void ElidedLabel::copy() const
{
    const bool wholeText = !hasSelectedText() || selectedText() == text();
    QGuiApplication::clipboard()->setText(wholeText ? m_fullText : selectedText());
}

void ElidedLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        event->accept();
    } else if (m_link && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        emit linkClicked();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void ElidedLabel::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    menu.addAction(tr("Copy"), this, &ElidedLabel::copy);
    menu.exec(event->globalPos());
}

void ElidedLabel::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    // A drag that selected something was no click.
    if (m_link && event->button() == Qt::LeftButton && rect().contains(event->pos())
        && !hasSelectedText())
        emit linkClicked();
}
