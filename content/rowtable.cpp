#include "content/rowtable.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include <limits>

namespace {

constexpr int MostPixels = std::numeric_limits<int>::max() / 2; // coordinates are ints

} // namespace

/// Tells the stock table how high all rows are together, by sections that are as high as a section
/// may be: scroll bar and offset then come out right.
class HiddenRowHeader : public QHeaderView
{
public:
    explicit HiddenRowHeader(QWidget *parent)
        : QHeaderView(Qt::Vertical, parent)
    {
        hide();
        setMinimumSectionSize(0);
        setDefaultSectionSize(HighestSection);
        m_sections.setColumnCount(1);
        QHeaderView::setModel(&m_sections);
    }

    // The table's own model and what is selected in it are none of this header's business.
    void setModel(QAbstractItemModel *) override { }
    void setSelectionModel(QItemSelectionModel *selection) override
    {
        if (selection && selection->model() == &m_sections)
            QHeaderView::setSelectionModel(selection);
    }

    void setLength(int pixels)
    {
        if (pixels == length())
            return;
        const QSignalBlocker quiet(this); // the table is laying itself out
        m_sections.setRowCount(pixels / HighestSection + 1);
        for (int i = 0; i < count(); ++i)
            resizeSection(i, i < count() - 1 ? HighestSection : pixels % HighestSection);
    }

private:
    static constexpr int HighestSection = 1'000'000;

    QStandardItemModel m_sections;
};

RowTable::RowTable(QWidget *parent)
    : QTableView(parent)
    , m_header(nullptr)
    , m_rowHeight(verticalHeader()->defaultSectionSize())
{
    m_header = new HiddenRowHeader(this);
    setVerticalHeader(m_header);
    setShowGrid(false);
    setVerticalScrollMode(ScrollPerPixel);
}

// Places -----------------------------------------------------------------------------------------

int RowTable::rowCount() const
{
    return model() ? qMin(model()->rowCount(rootIndex()), MostPixels / m_rowHeight) : 0;
}

void RowTable::setRowHeight(int pixels)
{
    m_rowHeight = qMax(1, pixels);
    scheduleDelayedItemsLayout();
}

int RowTable::rowViewportPosition(int row) const
{
    return row >= 0 && row < rowCount() ? row * m_rowHeight - verticalOffset() : -1;
}

int RowTable::rowAt(int y) const
{
    const int inside = y + verticalOffset();
    return inside >= 0 && inside / m_rowHeight < rowCount() ? inside / m_rowHeight : -1;
}

QModelIndex RowTable::indexAt(const QPoint &pos) const
{
    layOutIfDue();
    const int row = rowAt(pos.y());
    const int column = columnAt(pos.x());
    return row >= 0 && column >= 0 ? model()->index(row, column, rootIndex()) : QModelIndex();
}

QRect RowTable::visualRect(const QModelIndex &index) const
{
    if (!isShown(index))
        return {};
    layOutIfDue();
    return {columnViewportPosition(index.column()), rowViewportPosition(index.row()),
            columnWidth(index.column()), m_rowHeight};
}

bool RowTable::isShown(const QModelIndex &index) const
{
    return index.isValid() && index.model() == model() && index.parent() == rootIndex()
        && index.row() < rowCount() && !isIndexHidden(index);
}

bool RowTable::isIndexHidden(const QModelIndex &index) const
{
    return isColumnHidden(index.column());
}

QRect RowTable::rowsRect(int first, int last) const
{
    first = qMax(first, 0);
    last = qMin(last, rowCount() - 1);
    if (first > last)
        return {};
    const QRect rows(0, rowViewportPosition(first), viewport()->width(),
                     (last - first + 1) * m_rowHeight);
    return rows.intersected(viewport()->rect());
}

QRegion RowTable::visualRegionForSelection(const QItemSelection &selection) const
{
    QRegion region; // a selected row looks different from edge to edge
    for (const QItemSelectionRange &range : selection) {
        if (range.isValid() && range.parent() == rootIndex())
            region += rowsRect(range.top(), range.bottom());
    }
    return region;
}

void RowTable::layOutIfDue() const
{
    const_cast<RowTable *>(this)->executeDelayedItemsLayout();
}

// Layout -----------------------------------------------------------------------------------------

void RowTable::setModel(QAbstractItemModel *newModel)
{
    if (model())
        disconnect(model(), nullptr, m_header, nullptr);
    QTableView::setModel(newModel);
    if (!newModel)
        return;
    // the header of a stock table hears of rows first, and tells the table
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(newModel, signal, m_header, [this] { scheduleDelayedItemsLayout(); });
    scheduleDelayedItemsLayout();
}

void RowTable::reset()
{
    QTableView::reset();
    scheduleDelayedItemsLayout();
}

void RowTable::updateGeometries()
{
    m_header->setLength(rowCount() * m_rowHeight);
    QTableView::updateGeometries();
    const int rowsInView = qBound(1, viewport()->height() / m_rowHeight, qMax(1, rowCount()));
    verticalScrollBar()->setSingleStep(qMax(viewport()->height() / (rowsInView + 1), 2));
}

