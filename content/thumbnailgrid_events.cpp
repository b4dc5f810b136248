// Painting and events of ThumbnailGrid.
#include "content/thumbnailgrid.h"

#include "common/focusring.h"
#include "content/bandframe.h"
#include "delegates/icondelegate.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {
constexpr int FocusReach = 4;
} // namespace

void ThumbnailGrid::paintEvent(QPaintEvent *event)
{
    layOutIfDue();
    paintPage(event->region());
    QPainter painter(viewport());
    paintCards(&painter, event->region());
    if (band().isActive())
        paintBand(&painter, band().rect(), m_bandColor, m_bandEdgeColor);
    const GridGeometry grid = geometryNow();
    m_paintedCell = grid.cell;
    m_cardsAhead.follow(grid.linesIn(contentViewport()), grid.rowCount);
}

void ThumbnailGrid::prepareCard(int row) const
{
    const QModelIndex index = indexOf(row);
    if (const auto *cards = qobject_cast<const IconDelegate *>(itemDelegate()))
        cards->prepareCard(viewOptions(), visualRect(index), viewport()->devicePixelRatioF(),
                           index);
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
        }
    }
    if (focused && m_showFocus && current.isValid())
        paintFocusRing(painter, focusRect(current.row()), m_focusColor);
}

void ThumbnailGrid::preparePicture(qint64 fileId) const
{
    if (const auto *cards = qobject_cast<const IconDelegate *>(itemDelegate()))
        cards->preparePicture(m_paintedCell, viewport()->devicePixelRatioF(), fileId);
}

QRect ThumbnailGrid::focusRect(int row) const
{
    // Outside of the card, whose look may have a frame of the same colour already.
    const int reach = qMin(FocusReach, spacing() / 2);
    return geometryNow().cardRect(row).translated(-offset()).adjusted(-reach, -reach, reach, reach);
}

void ThumbnailGrid::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    HandView::currentChanged(current, previous);
    if (previous.isValid())
        viewport()->update(focusRect(previous.row()));
    showFocus();
}

void ThumbnailGrid::showFocus()
{
    if (currentIndex().isValid())
        viewport()->update(focusRect(currentIndex().row()));
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
    showFocus();
    HandView::mousePressEvent(event);
    // a press with Ctrl has toggled its item; a band from there gives all others the same state
    const QModelIndex pressed = pressedItem();
    m_ctrlBandCommand = !pressed.isValid() || !selectionModel() ? QItemSelectionModel::Toggle
        : selectionModel()->isSelected(pressed)                 ? QItemSelectionModel::Select
                                                                : QItemSelectionModel::Deselect;
}

void ThumbnailGrid::mouseMoveEvent(QMouseEvent *event)
{
    setHover(event->pos());
    HandView::mouseMoveEvent(event);
}

void ThumbnailGrid::startDrag(Qt::DropActions)
{
    // the host's records do not travel
}

QItemSelectionModel::SelectionFlags
ThumbnailGrid::bandCommand(Qt::KeyboardModifiers modifiers) const
{
    if (modifiers & Qt::ControlModifier)
        return m_ctrlBandCommand;
    return modifiers & Qt::ShiftModifier ? QItemSelectionModel::Select
                                         : QItemSelectionModel::ClearAndSelect;
}

void ThumbnailGrid::showBand()
{
    const QRect now = band().isActive() ? band().rect() : QRect();
    for (const QRect &area : {m_shownBand, now}) {
        if (area.isValid())
            viewport()->update(area.adjusted(-1, -1, 1, 1));
    }
    m_shownBand = now;
}

void ThumbnailGrid::selectedByHand(Hand hand)
{
    if (!severalSelected())
        emit fewSelected();
    else if (hand != Hand::Presses)
        emit signalMutilSelectEvent();
}

void ThumbnailGrid::keyPressEvent(QKeyEvent *event)
{
    m_showFocus = true;
    HandView::keyPressEvent(event);
    showFocus();
}

void ThumbnailGrid::focusInEvent(QFocusEvent *event)
{
    switch (event->reason()) {
    case Qt::MouseFocusReason:
        m_showFocus = false;
        break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
        break; // the user comes back to where he was
    default:
        m_showFocus = true;
    }
    HandView::focusInEvent(event);
}
