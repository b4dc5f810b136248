#pragma once

#include <QTreeWidget>

/// The rows of the side panel. Unfolds with a chevron of ours, since what styles draw there fits
/// neither theme, and shows a ring around the current row to whoever works with the keyboard.
class FolderTree : public QTreeWidget
{
    Q_OBJECT

public:
    static constexpr int Indent = 14;
    /// The count is painted beside the name, which may have all the room that it leaves.
    enum Column { NameColumn, CountColumn };

    explicit FolderTree(QWidget *parent = nullptr);

    /// \a faint: counts; \a accent: that of the current row, and the ring.
    void setColors(const QColor &faint, const QColor &accent);

protected:
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    class RowPainter;

    void setRingShown(bool shown);

    QColor m_faint;
    QColor m_accent;
    bool m_ringShown = false;
};
