#include "scenes/table.h"

#include <algorithm>
#include <cmath>

namespace Table {

void wood(Canvas &canvas, const QColor &dark, const QColor &lit)
{
    const quint32 seed = canvas.newSeed();
    const Tint low = Tint::of(dark);
    const Tint high = Tint::of(lit);
    canvas.shade(canvas.bounds(), 1.6, [&](double x, double y) {
        const double board = std::floor(y / 168);
        const double inside = y - board * 168;
        const auto own = quint32(seed + quint32(board) * 13U);
        const double flow = noise(x / 320, y / 70, own) * 2.6;
        const double rings = 0.5 + 0.5 * std::sin((inside / 15 + flow + board * 1.7) * 1.9);
        const double fibre = cloudNoise(x / 70, y / 2.4, 3, own + 3);
        const double level = 0.42 + 0.2 * rings + 0.3 * fibre
            + 0.16 * noise(board * 3.1, 0.5, seed);
        const double seam = smoothstep(0, 5, inside) * smoothstep(168, 165, inside);
        const double light = 1.14 - 0.34 * (x / canvas.width() * 0.6 + y / 1000 * 0.4);
        return mix(low, high, std::clamp(level, 0.0, 1.0)).scaled(light * (0.4 + 0.6 * seam));
    });
}

void cloth(Canvas &canvas, const QColor &color)
{
    const quint32 seed = canvas.newSeed();
    const Tint tint = Tint::of(color);
    canvas.shade(canvas.bounds(), 2, [&](double x, double y) {
        const double folds = 0.1 * cloudNoise(x / 300 + y / 500, y / 190, 3, seed);
        const double weave = 0.025 * (std::sin(x * 1.1) + std::sin(y * 1.1));
        const double speckle = 0.035 * noise(x / 2.2, y / 2.2, seed + 1);
        return tint.scaled(1.08 - 0.25 * (x / canvas.width() * 0.5 + y / 2000) + folds + weave
                           + speckle);
    });
}

void shadow(Canvas &canvas, const QPointF &center, double radius, double strength)
{
    canvas.drawSoft(26, [&](QPainter &painter) {
        painter.setBrush(QColor(20, 10, 20, int(255 * strength)));
        painter.drawEllipse(center + QPointF(radius * 0.09, radius * 0.11), radius * 1.03,
                            radius * 1.03);
    });
}

void plate(Canvas &canvas, const QPointF &center, double radius, const QColor &color)
{
    shadow(canvas, center, radius, 0.55);
    canvas.draw([&](QPainter &painter) {
        QLinearGradient rim(center - QPointF(radius, radius), center + QPointF(radius, radius));
        rim.setColorAt(0, mix(color, Qt::white, 0.5));
        rim.setColorAt(1, mix(color, QColor(60, 50, 70), 0.3));
        painter.setBrush(rim);
        painter.drawEllipse(center, radius, radius);
        QLinearGradient well(center - QPointF(radius, radius) * 0.7,
                             center + QPointF(radius, radius) * 0.7);
        well.setColorAt(0, mix(color, QColor(60, 50, 70), 0.24));
        well.setColorAt(0.4, color);
        well.setColorAt(1, mix(color, Qt::white, 0.45));
        painter.setBrush(well);
        painter.drawEllipse(center, radius * 0.74, radius * 0.74);
        painter.setBrush(mix(color, QColor(80, 70, 90), 0.05));
        painter.drawEllipse(center, radius * 0.7, radius * 0.7);
    });
}

void ball(QPainter &painter, const QPointF &center, double radius, const QColor &color)
{
    QRadialGradient fill(center - QPointF(radius * 0.3, radius * 0.35), radius * 1.4);
    fill.setColorAt(0, mix(color, Qt::white, 0.42));
    fill.setColorAt(0.35, color);
    fill.setColorAt(0.8, mix(color, QColor(20, 0, 30), 0.5));
    fill.setColorAt(1, mix(color, QColor(20, 0, 30), 0.7));
    painter.setBrush(fill);
    painter.drawEllipse(center, radius, radius);
    painter.setBrush(QColor(255, 255, 255, 150));
    painter.drawEllipse(center - QPointF(radius * 0.36, radius * 0.42), radius * 0.17,
                        radius * 0.12);
}

void leaf(QPainter &painter, const QPointF &foot, double length, double angle, const QColor &color)
{
    painter.save();
    painter.translate(foot);
    painter.rotate(angle);
    QPainterPath half(QPointF(0, 0));
    half.quadTo(QPointF(length * 0.45, -length * 0.4), QPointF(length, 0));
    half.lineTo(0, 0);
    painter.fillPath(half, mix(color, Qt::white, 0.22));
    QPainterPath other(QPointF(0, 0));
    other.quadTo(QPointF(length * 0.45, length * 0.4), QPointF(length, 0));
    other.lineTo(0, 0);
    painter.fillPath(other, mix(color, Qt::black, 0.14));
    painter.setPen(QPen(mix(color, Qt::white, 0.45), length * 0.018));
    painter.drawLine(QPointF(0, 0), QPointF(length * 0.94, 0));
    painter.restore();
}

QPainterPath blob(Random &random, const QPointF &center, double radius, double rough)
{
    QPolygonF outline;
    const auto seed = quint32(random.below(1 << 28));
    for (int i = 0; i < 90; ++i) {
        const double angle = i * 6.2832 / 90;
        const double reach = radius
            * (1 + rough * noise(std::cos(angle) * 1.6 + 5, std::sin(angle) * 1.6 + 5, seed));
        outline << center + QPointF(std::cos(angle), std::sin(angle)) * reach;
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

} // namespace Table