int RowTable::sizeHintForColumn(int column) const
{
    if (!model() || !itemDelegate())
        return -1;
    const int most = horizontalHeader()->resizeContentsPrecision();
    const int last = most < 0 ? rowCount() : qMin(rowCount(), qMax(0, rowAt(0)) + qMax(1, most));
    const int first = most < 0 ? 0 : qMax(0, last - qMax(1, most));
    int width = 0;
    for (int row = first; row < last; ++row) {
        const QModelIndex index = model()->index(row, column, rootIndex());
        if (index.isValid())
            width = qMax(width, itemDelegate(index)->sizeHint(viewOptions(), index).width());
    }
    return width;
}

void RowTable::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    if (!isShown(index))
        return;
    layOutIfDue();
    scrollToColumn(index.column(), hint);
    scrollToRow(index.row(), hint);
    update(index);
}

void RowTable::scrollToColumn(int column, ScrollHint hint)
{
    const QHeaderView &header = *horizontalHeader();
    const int room = viewport()->width();
    const int width = header.sectionSize(column);
    const int left = header.sectionPosition(column);
    const bool beforeView = left < header.offset();
    const bool behindView = left - header.offset() + width > room;
    QScrollBar *bar = horizontalScrollBar();
    if (horizontalScrollMode() == ScrollPerPixel) {
        if (hint == PositionAtCenter)
            bar->setValue(left - (room - width) / 2);
        else if (beforeView || width > room)
            bar->setValue(left);
        else if (behindView)
            bar->setValue(left - room + width);
        return;
    }
    if (hint != PositionAtCenter && !beforeView && !behindView)
        return;
    int first = header.visualIndex(column); // of the columns in view then
    if (hint == PositionAtCenter || behindView) {
        const int wanted = hint == PositionAtCenter ? room / 2 : room;
        for (int used = width; first > 0; --first) {
            used += columnWidth(header.logicalIndex(first - 1));
            if (used > wanted)
                break;
        }
    }
    int value = 0;
    for (int visual = 0; visual < first; ++visual)
        value += header.isSectionHidden(header.logicalIndex(visual)) ? 0 : 1;
    bar->setValue(value);
}

void RowTable::scrollToRow(int row, ScrollHint hint)
{
    const int room = viewport()->height();
    const int top = row * m_rowHeight;
    QScrollBar *bar = verticalScrollBar();
    if (hint == EnsureVisible) {
        if (top < verticalOffset() || m_rowHeight > room)
            hint = PositionAtTop;
        else if (top - verticalOffset() + m_rowHeight > room)
            hint = PositionAtBottom;
    }
    if (hint == PositionAtTop)
        bar->setValue(top);
    else if (hint == PositionAtBottom)
        bar->setValue(top - room + m_rowHeight);
    else if (hint == PositionAtCenter)
        bar->setValue(top - (room - m_rowHeight) / 2);
}

// Painting ---------------------------------------------------------------------------------------

void RowTable::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                           const QVector<int> &roles)
{
    QTableView::dataChanged(topLeft, bottomRight, roles);
    if (isVisible())
        viewport()->update(rowsRect(topLeft.row(), bottomRight.row()));
}

void RowTable::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    const QHeaderView &header = *horizontalHeader();
    if (rowCount() == 0 || header.count() == 0 || !itemDelegate())
        return;
    QStyleOptionViewItem option = viewOptions();
    const QPoint offset = dirtyRegionOffset();
    const QRegion region = event->region().translated(offset);
    const QRect bounds = region.boundingRect();
    const int first = qMax(0, rowAt(bounds.top()));
    const int below = rowAt(bounds.bottom());
    const int last = below < 0 ? rowCount() - 1 : below;
    for (int row = first; row <= last; ++row) {
        for (int visual = 0; visual < header.count(); ++visual) {
            const int column = header.logicalIndex(visual);
            if (header.isSectionHidden(column))
                continue;
            const QRect cell(columnViewportPosition(column), rowViewportPosition(row),
                             columnWidth(column), m_rowHeight);
            if (!region.intersects(cell))
                continue;
            const QModelIndex index = model()->index(row, column, rootIndex());
            if (!index.isValid())
                continue;
            option.rect = cell.translated(offset);
            paintCell(&painter, option, index);
        }
    }
}

void RowTable::paintCell(QPainter *painter, QStyleOptionViewItem option, const QModelIndex &index)
{
    if (selectionModel() && selectionModel()->isSelected(index))
        option.state |= QStyle::State_Selected;
    if (isHovered(index))
        option.state |= QStyle::State_MouseOver;
    if (option.state & QStyle::State_Enabled) {
        const bool enabled = model()->flags(index) & Qt::ItemIsEnabled;
        option.state.setFlag(QStyle::State_Enabled, enabled);
        option.palette.setCurrentColorGroup(enabled ? QPalette::Normal : QPalette::Disabled);
    }
    if (index == currentIndex() && (hasFocus() || viewport()->hasFocus()))
        option.state |= QStyle::State_HasFocus;
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, painter, this);
    itemDelegate(index)->paint(painter, option, index);
}
