#pragma once

#include "delegates/itemcolors.h"
#include "delegates/plaintexts.h"

#include <QCache>
#include <QFont>
#include <QString>

#include <memory>

class CHighLighter;
class ElideCache;
class QPainter;
class QTextBrowser;
class QTextLayout;

/// Draws item names, with the search keyword marked when there is one. The marks are found in a
/// hidden text browser; what has been laid out once is kept, so that a name costs only its glyphs.
class NamePainter
{
public:
    NamePainter();
    ~NamePainter();
    Q_DISABLE_COPY_MOVE(NamePainter)

    void setColors(const ItemColors &colors);
    void setFont(const QFont &font);
    const QFont &font() const { return m_plainTexts.font(); }
    void setKeyword(const QString &keyword);
    const QString &keyword() const { return m_keyword; }

    /// \a text cut to \a width pixels, with \a cache's memory.
    QString elided(ElideCache *cache, const QString &text, int width);
    /// Shapes \a text, which will be drawn.
    void prepare(const QString &text);
    /// One line, \a alignment sideways, centred vertically. Nothing for an empty text or rectangle.
    /// The painter's pen stays in the text colour.
    void draw(QPainter *painter, const QRect &rect, const QString &text, Qt::Alignment alignment);

    /// A top-level widget that is never shown: Qt tells it of a change of language.
    QTextBrowser *renderer() const { return m_renderer.get(); }

private:
    static Qt::LayoutDirection scriptOf(const QString &text);
    void drawHighlighted(QPainter *painter, const QRect &rect, const QString &text,
                         Qt::Alignment alignment);
    QTextLayout *highlightedLayout(const QString &text, Qt::LayoutDirection direction);
    void applyPalette();
    void forget();

    ItemColors m_colors;
    QString m_keyword;
    std::unique_ptr<QTextBrowser> m_renderer;
    std::unique_ptr<CHighLighter> m_highlighter; // on the renderer's document: goes first
    PlainTexts m_plainTexts;
    QCache<QString, QTextLayout> m_highlightedTexts;
};
