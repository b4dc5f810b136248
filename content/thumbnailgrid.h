#pragma once

#include "content/cardsahead.h"
#include "content/gridgeometry.h"
#include "content/gridnavigation.h"
#include "content/handview.h"

/// The grid of thumbnail cards: a QListView in icon mode whose geometry is computed from the row
/// number and never stored, so that a million rows cost what a hundred do. One column of a flat
/// model; every cell has the delegate's size hint for the first row; right-to-left mirrors the
/// columns. Items are not dragged: a drag anywhere draws a rubber band. Hidden rows and a grid size
/// are not supported.
class ThumbnailGrid : public HandView<QListView>
{
    Q_OBJECT
    // for the stylesheet
    Q_PROPERTY(QColor focusColor MEMBER m_focusColor)
    Q_PROPERTY(QColor pageColor READ pageColor WRITE setPageColor)
    Q_PROPERTY(QColor bandColor MEMBER m_bandColor)
    Q_PROPERTY(QColor bandEdgeColor MEMBER m_bandEdgeColor)

public:
    explicit ThumbnailGrid(QWidget *parent = nullptr);
    ~ThumbnailGrid() override;

    /// First and last row of which any part is in the viewport; an empty range when none is.
    QPair<int, int> visibleRows() const override;
    /// Repaints the card of \a row if it is in the viewport.
    void repaintRow(int row);
    /// Repaints the cards in the viewport whose \a role has the value \a id; false: there is none.
    bool repaintMatching(int role, qint64 id);
    /// The picture of \a fileId has come, and its card is not on the screen.
    void preparePicture(qint64 fileId) const;

    /// Keeps \a pixels at the end of each line free, for what lies over the grid there.
    void setReservedWidth(int pixels);
    /// Cards grow alike, up to half as wide again, until they fill the line. Off when made.
    void setCardsStretched(bool stretched);

    QRect visualRect(const QModelIndex &index) const override;
    QModelIndex indexAt(const QPoint &point) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void doItemsLayout() override;
    void selectAll() override;
    void setModel(QAbstractItemModel *model) override;

    void requestToggle(const QModelIndex &index) override { emit toggleRequested(index); }
    void requestOpen(const QModelIndex &index) override { emit openRequested(index); }

signals:
    /// Assistive technology wants the item checked or unchecked, or opened.
    void toggleRequested(const QModelIndex &index);
    void openRequested(const QModelIndex &index);
    /// A selection of several items was made by hand or by key.
    void signalMutilSelectEvent();
    /// By hand or by key one item was selected, or none.
    void fewSelected();

protected:
    QModelIndex indexOf(int row) const override;
    QItemSelection itemsIn(const QRect &band) const override;
    QItemSelectionModel::SelectionFlags bandCommand(Qt::KeyboardModifiers modifiers) const override;
    void showBand() override;
    void selectedByHand(Hand hand) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    bool isIndexHidden(const QModelIndex &index) const override;

    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles) override;

    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    static GridNavigation::Step stepOf(CursorAction action);
    GridGeometry geometryNow() const;
    void layOutIfDue() const;
    QRect contentViewport() const { return viewport()->rect().translated(offset()); }
    bool severalSelected() const;

    void paintCards(QPainter *painter, const QRegion &region);
    QRect focusRect(int row) const;
    /// Or no more.
    void showFocus();
    void prepareCard(int row) const;

    void rememberTop();
    void setHover(const QPoint &pos);
    void clearHover();
    void changeHover(const QModelIndex &index);

    QColor m_focusColor = Qt::blue;
    QSize m_cell;
    int m_columns = 0;
    int m_reservedWidth = 0;
    bool m_cardsStretched = false;
    int m_topRow = 0;     ///< the row at the upper edge when the user last scrolled
    int m_topOverlap = 0; ///< pixels of its line above that edge
    bool m_layingOut = false;

    QPersistentModelIndex m_hover;
    QPoint m_pointer;
    bool m_pointerInside = false;
    bool m_showFocus = false; ///< the keyboard was used last

    CardsAhead m_cardsAhead;
    QSize m_paintedCell;
    QRect m_shownBand;
    QItemSelectionModel::SelectionFlags m_ctrlBandCommand = QItemSelectionModel::NoUpdate;
};
