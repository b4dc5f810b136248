#pragma once

#include <QObject>

/// A view that knows which of its cells the mouse is over, for the delegate to paint it so.
class HoveredCell
{
public:
    virtual ~HoveredCell() = default;

    /// -1 when there is none.
    virtual int hoverRow() const = 0;
    virtual int hoverColumn() const = 0;
};

Q_DECLARE_INTERFACE(HoveredCell, "quarvo.HoveredCell")
