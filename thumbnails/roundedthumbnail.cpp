#include "thumbnails/roundedthumbnail.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr qreal RadiusOfSide = 6.0 / 32;

QPixmap middleOf(const QPixmap &thumbnail, int side)
{
    const QSize size(side, side);
    if (thumbnail.size() == size)
        return thumbnail;
    const QPixmap covering = thumbnail.scaled(size, Qt::KeepAspectRatioByExpanding,
                                              Qt::SmoothTransformation);
    const QPoint offset(std::max(0, (covering.width() - side) / 2),
                        std::max(0, (covering.height() - side) / 2));
    return covering.copy(QRect(offset, size));
}

} // namespace

QPixmap roundedThumbnail(const QPixmap &thumbnail, int side)
{
    if (thumbnail.isNull() || side < 1)
        return {};
    QPixmap middle = middleOf(thumbnail, side);
    middle.setDevicePixelRatio(1);

    QPixmap rounded(side, side);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0.5, 0.5, side - 1, side - 1), side * RadiusOfSide,
                           side * RadiusOfSide);
    painter.setClipPath(outline);
    painter.drawPixmap(0, 0, middle);
    return rounded;
}
