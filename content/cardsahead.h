#pragma once

#include "content/gridgeometry.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

/// Prepares the cards of the page that is likely to be seen next, a few at a time between events:
/// a page that was never shown has names to shape and pictures to scale, and a page key should not
/// have to wait for them. It goes on the way that was last scrolled, and back where that ends.
class CardsAhead : public QObject
{
public:
    using Prepare = std::function<void(int row)>;
    explicit CardsAhead(Prepare prepare);

    /// The rows \a shown of \a rowCount are on the screen.
    void follow(const GridGeometry::Run &shown, int rowCount);
    /// The rows are no longer what they were.
    void forget();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Prepare m_prepare;
    QBasicTimer m_timer;
    GridGeometry::Run m_shown{0, -1};
    int m_next = 0;
    int m_left = 0; ///< rows to prepare
    int m_step = 1; ///< -1: upwards
};
