#pragma once

#include <QTableView>

class HiddenRowHeader;

/// A table whose rows all have one height: where a row lies is computed. The stock table takes it
/// from its vertical header, which keeps eight bytes for each row and adds up a million heights
/// whenever it is asked anew. Rows are neither hidden nor moved, nothing spans cells, there is no
/// grid, and the vertical header is never shown. What is computed here hides the stock functions
/// of the same name, which know nothing of rows any more.
class RowTable : public QTableView
{
public:
    explicit RowTable(QWidget *parent = nullptr);

    void setRowHeight(int pixels);
    int rowHeight() const { return m_rowHeight; }
    /// In viewport coordinates; -1 for a row that is not there.
    int rowViewportPosition(int row) const;
    /// The row at \a y in viewport coordinates; -1 when there is none.
    int rowAt(int y) const;

    void setModel(QAbstractItemModel *model) override;
    void reset() override;
    QModelIndex indexAt(const QPoint &pos) const override;
    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

protected:
    int rowCount() const;
    void updateGeometries() override;
    bool isIndexHidden(const QModelIndex &index) const override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;
    int sizeHintForColumn(int column) const override;
    /// The mouse is on this cell.
    virtual bool isHovered(const QModelIndex &) const { return false; }
    void paintEvent(QPaintEvent *event) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles) override;

private:
    void layOutIfDue() const;
    bool isShown(const QModelIndex &index) const;
    QRect rowsRect(int first, int last) const;
    void scrollToColumn(int column, ScrollHint hint);
    void scrollToRow(int row, ScrollHint hint);
    void paintCell(QPainter *painter, QStyleOptionViewItem option, const QModelIndex &index);

    HiddenRowHeader *m_header;
    int m_rowHeight;
};
