#pragma once

#include "common/lazypixmap.h"

#include <QColor>
#include <QFont>
#include <QString>

struct HeaderSection;
class QPainter;
class QRect;

/// How a section of the table's header looks in the current theme, language and font.
class HeaderLook
{
public:
    enum Mark { NoMark, Unsorted, Ascending, Descending };

    struct Heading
    {
        QString text;
        Mark mark = NoMark;
        bool hovered = false;
        int checkState = 0; ///< of the box, where the section has one
        QColor plainText;
        QColor strongText; ///< of the section that is sorted by, and of the one under the mouse
    };

    HeaderLook();

    /// Takes the pictures of the theme that is set now.
    void updateTheme();
    void paint(QPainter *painter, const HeaderSection &section, const Heading &heading) const;
    /// Under all of the header, beside its sections too.
    static void paintHairline(QPainter *painter, const QRect &header, const QColor &color);

    /// The same whether the section is sorted by or not, so that nothing moves when that changes.
    static int textWidth(const QString &text);
    /// What a cell with \a text takes in the column that is sorted by.
    static int cellWidth(const QString &text);

private:
    const QPixmap &checkPixmap(int checkState) const;
    const QPixmap &markPixmap(Mark mark) const;

    LazyPixmap m_checked, m_unchecked, m_halfChecked;
    LazyPixmap m_sortDefault, m_sortAscend, m_sortDescend;
};
