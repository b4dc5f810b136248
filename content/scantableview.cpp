#include "content/scantableview.h"

#include "content/bandframe.h"
#include "content/gridnavigation.h"
#include "content/viewaccessible.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

namespace {

// Less than the platform's: a row is low, and a band is wanted early.
constexpr int DragDistance = 5;

// The outline of the current row, on the veil that marks a selected one.
constexpr int OutlineInsetX = 4;
constexpr int OutlineInsetY = 2;
constexpr qreal OutlineRadius = 8;

} // namespace

ScanTableView::ScanTableView(QWidget *parent)
    : HandView(DragDistance, parent)
    , m_rubberBand(new BandFrame(viewport()))
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    viewport()->setAttribute(Qt::WA_Hover);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab leads on to the pane
    ViewAccessible::install();
    m_rubberBand->hide();
}

ScanTableView::~ScanTableView() = default;

QPair<int, int> ScanTableView::visibleRows() const
{
    const int rows = rowCount();
    const int first = rowAt(0);
    if (rows == 0 || first < 0)
        return {0, -1};
    const int last = rowAt(viewport()->height() - 1);
    return {first, last < 0 ? rows - 1 : last};
}

void ScanTableView::repaintMatching(int role, qint64 id)
{
    const auto rows = visibleRows();
    for (int row = rows.first; row <= rows.second; ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (index.isValid() && index.data(role).toLongLong() == id)
            repaintRow(row);
    }
}

void ScanTableView::repaintRow(int row)
{
    if (isVisible()) // the place of a row is not worth computing else
        viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight());
}

void ScanTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    HandView::currentChanged(current, previous);
    for (const QModelIndex &index : {current, previous}) {
        if (index.isValid())
            repaintRow(index.row());
    }
}

void ScanTableView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                const QVector<int> &roles)
{
    HandView::dataChanged(topLeft, bottomRight, roles);
    if (roles.isEmpty() || roles.contains(Qt::CheckStateRole))
        ViewAccessible::checksChanged(this, topLeft.row(), bottomRight.row());
}

void ScanTableView::paintEvent(QPaintEvent *event)
{
    paintPage(event->region());
    HandView::paintEvent(event);
    if (currentIndex().isValid())
        paintCurrentRow();
}

void ScanTableView::paintCurrentRow()
{
    const int row = currentIndex().row();
    const QRectF outline(OutlineInsetX, rowViewportPosition(row) + OutlineInsetY,
                         viewport()->width() - 2 * OutlineInsetX, rowHeight() - 2 * OutlineInsetY);
    if (!outline.intersects(viewport()->rect()))
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasFocus() ? m_focusedRowColor : m_currentRowColor);
    painter.drawRoundedRect(outline.adjusted(0.5, 0.5, -0.5, -0.5), OutlineRadius, OutlineRadius);
}

bool ScanTableView::isHovered(const QModelIndex &index) const
{
    return index.row() == m_hoverRow && index.column() == m_hoverColumn;
}

void ScanTableView::setHoverCell(int row, int column)
{
    if (row == m_hoverRow && column == m_hoverColumn)
        return;
    // Only the rows concerned look different.
    const int before = m_hoverRow;
    m_hoverRow = row;
    m_hoverColumn = column;
    for (int changed : {before, row}) {
        if (changed >= 0)
            repaintRow(changed);
    }
}

// Rows -------------------------------------------------------------------------------------------

QModelIndex ScanTableView::indexOf(int row) const
{
    return row >= 0 && model() ? model()->index(row, 0) : QModelIndex();
}

QItemSelection ScanTableView::rowsBetween(int top, int bottom) const
{
    // Rows are of one height and follow each other: no walk over a million.
    const int rows = rowCount();
    if (rows == 0 || bottom < rowViewportPosition(0))
        return {};
    const int above = rowAt(top);
    const int below = rowAt(bottom);
    QItemSelection found;
    const int first = above >= 0 ? above : (top < rowViewportPosition(0) ? 0 : rows);
    addRows(&found, first, below >= 0 ? below : rows - 1);
    return found;
}

