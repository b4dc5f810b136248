#include "delegates/namepainter.h"

#include "delegates/chighlighter.h"
#include "delegates/elidecache.h"
#include "delegates/painterstate.h"
#include "delegates/textline.h"

#include <QDebug>
#include <QPainter>
#include <QPalette>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>

#include <exception>

namespace {

constexpr int MostTexts = 1024;

} // namespace

NamePainter::NamePainter()
    : m_renderer(std::make_unique<QTextBrowser>())
    , m_highlighter(std::make_unique<CHighLighter>(m_renderer.get()))
    , m_highlightedTexts(MostTexts)
{
    m_renderer->setReadOnly(true);
    m_renderer->setLineWrapMode(QTextEdit::NoWrap);
    m_renderer->document()->setDocumentMargin(0);
    m_renderer->document()->setUndoRedoEnabled(false);
}

NamePainter::~NamePainter() = default;

void NamePainter::setColors(const ItemColors &colors)
{
    m_colors = colors;
    applyPalette();
    forget();
}

void NamePainter::setFont(const QFont &font)
{
    m_plainTexts.setFont(font);
    m_highlightedTexts.clear();
}

void NamePainter::setKeyword(const QString &keyword)
{
    if (keyword == m_keyword)
        return;
    m_keyword = keyword;
    m_highlightedTexts.clear();
}

void NamePainter::applyPalette()
{
    QPalette palette = m_renderer->palette();
    palette.setColor(QPalette::Text, m_colors.text);
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Window, Qt::transparent);
    m_renderer->setPalette(palette);
    m_renderer->setTextColor(m_colors.text);
}

void NamePainter::forget()
{
    m_plainTexts.clear();
    m_highlightedTexts.clear();
}

QString NamePainter::elided(ElideCache *cache, const QString &text, int width)
{
    return cache->elided(text, width, &m_plainTexts, scriptOf(text));
}

void NamePainter::prepare(const QString &text)
{
    if (m_keyword.isEmpty())
        m_plainTexts.prepare(text, scriptOf(text));
    else
        highlightedLayout(text, scriptOf(text));
}

void NamePainter::draw(QPainter *painter, const QRect &rect, const QString &text,
                       Qt::Alignment alignment)
{
    if (text.isEmpty() || rect.isEmpty() || !painter->isActive())
        return;
    painter->setPen(m_colors.text);
    if (m_keyword.isEmpty())
        m_plainTexts.draw(painter, rect, text, alignment, scriptOf(text));
    else
        drawHighlighted(painter, rect, text, alignment);
}

/// A name is somebody's own: in an Arabic window too, the mark at the end of "100QUAR_" is at its
/// end.
Qt::LayoutDirection NamePainter::scriptOf(const QString &text)
{
    return text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

void NamePainter::drawHighlighted(QPainter *painter, const QRect &rect, const QString &text,
                                  Qt::Alignment alignment)
{
    try {
        QTextLayout *layout = highlightedLayout(text, scriptOf(text));
        const QTextLine line = layout->lineAt(0);
        const PainterState state(painter);
        painter->setClipRect(rect);
        layout->draw(painter,
                     PlainTexts::position(rect, {line.naturalTextWidth(), line.height()}, alignment,
                                          painter->layoutDirection()));
    } catch (const std::exception &e) {
        qDebug() << "Exception caught:" << e.what();
    }
}

QTextLayout *NamePainter::highlightedLayout(const QString &text, Qt::LayoutDirection direction)
{
    QTextLayout *known = m_highlightedTexts.object(text);
    if (known && known->textOption().textDirection() == direction)
        return known;

    const QString line = PlainTexts::onOneLine(text);
    m_renderer->setPlainText(line);
    m_highlighter->setKeyword(m_keyword, m_colors.highlightBackground,
                              m_colors.highlightForeground);
    m_highlighter->rehighlight();

    const auto marks = m_renderer->document()->firstBlock().layout()->formats();
    QTextLayout *result = laidOutLine(line, font(), direction, marks).release();
    m_highlightedTexts.insert(text, result, 1);
    return result;
}
