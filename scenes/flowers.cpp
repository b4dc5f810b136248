#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

static void softGarden(Canvas &canvas, const QVector<QColor> &colors, const QColor &top,
                       const QColor &bottom)
{
    Random &random = canvas.random();
    canvas.gradient({{0, top}, {1, bottom}});
    canvas.drawSoft(46, [&](QPainter &painter) {
        for (int i = 0; i < 110; ++i) {
            painter.setBrush(
                withAlpha(colors.at(random.below(colors.size())), random.between(0.25, 0.8)));
            const double radius = random.between(30, 130);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 1000),
                                radius, radius);
        }
    });
    canvas.drawSoft(4, [&](QPainter &painter) {
        for (int i = 0; i < 30; ++i) {
            painter.setBrush(withAlpha(mix(colors.at(random.below(colors.size())), Qt::white, 0.6),
                                       random.between(0.06, 0.2)));
            const double radius = random.between(14, 56);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 800),
                                radius, radius);
        }
    });
}

static void petal(QPainter &painter, const QPointF &center, double angle, double inner,
                  double outer, double half, const QColor &base, const QColor &tip, double vein)
{
    painter.save();
    painter.translate(center);
    painter.rotate(angle);
    QPainterPath path(QPointF(inner, 0));
    path.cubicTo(QPointF(mix(inner, outer, 0.25), -half * 1.05),
                 QPointF(mix(inner, outer, 0.8), -half * 1.25), QPointF(outer, -half * 0.12));
    path.quadTo(QPointF(outer * 1.015, 0), QPointF(outer, half * 0.12));
    path.cubicTo(QPointF(mix(inner, outer, 0.8), half * 1.25),
                 QPointF(mix(inner, outer, 0.25), half * 1.05), QPointF(inner, 0));
    QLinearGradient fill(inner, 0, outer, 0);
    fill.setColorAt(0, base);
    fill.setColorAt(0.55, mix(base, tip, 0.75));
    fill.setColorAt(1, tip);
    painter.setBrush(Qt::NoBrush);
    painter.fillPath(path, fill);
    QLinearGradient round(0, -half, 0, half);
    round.setColorAt(0, QColor(255, 255, 255, 60));
    round.setColorAt(0.5, QColor(255, 255, 255, 0));
    round.setColorAt(1, QColor(40, 0, 40, 60));
    painter.fillPath(path, round);
    painter.setPen(QPen(withAlpha(mix(base, Qt::black, 0.2), vein), 1.2));
    for (int i = -2; i <= 2; ++i) {
        QPainterPath line(QPointF(inner * 1.05, i * half * 0.08));
        line.quadTo(QPointF(mix(inner, outer, 0.5), i * half * 0.42),
                    QPointF(outer * 0.93, i * half * 0.24));
        painter.drawPath(line);
    }
    painter.restore();
}

static void stem(Canvas &canvas, const QPointF &from, const QPointF &to, double breadth,
                 const QColor &color)
{
    canvas.draw([&](QPainter &painter) {
        QPainterPath line(from);
        line.quadTo(QPointF(from.x() + (to.x() - from.x()) * 0.2, (from.y() + to.y()) / 2), to);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(mix(color, Qt::black, 0.25), breadth, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(line);
        painter.setPen(
            QPen(mix(color, Qt::white, 0.18), breadth * 0.4, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(line.translated(-breadth * 0.18, 0));
    });
}

static void seeds(Canvas &canvas, const QPointF &center, double radius, const QColor &dark,
                  const QColor &lit)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        QRadialGradient dome(center - QPointF(radius * 0.25, radius * 0.3), radius * 1.4);
        dome.setColorAt(0, lit);
        dome.setColorAt(1, dark);
        painter.setBrush(dome);
        painter.drawEllipse(center, radius, radius);
        const int count = 420;
        for (int i = 0; i < count; ++i) {
            const double away = radius * 0.98 * std::sqrt((i + 0.5) / count);
            const double angle = i * 2.39996;
            const QPointF at = center + QPointF(std::cos(angle), std::sin(angle)) * away;
            const double size = radius * 0.034 * random.between(0.8, 1.3);
            painter.setBrush(mix(dark, Qt::black, 0.4));
            painter.drawEllipse(at + QPointF(size * 0.4, size * 0.5), size, size);
            painter.setBrush(mix(lit, Qt::white, 0.35 * random.unit()));
            painter.drawEllipse(at, size, size);
        }
    });
}

