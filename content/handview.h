#pragma once

#include "content/itemactions.h"
#include "content/rowtable.h"
#include "content/rubberband.h"
#include "content/typeahead.h"
#include "content/viewplace.h"

#include <QBasicTimer>
#include <QColor>
#include <QListView>
#include <QPersistentModelIndex>

/// What grid and table have in common of that which a hand does: the rubber band with its scrolling
/// at the edges, type-ahead, Escape, ranges by Ctrl and Shift, and the state that outlives a reset
/// of the model by way of ViewPlace. \a View is an item view that scrolls by pixels.
template <typename View>
class HandView : public View, public ViewPlace, public ItemActions
{
public:
    /// \a bandDistance: pixels from a press to the rubber band.
    HandView(int bandDistance, QWidget *parent);
    ~HandView() override;

    QAbstractItemView *itemView() override { return this; }
    QPoint contentPosition(const QModelIndex &index) const override;
    QModelIndex selectionAnchor() const override { return m_anchor; }
    void setSelectionAnchor(const QModelIndex &index) override;
    QModelIndex pressedItem() const override { return m_pressed; }
    void resumePress(const QModelIndex &index) override;
    bool hasBand() const override { return m_band.isArmed(); }
    QItemSelection selectionBeforeBand() const override { return m_beforeBand; }
    void resumeBand(const QItemSelection &before, const QPoint &originMoved) override;

    /// To be asked before something is opened by the mouse: true once for a series of clicks that
    /// follow each other as fast as those of a double click, in one place.
    bool mayOpen();

    /// What lies under the items. As long as it is known and lets nothing through, nothing below
    /// the view is painted with each of its paints, and scrolling moves the pixels that are there.
    QColor pageColor() const { return m_pageColor; }
    void setPageColor(const QColor &color);

    void setModel(QAbstractItemModel *model) override;
    void reset() override;
    void keyboardSearch(const QString &search) override;

protected:
    void paintPage(const QRegion &region);
    virtual QModelIndex indexOf(int row) const = 0;
    /// What \a band, in viewport coordinates, touches.
    virtual QItemSelection itemsIn(const QRect &band) const = 0;
    /// What the band does to the items that it touches; ClearAndSelect forgets the others.
    virtual QItemSelectionModel::SelectionFlags
    bandCommand(Qt::KeyboardModifiers modifiers) const = 0;
    /// The item that becomes current while the band ends at \a pos.
    virtual QModelIndex itemBeside(const QPoint &pos) const { return this->indexAt(pos); }
    /// The band is to be shown as it is now; inactive: no more.
    virtual void showBand() = 0;
    /// The button was released at \a pos, which may be outside.
    virtual void bandReleased(const QPoint &pos) { Q_UNUSED(pos) }
    enum class Hand { Presses, Acts };
    /// The selection has been changed by hand or by key. Of a press the delegate tells as well.
    virtual void selectedByHand(Hand hand) { Q_UNUSED(hand) }

    const RubberBand &band() const { return m_band; }
    QPoint offset() const { return {this->horizontalOffset(), this->verticalOffset()}; }
    /// The range from row \a first to row \a last without dead records at its ends.
    void addRows(QItemSelection *selection, int first, int last) const;
    bool isEnabled(const QModelIndex &index) const;
    /// The first item that may be entered from \a row on, or the current one.
    QModelIndex enterable(int row, int onward, int rowCount) const;
    /// To be called when the content has been scrolled.
    void scrollBand();
    void noteAnchor(const QModelIndex &index) { m_anchor = index; }

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    void timerEvent(QTimerEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    QColor m_bandColor{0, 0, 255, 32};
    QColor m_bandEdgeColor = Qt::blue;
    QColor m_pageColor;

private:
    void stretchBand(const QPoint &pos, Qt::KeyboardModifiers modifiers);
    void selectInBand(Qt::KeyboardModifiers modifiers);
    void setCurrentInPlace(const QModelIndex &index);
    void autoScrollBand();
    void finishBand();
    void cancelBand();
    bool isPressed(const QModelIndex &index) const;
    void countClick(const QMouseEvent &event);
    void finishPress(const QMouseEvent &event);
    QItemSelectionModel::SelectionFlags rowFlag() const;
    template <typename Handler>
    void byHand(Handler handler, Hand hand = Hand::Acts);

    RubberBand m_band;
    QBasicTimer m_autoScroll;
    QPoint m_bandEnd;
    QItemSelection m_beforeBand;
    TypeAhead m_typeAhead;
    QPersistentModelIndex m_anchor;
    QPersistentModelIndex m_pressed;
    ulong m_lastClick = 0; ///< a timestamp of events
    QPoint m_lastClickPos;
    int m_clickSeries = 0;
    int m_openedSeries = 0;
    bool m_pressResumed = false;  ///< the stock view has lost its pressed item
    bool m_pressedOnItem = false; ///< a release on nothing then unselects nothing
    bool m_releaseIsIdle = false; ///< the band of this press has been given up
    bool m_bandSelects = false;
    bool m_movingAnchor = false;
    bool m_selectionTouched = false;
};

extern template class HandView<QListView>;
extern template class HandView<RowTable>;
