#include "common/dropshadowmanager.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb Ink = qRgb(6, 10, 24);
// the white keeps away from the body's edge, or it would shine through the rounded corners
constexpr qreal FillInset = 1.0;

constexpr qreal EdgeDepth = 0.62; // a soft shadow has lost some depth where the body ends

/// Depth of the shadow, 0 to 1, at a place \a dx and \a dy outside of the rectangle in which the
/// corner arcs of the body, of \a radius, have their centres. Falls to nothing without an edge.
qreal depthAt(qreal dx, qreal dy, qreal radius, qreal reachX, qreal reachY)
{
    const qreal length = std::hypot(dx, dy);
    const qreal beyond = length - radius;
    if (beyond <= 0)
        return EdgeDepth;
    const qreal reach = 1.0 / std::hypot(dx / length / reachX, dy / length / reachY);
    const qreal left = std::max(0.0, 1.0 - beyond / reach);
    return EdgeDepth * left * left;
}

/// Signed distance of \a at from the stretch \a from to \a to: negative before, positive behind.
qreal outside(qreal at, qreal from, qreal to)
{
    return at < from ? at - from : std::max(0.0, at - to);
}

} // namespace

DropShadowManager::DropShadowManager(qreal ratio, int radius)
    : m_ratio(ratio > 0 ? ratio : 1.0)
    , m_radius(radius)
{
}

void DropShadowManager::paint(QPixmap *pixmap, const QRect &rect, int darkness, int topShare) const
{
    *pixmap = QPixmap();
    if (rect.isEmpty())
        return;
    const QString key = QStringLiteral("dropshadow %1x%2 %3 %4 %5 %6")
                            .arg(rect.width())
                            .arg(rect.height())
                            .arg(m_ratio)
                            .arg(darkness)
                            .arg(topShare)
                            .arg(m_radius);
    if (QPixmapCache::find(key, pixmap))
        return;
    *pixmap = compose(rect, darkness, topShare);
    QPixmapCache::insert(key, *pixmap);
}

QPixmap DropShadowManager::compose(const QRect &rect, int darkness, int topShare) const
{
    const QRectF body = QRectF(QPointF(), rect.size()).marginsRemoved(Reach);
    const qreal radius = m_radius;
    const QRectF arcs = body.adjusted(radius, radius, -radius, -radius);

    QImage image(qCeil(rect.width() * m_ratio), qCeil(rect.height() * m_ratio),
                 QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < image.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        const qreal y = (row + 0.5) / m_ratio;
        const qreal dy = outside(y, arcs.top(), arcs.bottom());
        const qreal reachY = dy < 0 ? Reach.top() : Reach.bottom();
        const qreal height = std::max(1.0, body.height());
        const qreal down = std::clamp((y - body.top()) / height, 0.0, 1.0);
        const qreal strength = darkness * (topShare + (100 - topShare) * down) / 100.0;
        for (int column = 0; column < image.width(); ++column) {
            const qreal dx = outside((column + 0.5) / m_ratio, arcs.left(), arcs.right());
            const qreal reachX = dx < 0 ? Reach.left() : Reach.right();
            const int alpha = std::clamp(qRound(strength * depthAt(dx, dy, radius, reachX, reachY)),
                                         0, 255);
            line[column] = qPremultiply(qRgba(qRed(Ink), qGreen(Ink), qBlue(Ink), alpha));
        }
    }
    image.setDevicePixelRatio(m_ratio);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(body.adjusted(FillInset, FillInset, -FillInset, -FillInset),
                            radius - FillInset, radius - FillInset);
    painter.end();
    return QPixmap::fromImage(image);
}