static void dew(Canvas &canvas, const QPointF &center, double reach, int count)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < count; ++i) {
            const double angle = random.unit() * 6.2832;
            const QPointF at = center
                + QPointF(std::cos(angle), std::sin(angle)) * reach * random.between(0.4, 1);
            const double size = random.between(2.5, 8);
            QRadialGradient drop(at + QPointF(size * 0.3, size * 0.4), size * 1.2);
            drop.setColorAt(0, QColor(255, 255, 255, 130));
            drop.setColorAt(1, QColor(30, 10, 40, 90));
            painter.setBrush(drop);
            painter.drawEllipse(at, size, size * 0.9);
            painter.setBrush(QColor(255, 255, 255, 230));
            painter.drawEllipse(at - QPointF(size * 0.35, size * 0.35), size * 0.24, size * 0.2);
        }
    });
}

void Scenes::flower(Canvas &canvas, int variant)
{
    variant %= 5;
    Random &random = canvas.random();
    const QPointF center(canvas.width() * (variant % 2 ? 0.44 : 0.54), 450);
    static const QVector<QColor> s_gardens[] = {
        {{110, 160, 60}, {60, 110, 44}, {200, 220, 110}, {250, 240, 190}},
        {{60, 120, 80}, {240, 180, 60}, {30, 70, 50}, {250, 220, 120}},
        {{120, 60, 110}, {220, 120, 160}, {60, 80, 70}, {250, 200, 210}},
        {{50, 90, 90}, {90, 150, 140}, {30, 60, 70}, {190, 210, 160}},
        {{90, 130, 60}, {220, 80, 60}, {60, 90, 50}, {250, 200, 140}},
    };
    softGarden(canvas, s_gardens[variant], mix(s_gardens[variant].at(3), Qt::white, 0.2),
               s_gardens[variant].at(2 - variant % 2));
    canvas.glow({canvas.width() * 0.2, 100}, 900, {255, 246, 210}, 0.45);
    stem(canvas, {center.x() + 40, 1030}, center, 22, {86, 136, 56});
    switch (variant) {
    case 0: // daisy
        for (int ring = 0; ring < 2; ++ring)
            for (int i = 0; i < 22; ++i)
                canvas.draw([&](QPainter &painter) {
                    petal(painter, center, i * 360 / 22.0 + ring * 8 + random.between(-3, 3), 60,
                          random.between(300, 335) - ring * 22, 33, {224, 226, 236},
                          {255, 255, 255}, 0.12);
                });
        seeds(canvas, center, 92, {196, 120, 10}, {255, 214, 60});
        break;
    case 1: // sunflower
        for (int ring = 0; ring < 3; ++ring)
            for (int i = 0; i < 24; ++i)
                canvas.draw([&](QPainter &painter) {
                    petal(painter, center, i * 15 + ring * 5 + random.between(-4, 4), 120,
                          random.between(340, 395) - ring * 24, 36, {236, 140, 10},
                          mix(QColor(255, 204, 30), QColor(255, 236, 110), random.unit()), 0.3);
                });
        seeds(canvas, center, 168, {52, 26, 10}, {134, 82, 30});
        break;
    case 2: // dahlia
        for (int ring = 0; ring < 9; ++ring) {
            const int petals = 28 - ring * 2;
            for (int i = 0; i < petals; ++i)
                canvas.draw([&](QPainter &painter) {
                    const double t = ring / 8.0;
                    petal(painter, center, (i + 0.5 * (ring % 2)) * 360.0 / petals, 16,
                          mix(350, 70, t), mix(46, 16, t),
                          mix(QColor(150, 20, 90), QColor(255, 160, 120), t * 0.6),
                          mix(QColor(250, 150, 190), QColor(255, 214, 160), t), 0.16);
                });
        }
        break;
    case 3: { // water lily
        canvas.drawSoft(10, [&](QPainter &painter) {
            for (int i = 0; i < 7; ++i) {
                painter.setBrush(mix(QColor(36, 96, 70), QColor(110, 160, 90), random.unit()));
                painter.drawEllipse(
                    QPointF(random.unit() * canvas.width(), random.between(600, 980)),
                    random.between(150, 260), random.between(46, 80));
            }
        });
        for (int ring = 0; ring < 5; ++ring) {
            const int petals = 13 - ring;
            for (int i = 0; i < petals; ++i)
                canvas.draw([&](QPainter &painter) {
                    painter.translate(center.x(), center.y() + 130);
                    painter.scale(1, 0.72);
                    const double t = ring / 4.0;
                    petal(painter, {0, -160 * t * 0.5},
                          190 + (i + 0.5 * (ring % 2)) * 340.0 / petals, 20, mix(360, 190, t),
                          mix(64, 40, t), mix(QColor(240, 130, 170), QColor(255, 220, 210), t),
                          mix(QColor(255, 226, 236), QColor(255, 250, 246), t), 0.14);
                });
        }
        seeds(canvas, {center.x(), center.y() + 92}, 58, {220, 140, 20}, {255, 220, 90});
        break;
    }
    default: // poppy
        for (int ring = 0; ring < 2; ++ring)
            for (int i = 0; i < 4; ++i)
                canvas.draw([&](QPainter &painter) {
                    petal(painter, center, i * 90 + ring * 45 + 20, 10, 330 - ring * 50,
                          190 - ring * 30, {120, 10, 14},
                          mix(QColor(236, 50, 34), QColor(255, 110, 60), ring), 0.22);
                });
        seeds(canvas, center, 60, {20, 20, 24}, {70, 90, 60});
        break;
    }
    dew(canvas, center, 250, 34);
}

