#include "delegates/plaintexts.h"

#include "delegates/painterstate.h"

#include <QPainter>
#include <QStyle>

#include <memory>

namespace {

constexpr int MostTexts = 1024;

} // namespace

PlainTexts::PlainTexts()
    : m_texts(MostTexts)
{
}

void PlainTexts::setFont(const QFont &font)
{
    m_font = font;
    clear();
}

QString PlainTexts::onOneLine(QString text)
{
    for (QChar &c : text) {
        if (c < QLatin1Char(' ') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    }
    return text;
}

QPointF PlainTexts::position(const QRect &rect, const QSizeF &size, Qt::Alignment alignment,
                             Qt::LayoutDirection direction)
{
    const Qt::Alignment visual = QStyle::visualAlignment(direction, alignment);
    qreal x = rect.x();
    if (visual & Qt::AlignHCenter)
        x += (rect.width() - size.width()) / 2;
    else if (visual & Qt::AlignRight)
        x += rect.width() - size.width();
    return {x, rect.y() + (rect.height() - size.height()) / 2};
}

void PlainTexts::draw(QPainter *painter, const QRect &rect, const QString &text,
                      Qt::Alignment alignment, Qt::LayoutDirection script)
{
    if (text.isEmpty() || rect.isEmpty() || !painter->isActive())
        return;
    const Qt::LayoutDirection direction = painter->layoutDirection();
    const Qt::LayoutDirection running = script == Qt::LayoutDirectionAuto ? direction : script;
    QStaticText *prepared = m_texts.object(text);
    if (!prepared || prepared->textOption().textDirection() != running) {
        QTextOption option;
        option.setTextDirection(running);
        prepared = new QStaticText(onOneLine(text));
        prepared->setTextFormat(Qt::PlainText);
        prepared->setTextOption(option);
        prepared->setPerformanceHint(QStaticText::AggressiveCaching);
        prepared->prepare(painter->transform(), m_font);
        m_texts.insert(text, prepared, 1);
    }
    painter->setFont(m_font);
    const QSizeF size = prepared->size();
    const QPointF at = position(rect, size, alignment, direction);
    if (size.width() <= rect.width() && size.height() <= rect.height()) {
        painter->drawStaticText(at, *prepared);
        return;
    }
    const PainterState state(painter);
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->drawStaticText(at, *prepared);
}
