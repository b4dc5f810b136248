#pragma once

#include <QListView>

/// The grid of thumbnail cards: a QListView in icon mode whose geometry is computed from the row
/// number and never stored, so that a million rows cost what a hundred do. One column of a flat
/// model; every cell has the delegate's size hint; right-to-left mirrors the columns.
class ThumbnailGrid : public QListView
{
    Q_OBJECT

public:
    explicit ThumbnailGrid(QWidget *parent = nullptr);
    ~ThumbnailGrid() override;

    /// First and last row of which any part is in the viewport; an empty range when none is.
    QPair<int, int> visibleRows() const;
    /// Repaints the card of \a row if it is in the viewport.
    void repaintRow(int row);
    /// Repaints the cards in the viewport whose \a role has the value \a id.
    void repaintMatching(int role, qint64 id);

Q_SIGNALS:
    /// A selection of several items was made by hand or by key.
    void signalMutilSelectEvent();
};
