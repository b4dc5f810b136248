#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

static void outOfFocus(Canvas &canvas, const QVector<QColor> &colors)
{
    Random &random = canvas.random();
    canvas.gradient({{0, colors.at(0)},
                     {0.68, colors.at(1)},
                     {0.8, colors.at(2)},
                     {1, mix(colors.at(2), Qt::black, 0.2)}});
    canvas.drawSoft(44, [&](QPainter &painter) {
        for (int i = 0; i < 60; ++i) {
            painter.setBrush(
                withAlpha(colors.at(random.below(colors.size())), random.between(0.2, 0.6)));
            const double radius = random.between(40, 150);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 700),
                                radius, radius);
        }
    });
    canvas.drawSoft(5, [&](QPainter &painter) {
        for (int i = 0; i < 24; ++i) {
            painter.setBrush(
                withAlpha(mix(colors.last(), Qt::white, 0.4), random.between(0.08, 0.28)));
            const double radius = random.between(18, 60);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 640),
                                radius, radius);
        }
    });
}

/// Short strokes over a shape, following `direction` (radians) at each point.
static void fur(Canvas &canvas, const QPainterPath &shape, double length, int count,
                const std::function<QColor(const QPointF &)> &color,
                const std::function<double(const QPointF &)> &direction)
{
    Random &random = canvas.random();
    const QRectF area = shape.boundingRect();
    canvas.draw([&](QPainter &painter) {
        painter.fillPath(shape, color(area.center()));
        for (int i = 0; i < count; ++i) {
            const QPointF at(mix(area.left(), area.right(), random.unit()),
                             mix(area.top(), area.bottom(), random.unit()));
            if (!shape.contains(at))
                continue;
            const double turn = direction(at) + random.between(-0.3, 0.3);
            const double reach = length * random.between(0.6, 1.3);
            const double light = random.between(-0.16, 0.2);
            const QColor hair = mix(color(at), light < 0 ? QColor(Qt::black) : QColor(Qt::white),
                                    std::abs(light));
            painter.setPen(
                QPen(withAlpha(hair, 0.75), random.between(1.4, 3.4), Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(at, at + QPointF(std::cos(turn), std::sin(turn)) * reach);
        }
        painter.setPen(Qt::NoPen);
    });
}

static void eye(QPainter &painter, const QPointF &at, double radius, const QColor &iris, bool slit)
{
    painter.setBrush(QColor(24, 18, 18));
    painter.drawEllipse(at, radius * 1.14, radius * 1.06);
    QRadialGradient ball(at + QPointF(0, radius * 0.3), radius * 1.2);
    ball.setColorAt(0, mix(iris, QColor(255, 255, 200), 0.5));
    ball.setColorAt(1, mix(iris, Qt::black, 0.3));
    painter.setBrush(ball);
    painter.drawEllipse(at, radius, radius * 0.93);
    painter.setBrush(QColor(10, 8, 10));
    painter.drawEllipse(at, radius * (slit ? 0.42 : 0.62), radius * (slit ? 0.8 : 0.62));
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawEllipse(at - QPointF(radius * 0.34, radius * 0.38), radius * 0.22, radius * 0.2);
    painter.setBrush(QColor(255, 255, 255, 110));
    painter.drawEllipse(at + QPointF(radius * 0.32, radius * 0.36), radius * 0.13, radius * 0.11);
}

void Scenes::cat(Canvas &canvas, int variant)
{
    variant %= 2;
    outOfFocus(
        canvas,
        variant ? QVector<QColor>{{226, 206, 190}, {196, 160, 140}, {150, 110, 96}, {255, 240, 220}}
                : QVector<QColor>{{110, 140, 130}, {80, 110, 100}, {60, 74, 66}, {250, 230, 170}});
    const QColor coat = variant ? QColor(226, 140, 66) : QColor(132, 132, 140);
    const QColor stripe = variant ? QColor(176, 88, 30) : QColor(64, 64, 74);
    const QColor white(250, 244, 236);
    const QPointF c(canvas.width() * 0.5, 420);
    constexpr double s = 250;
    canvas.glow({canvas.width() * 0.15, 90}, 800, {255, 240, 200}, 0.5);
    QPainterPath body(c + QPointF(-0.55, 0.5) * s);
    body.cubicTo(c + QPointF(-1.2, 1.2) * s, c + QPointF(-1.25, 2.0) * s,
                 c + QPointF(-1.2, 2.5) * s);
    body.lineTo(c + QPointF(1.2, 2.5) * s);
    body.cubicTo(c + QPointF(1.25, 2.0) * s, c + QPointF(1.2, 1.2) * s, c + QPointF(0.55, 0.5) * s);
    fur(
        canvas, body, 34, 9000,
        [&](const QPointF &p) {
            const double chest = std::exp(-std::pow((p.x() - c.x()) / (0.42 * s), 2))
                * smoothstep(c.y() + 0.6 * s, c.y() + s, p.y());
            const double band = smoothstep(
                0.2, 0.8, std::sin((p.y() - c.y()) / 26 + 0.6 * std::sin(p.x() / 60)));
            return mix(mix(coat, stripe, 0.55 * band), white, chest);
        },
        [&](const QPointF &p) { return 1.57 + (p.x() - c.x()) / (s * 4); });
    for (int side = -1; side <= 1; side += 2) {
        QPainterPath ear(c + QPointF(0.92 * side, -0.3) * s);
        ear.quadTo(c + QPointF(0.98 * side, -0.9) * s, c + QPointF(0.84 * side, -1.28) * s);
        ear.quadTo(c + QPointF(0.4 * side, -1.05) * s, c + QPointF(0.16 * side, -0.7) * s);
        ear.closeSubpath();
        fur(
            canvas, ear, 20, 1600, [&](const QPointF &) { return mix(coat, stripe, 0.25); },
            [&](const QPointF &) { return -1.57 + side * 0.4; });
        QPainterPath inner(c + QPointF(0.8 * side, -0.5) * s);
        inner.quadTo(c + QPointF(0.87 * side, -0.85) * s, c + QPointF(0.78 * side, -1.1) * s);
        inner.quadTo(c + QPointF(0.5 * side, -0.92) * s, c + QPointF(0.34 * side, -0.68) * s);
        canvas.drawSoft(4,
                        [&](QPainter &painter) { painter.fillPath(inner, QColor(222, 150, 140)); });
    }
    QPainterPath head(c + QPointF(0, -0.82) * s);
    head.cubicTo(c + QPointF(0.7, -0.86) * s, c + QPointF(1.1, -0.3) * s,
                 c + QPointF(1.04, 0.2) * s);
    head.cubicTo(c + QPointF(1.0, 0.7) * s, c + QPointF(0.4, 0.92) * s, c + QPointF(0, 0.92) * s);
    head.cubicTo(c + QPointF(-0.4, 0.92) * s, c + QPointF(-1.0, 0.7) * s,
                 c + QPointF(-1.04, 0.2) * s);
    head.cubicTo(c + QPointF(-1.1, -0.3) * s, c + QPointF(-0.7, -0.86) * s,
                 c + QPointF(0, -0.82) * s);
    fur(
        canvas, head, 26, 15000,
        [&](const QPointF &p) {
            const QPointF u = (p - c) / s;
            const double muzzle = std::exp(
                                      -(u.x() * u.x() / 0.2 + std::pow(u.y() - 0.52, 2) / 0.12))
                + 0.7 * std::exp(-(u.x() * u.x() / 0.012)) * smoothstep(-0.4, 0.4, u.y());
            const double forehead = smoothstep(0.35, 0.9, std::sin(u.x() * 24))
                * smoothstep(-0.1, -0.5, u.y());
            const double cheek = smoothstep(0.3, 0.9,
                                            std::sin((u.y() + std::abs(u.x()) * 0.3) * 22))
                * smoothstep(0.55, 0.85, std::abs(u.x()));
            const double shade = 0.3 * smoothstep(-0.4, 1.1, u.x() + u.y() * 0.6);
            return mix(mix(mix(coat, stripe, 0.75 * std::max(forehead, cheek)), white,
                           std::min(1.0, muzzle)),
                       QColor(40, 20, 40), shade);
        },
        [&](const QPointF &p) { return std::atan2(p.y() - c.y() - 0.2 * s, p.x() - c.x()); });
    canvas.draw([&](QPainter &painter) {
        for (int side = -1; side <= 1; side += 2)
            eye(painter, c + QPointF(0.42 * side, 0) * s, s * 0.185,
                variant ? QColor(210, 160, 40) : QColor(110, 170, 80), true);
        QPainterPath nose(c + QPointF(-0.11, 0.34) * s);
        nose.quadTo(c + QPointF(0, 0.3) * s, c + QPointF(0.11, 0.34) * s);
        nose.quadTo(c + QPointF(0.05, 0.46) * s, c + QPointF(0, 0.47) * s);
        nose.quadTo(c + QPointF(-0.05, 0.46) * s, c + QPointF(-0.11, 0.34) * s);
        painter.fillPath(nose, QColor(214, 120, 116));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(90, 50, 50), 5, Qt::SolidLine, Qt::RoundCap));
        for (int side = -1; side <= 1; side += 2) {
            QPainterPath lip(c + QPointF(0, 0.47) * s);
            lip.cubicTo(c + QPointF(0.01 * side, 0.62) * s, c + QPointF(0.2 * side, 0.66) * s,
                        c + QPointF(0.28 * side, 0.55) * s);
            painter.drawPath(lip);
        }
        for (int side = -1; side <= 1; side += 2)
            for (int i = 0; i < 4; ++i) {
                QPainterPath whisker(c + QPointF(0.24 * side, 0.46 + 0.04 * i) * s);
                whisker.quadTo(c + QPointF(0.8 * side, 0.3 + 0.12 * i) * s,
                               c + QPointF(1.4 * side, 0.28 + 0.22 * i) * s);
                painter.setPen(QPen(QColor(255, 255, 255, 210), 2.4, Qt::SolidLine, Qt::RoundCap));
                painter.drawPath(whisker);
            }
    });
}

