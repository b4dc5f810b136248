#include "content/scantableview.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>

namespace {

// Less than the platform's: a row is low, and a band is wanted early.
constexpr int DragDistance = 5;

// The outline of the current row, on the veil that marks a selected one.
constexpr int OutlineInsetX = 4;
constexpr int OutlineInsetY = 2;
constexpr qreal OutlineRadius = 8;

} // namespace

ScanTableView::ScanTableView(QWidget *parent)
    : QTableView(parent)
    , m_rubberBand(new QRubberBand(QRubberBand::Rectangle, viewport()))
{
    setShowGrid(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    viewport()->setAttribute(Qt::WA_Hover);
    verticalHeader()->hide();
    setVerticalScrollMode(ScrollPerPixel);
    setEditTriggers(NoEditTriggers);
    m_rubberBand->hide();
}

ScanTableView::~ScanTableView() = default;

void ScanTableView::setRowHeight(int pixels)
{
    verticalHeader()->setMinimumSectionSize(pixels);
    verticalHeader()->setDefaultSectionSize(pixels);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

QPair<int, int> ScanTableView::visibleRows() const
{
    const int rows = model() ? model()->rowCount() : 0;
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
    viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

void ScanTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTableView::currentChanged(current, previous);
    for (const QModelIndex &index : {current, previous}) {
        if (index.isValid())
            repaintRow(index.row());
    }
}

void ScanTableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (currentIndex().isValid())
        paintCurrentRow();
}

void ScanTableView::paintCurrentRow()
{
    const int row = currentIndex().row();
    const QRectF outline(OutlineInsetX, rowViewportPosition(row) + OutlineInsetY,
                         viewport()->width() - 2 * OutlineInsetX,
                         rowHeight(row) - 2 * OutlineInsetY);
    if (!outline.intersects(viewport()->rect()))
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    QColor color(65, 132, 248);
    color.setAlphaF(hasFocus() ? 0.9 : 0.45);
    painter.setPen(color);
    painter.drawRoundedRect(outline.adjusted(0.5, 0.5, -0.5, -0.5), OutlineRadius, OutlineRadius);
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

void ScanTableView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressPoint = event->pos();
        m_dragging = false;
        m_rubberBand->setGeometry(QRect(m_pressPoint, QSize()));
    }
    QTableView::mousePressEvent(event);
}

void ScanTableView::mouseMoveEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    setHoverCell(index.row(), index.column());
    if (event->buttons() & Qt::LeftButton) {
        if (!m_dragging && (event->pos() - m_pressPoint).manhattanLength() >= DragDistance) {
            m_dragging = true;
            m_rubberBand->show();
        }
        if (m_dragging)
            m_rubberBand->setGeometry(QRect(m_pressPoint, event->pos()).normalized());
    }
    QTableView::mouseMoveEvent(event);
}

void ScanTableView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_dragging) {
        m_rubberBand->hide();
        m_dragging = false;
        const QRect band = QRect(m_pressPoint, event->pos()).normalized();
        if (!band.isEmpty() && model())
            selectRowsIn(band);
    }
    QTableView::mouseReleaseEvent(event);
}

void ScanTableView::selectRowsIn(const QRect &band)
{
    // The band has to touch the first column. Rows are of one height and follow each other, so the
    // touched ones are a range: no walk over a million.
    const int rows = model()->rowCount();
    const int left = columnViewportPosition(0);
    if (rows == 0 || band.right() < left || band.left() >= left + columnWidth(0))
        return;
    const int above = rowAt(band.top());
    const int below = rowAt(band.bottom());
    int first = above >= 0 ? above : (band.top() < rowViewportPosition(0) ? 0 : rows);
    int last = below >= 0 ? below : (band.bottom() < rowViewportPosition(0) ? -1 : rows - 1);
    // A range with a dead record at its end would select nothing.
    while (first <= last && !model()->index(first, 0).isValid())
        ++first;
    while (first <= last && !model()->index(last, 0).isValid())
        --last;
    if (first > last)
        return;
    const QItemSelection selection(model()->index(first, 0),
                                   model()->index(last, model()->columnCount() - 1));
    selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void ScanTableView::leaveEvent(QEvent *event)
{
    setHoverCell(-1, -1);
    QTableView::leaveEvent(event);
}
