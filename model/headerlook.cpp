#include "model/headerlook.h"

#include "common/checkicon.h"
#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "model/headersection.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QtMath>

#include <algorithm>

using namespace HeaderMetrics;

namespace {

constexpr int NormalWeight = 400;
constexpr int SortedWeight = 600;
constexpr int BoldWeight = 700;

constexpr int CellInset = 8; // before a cell's text
constexpr int CellGap = 16;  // behind it

QFont fontOf(int weight)
{
    return FontManager::instance()->getFont(FontPixelSize, weight);
}

// upwards: a width that is a fraction short elides
int widthOf(const QString &text, int weight)
{
    return qCeil(QFontMetricsF(fontOf(weight)).horizontalAdvance(text));
}

QPixmap markOf(const QString &name)
{
    const QPixmap pixmap = CommonFunction::themePixmap(name);
    return pixmap.isNull() ? QPixmap(QStringLiteral(":/Images/%1.png").arg(name)) : pixmap;
}

} // namespace

HeaderLook::HeaderLook()
{
    updateTheme();
}

void HeaderLook::updateTheme()
{
    m_checked = {CommonFunction::themePixmap, checkIconName(Qt::Checked)};
    m_unchecked = {CommonFunction::themePixmap, checkIconName(Qt::Unchecked)};
    m_halfChecked = {CommonFunction::themePixmap, checkIconName(Qt::PartiallyChecked)};
    m_sortDefault = {markOf, QStringLiteral("icon_sort_default")};
    m_sortAscend = {markOf, QStringLiteral("icon_sort_ascend")};
    m_sortDescend = {markOf, QStringLiteral("icon_sort_descend")};
}

int HeaderLook::textWidth(const QString &text)
{
    return std::max(widthOf(text, NormalWeight), widthOf(text, SortedWeight));
}

int HeaderLook::cellWidth(const QString &text)
{
    return CellInset + widthOf(text, BoldWeight) + CellGap;
}

void HeaderLook::paint(QPainter *painter, const HeaderSection &section,
                       const Heading &heading) const
{
    const bool sorted = heading.mark == Ascending || heading.mark == Descending;
    const int width = textWidth(heading.text);
    const QRect textRect = section.textRect(width, heading.mark != NoMark);
    const QFont font = fontOf(sorted ? SortedWeight : NormalWeight);

    painter->save();
    painter->setClipRect(section.rect, Qt::IntersectClip);
    painter->setRenderHint(QPainter::SmoothPixmapTransform); // between whole scales
    if (!section.checkBox.isNull())
        painter->drawPixmap(section.checkBox, checkPixmap(heading.checkState));
    painter->setFont(font);
    painter->setPen(sorted || heading.hovered ? heading.strongText : heading.plainText);
    painter->drawText(
        textRect,
        int(QStyle::visualAlignment(section.direction, Qt::AlignLeft)) | Qt::AlignVCenter
            | Qt::TextSingleLine,
        QFontMetricsF(font).elidedText(heading.text, Qt::ElideRight, textRect.width()));
    if (heading.mark != NoMark)
        painter->drawPixmap(section.arrowRect(width), markPixmap(heading.mark));
    painter->restore();
}

void HeaderLook::paintHairline(QPainter *painter, const QRect &header, const QColor &color)
{
    painter->fillRect(header.left(), header.bottom(), header.width(), 1, color);
}

const QPixmap &HeaderLook::checkPixmap(int checkState) const
{
    switch (checkState) {
    case Qt::Checked:
        return m_checked;
    case Qt::PartiallyChecked:
        return m_halfChecked;
    default:
        return m_unchecked;
    }
}

const QPixmap &HeaderLook::markPixmap(Mark mark) const
{
    switch (mark) {
    case Ascending:
        return m_sortAscend;
    case Descending:
        return m_sortDescend;
    default:
        return m_sortDefault;
    }
}
