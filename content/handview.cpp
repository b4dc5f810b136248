#include "content/handview.h"

#include "content/layeredselection.h"
#include "content/viewaccessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimerEvent>

namespace {
constexpr int AutoScrollMs = 16;
} // namespace

template <typename View>
HandView<View>::HandView(int bandDistance, QWidget *parent)
    : View(parent)
    , m_band(bandDistance)
{
}

template <typename View>
HandView<View>::~HandView() = default;

template <typename View>
void HandView<View>::setModel(QAbstractItemModel *newModel)
{
    View::setModel(newModel);
    if (!newModel)
        return;
    QItemSelectionModel *stock = this->selectionModel();
    this->setSelectionModel(new LayeredSelection(newModel, this));
    delete stock;
}

// What outlives a reset --------------------------------------------------------------------------

template <typename View>
QPoint HandView<View>::contentPosition(const QModelIndex &index) const
{
    return this->visualRect(index).topLeft() + offset();
}

template <typename View>
void HandView<View>::setSelectionAnchor(const QModelIndex &index)
{
    if (!this->selectionModel() || !index.isValid())
        return;
    // the stock view keeps an anchor of its own, which follows nothing but this
    const QPersistentModelIndex current = this->currentIndex();
    {
        const QSignalBlocker quiet(this->selectionModel());
        const QScopedValueRollback<bool> guard(m_movingAnchor, true);
        this->setCurrentIndex(index);
        this->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }
    m_anchor = index;
}

template <typename View>
void HandView<View>::resumePress(const QModelIndex &index)
{
    m_pressed = index;
    m_pressResumed = true;
}

template <typename View>
void HandView<View>::resumeBand(const QItemSelection &before, const QPoint &originMoved)
{
    m_beforeBand = before;
    m_band.moveOrigin(originMoved);
    m_band.setOffset(offset());
    showBand();
}

template <typename View>
void HandView<View>::reset()
{
    View::reset();
    m_beforeBand.clear();
    if (m_band.isActive())
        this->setState(View::DragSelectingState);
}

// Rows -------------------------------------------------------------------------------------------

template <typename View>
bool HandView<View>::isEnabled(const QModelIndex &index) const
{
    return index.isValid() && (this->model()->flags(index) & Qt::ItemIsEnabled);
}

template <typename View>
void HandView<View>::addRows(QItemSelection *selection, int first, int last) const
{
    // a range needs two valid ends, and a row whose record is gone has no index
    while (first <= last && !indexOf(first).isValid())
        ++first;
    while (first < last && !indexOf(last).isValid())
        --last;
    if (first > last)
        return;
    const QModelIndex end = indexOf(last);
    selection->append(QItemSelectionRange(indexOf(first), end));
}

template <typename View>
QModelIndex HandView<View>::enterable(int row, int onward, int rowCount) const
{
    for (; row >= 0 && row < rowCount; row += onward) {
        const QModelIndex index = indexOf(row);
        if (isEnabled(index))
            return index;
    }
    return this->currentIndex();
}

template <typename View>
QItemSelectionModel::SelectionFlags HandView<View>::selectionCommand(const QModelIndex &index,
                                                                     const QEvent *event) const
{
    if (m_movingAnchor)
        return QItemSelectionModel::NoUpdate;
    if (event && event->type() == QEvent::MouseButtonRelease
        && (m_releaseIsIdle || (m_pressedOnItem && !index.isValid())))
        return QItemSelectionModel::NoUpdate;
    const QItemSelectionModel::SelectionFlags command = View::selectionCommand(index, event);
    const bool byKey = event && event->type() == QEvent::KeyPress;
    constexpr Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::ShiftModifier;
    if (byKey && command == QItemSelectionModel::NoUpdate
        && (static_cast<const QKeyEvent *>(event)->modifiers() & both) == both)
        return QItemSelectionModel::SelectCurrent | rowFlag(); // the stock view only moves
    return command;
}

template <typename View>
void HandView<View>::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    if (!m_band.isActive())
        m_anchor = current;
    QAbstractItemView::currentChanged(current, previous); // a table's own announces cells
    ViewAccessible::currentChanged(this, current, previous);
}

template <typename View>
void HandView<View>::selectionChanged(const QItemSelection &selected,
                                      const QItemSelection &deselected)
{
    m_selectionTouched = true;
    QAbstractItemView::selectionChanged(selected, deselected);
    ViewAccessible::selectionChanged(this, selected, deselected);
    if (!m_band.isActive())
        return;
    const auto *layers = qobject_cast<const LayeredSelection *>(this->selectionModel());
    if (layers && !m_bandSelects) { // what others do meanwhile, the band does not undo
        m_beforeBand = layers->combined(m_beforeBand, selected, QItemSelectionModel::Select);
        m_beforeBand = layers->combined(m_beforeBand, deselected, QItemSelectionModel::Deselect);
    }
    selectedByHand(Hand::Presses); // nobody tells of the band before it ends
}