QModelIndex ScanTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    using GridNavigation::Step;
    const QModelIndex current = currentIndex();
    GridGeometry rows; // a grid of one column
    rows.rowCount = rowCount();
    rows.cell = QSize(1, rowHeight());
    if (rows.isEmpty())
        return current;
    if (!current.isValid())
        return enterable(0, 1, rows.rowCount);
    Step step = Step::Down;
    switch (action) {
    case MoveLeft:
    case MoveRight:
        horizontalScrollBar()->triggerAction(action == MoveRight
                                                 ? QAbstractSlider::SliderSingleStepAdd
                                                 : QAbstractSlider::SliderSingleStepSub);
        return current;
    case MoveUp:
    case MovePrevious:
        step = Step::Up;
        break;
    case MoveDown:
    case MoveNext:
        break;
    case MovePageUp:
        step = Step::PageUp;
        break;
    case MovePageDown:
        step = Step::PageDown;
        break;
    case MoveHome:
        step = Step::Home;
        break;
    case MoveEnd:
        step = Step::End;
        break;
    default:
        return HandView::moveCursor(action, modifiers);
    }
    const int page = qMax(1, viewport()->height() / rows.lineHeight() - 1);
    const int row = GridNavigation::target(rows, current.row(), step, page);
    if (row == current.row())
        return current;
    const QModelIndex found = enterable(row, GridNavigation::direction(rows, step), rows.rowCount);
    return found.row() == current.row() ? current : found; // not the same row's first cell
}

void ScanTableView::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    const int anchor = rowAt(rect.top());
    const int end = rowAt(rect.bottom());
    if (!selectionModel() || anchor < 0 || end < 0)
        return; // where the anchor's record has died, its place still counts
    QItemSelection rows;
    addRows(&rows, qMin(anchor, end), qMax(anchor, end));
    noteAnchor(indexOf(anchor));
    selectionModel()->select(rows, command);
}

void ScanTableView::selectAll()
{
    QItemSelection rows;
    addRows(&rows, 0, rowCount() - 1);
    if (selectionModel())
        selectionModel()->select(rows,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// Mouse ------------------------------------------------------------------------------------------

void ScanTableView::mouseMoveEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    setHoverCell(index.row(), index.column());
    HandView::mouseMoveEvent(event);
}

QItemSelection ScanTableView::itemsIn(const QRect &band) const
{
    return rowsBetween(band.top(), band.bottom());
}

QItemSelectionModel::SelectionFlags ScanTableView::bandCommand(Qt::KeyboardModifiers) const
{
    return QItemSelectionModel::Select;
}

void ScanTableView::showBand()
{
    if (band().isActive()) {
        // of a band that has been scrolled far away only the sides are seen
        constexpr int beyond = 1;
        m_rubberBand->setColors(m_bandColor, m_bandEdgeColor);
        m_rubberBand->setGeometry(band().rect().intersected(
            viewport()->rect().adjusted(-beyond, -beyond, beyond, beyond)));
    }
    m_rubberBand->setVisible(band().isActive());
}

void ScanTableView::bandReleased(const QPoint &pos)
{
    // Here the band ends where the pointer is, even outside, and has to touch the first column.
    const QRect reach = QRect(band().span().topLeft(), pos).normalized();
    const int left = columnViewportPosition(0);
    if (!selectionModel() || reach.isEmpty() || reach.right() < left
        || reach.left() >= left + columnWidth(0))
        return;
    const QItemSelection rows = rowsBetween(reach.top(), reach.bottom());
    QItemSelection missing = rows;
    missing.merge(selectionModel()->selection(), QItemSelectionModel::Deselect);
    if (!missing.isEmpty())
        selectionModel()->select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void ScanTableView::scrollContentsBy(int dx, int dy)
{
    HandView::scrollContentsBy(dx, dy);
    if (dx != 0) // rows are as wide as the viewport and stay where they are
        viewport()->update();
    scrollBand();
}

void ScanTableView::leaveEvent(QEvent *event)
{
    setHoverCell(-1, -1);
    HandView::leaveEvent(event);
}
