#include "model/scantableheader.h"

#include "common/focusring.h"
#include "common/translation.h"
#include "model/columnfit.h"
#include "model/headeraccessible.h"
#include "model/headersection.h"
#include "model/itemtext.h"
#include "model/scandatamodel.h"

#include <QDebug>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

using Column = ScanDataModel;
using namespace HeaderMetrics;

namespace {

// What a column shows at most, give or take; their widths are measured with it.
constexpr qint64 LongTime = 1669852799; // two digits everywhere
constexpr char LongType[] = "MMMMM";

constexpr int LocationImageRoom = 32; // at the end of the time
constexpr int LocationShare = 30;     // per cent of the viewport

bool sorts(int section)
{
    return section >= 0 && section < SortCycle::SectionCount;
}

/// The widest size there is: the units are of very different lengths in some languages.
int longestSize()
{
    int width = 0;
    for (const qint64 unit : {qint64(1), qint64(1) << 10, qint64(1) << 20, qint64(1) << 30})
        width = std::max(width, HeaderLook::cellWidth(ItemText::size(unit * 88888 / 100)));
    return width;
}

} // namespace

ScanTableHeader::ScanTableHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
    HeaderAccessible::install();
    setFocusPolicy(Qt::TabFocus);
    setFixedHeight(Height);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    viewport()->setAutoFillBackground(false); // the page shows through
    setSortIndicator(SortCycle::NoSection, Qt::AscendingOrder);
    connect(this, &QHeaderView::sectionCountChanged, this, [this] {
        applyHiddenColumns();
        refit();
    });
    // by whatever hand: the table widens a column on a double click too
    connect(this, &QHeaderView::sectionResized, this, [this](int section, int, int size) {
        if (section == Column::NameColumn && size > 0 && size < NameMinimum)
            resizeSection(section, NameMinimum);
    });
    retranslate();
}

// State ----------------------------------------------------------------------------------------

void ScanTableHeader::setCheckState(int state)
{
    if (state < Qt::Unchecked || state > Qt::Checked) {
        qDebug() << "ScanTableHeader::setCheckState unknown state = " << state;
        return;
    }
    if (state == m_checkState)
        return;
    m_checkState = state;
    updateSection(Column::NameColumn);
    HeaderAccessible::announceCheck(this);
}

HeaderViewSortType ScanTableHeader::sortType() const
{
    return SortCycle::sortType(m_sortSection, m_descending);
}

void ScanTableHeader::setSortType(HeaderViewSortType type)
{
    m_sortSection = SortCycle::section(type);
    m_descending = SortCycle::isDescending(type);
    // read by the delegate, which sets the sorted column off
    setSortIndicator(m_sortSection, m_descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    viewport()->update();
}

void ScanTableHeader::resetSort()
{
    setSortType(NoSort);
}

void ScanTableHeader::sortBy(int section)
{
    setSortType(SortCycle::next(sortType(), section));
    HeaderAccessible::announceSort(this, section);
    emit signalSortClicked(sortType());
}

void ScanTableHeader::toggleCheck()
{
    const Qt::CheckState wanted = m_checkState == Qt::Checked ? Qt::Unchecked : Qt::Checked;
    setCheckState(wanted);
    emit signalAllChecked(wanted);
}

// Mouse ----------------------------------------------------------------------------------------

HeaderSection ScanTableHeader::sectionAt(int logicalIndex) const
{
    const QRect rect(sectionViewportPosition(logicalIndex), 0, sectionSize(logicalIndex),
                     viewport()->height());
    return HeaderSection(rect, logicalIndex, layoutDirection());
}

bool ScanTableHeader::isOnFirstEdge(int x) const
{
    if (count() == 0 || isSectionHidden(Column::NameColumn))
        return false;
    const HeaderSection section = sectionAt(Column::NameColumn);
    const bool scrolledOut = isRightToLeft() ? section.rect.right() >= viewport()->width()
                                             : section.rect.left() < 0;
    return !scrolledOut && section.rect.width() > 0 && section.isNearTrailingEdge(x);
}

void ScanTableHeader::startResizing(int x)
{
    m_resizing = true;
    m_dragStartX = x;
    m_dragStartWidth = sectionSize(Column::NameColumn);
    setEdgeCursor(true);
}

void ScanTableHeader::setEdgeCursor(bool shown)
{
    if (shown == m_edgeCursor)
        return;
    m_edgeCursor = shown;
    if (shown)
        setCursor(Qt::SplitHCursor);
    else
        unsetCursor();
}

void ScanTableHeader::setHoverSection(int section)
{
    if (section == m_hoverSection)
        return;
    m_hoverSection = section;
    viewport()->update();
}

bool ScanTableHeader::press(const QPoint &pos)
{
    if (isOnFirstEdge(pos.x())) {
        startResizing(pos.x());
        return true;
    }
    const int logicalIndex = logicalIndexAt(pos.x());
    if (logicalIndex < 0)
        return false;
    const HeaderSection section = sectionAt(logicalIndex);
    if (section.hitsCheckBox(pos)) {
        toggleCheck();
        return true;
    }
    const bool takesLeadingEdge = logicalIndex != Column::NameColumn && sorts(logicalIndex);
    if (section.isAtOrBeyondTrailingEdge(pos.x())
        || (takesLeadingEdge && section.isNearLeadingEdge(pos.x())))
        return false; // the base class resizes there
    if (sorts(logicalIndex))
        sortBy(logicalIndex);
    return logicalIndex < Column::ColumnCount;
}

void ScanTableHeader::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && press(event->pos()))
        event->accept();
    else
        QHeaderView::mousePressEvent(event);
}

void ScanTableHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    // of two quick clicks none is lost
    if (event->button() == Qt::LeftButton && press(event->pos()))
        event->accept();
    else
        QHeaderView::mouseDoubleClickEvent(event);
}

void ScanTableHeader::mouseMoveEvent(QMouseEvent *event)
{
    if (m_resizing) {
        const int moved = event->pos().x() - m_dragStartX;
        const int width = std::max(NameMinimum,
                                   m_dragStartWidth + (isRightToLeft() ? -moved : moved));
        if (width != sectionSize(Column::NameColumn))
            resizeSection(Column::NameColumn, width);
        event->accept();
        return;
    }
    if (event->buttons() == Qt::NoButton) {
        const bool onEdge = isOnFirstEdge(event->pos().x());
        const int section = onEdge ? SortCycle::NoSection : logicalIndexAt(event->pos());
        setHoverSection(sorts(section) ? section : SortCycle::NoSection);
        setEdgeCursor(onEdge);
        if (onEdge) {
            event->accept();
            return;
        }
    }
    QHeaderView::mouseMoveEvent(event);
}

void ScanTableHeader::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_resizing) {
        QHeaderView::mouseReleaseEvent(event);
        return;
    }
    m_resizing = false;
    setEdgeCursor(isOnFirstEdge(event->pos().x()));
    event->accept();
}

void ScanTableHeader::leaveEvent(QEvent *event)
{
    setHoverSection(SortCycle::NoSection);
    QHeaderView::leaveEvent(event);
}

// Columns --------------------------------------------------------------------------------------

void ScanTableHeader::setDetailPaneShown(bool shown)
{
    if (shown == m_detailPaneShown)
        return;
    m_detailPaneShown = shown;
    applyHiddenColumns();
    refit();
}

void ScanTableHeader::applyHiddenColumns()
{
    if (count() > Column::PathColumn)
        setSectionHidden(Column::PathColumn, m_detailPaneShown);
}

void ScanTableHeader::fitColumns(int viewportWidth)
{
    if (count() < Column::ColumnCount || viewportWidth <= 0 || viewportWidth == m_fittedWidth)
        return;
    m_fittedWidth = viewportWidth;

    std::vector<ColumnFit::Column> others;
    // half a number is none: only a path gives way, before the table begins to scroll
    const auto add = [&](int column, int cellWidth, bool givesWay = false) {
        const int heading = sectionSizeFromContents(column).width();
        const int wanted = std::max(heading, cellWidth);
        others.push_back({wanted, givesWay ? heading : wanted});
    };
    add(Column::SizeColumn, longestSize());
    add(Column::TypeColumn,
        std::max(HeaderLook::cellWidth(QLatin1String(LongType)),
                 HeaderLook::cellWidth(translatedKey("folder"))));
    add(Column::DateColumn,
        HeaderLook::cellWidth(ItemText::modified(LongTime)) + LocationImageRoom);
    if (!m_detailPaneShown)
        add(Column::PathColumn, viewportWidth * LocationShare / 100, true);

    const std::vector<int> widths = ColumnFit::fit(viewportWidth, NameMinimum, others);
    for (size_t column = 0; column < widths.size(); ++column)
        resizeSection(int(column), widths[column]);
}

void ScanTableHeader::refit()
{
    const int width = m_fittedWidth;
    m_fittedWidth = -1;
    fitColumns(width);
}

// Look -----------------------------------------------------------------------------------------

void ScanTableHeader::updateTheme()
{
    m_look.updateTheme();
    viewport()->update();
}

void ScanTableHeader::retranslate()
{
    if (count() > 0)
        headerDataChanged(Qt::Horizontal, 0, count() - 1);
    refit();
}

void ScanTableHeader::updateFont()
{
    refit();
    viewport()->update();
}

QString ScanTableHeader::textOf(int logicalIndex) const
{
    return model() ? model()->headerData(logicalIndex, Qt::Horizontal).toString() : QString();
}

QSize ScanTableHeader::sizeHint() const
{
    return {length(), Height}; // the base class measures all texts to find that height
}

QSize ScanTableHeader::sectionSizeFromContents(int logicalIndex) const
{
    return {HeaderLook::textWidth(textOf(logicalIndex))
                + HeaderSection::roomBesideText(logicalIndex, sorts(logicalIndex)),
            Height};
}

HeaderLook::Mark ScanTableHeader::markOf(int logicalIndex) const
{
    if (!sorts(logicalIndex))
        return HeaderLook::NoMark;
    if (logicalIndex != m_sortSection)
        return HeaderLook::Unsorted;
    return m_descending ? HeaderLook::Descending : HeaderLook::Ascending;
}

void ScanTableHeader::paintEvent(QPaintEvent *)
{
    // not the base class: behind and beside the sections it paints the style's own header
    QPainter painter(viewport());
    for (int section = 0; section < count(); ++section) {
        if (!isSectionHidden(section))
            paintSection(&painter, sectionAt(section).rect, section);
    }
    HeaderLook::paintHairline(&painter, viewport()->rect(), m_hairlineColor);
    if (hasFocus() && count() > 0)
        paintFocusRing(&painter, partRect(m_focusPart).adjusted(1, 1, -1, -1), m_focusColor);
}

void ScanTableHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    if (!rect.isValid())
        return;
    m_look.paint(painter, HeaderSection(rect, logicalIndex, layoutDirection()),
                 {textOf(logicalIndex), markOf(logicalIndex), logicalIndex == m_hoverSection,
                  m_checkState, m_textColor, m_strongTextColor});
}
