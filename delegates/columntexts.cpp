#include "delegates/columntexts.h"

void ColumnTexts::setFont(const QFont &font)
{
    m_texts.setFont(font);
    m_middle.clear();
    m_end.clear();
}

QString ColumnTexts::elided(const QString &text, int width, Qt::TextElideMode mode,
                            Qt::LayoutDirection direction)
{
    ElideCache &cache = mode == Qt::ElideMiddle ? m_middle : m_end;
    return cache.elided(text, width, &m_texts, direction);
}

void ColumnTexts::draw(QPainter *painter, const QRect &rect, const QString &text)
{
    m_texts.draw(painter, rect, text, Qt::AlignLeft | Qt::AlignVCenter);
}
