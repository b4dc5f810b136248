#pragma once

#include <QTreeWidget>

/// The rows of the side panel. Unfolds with a chevron of ours, since what styles draw there fits
/// neither theme, and shows a ring around the current row to whoever works with the keyboard.
class FolderTree : public QTreeWidget
{
    Q_OBJECT

public:
    static constexpr int Indent = 14;

    explicit FolderTree(QWidget *parent = nullptr);

    void setRingColor(const QColor &color) { m_ringColor = color; }

protected:
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void setRingShown(bool shown);

    QColor m_ringColor;
    bool m_ringShown = false;
};
