#include "popups/menuplacement.h"

#include <algorithm>

namespace {

/// Start of a stretch of \a length at \a anchor, in front of it or behind, within \a from and \a
/// to.
int fit(int anchor, int length, int from, int to, bool inFront)
{
    const int before = anchor - length;
    int start = inFront ? before : anchor;
    if (inFront && before < from)
        start = anchor;
    else if (!inFront && anchor + length > to)
        start = before;
    return std::max(from, std::min(start, to - length));
}

} // namespace

QPoint menuCorner(const QPoint &anchor, const QSize &body, const QRect &screen,
                  Qt::LayoutDirection direction)
{
    const int right = screen.x() + screen.width();
    const int bottom = screen.y() + screen.height();
    return {fit(anchor.x(), body.width(), screen.x(), right, direction == Qt::RightToLeft),
            fit(anchor.y(), body.height(), screen.y(), bottom, false)};
}