void Scenes::tulips(Canvas &canvas, int variant)
{
    Random &random = canvas.random();
    const QPointF light(canvas.width() * 0.7, 190);
    canvas.gradient({{0, {70, 140, 214}},
                     {0.35, {190, 220, 238}},
                     {0.45, {255, 240, 214}},
                     {1, {60, 100, 40}}});
    clouds(canvas, {0.5, 420, {255, 255, 255}, {190, 204, 224}, 0.9, 1.3}, light);
    const Ridge far = downs(canvas, 410, 16, 300);
    const QPainterPath line = conifers(canvas, far, 14, 36, 12);
    canvas.draw([&](QPainter &painter) { painter.fillPath(line, QColor(84, 116, 104)); });
    static const QColor s_rows[][5] = {
        {{226, 40, 50}, {250, 190, 40}, {240, 120, 170}, {250, 244, 236}, {140, 60, 160}},
        {{250, 130, 40}, {200, 40, 90}, {250, 220, 90}, {230, 90, 130}, {250, 240, 220}}};
    for (int row = 0; row < 17; ++row) {
        const double t = std::pow(row / 16.0, 2.1);
        const double y = mix(440, 1010, t);
        const double size = mix(7, 98, t);
        const QColor color = s_rows[variant % 2][(row / (row > 12 ? 2 : 1)) % 5];
        const auto plant = [&](QPainter &painter) {
            painter.fillRect(QRectF(0, y - size * 0.15, canvas.width(), size * 2.4),
                             mix(QColor(70, 120, 50), QColor(26, 60, 26), t));
            for (double x = -size; x < canvas.width() + size;
                 x += size * random.between(0.5, 0.85)) {
                const QPointF at(x, y - size * random.between(0.5, 1.0));
                painter.setBrush(mix(QColor(110, 160, 70), QColor(40, 96, 40), random.unit()));
                QPainterPath leaf(QPointF(at.x(), y + size * 1.3));
                leaf.quadTo(at + QPointF(random.between(-0.8, 0.8) * size, size * 0.6),
                            at + QPointF(random.between(-0.5, 0.5) * size, size * 0.1));
                leaf.quadTo(at + QPointF(0, size), QPointF(at.x() + size * 0.16, y + size * 1.3));
                painter.drawPath(leaf);
                painter.fillRect(QRectF(at.x() - size * 0.035, at.y(), size * 0.07, size * 1.5),
                                 QColor(90, 140, 60));
                for (int side = -1; side <= 1; ++side) {
                    QPainterPath cup(at + QPointF(0, size * 0.32));
                    cup.cubicTo(at + QPointF(side * size * 0.3 - size * 0.26, size * 0.2),
                                at + QPointF(side * size * 0.26 - size * 0.22, -size * 0.3),
                                at + QPointF(side * size * 0.2, -size * 0.46));
                    cup.cubicTo(at + QPointF(side * size * 0.26 + size * 0.22, -size * 0.3),
                                at + QPointF(side * size * 0.3 + size * 0.26, size * 0.2),
                                at + QPointF(0, size * 0.32));
                    QLinearGradient fill(at.x() - size * 0.35, at.y() - size * 0.4,
                                         at.x() + size * 0.35, at.y() + size * 0.3);
                    fill.setColorAt(0, mix(color, QColor(255, 240, 200), side == 0 ? 0.35 : 0.15));
                    fill.setColorAt(1, mix(color, QColor(60, 0, 30), side == 0 ? 0.16 : 0.34));
                    painter.fillPath(cup, fill);
                }
            }
        };
        if (row == 16)
            canvas.drawSoft(7, plant);
        else
            canvas.draw(plant);
    }
    canvas.glow(light, 900, {255, 246, 214}, 0.35);
}

