#include "delegates/plaintexts.h"

#include "delegates/painterstate.h"
#include "delegates/textline.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyle>

namespace {

constexpr int MostTexts = 512;
constexpr int LongText = 128; // more than most columns show: not kept only for its width

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

const QTextLayout &PlainTexts::laidOut(const QString &text, Qt::LayoutDirection direction)
{
    const QTextLayout *known = m_texts.object(text);
    if (known && known->textOption().textDirection() == direction)
        return *known;
    QTextLayout *result = laidOutLine(onOneLine(text), m_font, direction).release();
    m_texts.insert(text, result, 1);
    return *result;
}

int PlainTexts::width(const QString &text, Qt::LayoutDirection script)
{
    // a line leaves out the blanks at its end, the metrics do not
    const bool sameMeasure = !text.isEmpty() && text.size() <= LongText && !text.back().isSpace()
        && onOneLine(text) == text;
    if (!sameMeasure)
        return QFontMetrics(m_font).horizontalAdvance(text);
    const QTextLayout *known = m_texts.object(text);
    return qRound((known ? *known : laidOut(text, script)).lineAt(0).naturalTextWidth());
}

void PlainTexts::draw(QPainter *painter, const QRect &rect, const QString &text,
                      Qt::Alignment alignment, Qt::LayoutDirection script)
{
    if (text.isEmpty() || rect.isEmpty() || !painter->isActive())
        return;
    const Qt::LayoutDirection direction = painter->layoutDirection();
    const QTextLayout &layout = laidOut(text,
                                        script == Qt::LayoutDirectionAuto ? direction : script);
    const QTextLine line = layout.lineAt(0);
    const QSizeF size(line.naturalTextWidth(), line.height());
    const QPointF at = position(rect, size, alignment, direction);
    if (size.width() <= rect.width() && size.height() <= rect.height()) {
        layout.draw(painter, at);
        return;
    }
    const PainterState state(painter);
    painter->setClipRect(rect, Qt::IntersectClip);
    layout.draw(painter, at);
}
