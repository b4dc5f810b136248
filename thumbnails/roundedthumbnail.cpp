#include "thumbnails/roundedthumbnail.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int Side = 32;
constexpr qreal Radius = 6;

QPixmap middleOf(const QPixmap &thumbnail)
{
    const QSize size(Side, Side);
    if (thumbnail.size() == size)
        return thumbnail;
    const QPixmap covering = thumbnail.scaled(size, Qt::KeepAspectRatioByExpanding,
                                              Qt::SmoothTransformation);
    const QPoint offset(std::max(0, (covering.width() - Side) / 2),
                        std::max(0, (covering.height() - Side) / 2));
    return covering.copy(QRect(offset, size));
}

} // namespace

QPixmap roundedThumbnail(const QPixmap &thumbnail)
{
    if (thumbnail.isNull())
        return {};
    QPixmap middle = middleOf(thumbnail);
    middle.setDevicePixelRatio(1);

    QPixmap rounded(Side, Side);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(0.5, 0.5, Side - 1, Side - 1), Radius, Radius);
    painter.setClipPath(outline);
    painter.drawPixmap(0, 0, middle);
    return rounded;
}
