#pragma once

#include <QPainter>
#include <QTransform>

class QPixmap;

/// The device pixels under a painter. What is composed once for whole device pixels and drawn
/// through this stays sharp at 125 and 150 per cent, where logical edges fall between pixels.
class DeviceGrid
{
public:
    explicit DeviceGrid(const QPainter *painter);
    /// \a toDevice: from logical coordinates.
    explicit DeviceGrid(const QTransform &toDevice);

    /// False when the painter rotates, shears or flips: then there is no grid to stand on.
    bool isAligned() const { return m_aligned; }
    qreal scale() const { return m_transform.m11(); }
    /// To device pixels.
    const QTransform &transform() const { return m_transform; }
    /// \a rect in device pixels, its edges rounded.
    QRect deviceRect(const QRect &rect) const;
    /// Draws \a pixmap into \a rect, one to one where it has the size of deviceRect(\a rect),
    /// smoothly scaled where not. The painter's hint for smooth scaling is left as it was needed.
    void draw(QPainter *painter, const QRect &rect, const QPixmap &pixmap) const;
    /// The same for what is drawn first and large: the screen's memory there is fetched ahead.
    void drawLowest(QPainter *painter, const QRect &rect, const QPixmap &pixmap) const;

private:
    bool drawsExactly(const QRect &rect, const QPixmap &pixmap) const;
    void copy(QPainter *painter, const QRect &device, const QPixmap &pixmap,
              const QRect &source) const;

    QTransform m_transform;
    bool m_aligned;
};
