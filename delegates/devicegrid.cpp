#include "delegates/devicegrid.h"

#include <QPixmap>

DeviceGrid::DeviceGrid(const QPainter *painter)
    : m_transform(painter->deviceTransform())
    , m_aligned(m_transform.type() <= QTransform::TxScale && m_transform.m11() > 0
                && m_transform.m22() > 0)
{
}

QRect DeviceGrid::deviceRect(const QRect &rect) const
{
    const QPoint topLeft(qRound(rect.x() * m_transform.m11() + m_transform.dx()),
                         qRound(rect.y() * m_transform.m22() + m_transform.dy()));
    const QPoint end(qRound((rect.x() + rect.width()) * m_transform.m11() + m_transform.dx()),
                     qRound((rect.y() + rect.height()) * m_transform.m22() + m_transform.dy()));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

void DeviceGrid::draw(QPainter *painter, const QRect &rect, const QPixmap &pixmap) const
{
    const QRect device = m_aligned ? deviceRect(rect) : QRect();
    if (device.size() == pixmap.size()) {
        copy(painter, device.topLeft(), pixmap, pixmap.rect());
    } else {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(rect, pixmap);
    }
}

void DeviceGrid::drawAround(QPainter *painter, const QRect &rect, const QPixmap &pixmap,
                            const QRect &hole) const
{
    const QPoint origin = deviceRect(rect).topLeft();
    const QRect whole = pixmap.rect();
    const QRect inner = deviceRect(hole).translated(-origin) & whole;
    if (hole.isEmpty() || inner.isEmpty()) {
        copy(painter, origin, pixmap, whole);
        return;
    }
    const QRect frame[] = {
        {QPoint(0, 0), QPoint(whole.right(), inner.top() - 1)},
        {QPoint(0, inner.top()), QPoint(inner.left() - 1, inner.bottom())},
        {QPoint(inner.right() + 1, inner.top()), QPoint(whole.right(), inner.bottom())},
        {QPoint(0, inner.bottom() + 1), QPoint(whole.right(), whole.bottom())},
    };
    for (const QRect &piece : frame) {
        if (!piece.isEmpty())
            copy(painter, origin + piece.topLeft(), pixmap, piece);
    }
}

void DeviceGrid::copy(QPainter *painter, const QPoint &devicePos, const QPixmap &pixmap,
                      const QRect &source) const
{
    // the hint keeps the raster engine from its plain copy, even where nothing is scaled
    if (painter->testRenderHint(QPainter::SmoothPixmapTransform))
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    const QRectF target((devicePos.x() - m_transform.dx()) / m_transform.m11(),
                        (devicePos.y() - m_transform.dy()) / m_transform.m22(),
                        source.width() / m_transform.m11(), source.height() / m_transform.m22());
    painter->drawPixmap(target, pixmap, QRectF(source));
}
