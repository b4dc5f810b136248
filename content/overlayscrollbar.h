#pragma once

#include <QScrollBar>

class QAbstractItemView;

/// A slim scroll bar over the right edge of a view, kept in step with the view's own. A child of
/// the content area and in no layout, so that it takes no room from the view.
class OverlayScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    static constexpr int RoomInView = 13; ///< pixels of the view's edge that it lies over

    OverlayScrollBar(QAbstractItemView *view, QWidget *parent);

    /// Takes range, value and place from the view; hides where there is nothing to scroll.
    void sync();

protected:
    void changeEvent(QEvent *event) override;

private:
    QAbstractItemView *m_view;
};