template <typename View>
QItemSelectionModel::SelectionFlags HandView<View>::rowFlag() const
{
    QItemSelectionModel::SelectionFlags flags;
    flags.setFlag(QItemSelectionModel::Rows, this->selectionBehavior() == View::SelectRows);
    return flags;
}

template <typename View>
template <typename Handler>
void HandView<View>::byHand(Handler handler, Hand hand)
{
    m_selectionTouched = false;
    const QPointer<QObject> self(this); // whoever listens to a click may close the window
    handler();
    if (self && m_selectionTouched)
        selectedByHand(hand);
}

// Page -------------------------------------------------------------------------------------------

template <typename View>
void HandView<View>::setPageColor(const QColor &color)
{
    m_pageColor = color;
    this->viewport()->setAttribute(Qt::WA_OpaquePaintEvent,
                                   color.isValid() && color.alpha() == 0xFF);
    this->viewport()->update();
}

template <typename View>
void HandView<View>::paintPage(const QRegion &region)
{
    if (!this->viewport()->testAttribute(Qt::WA_OpaquePaintEvent))
        return;
    QPainter painter(this->viewport());
    for (const QRect &rect : region)
        painter.fillRect(rect, m_pageColor);
}

// Keys -------------------------------------------------------------------------------------------

template <typename View>
void HandView<View>::keyboardSearch(const QString &search)
{
    if (!this->model())
        return;
    const int row = m_typeAhead.search(search, *this->model(), this->currentIndex().row());
    const QModelIndex found = row < 0 ? QModelIndex() : indexOf(row);
    if (!found.isValid())
        return;
    this->setCurrentIndex(found);
    m_anchor = found; // also when it was current before
}

template <typename View>
void HandView<View>::focusInEvent(QFocusEvent *event)
{
    View::focusInEvent(event);
    // After a sort the current item may be anywhere, and the focus is to be seen.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        this->scrollTo(this->currentIndex());
}

template <typename View>
void HandView<View>::keyPressEvent(QKeyEvent *event)
{
    const bool escape = event->key() == Qt::Key_Escape;
    if (escape)
        m_typeAhead.stop();
    if (escape && m_band.isActive()) {
        cancelBand();
        return;
    }
    if (escape && this->selectionModel() && this->selectionModel()->hasSelection()) {
        byHand([this] { this->selectionModel()->clearSelection(); });
        return;
    }
    byHand([&] { View::keyPressEvent(event); });
}

// Mouse ------------------------------------------------------------------------------------------

template <typename View>
void HandView<View>::countClick(const QMouseEvent &event)
{
    const ulong since = event.timestamp() - m_lastClick;
    const bool sameSeries = m_lastClick > 0 && event.timestamp() >= m_lastClick
        && since < ulong(QApplication::doubleClickInterval())
        && (event.pos() - m_lastClickPos).manhattanLength() <= QApplication::startDragDistance();
    if (!sameSeries)
        ++m_clickSeries;
    m_lastClick = event.timestamp();
    m_lastClickPos = event.pos();
}

template <typename View>
bool HandView<View>::mayOpen()
{
    const bool first = m_clickSeries == 0 || m_openedSeries != m_clickSeries;
    m_openedSeries = m_clickSeries;
    return first;
}

template <typename View>
void HandView<View>::mousePressEvent(QMouseEvent *event)
{
    if (m_band.isActive())
        finishBand();
    if (event->button() == Qt::LeftButton)
        m_band.arm(event->pos(), offset());
    else
        m_band.disarm();
    m_pressed = this->indexAt(event->pos());
    m_pressResumed = false;
    m_pressedOnItem = m_pressed.isValid(); // which may be pushed away meanwhile
    m_releaseIsIdle = false;
    countClick(*event);
    byHand([&] { View::mousePressEvent(event); },
           event->button() == Qt::LeftButton ? Hand::Presses : Hand::Acts);
    if (!m_pressed.isValid() && !m_pressResumed)
        setSelectionAnchor(this->currentIndex()); // the stock view forgets its own
}

template <typename View>
void HandView<View>::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton)) {
        if (m_band.isActive())
            finishBand(); // the release went elsewhere
        m_band.disarm();
        View::mouseMoveEvent(event);
        return;
    }
    if (!m_band.isArmed())
        return;
    stretchBand(event->pos(), event->modifiers());
    if (!m_band.isActive())
        this->edit(this->indexAt(event->pos()), View::NoEditTriggers, event);
}

template <typename View>
void HandView<View>::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_band.isActive()) {
        stretchBand(event->pos(), event->modifiers()); // the content may have moved since
        bandReleased(event->pos());
        finishBand();
        return;
    }
    if (event->button() == Qt::LeftButton)
        m_band.disarm();
    byHand([&] {
        View::mouseReleaseEvent(event);
        finishPress(*event);
    });
}

