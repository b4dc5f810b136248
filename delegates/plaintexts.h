#pragma once

#include <QCache>
#include <QFont>
#include <QString>
#include <QTextLayout>

class QPainter;

/// Texts of one line in one font. What has been laid out is kept, so that measuring and drawing a
/// text shape it once, and drawing it again costs only its glyphs. GUI thread.
class PlainTexts
{
public:
    PlainTexts();

    void setFont(const QFont &font);
    const QFont &font() const { return m_font; }
    void clear() { m_texts.clear(); }

    /// In the painter's pen, \a alignment sideways in the painter's layout direction, centred
    /// vertically; cut off at the edges of \a rect. Nothing for an empty text or rectangle. The
    /// text itself runs in \a script, or in the layout direction where that is automatic.
    void draw(QPainter *painter, const QRect &rect, const QString &text, Qt::Alignment alignment,
              Qt::LayoutDirection script = Qt::LayoutDirectionAuto);
    /// Shapes what will be drawn.
    void prepare(const QString &text, Qt::LayoutDirection script) { laidOut(text, script); }
    /// What QFontMetrics::horizontalAdvance() says. For a text that is going to be drawn.
    int width(const QString &text, Qt::LayoutDirection script);

    /// A text is one line, whatever characters a damaged directory entry holds.
    static QString onOneLine(QString text);
    /// Top left of a text of \a size in \a rect.
    static QPointF position(const QRect &rect, const QSizeF &size, Qt::Alignment alignment,
                            Qt::LayoutDirection direction);

private:
    const QTextLayout &laidOut(const QString &text, Qt::LayoutDirection direction);

    QFont m_font;
    QCache<QString, QTextLayout> m_texts;
};
