#include "delegates/ninesliced.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace {

// the design grid of the background pictures
constexpr qreal DesignHeight = 124.0;
constexpr int TopBand = 81;
constexpr int BottomBand = 7;
constexpr int SideColumn = 4;

/// The four edges of three pieces from \a start on: \a first, the stretched rest, \a last.
std::array<int, 4> edges(int start, int length, int first, int last)
{
    first = std::clamp(first, 0, length);
    last = std::clamp(last, 0, length - first);
    return {start, start + first, start + length - last, start + length};
}

} // namespace

void drawNineSliced(QPainter *painter, const QRect &target, const QPixmap &pixmap, qreal scale)
{
    if (pixmap.isNull() || target.isEmpty())
        return;

    const int height = pixmap.height();
    const qreal sourceScale = height / DesignHeight;
    const int top = std::max(1, qRound(TopBand * sourceScale));
    const int bottom = std::max(1, std::min(height - top, qRound(BottomBand * sourceScale)));
    const int column = qRound(SideColumn * sourceScale);
    const auto sourceX = edges(0, pixmap.width(), column, column);
    const auto sourceY = edges(0, height, top, bottom);

    const int targetColumn = qRound(SideColumn * scale);
    const auto targetX = edges(target.x(), target.width(), targetColumn, targetColumn);
    const auto targetY = edges(target.y(), target.height(), qRound(TopBand * scale),
                               qRound(BottomBand * scale));

    for (int row = 0; row < 3; ++row) {
        for (int piece = 0; piece < 3; ++piece) {
            const QRect to(QPoint(targetX[piece], targetY[row]),
                           QPoint(targetX[piece + 1] - 1, targetY[row + 1] - 1));
            const QRect from(QPoint(sourceX[piece], sourceY[row]),
                             QPoint(sourceX[piece + 1] - 1, sourceY[row + 1] - 1));
            if (!to.isEmpty() && !from.isEmpty())
                painter->drawPixmap(to, pixmap, from);
        }
    }
}
