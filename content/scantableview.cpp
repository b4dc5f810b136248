#include "content/scantableview.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QRubberBand>

namespace {

constexpr int DragDistance =
    5; // less than the platform's: a row is low, and a band is wanted early

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

void ScanTableView::setHoverCell(int row, int column)
{
    if (row == m_hoverRow && column == m_hoverColumn)
        return;
    m_hoverRow = row;
    m_hoverColumn = column;
    viewport()->update();
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
    QItemSelection selection;
    const int lastColumn = model()->columnCount() - 1;
    for (int row = 0, rows = model()->rowCount(); row < rows; ++row) {
        const QModelIndex first = model()->index(row, 0);
        if (visualRect(first).intersects(band))
            selection.select(first, model()->index(row, lastColumn));
    }
    if (!selection.isEmpty())
        selectionModel()->select(selection,
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void ScanTableView::leaveEvent(QEvent *event)
{
    setHoverCell(-1, -1);
    QTableView::leaveEvent(event);
}