void Scenes::blossom(Canvas &canvas, int variant)
{
    variant %= 2;
    Random &random = canvas.random();
    softGarden(
        canvas,
        variant
            ? QVector<QColor>{{150, 200, 230}, {190, 220, 240}, {250, 220, 230}, {255, 255, 255}}
            : QVector<QColor>{{250, 190, 206}, {255, 226, 226}, {190, 206, 200}, {255, 240, 236}},
        variant ? QColor(120, 180, 226) : QColor(250, 222, 222),
        variant ? QColor(206, 230, 244) : QColor(214, 200, 200));
    const auto spray = [&](QPainter &painter, const QPointF &at, double size) {
        const double turn = random.between(0, 360);
        for (int i = 0; i < 5; ++i)
            petal(painter, at, turn + i * 72, size * 0.06, size, size * 0.42,
                  mix(QColor(232, 90, 140), QColor(246, 150, 184), random.unit()),
                  mix(QColor(255, 232, 240), QColor(255, 190, 212), random.unit() * 0.7), 0.1);
        painter.setBrush(QColor(214, 80, 110));
        painter.drawEllipse(at, size * 0.11, size * 0.11);
        for (int i = 0; i < 9; ++i) {
            const double angle = random.unit() * 6.2832;
            painter.setBrush(QColor(255, 220, 120));
            painter.drawEllipse(
                at + QPointF(std::cos(angle), std::sin(angle)) * size * random.between(0.12, 0.28),
                size * 0.024, size * 0.024);
        }
    };
    for (int layer = 0; layer < 3; ++layer) {
        const double t = layer / 2.0;
        const auto bough = [&](QPainter &painter) {
            QPainterPath branch(QPointF(-40, mix(160, 780, random.unit())));
            branch.cubicTo(
                QPointF(canvas.width() * 0.3, random.between(300, 700)),
                QPointF(canvas.width() * 0.6, random.between(200, 600)),
                QPointF(canvas.width() * random.between(0.8, 1.1), random.between(120, 420)));
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(mix(QColor(190, 150, 150), QColor(84, 56, 50), t), mix(9, 17, t),
                                Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(branch);
            painter.setPen(QPen(QColor(160, 120, 106, 120), mix(2, 5, t)));
            painter.drawPath(branch.translated(-2, -4));
            painter.setPen(Qt::NoPen);
            for (int i = 0; i < 44; ++i)
                spray(painter,
                      branch.pointAtPercent(random.unit())
                          + QPointF(random.between(-80, 80), random.between(-90, 90)),
                      mix(38, 78, t) * random.between(0.7, 1.15));
        };
        if (layer < 2)
            canvas.drawSoft(layer ? 7 : 20, bough);
        else
            canvas.draw(bough);
    }
    canvas.glow({canvas.width() * 0.8, 80}, 900, {255, 250, 236}, 0.45);
}
