#pragma once

#include "delegates/elidecache.h"
#include "delegates/plaintexts.h"

/// The texts of the columns beside the name, in one font, each cut where its column wants it.
class ColumnTexts
{
public:
    void setFont(const QFont &font);
    const QFont &font() const { return m_texts.font(); }

    /// \a width 0: not cut.
    QString elided(const QString &text, int width, Qt::TextElideMode mode,
                   Qt::LayoutDirection direction);
    /// In the painter's pen, at the beginning of \a rect.
    void draw(QPainter *painter, const QRect &rect, const QString &text);

private:
    PlainTexts m_texts;
    ElideCache m_middle{0, Qt::ElideMiddle};
    ElideCache m_end{0, Qt::ElideRight};
};
