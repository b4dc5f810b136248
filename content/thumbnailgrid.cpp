#include "content/thumbnailgrid.h"

#include "content/viewaccessible.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

#include <limits>

namespace {
constexpr int LinesPerWheelNotch = 1;
constexpr int MostPixels = std::numeric_limits<int>::max() / 2;
} // namespace

ThumbnailGrid::ThumbnailGrid(QWidget *parent)
    : HandView(QApplication::startDragDistance(), parent)
    , m_cardsAhead([this](int row) { prepareCard(row); })
{
    setViewMode(IconMode);
    setMovement(Static); // else icon mode drags items instead of drawing a rubber band
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    ViewAccessible::install();
}

ThumbnailGrid::~ThumbnailGrid() = default;

GridGeometry ThumbnailGrid::geometryNow() const
{
    GridGeometry grid;
    grid.cell = m_cell;
    grid.spacing = qMax(0, spacing());
    grid.rowCount = model() && model()->columnCount(rootIndex()) > 0
        ? model()->rowCount(rootIndex())
        : 0;
    // the scroll bar's room is kept free even while it is hidden, else the columns would jump
    // when it comes
    int width = maximumViewportSize().width();
    if (verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded
        && !style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarOverlap, nullptr,
                                 verticalScrollBar()))
        width -= style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, verticalScrollBar());
    width -= m_reservedWidth;
    grid.columns = GridGeometry::columnsFor(grid.cell, grid.spacing, width);
    if (m_cardsStretched && !grid.isEmpty()) {
        const int left = qMax(0, width - grid.spacing - grid.columns * grid.columnWidth());
        grid.cell.rwidth() += qMin(left / grid.columns, grid.cell.width() / 2);
    }
    if (!grid.isEmpty()) // coordinates are ints: what lies beyond them cannot be shown
        grid.rowCount = int(
            qMin<qint64>(grid.rowCount, qint64(MostPixels / grid.lineHeight()) * grid.columns));
    if (isRightToLeft())
        grid.mirrorWidth = qMax(viewport()->width(), grid.contentSize().width());
    return grid;
}

void ThumbnailGrid::setReservedWidth(int pixels)
{
    m_reservedWidth = qMax(0, pixels);
    scheduleDelayedItemsLayout();
}

void ThumbnailGrid::setCardsStretched(bool stretched)
{
    m_cardsStretched = stretched;
    scheduleDelayedItemsLayout();
}

void ThumbnailGrid::layOutIfDue() const
{
    const_cast<ThumbnailGrid *>(this)->executeDelayedItemsLayout();
}

QModelIndex ThumbnailGrid::indexOf(int row) const
{
    return row >= 0 && model() ? model()->index(row, modelColumn(), rootIndex()) : QModelIndex();
}

QPair<int, int> ThumbnailGrid::visibleRows() const
{
    layOutIfDue();
    const GridGeometry::Run rows = geometryNow().linesIn(contentViewport());
    return {rows.first, rows.last};
}

void ThumbnailGrid::repaintRow(int row)
{
    layOutIfDue();
    const QRect card = geometryNow().cardRect(row).translated(-offset());
    if (card.intersects(viewport()->rect()))
        viewport()->update(card);
}

bool ThumbnailGrid::repaintMatching(int role, qint64 id)
{
    bool any = false;
    const QPair<int, int> rows = visibleRows();
    for (int row = rows.first; row <= rows.second; ++row) {
        const QVariant value = indexOf(row).data(role);
        if (value.isValid() && value.toLongLong() == id) {
            repaintRow(row);
            any = true;
        }
    }
    return any;
}

QRect ThumbnailGrid::visualRect(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != model() || index.column() != modelColumn()
        || index.parent() != rootIndex())
        return {};
    layOutIfDue();
    const QRect card = geometryNow().cardRect(index.row());
    return card.isValid() ? card.translated(-offset()) : QRect();
}

QModelIndex ThumbnailGrid::indexAt(const QPoint &point) const
{
    layOutIfDue();
    return indexOf(geometryNow().rowAt(point + offset()));
}

int ThumbnailGrid::horizontalOffset() const
{
    const QScrollBar *bar = horizontalScrollBar();
    return isRightToLeft() ? bar->maximum() - bar->value() : bar->value();
}

int ThumbnailGrid::verticalOffset() const
{
    return verticalScrollBar()->value();
}

