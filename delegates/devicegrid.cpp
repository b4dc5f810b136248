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
    if (device.size() != pixmap.size()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(rect, pixmap);
        return;
    }
    // the hint keeps the raster engine from its plain copy, even where nothing is scaled
    if (painter->testRenderHint(QPainter::SmoothPixmapTransform))
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    const QRectF target((device.x() - m_transform.dx()) / m_transform.m11(),
                        (device.y() - m_transform.dy()) / m_transform.m22(),
                        device.width() / m_transform.m11(), device.height() / m_transform.m22());
    painter->drawPixmap(target, pixmap, QRectF(pixmap.rect()));
}
