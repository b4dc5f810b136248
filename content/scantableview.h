#pragma once

#include "content/handview.h"
#include "delegates/hoveredcell.h"

#include <QColor>

class BandFrame;

/// The table of the list modes: rows with a hovered cell for the delegate to paint, and a rubber
/// band that adds whole rows to the selection. The cursor goes from row to row; its column means
/// nothing.
class ScanTableView : public HandView<RowTable>, public HoveredCell
{
    Q_OBJECT
    Q_INTERFACES(HoveredCell)
    // for the stylesheet: the outline of the current row, with the keyboard in the table or not
    Q_PROPERTY(QColor focusedRowColor MEMBER m_focusedRowColor)
    Q_PROPERTY(QColor currentRowColor MEMBER m_currentRowColor)
    Q_PROPERTY(QColor pageColor READ pageColor WRITE setPageColor)
    Q_PROPERTY(QColor bandColor MEMBER m_bandColor)
    Q_PROPERTY(QColor bandEdgeColor MEMBER m_bandEdgeColor)

public:
    explicit ScanTableView(QWidget *parent = nullptr);
    ~ScanTableView() override;

    int hoverRow() const override { return m_hoverRow; }
    int hoverColumn() const override { return m_hoverColumn; }

    /// First and last row of which any part is in the viewport; an empty range when none is.
    QPair<int, int> visibleRows() const override;
    /// Repaints the rows in the viewport whose \a role has the value \a id.
    void repaintMatching(int role, qint64 id);

    void selectAll() override;

    void requestToggle(const QModelIndex &index) override { emit toggleRequested(index); }
    void requestOpen(const QModelIndex &index) override { emit openRequested(index); }

signals:
    /// Assistive technology wants the item checked or unchecked, or opened.
    void toggleRequested(const QModelIndex &index);
    void openRequested(const QModelIndex &index);

protected:
    QModelIndex indexOf(int row) const override;
    QItemSelection itemsIn(const QRect &band) const override;
    QItemSelectionModel::SelectionFlags bandCommand(Qt::KeyboardModifiers modifiers) const override;
    QModelIndex itemBeside(const QPoint &pos) const override { return indexOf(rowAt(pos.y())); }
    void showBand() override;
    void bandReleased(const QPoint &pos) override;

    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags command) override;
    bool isHovered(const QModelIndex &index) const override;
    void scrollContentsBy(int dx, int dy) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles) override;

private:
    void repaintRow(int row);
    void paintCurrentRow();
    void setHoverCell(int row, int column);
    QItemSelection rowsBetween(int top, int bottom) const;

    int m_hoverRow = -1;
    int m_hoverColumn = -1;
    BandFrame *m_rubberBand;
    QColor m_focusedRowColor = Qt::blue;
    QColor m_currentRowColor = Qt::gray;
};