void Scenes::dog(Canvas &canvas, int variant)
{
    variant %= 2;
    outOfFocus(
        canvas,
        variant
            ? QVector<QColor>{{150, 196, 226}, {196, 216, 206}, {110, 150, 84}, {255, 250, 230}}
            : QVector<QColor>{{250, 200, 120}, {220, 150, 90}, {130, 110, 60}, {255, 230, 170}});
    const QColor coat = variant ? QColor(74, 52, 44) : QColor(222, 170, 104);
    const QColor pale = variant ? QColor(250, 246, 240) : QColor(250, 224, 180);
    const QPointF c(canvas.width() * 0.5, 400);
    constexpr double s = 240;
    canvas.glow({canvas.width() * 0.85, 90}, 800, {255, 236, 190}, 0.5);
    QPainterPath body(c + QPointF(-0.6, 0.6) * s);
    body.cubicTo(c + QPointF(-1.1, 1.2) * s, c + QPointF(-1.2, 2.0) * s,
                 c + QPointF(-1.15, 2.6) * s);
    body.lineTo(c + QPointF(1.15, 2.6) * s);
    body.cubicTo(c + QPointF(1.2, 2.0) * s, c + QPointF(1.1, 1.2) * s, c + QPointF(0.6, 0.6) * s);
    fur(
        canvas, body, 48, 9000,
        [&](const QPointF &p) {
            return mix(coat, pale, std::exp(-std::pow((p.x() - c.x()) / (0.5 * s), 2)) * 0.9);
        },
        [&](const QPointF &p) { return 1.57 + 0.5 * std::sin((p.x() - c.x()) / 70); });
    canvas.draw([&](QPainter &painter) {
        QPainterPath collar(c + QPointF(-0.66, 0.86) * s);
        collar.quadTo(c + QPointF(0, 1.3) * s, c + QPointF(0.66, 0.86) * s);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(190, 44, 50), 34, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(collar);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(240, 200, 90));
        painter.drawEllipse(c + QPointF(0, 1.2) * s, 30, 32);
    });
    QPainterPath head(c + QPointF(0, -0.86) * s);
    head.cubicTo(c + QPointF(0.6, -0.9) * s, c + QPointF(0.86, -0.4) * s,
                 c + QPointF(0.76, 0.1) * s);
    head.cubicTo(c + QPointF(0.7, 0.56) * s, c + QPointF(0.5, 0.98) * s, c + QPointF(0, 0.98) * s);
    head.cubicTo(c + QPointF(-0.5, 0.98) * s, c + QPointF(-0.7, 0.56) * s,
                 c + QPointF(-0.76, 0.1) * s);
    head.cubicTo(c + QPointF(-0.86, -0.4) * s, c + QPointF(-0.6, -0.9) * s,
                 c + QPointF(0, -0.86) * s);
    fur(
        canvas, head, 28, 13000,
        [&](const QPointF &p) {
            const QPointF u = (p - c) / s;
            const double muzzle = std::exp(
                -(u.x() * u.x() / 0.16 + std::pow(u.y() - 0.52, 2) / 0.16));
            const double blaze = variant
                ? std::exp(-u.x() * u.x() / 0.02) * smoothstep(0.6, -0.2, u.y() * 0.4)
                : 0;
            const double shade = 0.24 * smoothstep(-0.4, 1.1, -u.x() + u.y() * 0.6);
            return mix(mix(coat, pale, std::min(1.0, 0.95 * muzzle + blaze)), QColor(50, 20, 30),
                       shade);
        },
        [&](const QPointF &p) { return std::atan2(p.y() - c.y() - 0.1 * s, p.x() - c.x()); });
    for (int side = -1; side <= 1; side += 2) {
        QPainterPath ear(c + QPointF(0.42 * side, -0.78) * s);
        ear.cubicTo(c + QPointF(0.95 * side, -0.95) * s, c + QPointF(1.2 * side, -0.2) * s,
                    c + QPointF(1.04 * side, 0.46) * s);
        ear.cubicTo(c + QPointF(0.9 * side, 0.62) * s, c + QPointF(0.66 * side, 0.3) * s,
                    c + QPointF(0.62 * side, -0.1) * s);
        ear.closeSubpath();
        fur(
            canvas, ear, 34, 3600,
            [&](const QPointF &) { return mix(coat, QColor(90, 40, 20), 0.3); },
            [&](const QPointF &) { return 1.57 - side * 0.2; });
    }
    canvas.draw([&](QPainter &painter) {
        for (int side = -1; side <= 1; side += 2) {
            eye(painter, c + QPointF(0.3 * side, -0.08) * s, s * 0.12, {96, 54, 26}, false);
            painter.setBrush(withAlpha(mix(coat, pale, 0.5), 0.8));
            painter.drawEllipse(c + QPointF(0.29 * side, -0.32) * s, s * 0.08, s * 0.04);
        }
        QPainterPath tongue(c + QPointF(-0.12, 0.68) * s);
        tongue.cubicTo(c + QPointF(-0.2, 1.1) * s, c + QPointF(0.2, 1.1) * s,
                       c + QPointF(0.14, 0.68) * s);
        QLinearGradient pink(0, c.y() + 0.66 * s, 0, c.y() + s);
        pink.setColorAt(0, {190, 70, 80});
        pink.setColorAt(1, {244, 140, 140});
        painter.fillPath(tongue, pink);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(50, 28, 26), 8, Qt::SolidLine, Qt::RoundCap));
        for (int side = -1; side <= 1; side += 2) {
            QPainterPath lip(c + QPointF(0, 0.48) * s);
            lip.cubicTo(c + QPointF(0.02 * side, 0.74) * s, c + QPointF(0.3 * side, 0.76) * s,
                        c + QPointF(0.4 * side, 0.54) * s);
            painter.drawPath(lip);
        }
        painter.setPen(Qt::NoPen);
        QRadialGradient leather(c + QPointF(-0.06, 0.24) * s, s * 0.3);
        leather.setColorAt(0, {110, 96, 96});
        leather.setColorAt(1, {24, 18, 20});
        painter.setBrush(leather);
        painter.drawRoundedRect(QRectF(c + QPointF(-0.19, 0.22) * s, QSizeF(0.38, 0.27) * s),
                                s * 0.13, s * 0.13);
        painter.setBrush(QColor(255, 255, 255, 120));
        painter.drawEllipse(c + QPointF(-0.06, 0.27) * s, s * 0.07, s * 0.03);
    });
}

