#pragma once

#include <QTableView>

class QRubberBand;

/// The table of the list modes: rows with a hovered cell for the delegate to paint, and a rubber
/// band that adds whole rows to the selection.
class ScanTableView : public QTableView
{
    Q_OBJECT

public:
    explicit ScanTableView(QWidget *parent = nullptr);
    ~ScanTableView() override;

    /// The cell under the mouse; -1 when there is none.
    int hoverRow() const { return m_hoverRow; }
    int hoverColumn() const { return m_hoverColumn; }

    /// Every row is this high.
    void setRowHeight(int pixels);
    /// First and last row of which any part is in the viewport; an empty range when none is.
    QPair<int, int> visibleRows() const;
    /// Repaints the rows in the viewport whose \a role has the value \a id.
    void repaintMatching(int role, qint64 id);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void repaintRow(int row);
    void paintCurrentRow();
    void setHoverCell(int row, int column);
    void selectRowsIn(const QRect &band);

    int m_hoverRow = -1;
    int m_hoverColumn = -1;
    bool m_dragging = false;
    QPoint m_pressPoint;
    QRubberBand *m_rubberBand;
};
