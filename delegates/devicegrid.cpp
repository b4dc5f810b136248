#include "delegates/devicegrid.h"

#include "common/memoryprefetch.h"

#include <QPaintEngine>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr int BytesPerPixel = 4;
constexpr int BandBytes = 20 * 1024; // two of them fit the nearest cache with what is copied there

/// The memory that a painter writes to, as far as it may.
class Screen
{
public:
    explicit Screen(const QPainter *painter)
    {
        const QPaintEngine *engine = painter->paintEngine();
        QPaintDevice *device = engine ? engine->paintDevice() : nullptr;
        if (!device || device->devType() != QInternal::Image)
            return;
        const auto *image = static_cast<QImage *>(device);
        if (image->depth() != 8 * BytesPerPixel)
            return;
        const QRegion exposed = engine->systemClip();
        m_image = image;
        m_rect = exposed.isEmpty() ? image->rect() : image->rect() & exposed.boundingRect();
    }

    /// False where another engine paints.
    bool isKnown() const { return m_image; }

    void prefetch(const QRect &rect) const
    {
        const QRect there = rect & m_rect;
        if (!there.isEmpty())
            prefetchRows(m_image->constScanLine(there.y()) + there.x() * BytesPerPixel,
                         m_image->bytesPerLine(), there.height(), there.width() * BytesPerPixel);
    }

private:
    const QImage *m_image = nullptr;
    QRect m_rect;
};

} // namespace

DeviceGrid::DeviceGrid(const QPainter *painter)
    : DeviceGrid(painter->deviceTransform())
{
}

DeviceGrid::DeviceGrid(const QTransform &toDevice)
    : m_transform(toDevice)
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

bool DeviceGrid::drawsExactly(const QRect &rect, const QPixmap &pixmap) const
{
    return m_aligned && deviceRect(rect).size() == pixmap.size();
}

void DeviceGrid::draw(QPainter *painter, const QRect &rect, const QPixmap &pixmap) const
{
    if (!drawsExactly(rect, pixmap)) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->drawPixmap(rect, pixmap);
        return;
    }
    copy(painter, deviceRect(rect), pixmap, pixmap.rect());
}

void DeviceGrid::drawLowest(QPainter *painter, const QRect &rect, const QPixmap &pixmap) const
{
    const QRect whole = deviceRect(rect);
    const Screen screen(painter);
    const int rows = std::max(1, BandBytes / (BytesPerPixel * std::max(1, whole.width())));
    if (!screen.isKnown() || rows >= whole.height() || !drawsExactly(rect, pixmap)) {
        draw(painter, rect, pixmap);
        return;
    }
    QRect band(whole.topLeft(), QSize(whole.width(), rows));
    screen.prefetch(band);
    while (!band.isEmpty()) {
        const QRect next = band.translated(0, rows) & whole;
        screen.prefetch(next);
        copy(painter, band, pixmap, band.translated(-whole.topLeft()));
        band = next;
    }
}

void DeviceGrid::copy(QPainter *painter, const QRect &device, const QPixmap &pixmap,
                      const QRect &source) const
{
    // the hint keeps the raster engine from its plain copy, even where nothing is scaled
    if (painter->testRenderHint(QPainter::SmoothPixmapTransform))
        painter->setRenderHint(QPainter::SmoothPixmapTransform, false);
    const QRectF target((device.x() - m_transform.dx()) / m_transform.m11(),
                        (device.y() - m_transform.dy()) / m_transform.m22(),
                        device.width() / m_transform.m11(), device.height() / m_transform.m22());
    painter->drawPixmap(target, pixmap, QRectF(source));
}
