#include "scenes/scenes.h"
#include "scenes/table.h"

#include <cmath>

using namespace Table;

void Scenes::berries(Canvas &canvas, int)
{
    cloth(canvas, {206, 214, 214});
    Random &random = canvas.random();
    const QPointF center(canvas.width() * 0.5, 500);
    plate(canvas, center, 430, {92, 140, 160});
    canvas.draw([&](QPainter &painter) {
        QRadialGradient cream(center - QPointF(60, 60), 330);
        cream.setColorAt(0, Qt::white);
        cream.setColorAt(1, {240, 228, 222});
        painter.setBrush(cream);
        painter.drawPath(blob(random, center, 298, 0.06));
        static const QColor s_fruit[] = {
            {60, 70, 150}, {210, 30, 60}, {60, 70, 150}, {120, 20, 70}};
        for (int i = 0; i < 66; ++i) {
            const double angle = i * 2.39996;
            const double away = 262 * std::sqrt((65.5 - i) / 66);
            const QPointF at = center + QPointF(std::cos(angle), std::sin(angle)) * away
                + QPointF(random.between(-10, 10), random.between(-10, 10));
            const int kind = random.below(4);
            const double radius = random.between(28, 38);
            painter.setBrush(QColor(60, 20, 50, 80));
            painter.drawEllipse(at + QPointF(6, 8), radius, radius);
            if (kind == 1 || kind == 3) {
                for (int d = 0; d < 19; ++d) {
                    const double turn = d * 2.39996;
                    const double out = radius * 0.8 * std::sqrt((18.5 - d) / 19);
                    ball(painter, at + QPointF(std::cos(turn), std::sin(turn)) * out, radius * 0.3,
                         s_fruit[kind]);
                }
            } else {
                ball(painter, at, radius, s_fruit[kind]);
                painter.setBrush(QColor(30, 30, 80, 150));
                painter.drawEllipse(at + QPointF(radius * 0.1, radius * 0.1), radius * 0.22,
                                    radius * 0.2);
            }
        }
        leaf(painter, center + QPointF(-20, -30), 120, -50, {70, 160, 80});
        leaf(painter, center + QPointF(-20, -30), 110, -120, {80, 170, 86});
        leaf(painter, center + QPointF(-16, -30), 96, 10, {60, 150, 74});
    });
    canvas.glow({canvas.width() * 0.12, 80}, 800, {255, 250, 236}, 0.45);
}

void Scenes::citrus(Canvas &canvas, int)
{
    cloth(canvas, {70, 150, 156});
    Random &random = canvas.random();
    static const QColor s_flesh[] = {{250, 150, 30}, {250, 214, 60}, {238, 92, 80}, {170, 204, 70}};
    for (int i = 0; i < 17; ++i) {
        const double columns = 5;
        const QPointF at(canvas.width()
                                 * (std::fmod(i, columns) + 0.5 + (int(i / columns) % 2 ? 0.45 : 0))
                                 / columns
                             + random.between(-22, 22),
                         130 + 250 * int(i / columns) + random.between(-22, 22));
        const double radius = random.between(106, 142);
        const QColor flesh = s_flesh[random.below(4)];
        shadow(canvas, at, radius, 0.5);
        canvas.draw([&](QPainter &painter) {
            if (random.chance(0.2)) {
                ball(painter, at, radius, flesh);
                return;
            }
            painter.setBrush(mix(flesh, QColor(200, 80, 0), 0.25));
            painter.drawEllipse(at, radius, radius);
            painter.setBrush(mix(flesh, Qt::white, 0.82));
            painter.drawEllipse(at, radius * 0.93, radius * 0.93);
            const double turn = random.between(0, 360);
            for (int s = 0; s < 10; ++s) {
                painter.save();
                painter.translate(at);
                painter.rotate(turn + s * 36);
                QPainterPath segment(QPointF(radius * 0.09, 0));
                segment.lineTo(radius * 0.8, -radius * 0.225);
                segment.quadTo(QPointF(radius * 0.9, 0), QPointF(radius * 0.8, radius * 0.225));
                segment.closeSubpath();
                QRadialGradient juice(QPointF(0, 0), radius * 0.9);
                juice.setColorAt(0, mix(flesh, Qt::white, 0.4));
                juice.setColorAt(1, flesh);
                painter.setPen(
                    QPen(QBrush(juice), radius * 0.05, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
                painter.setBrush(juice);
                painter.drawPath(segment);
                painter.setPen(QPen(QColor(255, 255, 255, 70), 1.6));
                for (int f = 0; f < 9; ++f) {
                    const double a = random.between(0.2, 0.7) * radius;
                    const double b = random.between(-0.16, 0.16) * a;
                    painter.drawLine(QPointF(a, b), QPointF(a + radius * 0.12, b * 1.2));
                }
                painter.restore();
            }
        });
    }
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 9; ++i)
            leaf(painter, {random.unit() * canvas.width(), random.unit() * 1000},
                 random.between(90, 150), random.between(0, 360), {50, 130, 70});
    });
    canvas.glow({canvas.width() * 0.1, 60}, 1000, {255, 250, 220}, 0.4);
}