bool ThumbnailGrid::isIndexHidden(const QModelIndex &) const
{
    return false;
}

void ThumbnailGrid::setModel(QAbstractItemModel *newModel)
{
    if (model())
        disconnect(model(), &QAbstractItemModel::rowsRemoved, this, nullptr);
    HandView::setModel(newModel);
    if (newModel)
        connect(newModel, &QAbstractItemModel::rowsRemoved, this,
                [this] { scheduleDelayedItemsLayout(); });
}

void ThumbnailGrid::doItemsLayout()
{
    m_cardsAhead.forget();
    m_cell = itemDelegate() && model() && model()->rowCount(rootIndex()) > 0
        ? itemDelegate()->sizeHint(viewOptions(), indexOf(0))
        : QSize();
    QAbstractItemView::doItemsLayout(); // the list view's own would place every single item
    if (m_pointerInside)
        setHover(m_pointer);
}

void ThumbnailGrid::updateGeometries()
{
    const GridGeometry grid = geometryNow();
    const QSize content = grid.contentSize();
    resizeContents(content.width(), content.height());
    {
        const QScopedValueRollback<bool> guard(m_layingOut, true);
        QScrollBar *across = horizontalScrollBar();
        across->setSingleStep(qMax(1, grid.columnWidth() / 3));
        across->setPageStep(viewport()->width());
        across->setRange(0, qMax(0, content.width() - viewport()->width()));
        QScrollBar *down = verticalScrollBar();
        const int notch = qMax(1, QApplication::wheelScrollLines());
        down->setSingleStep(qMax(1, LinesPerWheelNotch * grid.lineHeight() / notch));
        down->setPageStep(viewport()->height());
        down->setRange(0, qMax(0, content.height() - viewport()->height()));
        QAbstractItemView::updateGeometries();
        if (m_columns != grid.columns && !grid.isEmpty()) {
            m_columns = grid.columns;
            down->setValue(grid.lineOf(qMin(m_topRow, grid.lastRow())) * grid.lineHeight()
                           + m_topOverlap);
            return; // a narrower width leads back to the same row
        }
    }
    rememberTop();
}

void ThumbnailGrid::rememberTop()
{
    const GridGeometry grid = geometryNow();
    if (grid.isEmpty())
        return;
    const int line = verticalOffset() / grid.lineHeight();
    m_topRow = line * grid.columns;
    m_topOverlap = verticalOffset() % grid.lineHeight();
}

void ThumbnailGrid::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(isRightToLeft() ? -dx : dx, dy);
    if (!m_layingOut)
        rememberTop();
    if (m_pointerInside)
        setHover(m_pointer);
    if (band().isActive())
        viewport()->update();
    scrollBand();
}

void ThumbnailGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const QRect card = visualRect(index);
    if (!card.isValid())
        return;
    const int room = spacing();
    const int toTop = card.top() - room;
    const int toBottom = card.bottom() + 1 + room - viewport()->height();
    int by = 0;
    switch (hint) {
    case EnsureVisible:
        if (toTop < 0 || toBottom > toTop)
            by = toTop;
        else if (toBottom > 0)
            by = toBottom;
        break;
    case PositionAtTop:
        by = toTop;
        break;
    case PositionAtBottom:
        by = toBottom;
        break;
    case PositionAtCenter:
        by = (toTop + toBottom) / 2;
        break;
    }
    verticalScrollBar()->setValue(verticalScrollBar()->value() + by);

    const int left = card.left() - room;
    const int right = card.right() + 1 + room - viewport()->width();
    if (left < 0 || right > 0) {
        const int across = left < 0 || right > left ? left : right;
        QScrollBar *bar = horizontalScrollBar();
        bar->setValue(bar->value() + (isRightToLeft() ? -across : across));
    }
    viewport()->update(visualRect(index));
}

void ThumbnailGrid::resizeEvent(QResizeEvent *event)
{
    QAbstractItemView::resizeEvent(event); // the list view's own waits before it lays out
}

// --- selection and cursor -------------------------------------------------------------------

