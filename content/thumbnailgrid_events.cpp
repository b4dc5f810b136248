// Painting and events of ThumbnailGrid.
#include "content/thumbnailgrid.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>

namespace {
constexpr int AutoScrollMs = 16;
constexpr int FocusInset = 1;
constexpr qreal FocusWidth = 2;
constexpr qreal FocusRadius = 4;
} // namespace

void ThumbnailGrid::paintEvent(QPaintEvent *event)
{
    layOutIfDue();
    QPainter painter(viewport());
    paintCards(&painter, event->region());
    if (m_band.isActive())
        paintBand(&painter);
}

void ThumbnailGrid::paintCards(QPainter *painter, const QRegion &region)
{
    if (!model() || !selectionModel() || !itemDelegate())
        return;
    QStyleOptionViewItem option = viewOptions();
    const QStyle::State state = option.state;
    const GridGeometry grid = geometryNow();
    const QPoint toViewport = -offset();
    const QModelIndex current = currentIndex();
    const bool focused = hasFocus() || viewport()->hasFocus();
    const QVector<GridGeometry::Run> runs = grid.runsIn(region.boundingRect().translated(offset()));
    for (const GridGeometry::Run &run : runs) {
        for (int row = run.first; row <= run.last; ++row) {
            const QModelIndex index = indexOf(row);
            option.rect = grid.cardRect(row).translated(toViewport);
            if (!index.isValid() || !region.intersects(option.rect))
                continue;
            const bool enabled = isEnabled(index);
            option.state = state;
            option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
            option.state.setFlag(QStyle::State_MouseOver, index == m_hover);
            option.state.setFlag(QStyle::State_HasFocus, focused && index == current);
            if (!enabled)
                option.state &= ~QStyle::State_Enabled;
            if (state & QStyle::State_Enabled)
                option.palette.setCurrentColorGroup(enabled ? QPalette::Normal
                                                            : QPalette::Disabled);
            itemDelegate(index)->paint(painter, option, index);
            if (focused && m_showFocus && index == current)
                paintFocus(painter, option);
        }
    }
}

void ThumbnailGrid::paintFocus(QPainter *painter, const QStyleOptionViewItem &option)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option.palette.color(QPalette::Highlight), FocusWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(
        QRectF(option.rect).adjusted(FocusInset, FocusInset, -FocusInset, -FocusInset), FocusRadius,
        FocusRadius);
    painter->restore();
}

void ThumbnailGrid::paintBand(QPainter *painter)
{
    QStyleOptionRubberBand option;
    option.initFrom(viewport()); // a style may draw an opaque band on a window
    option.shape = QRubberBand::Rectangle;
    option.opaque = false;
    option.rect = m_band.rect();
    painter->save();
    style()->drawControl(QStyle::CE_RubberBand, &option, painter, viewport());
    painter->restore();
}

bool ThumbnailGrid::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        setHover(static_cast<QHoverEvent *>(event)->pos());
        break;
    case QEvent::HoverLeave:
    case QEvent::Leave:
        clearHover();
        break;
    default:
        break;
    }
    return QListView::viewportEvent(event);
}

void ThumbnailGrid::setHover(const QPoint &pos)
{
    m_pointer = pos;
    m_pointerInside = viewport()->rect().contains(pos);
    changeHover(m_pointerInside ? indexAt(pos) : QModelIndex());
}

void ThumbnailGrid::clearHover()
{
    m_pointerInside = false;
    changeHover({});
}

void ThumbnailGrid::changeHover(const QModelIndex &index)
{
    if (m_hover == index)
        return;
    const QPersistentModelIndex left = m_hover;
    m_hover = index;
    if (left.isValid()) {
        viewport()->update(visualRect(left));
        QEvent leave(QEvent::Leave);
        edit(left, NoEditTriggers, &leave);
    }
    if (m_hover.isValid())
        viewport()->update(visualRect(m_hover));
}

void ThumbnailGrid::mousePressEvent(QMouseEvent *event)
{
    m_showFocus = false;
    if (m_band.isActive())
        finishBand();
    if (event->button() == Qt::LeftButton)
        m_band.arm(event->pos(), offset());
    else
        m_band.disarm();
    QListView::mousePressEvent(event);
}

void ThumbnailGrid::mouseMoveEvent(QMouseEvent *event)
{
    setHover(event->pos());
    if (!(event->buttons() & Qt::LeftButton)) {
        if (m_band.isActive())
            finishBand(); // the release went elsewhere
        m_band.disarm();
        QListView::mouseMoveEvent(event);
        return;
    }
    if (!m_band.isArmed())
        return;
    stretchBand(event->pos(), event->modifiers());
    if (!m_band.isActive())
        edit(indexAt(event->pos()), NoEditTriggers, event);
}

void ThumbnailGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_band.isActive()) {
        finishBand();
        return;
    }
    if (event->button() == Qt::LeftButton)
        m_band.disarm();
    QListView::mouseReleaseEvent(event);
}

void ThumbnailGrid::startDrag(Qt::DropActions)
{
    // the host's records do not travel
}

void ThumbnailGrid::stretchBand(const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    const bool wasActive = m_band.isActive();
    const QRect before = m_band.rect();
    if (!m_band.moveTo(pos, offset(), viewport()->rect()))
        return;
    if (!wasActive) {
        m_beforeBand = selectionModel() ? selectionModel()->selection() : QItemSelection();
        // a press with Ctrl has toggled its item; the band gives all others the same state
        const QModelIndex pressed = indexAt(m_band.span().topLeft());
        m_ctrlBandCommand = !pressed.isValid() || !selectionModel() ? QItemSelectionModel::Toggle
            : selectionModel()->isSelected(pressed)                 ? QItemSelectionModel::Select
                                                                    : QItemSelectionModel::Deselect;
    }
    const int margin = 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) + 1;
    viewport()->update((wasActive ? before | m_band.rect() : m_band.rect())
                           .adjusted(-margin, -margin, margin, margin));
    selectInBand(modifiers);
    if (m_band.autoScrollStep(viewport()->rect(), autoScrollMargin()) == 0)
        m_autoScroll.stop();
    else if (!m_autoScroll.isActive())
        m_autoScroll.start(AutoScrollMs, this);
}

void ThumbnailGrid::selectInBand(Qt::KeyboardModifiers modifiers)
{
    if (!selectionModel() || selectionMode() == NoSelection || selectionMode() == SingleSelection)
        return;
    QItemSelectionModel::SelectionFlags command = QItemSelectionModel::ClearAndSelect;
    if (modifiers & Qt::ControlModifier)
        command = m_ctrlBandCommand | QItemSelectionModel::Current;
    else if (modifiers & Qt::ShiftModifier)
        command = QItemSelectionModel::SelectCurrent;
    setState(DragSelectingState);
    setSelection(m_band.span(), command);
    setCurrentInPlace(indexAt(m_band.span().bottomRight()));
}

void ThumbnailGrid::setCurrentInPlace(const QModelIndex &index)
{
    if (!isEnabled(index) || index == currentIndex())
        return;
    const bool autoScroll = hasAutoScroll();
    setAutoScroll(false); // the card under the pointer must not move away from it
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    setAutoScroll(autoScroll);
}

void ThumbnailGrid::autoScrollBand()
{
    const int step = m_band.autoScrollStep(viewport()->rect(), autoScrollMargin());
    const int before = verticalScrollBar()->value();
    verticalScrollBar()->setValue(before + step);
    if (step == 0 || verticalScrollBar()->value() == before)
        m_autoScroll.stop();
    else
        stretchBand(m_pointer, QApplication::keyboardModifiers());
}

void ThumbnailGrid::finishBand()
{
    m_autoScroll.stop();
    m_band.disarm();
    m_beforeBand.clear();
    setState(NoState);
    viewport()->update();
    if (severalSelected())
        emit signalMutilSelectEvent();
}

void ThumbnailGrid::cancelBand()
{
    m_autoScroll.stop();
    m_band.disarm();
    setState(NoState);
    viewport()->update();
    if (selectionModel())
        selectionModel()->select(m_beforeBand, QItemSelectionModel::ClearAndSelect);
    m_beforeBand.clear();
}

void ThumbnailGrid::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_autoScroll.timerId())
        autoScrollBand();
    else
        QListView::timerEvent(event);
}

void ThumbnailGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_band.isActive()) {
        cancelBand();
        return;
    }
    if (event->key() == Qt::Key_Escape && selectionModel() && selectionModel()->hasSelection()) {
        selectionModel()->clearSelection();
        return;
    }
    m_showFocus = true;
    m_selectionTouched = false;
    QListView::keyPressEvent(event);
    repaintRow(currentIndex().row());
    if (m_selectionTouched && severalSelected())
        emit signalMutilSelectEvent();
}

void ThumbnailGrid::focusInEvent(QFocusEvent *event)
{
    m_showFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    QListView::focusInEvent(event);
}