template <typename View>
bool HandView<View>::isPressed(const QModelIndex &index) const
{
    return m_pressed.isValid() && index.row() == m_pressed.row(); // in whatever column
}

template <typename View>
void HandView<View>::finishPress(const QMouseEvent &event)
{
    if (!m_pressResumed || m_releaseIsIdle || event.button() != Qt::LeftButton
        || !isPressed(this->indexAt(event.pos())))
        return;
    constexpr Qt::KeyboardModifiers extending = Qt::ControlModifier | Qt::ShiftModifier;
    const QPersistentModelIndex index = m_pressed;
    if (!(event.modifiers() & extending) && this->selectionModel()->isSelected(index))
        this->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | rowFlag());
    emit this->clicked(index);
}

template <typename View>
void HandView<View>::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_lastClick = event->timestamp();
    const QPersistentModelIndex index = this->indexAt(event->pos());
    if (!m_pressResumed || !index.isValid() || !isPressed(index)) {
        View::mouseDoubleClickEvent(event);
        return;
    }
    emit this->doubleClicked(index);
    this->edit(index, View::DoubleClicked, event);
}

// Rubber band ------------------------------------------------------------------------------------

template <typename View>
void HandView<View>::stretchBand(const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    m_bandEnd = pos;
    const bool wasActive = m_band.isActive();
    if (!m_band.moveTo(pos, offset(), this->viewport()->rect()))
        return;
    if (!wasActive) {
        m_beforeBand = this->selectionModel() ? this->selectionModel()->selection()
                                              : QItemSelection();
    }
    showBand();
    selectInBand(modifiers);
    if (m_band.autoScrollStep(this->viewport()->rect(), this->autoScrollMargin()) == 0)
        m_autoScroll.stop();
    else if (!m_autoScroll.isActive())
        m_autoScroll.start(AutoScrollMs, this);
}

template <typename View>
void HandView<View>::selectInBand(Qt::KeyboardModifiers modifiers)
{
    if (!this->selectionModel() || this->selectionMode() == View::NoSelection
        || this->selectionMode() == View::SingleSelection)
        return;
    this->setState(View::DragSelectingState);
    const QItemSelectionModel::SelectionFlags command = bandCommand(modifiers);
    QItemSelection wanted = itemsIn(m_band.rect());
    const auto *layers = qobject_cast<const LayeredSelection *>(this->selectionModel());
    if (layers && !(command & QItemSelectionModel::Clear))
        wanted = layers->combined(m_beforeBand, wanted, command);
    {
        const QScopedValueRollback<bool> guard(m_bandSelects, true);
        this->selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect | rowFlag());
    }
    setCurrentInPlace(itemBeside(m_band.span().bottomRight()));
}

template <typename View>
void HandView<View>::setCurrentInPlace(const QModelIndex &index)
{
    if (!isEnabled(index) || index == this->currentIndex())
        return;
    const bool autoScroll = this->hasAutoScroll();
    this->setAutoScroll(false); // the item under the pointer must not move away from it
    this->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    this->setAutoScroll(autoScroll);
}

template <typename View>
void HandView<View>::autoScrollBand()
{
    const int step = m_band.autoScrollStep(this->viewport()->rect(), this->autoScrollMargin());
    QScrollBar *bar = this->verticalScrollBar();
    const int before = bar->value();
    bar->setValue(before + step);
    if (step == 0 || bar->value() == before)
        m_autoScroll.stop();
    else
        stretchBand(m_bandEnd, QApplication::keyboardModifiers());
}

template <typename View>
void HandView<View>::finishBand()
{
    m_autoScroll.stop();
    m_band.disarm();
    m_beforeBand.clear();
    this->setState(View::NoState);
    showBand();
    selectedByHand(Hand::Acts);
}

template <typename View>
void HandView<View>::cancelBand()
{
    m_autoScroll.stop();
    m_band.disarm();
    this->setState(View::NoState);
    showBand();
    if (this->selectionModel())
        this->selectionModel()->select(m_beforeBand,
                                       QItemSelectionModel::ClearAndSelect | rowFlag());
    m_beforeBand.clear();
    m_releaseIsIdle = true;
    selectedByHand(Hand::Acts);
}

template <typename View>
void HandView<View>::scrollBand()
{
    if (!m_band.isActive())
        return;
    m_band.setOffset(offset());
    showBand();
}

template <typename View>
void HandView<View>::hideEvent(QHideEvent *event)
{
    if (m_band.isActive())
        finishBand(); // the release will go elsewhere
    m_band.disarm();
    View::hideEvent(event);
}

template <typename View>
void HandView<View>::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_autoScroll.timerId())
        autoScrollBand();
    else
        View::timerEvent(event);
}

template class HandView<QListView>;
template class HandView<RowTable>;