GridNavigation::Step ThumbnailGrid::stepOf(CursorAction action)
{
    switch (action) {
    case MoveLeft:
        return GridNavigation::Step::Left;
    case MoveRight:
        return GridNavigation::Step::Right;
    case MoveUp:
    case MovePrevious:
        return GridNavigation::Step::Up;
    case MoveDown:
    case MoveNext:
        return GridNavigation::Step::Down;
    case MovePageUp:
        return GridNavigation::Step::PageUp;
    case MovePageDown:
        return GridNavigation::Step::PageDown;
    case MoveHome:
        return GridNavigation::Step::Home;
    case MoveEnd:
        break;
    }
    return GridNavigation::Step::End;
}

QModelIndex ThumbnailGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    layOutIfDue();
    const GridGeometry grid = geometryNow();
    if (grid.isEmpty())
        return currentIndex();
    const QModelIndex current = currentIndex();
    const GridNavigation::Step step = stepOf(action);
    int row = 0;
    int onward = 1;
    if (current.isValid()) {
        const int linesPerPage = qMax(
            1, (viewport()->height() - grid.cell.height()) / grid.lineHeight());
        row = GridNavigation::target(grid, current.row(), step, linesPerPage);
        onward = GridNavigation::direction(grid, step);
        if (row == current.row())
            return current;
    }
    return enterable(row, onward, grid.rowCount);
}

void ThumbnailGrid::setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command)
{
    if (!selectionModel())
        return;
    layOutIfDue();
    const GridGeometry grid = geometryNow();
    const QPoint from = rect.topLeft() + offset();
    const QPoint to = rect.bottomRight() + offset();
    QItemSelection selection;
    if (state() == DragSelectingState && rect.size() != QSize(1, 1)) {
        const QRect area(QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
                         QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
        selection = itemsIn(area.translated(-offset()));
    } else {
        const int anchor = grid.rowAt(from);
        const int end = grid.rowAt(to);
        if (anchor >= 0 && end >= 0) // where the anchor's record has died, its place still counts
            addRows(&selection, qMin(anchor, end), qMax(anchor, end));
        if (anchor >= 0)
            noteAnchor(indexOf(anchor));
    }
    selectionModel()->select(selection, command);
}

QItemSelection ThumbnailGrid::itemsIn(const QRect &band) const
{
    layOutIfDue();
    QItemSelection items;
    const QVector<GridGeometry::Run> runs = geometryNow().runsIn(band.translated(offset()));
    for (const GridGeometry::Run &run : runs)
        addRows(&items, run.first, run.last);
    return items;
}

QRegion ThumbnailGrid::visualRegionForSelection(const QItemSelection &selection) const
{
    const QPair<int, int> visible = visibleRows();
    const GridGeometry grid = geometryNow();
    const QPoint toViewport = -offset();
    QRegion region;
    for (const QItemSelectionRange &range : selection) {
        if (!range.isValid() || range.parent() != rootIndex() || range.left() > modelColumn()
            || range.right() < modelColumn())
            continue;
        int row = qMax(range.top(), visible.first);
        const int last = qMin(range.bottom(), visible.second);
        while (row <= last) {
            const int lineEnd = grid.lineOf(row) * grid.columns + grid.columns - 1;
            region += grid.lineRect({row, qMin(lineEnd, last)}).translated(toViewport);
            row = lineEnd + 1;
        }
    }
    return region;
}

void ThumbnailGrid::selectAll()
{
    if (!selectionModel() || !model()
        || (selectionMode() != ExtendedSelection && selectionMode() != MultiSelection))
        return;
    QItemSelection selection;
    const int rows = model()->rowCount(rootIndex());
    addRows(&selection, 0, rows - 1);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

bool ThumbnailGrid::severalSelected() const
{
    int count = 0;
    const QItemSelection selection = selectionModel() ? selectionModel()->selection()
                                                      : QItemSelection();
    for (const QItemSelectionRange &range : selection) {
        count += range.height();
        if (count > 1)
            return true;
    }
    return false;
}

void ThumbnailGrid::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                                const QVector<int> &roles)
{
    if (roles.isEmpty() || roles.contains(Qt::CheckStateRole))
        ViewAccessible::checksChanged(this, topLeft.row(), bottomRight.row());
    if (!isVisible())
        return;
    const QPair<int, int> visible = visibleRows();
    if (!topLeft.isValid() || !bottomRight.isValid()) {
        viewport()->update();
        return;
    }
    if (topLeft.parent() != rootIndex())
        return;
    const int last = qMin(bottomRight.row(), visible.second);
    for (int row = qMax(topLeft.row(), visible.first); row <= last; ++row)
        repaintRow(row);
}