void Scenes::bird(Canvas &canvas, int variant)
{
    variant %= 2;
    Random &random = canvas.random();
    outOfFocus(
        canvas,
        variant
            ? QVector<QColor>{{206, 220, 236}, {180, 200, 222}, {160, 176, 200}, {255, 255, 255}}
            : QVector<QColor>{{150, 180, 90}, {110, 150, 80}, {70, 110, 60}, {250, 240, 160}});
    const QColor back = variant ? QColor(110, 100, 92) : QColor(40, 110, 180);
    const QColor belly = variant ? QColor(222, 92, 44) : QColor(250, 180, 60);
    const QPointF c(canvas.width() * 0.5, 470);
    constexpr double s = 230;
    canvas.draw([&](QPainter &painter) {
        QPainterPath branch(QPointF(-30, 830));
        branch.cubicTo(QPointF(canvas.width() * 0.3, 730), QPointF(canvas.width() * 0.6, 800),
                       QPointF(canvas.width() + 30, 690));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(74, 52, 42), 46, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(branch);
        painter.setPen(QPen(QColor(140, 106, 84), 12, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(branch.translated(0, -13));
        if (variant) {
            painter.setPen(QPen(QColor(250, 252, 255), 20, Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(branch.translated(0, -24));
        }
        painter.setPen(Qt::NoPen);
        if (!variant)
            for (int i = 0; i < 14; ++i) {
                const QPointF at = branch.pointAtPercent(random.unit());
                painter.save();
                painter.translate(at);
                painter.rotate(random.between(-160, -20));
                QPainterPath leaf(QPointF(0, 0));
                leaf.quadTo(QPointF(50, -34), QPointF(120, 0));
                leaf.quadTo(QPointF(50, 34), QPointF(0, 0));
                painter.fillPath(leaf,
                                 mix(QColor(70, 130, 50), QColor(170, 200, 90), random.unit()));
                painter.restore();
            }
    });
    QPainterPath tail(c + QPointF(0.5, 0.5) * s);
    tail.lineTo(c + QPointF(1.85, 1.36) * s);
    tail.lineTo(c + QPointF(1.55, 1.6) * s);
    tail.lineTo(c + QPointF(0.2, 0.95) * s);
    fur(
        canvas, tail, 60, 1400, [&](const QPointF &) { return mix(back, Qt::black, 0.25); },
        [](const QPointF &) { return 0.6; });
    QPainterPath body;
    body.addEllipse(c + QPointF(0.1, 0.45) * s, s * 0.92, s * 0.86);
    QPainterPath head;
    head.addEllipse(c + QPointF(-0.36, -0.42) * s, s * 0.62, s * 0.58);
    const auto plumage = [&](const QPointF &p) {
        const QPointF u = (p - c) / s;
        const double front = smoothstep(0.35, -0.25, u.x() - 0.35 * u.y());
        const double crown = smoothstep(-0.5, -0.72, u.y());
        const double under = smoothstep(0.5, 1.3, u.y());
        return mix(mix(mix(back, belly, front * (1 - crown)), QColor(250, 244, 234), 0.8 * under),
                   QColor(30, 16, 30), 0.2 * smoothstep(0, 1, u.x()));
    };
    fur(canvas, body.united(head), 24, 15000, plumage,
        [&](const QPointF &p) { return 0.9 + 0.3 * (p.y() - c.y()) / s; });
    QPainterPath wing(c + QPointF(-0.1, 0.05) * s);
    wing.cubicTo(c + QPointF(0.6, -0.2) * s, c + QPointF(1.1, 0.4) * s, c + QPointF(1.36, 1.0) * s);
    wing.cubicTo(c + QPointF(0.8, 1.06) * s, c + QPointF(0.0, 0.9) * s,
                 c + QPointF(-0.1, 0.05) * s);
    fur(
        canvas, wing, 50, 4200,
        [&](const QPointF &p) {
            return mix(back, Qt::black, 0.12 + 0.3 * smoothstep(c.y() + 0.4 * s, c.y() + s, p.y()));
        },
        [](const QPointF &) { return 0.66; });
    canvas.draw([&](QPainter &painter) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(withAlpha(mix(back, Qt::white, 0.6), 0.75), 7, Qt::SolidLine, Qt::RoundCap));
        for (int i = 0; i < 3; ++i) {
            QPainterPath bar(c + QPointF(0.16 + 0.1 * i, 0.36 + 0.16 * i) * s);
            bar.quadTo(c + QPointF(0.6 + 0.06 * i, 0.4 + 0.16 * i) * s,
                       c + QPointF(0.96 + 0.1 * i, 0.74 + 0.08 * i) * s);
            painter.drawPath(bar);
        }
        painter.setPen(Qt::NoPen);
        eye(painter, c + QPointF(-0.46, -0.48) * s, s * 0.085, {50, 34, 26}, false);
        QPainterPath beak(c + QPointF(-0.9, -0.5) * s);
        beak.lineTo(c + QPointF(-1.24, -0.33) * s);
        beak.lineTo(c + QPointF(-0.9, -0.26) * s);
        painter.fillPath(beak, QColor(60, 50, 44));
        painter.setPen(QPen(QColor(90, 60, 44), 9, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(c + QPointF(0, 1.24) * s, c + QPointF(-0.04, 1.46) * s);
        painter.drawLine(c + QPointF(0.26, 1.24) * s, c + QPointF(0.26, 1.44) * s);
    });
    if (variant)
        canvas.drawSoft(2, [&](QPainter &painter) {
            for (int i = 0; i < 110; ++i) {
                painter.setBrush(withAlpha(Qt::white, random.between(0.4, 0.95)));
                const double radius = random.between(2, 8);
                painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 1000),
                                    radius, radius);
            }
        });
}
