#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

namespace {

struct CityLook
{
    QGradientStops sky;
    QColor far;
    QColor near;
    QColor window;
    double litShare;
    QColor glow;
    bool night;
};

const CityLook s_cities[] = {
    {{{0, {38, 44, 100}}, {0.3, {130, 90, 150}}, {0.5, {244, 142, 120}}, {0.62, {255, 206, 150}}},
     {178, 118, 140},
     {34, 28, 58},
     {255, 214, 140},
     0.42,
     {255, 180, 120},
     false},
    {{{0, {6, 10, 30}}, {0.4, {20, 32, 76}}, {0.6, {70, 66, 120}}, {0.7, {130, 90, 120}}},
     {46, 52, 96},
     {10, 14, 32},
     {255, 210, 130},
     0.62,
     {255, 160, 90},
     true},
    {{{0, {60, 130, 196}}, {0.4, {160, 206, 232}}, {0.65, {244, 236, 220}}},
     {176, 196, 212},
     {70, 92, 116},
     {226, 240, 250},
     0.25,
     {255, 250, 230},
     false},
    {{{0, {12, 30, 52}}, {0.4, {30, 90, 110}}, {0.58, {120, 170, 160}}, {0.68, {250, 200, 150}}},
     {70, 120, 130},
     {10, 30, 42},
     {255, 226, 160},
     0.5,
     {255, 200, 140},
     true},
};

void tower(QPainter &painter, Random &random, const QRectF &body, const QColor &color,
           const CityLook &look, double t)
{
    QLinearGradient wall(body.left(), 0, body.right(), 0);
    wall.setColorAt(0, mix(color, look.glow, 0.22));
    wall.setColorAt(0.5, color);
    wall.setColorAt(1, mix(color, Qt::black, 0.2));
    painter.fillRect(body, wall);
    const int crown = random.below(5);
    if (crown == 0)
        painter.fillRect(QRectF(body.center().x() - 1.2, body.top() - body.width() * 0.9, 2.4,
                                body.width() * 0.9),
                         color);
    else if (crown == 1)
        painter.fillRect(
            QRectF(body.left() + body.width() * 0.2, body.top() - 14, body.width() * 0.6, 15),
            color);
    else if (crown == 2) {
        painter.setBrush(color);
        painter.drawPolygon(
            QPolygonF({body.topLeft(), QPointF(body.center().x(), body.top() - body.width() * 0.7),
                       body.topRight()}));
    }
    const double pitchX = mix(5, 10, t);
    const double pitchY = mix(7, 13, t);
    const bool bands = random.chance(0.3);
    for (double y = body.top() + pitchY; y < body.bottom() - pitchY; y += pitchY)
        for (double x = body.left() + pitchX * 0.6; x < body.right() - pitchX * 0.7; x += pitchX) {
            const bool on = random.chance(look.litShare * (bands ? 0.8 : 0.6));
            const QColor pane = on
                ? mix(look.window, QColor(220, 236, 255), random.unit() * 0.6)
                : mix(color, look.night ? QColor(Qt::black) : QColor(220, 235, 250), 0.18);
            painter.fillRect(QRectF(x, y, pitchX * (bands ? 0.9 : 0.55), pitchY * 0.5),
                             withAlpha(pane, on ? random.between(0.5, 1) : 0.7));
        }
}

} // namespace

void Scenes::skyline(Canvas &canvas, int variant)
{
    variant %= 4;
    const CityLook &look = s_cities[variant];
    Random &random = canvas.random();
    constexpr double Shore = 700;
    canvas.gradient(look.sky);
    if (look.night)
        stars(canvas, 420, 260);
    clouds(canvas,
           {0.42, 640, mix(look.glow, Qt::white, 0.35), mix(look.far, look.near, 0.25), 0.8, 2},
           {canvas.width() * 0.3, 560});
    if (variant == 0)
        sun(canvas, {canvas.width() * 0.32, 590}, 34, {255, 200, 130}, 0.9);
    canvas.glow({canvas.width() * 0.5, 690}, 800, look.glow, 0.42);
    for (int layer = 0; layer < 4; ++layer) {
        const double t = layer / 3.0;
        const QColor color = mix(look.far, look.near, t);
        const quint32 seed = canvas.newSeed();
        canvas.draw([&](QPainter &painter) {
            double x = -20;
            while (x < canvas.width() + 20) {
                const double wide = mix(26, 66, t) * random.between(0.7, 1.4);
                const double middle = std::exp(-std::pow((x / canvas.width() - 0.55) / 0.33, 2));
                const double high = (mix(120, 150, t) + 300 * middle * (1 - 0.45 * t))
                        * (0.55 + 0.5 * random.unit())
                    + 50 * noise(x / 90, 0.5, seed);
                tower(painter, random,
                      QRectF(x, Shore - std::max(40.0, high), wide, std::max(40.0, high) + 4),
                      color, look, t);
                x += wide * random.between(0.95, 1.5);
            }
        });
        if (layer < 3)
            mist(canvas, Shore - 240, Shore + 60, mix(look.far, look.glow, 0.5), 0.4 * (1 - t));
    }
    canvas.draw([&](QPainter &painter) {
        QLinearGradient quay(0, Shore - 16, 0, Shore + 2);
        quay.setColorAt(0, mix(look.near, look.far, 0.2));
        quay.setColorAt(1, look.near);
        painter.fillRect(QRectF(0, Shore - 14, canvas.width(), 18), quay);
    });
    if (variant != 2)
        for (double x = 20; x < canvas.width(); x += 58)
            canvas.glow({x, Shore - 16}, 26, {255, 214, 150}, 0.95);
    if (variant == 3) {
        canvas.draw([&](QPainter &painter) {
            const double from = -40;
            const double to = canvas.width() + 40;
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(QColor(14, 24, 34), 9));
            painter.drawLine(QPointF(from, 640), QPointF(to, 640));
            for (int i = 0; i < 2; ++i) {
                const double at = mix(from, to, 0.27 + 0.46 * i);
                painter.setPen(QPen(QColor(22, 34, 44), 12));
                painter.drawLine(QPointF(at - 11, 340), QPointF(at - 11, Shore));
                painter.drawLine(QPointF(at + 11, 340), QPointF(at + 11, Shore));
                painter.setPen(QPen(QColor(22, 34, 44), 7));
                painter.drawLine(QPointF(at - 11, 420), QPointF(at + 11, 420));
            }
            const double a = mix(from, to, 0.27);
            const double b = mix(from, to, 0.73);
            QPainterPath cable(QPointF(from - 240, 640));
            cable.quadTo((from + a) / 2, 560, a, 345);
            cable.quadTo((a + b) / 2, 880, b, 345);
            cable.quadTo((b + to) / 2, 560, to + 240, 640);
            painter.setPen(QPen(QColor(26, 40, 50), 4));
            painter.drawPath(cable);
            painter.setPen(QPen(QColor(26, 40, 50, 170), 1.4));
            for (double p = 0; p < 1; p += 0.008) {
                const QPointF point = cable.pointAtPercent(p);
                painter.drawLine(point, QPointF(point.x(), 640));
            }
        });
        for (double x = 10; x < canvas.width(); x += 42)
            canvas.glow({x, 636}, 18, {255, 230, 170}, 0.9);
    }
    canvas.mirror(Shore, variant == 2 ? 0.7 : 0.5, mix(look.near, look.sky.first().second, 0.4),
                  variant == 2 ? 0.5 : 0.3);
    if (variant == 0)
        glitter(canvas, canvas.width() * 0.32, Shore, 990, 130, {255, 210, 150}, 500);
}

static void bokeh(Canvas &canvas, double top, double bottom, int count, double low, double high,
                  const QVector<QColor> &colors)
{
    Random &random = canvas.random();
    canvas.drawSoft(3, [&](QPainter &painter) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        for (int i = 0; i < count; ++i) {
            const QColor color = colors.at(random.below(colors.size()));
            const QPointF at(random.unit() * canvas.width(), mix(top, bottom, random.unit()));
            const double radius = random.between(low, high);
            QRadialGradient disc(at, radius);
            const double strength = random.between(0.14, 0.6);
            disc.setColorAt(0, withAlpha(color, strength * 0.75));
            disc.setColorAt(0.82, withAlpha(mix(color, Qt::white, 0.15), strength));
            disc.setColorAt(1, withAlpha(color, strength * 0.4));
            painter.setBrush(disc);
            painter.drawEllipse(at, radius, radius);
        }
    });
}

void Scenes::street(Canvas &canvas, int variant)
{
    variant %= 3;
    Random &random = canvas.random();
    if (variant == 2) {
        // old town on a slope: gabled houses in warm colours
        canvas.gradient({{0, {60, 120, 190}}, {0.4, {170, 204, 226}}, {0.7, {250, 232, 204}}});
        clouds(canvas, {0.5, 560, {255, 250, 240}, {180, 190, 210}, 0.9, 1.3},
               {canvas.width() * 0.8, 120});
        static const QColor s_walls[] = {{238, 190, 110}, {222, 130, 98},  {246, 226, 190},
                                         {170, 190, 176}, {206, 160, 150}, {150, 176, 200}};
        for (int layer = 0; layer < 6; ++layer) {
            const double t = layer / 5.0;
            const Ridge slope = downs(canvas, mix(470, 900, t), 46, 420, 2);
            canvas.draw([&](QPainter &painter) {
                for (double x = -30; x < canvas.width() + 30;) {
                    const double wide = mix(34, 120, t) * random.between(0.8, 1.3);
                    const double high = mix(54, 190, t) * random.between(0.8, 1.3);
                    const double foot = slope.at(std::clamp(x, 0.0, canvas.width()));
                    const QColor hazed = mix(s_walls[random.below(6)], QColor(226, 226, 226),
                                             0.5 * (1 - t));
                    const QRectF wall(x, foot - high, wide, 1000 - foot + high);
                    QLinearGradient side(wall.left(), 0, wall.right(), 0);
                    side.setColorAt(0, mix(hazed, QColor(90, 80, 110), 0.26));
                    side.setColorAt(1, mix(hazed, QColor(255, 240, 210), 0.3));
                    painter.fillRect(wall, side);
                    const QColor tiles = mix(
                        mix(QColor(176, 76, 46), QColor(206, 110, 66), random.unit()),
                        QColor(220, 216, 216), 0.5 * (1 - t));
                    const double eave = wide * 0.07;
                    const double ridgeHeight = wide * random.between(0.4, 0.62);
                    QPainterPath roof(QPointF(wall.left() - eave, wall.top() + 2));
                    roof.lineTo(wall.left() + wide * 0.5, wall.top() - ridgeHeight);
                    roof.lineTo(wall.right() + eave, wall.top() + 2);
                    roof.closeSubpath();
                    QLinearGradient tile(wall.left(), 0, wall.right(), 0);
                    tile.setColorAt(0, mix(tiles, QColor(70, 40, 60), 0.3));
                    tile.setColorAt(0.49, mix(tiles, QColor(70, 40, 60), 0.2));
                    tile.setColorAt(0.52, mix(tiles, QColor(255, 220, 170), 0.25));
                    tile.setColorAt(1, tiles);
                    painter.fillPath(roof, tile);
                    const double pane = wide * 0.14;
                    for (int row = 0; row < 2; ++row)
                        for (int column = 0; column < 3; ++column) {
                            const QRectF window(wall.left() + wide * (0.14 + 0.28 * column),
                                                wall.top() + high * (0.16 + 0.34 * row), pane,
                                                pane * 1.5);
                            painter.fillRect(window.adjusted(-1.5, -1.5, 1.5, 1.5),
                                             mix(hazed, Qt::white, 0.6));
                            painter.fillRect(window,
                                             mix(QColor(54, 66, 90), QColor(255, 220, 150),
                                                 random.chance(0.18) ? 0.8 : 0.1 + 0.3 * (1 - t)));
                        }
                    x += wide * random.between(0.98, 1.12);
                }
            });
            if (layer < 5)
                mist(canvas, mix(380, 760, t), mix(560, 950, t), {250, 236, 214}, 0.28 * (1 - t));
        }
        canvas.glow({canvas.width() * 0.85, 200}, 1000, {255, 226, 170}, 0.4);
        return;
    }
    const bool rain = variant == 1;
    const QVector<QColor> lamps = rain
        ? QVector<QColor>{{255, 120, 90}, {80, 200, 230}, {255, 200, 120}, {190, 120, 255}}
        : QVector<QColor>{{255, 190, 100}, {255, 140, 80}, {255, 226, 170}, {250, 90, 80}};
    canvas.gradient({{0, rain ? QColor(16, 20, 44) : QColor(34, 26, 50)},
                     {0.45, rain ? QColor(44, 54, 92) : QColor(120, 70, 80)},
                     {0.62, rain ? QColor(66, 70, 110) : QColor(206, 130, 90)},
                     {1, {16, 16, 28}}});
    const double vanish = canvas.width() * 0.5;
    canvas.glow({vanish, 560}, 500, lamps.at(2), 0.7);
    canvas.drawSoft(rain ? 7 : 4, [&](QPainter &painter) {
        for (int side = -1; side <= 1; side += 2)
            for (int i = 0; i < 7; ++i) {
                const double t0 = std::pow(i / 7.0, 1.7);
                const double t1 = std::pow((i + 1) / 7.0, 1.7);
                const double x0 = vanish + side * (40 + (canvas.width() * 0.56) * t0);
                const double x1 = vanish + side * (40 + (canvas.width() * 0.56) * t1);
                const double y0 = 560 - 130 - 620 * t0 + random.between(-20, 40);
                QColor wall = mix(lamps.at(2), QColor(24, 20, 40), 0.55 + 0.45 * t1);
                painter.setBrush(wall);
                painter.drawPolygon(QPolygonF({{x0, y0},
                                               {x1, y0 - 500 * (t1 - t0)},
                                               {x1, 580 + 260 * t1},
                                               {x0, 580 + 260 * t0}}));
                for (int row = 0; row < 7; ++row)
                    for (int column = 0; column < 3; ++column)
                        if (random.chance(0.55)) {
                            const double u = mix(x0, x1, 0.15 + 0.3 * column);
                            const double size = 4 + 26 * t1;
                            painter.fillRect(
                                QRectF(u, mix(y0, 560, 0.1 + 0.125 * row), size * 0.6, size),
                                withAlpha(lamps.at(random.below(lamps.size())), 0.75));
                        }
            }
    });
    canvas.mirror(610, rain ? 1.3 : 0.9, {16, 16, 30}, 0.5);
    bokeh(canvas, 380, 640, 46, 8, 30, lamps);
    bokeh(canvas, 600, 980, 40, 10, 34, lamps);
    bokeh(canvas, 250, 900, 22, 36, 70, lamps);
    const QColor figure(14, 12, 22);
    canvas.drawSoft(1.2, [&](QPainter &painter) {
        painter.setBrush(figure);
        const QPointF foot(vanish - 70, 880);
        QPainterPath coat(foot + QPointF(-48, -230));
        coat.quadTo(foot + QPointF(-66, -100), foot + QPointF(-60, -70));
        coat.lineTo(foot + QPointF(58, -70));
        coat.quadTo(foot + QPointF(64, -110), foot + QPointF(46, -230));
        coat.quadTo(foot + QPointF(0, -262), foot + QPointF(-48, -230));
        painter.drawPath(coat);
        painter.drawRoundedRect(QRectF(foot + QPointF(-36, -80), QSizeF(24, 86)), 8, 8);
        painter.drawRoundedRect(QRectF(foot + QPointF(10, -80), QSizeF(24, 80)), 8, 8);
        painter.drawEllipse(foot + QPointF(0, -272), 25, 31);
        if (rain) {
            QPainterPath umbrella(foot + QPointF(-150, -300));
            umbrella.cubicTo(foot + QPointF(-120, -430), foot + QPointF(120, -430),
                             foot + QPointF(150, -300));
            for (int i = 0; i < 4; ++i)
                umbrella.quadTo(foot + QPointF(112 - i * 75, -330),
                                foot + QPointF(75 - i * 75, -300));
            QLinearGradient cloth(foot.x() - 150, 0, foot.x() + 150, 0);
            cloth.setColorAt(0, QColor(250, 80, 70));
            cloth.setColorAt(1, QColor(120, 20, 40));
            painter.fillPath(umbrella, cloth);
            painter.fillRect(QRectF(foot + QPointF(-2, -400), QSizeF(4, 200)), figure);
        }
    });
    if (rain)
        canvas.draw([&](QPainter &painter) {
            for (int i = 0; i < 420; ++i) {
                painter.setPen(QPen(withAlpha(QColor(210, 224, 250), random.between(0.05, 0.3)),
                                    random.between(0.8, 2)));
                const QPointF at(random.unit() * canvas.width(), random.unit() * 1000);
                painter.drawLine(at, at + QPointF(-5, random.between(20, 60)));
            }
        });
}

void Scenes::balloons(Canvas &canvas, int variant)
{
    variant %= 2;
    Random &random = canvas.random();
    const QPointF light(canvas.width() * (variant ? 0.75 : 0.25), 620);
    if (variant)
        canvas.gradient({{0, {50, 120, 200}}, {0.5, {160, 208, 236}}, {0.75, {255, 236, 206}}});
    else
        canvas.gradient({{0, {88, 110, 170}}, {0.4, {226, 166, 160}}, {0.7, {255, 214, 160}}});
    clouds(canvas, {0.35, 760, {255, 240, 226}, {200, 170, 180}, 0.8, 1.8}, light);
    sun(canvas, light, 26, {255, 214, 150}, 0.8);
    for (int i = 0; i < 4; ++i) {
        const double t = i / 3.0;
        const Ridge ridge = peaks(canvas, mix(780, 980, t), mix(130, 90, t), mix(200, 150, t), 4);
        Rock look;
        look.dark = mix(QColor(190, 130, 120), QColor(84, 50, 54), t);
        look.lit = mix(QColor(250, 200, 160), QColor(214, 140, 96), t);
        look.haze = QColor(255, 214, 176);
        look.hazeTop = 0.5 * (1 - t);
        look.hazeBottom = 0.95 - 0.5 * t;
        look.lightFrom = variant ? -1 : 1;
        rock(canvas, ridge, 1010, look);
    }
    static const QColor s_cloth[][3] = {{{226, 66, 60}, {252, 232, 200}, {250, 170, 50}},
                                        {{40, 110, 180}, {250, 246, 230}, {240, 90, 80}},
                                        {{250, 190, 50}, {230, 90, 60}, {120, 40, 90}},
                                        {{60, 160, 140}, {250, 240, 210}, {240, 140, 60}},
                                        {{150, 80, 180}, {250, 210, 220}, {250, 150, 80}}};
    const int count = variant ? 9 : 12;
    for (int i = 0; i < count; ++i) {
        const double t = std::pow((i + 0.5) / count, 1.8);
        const double size = mix(16, 150, t);
        const QPointF at(canvas.width()
                             * (i == count - 1 ? 0.66 - 0.3 * variant : random.between(0.06, 0.94)),
                         i == count - 1 ? 380 : random.between(120, 640));
        const auto &cloth = s_cloth[(i + variant) % 5];
        canvas.draw([&](QPainter &painter) {
            QPainterPath envelope(at + QPointF(-size * 0.2, size * 1.25));
            envelope.cubicTo(at + QPointF(-size * 0.5, size * 0.8),
                             at + QPointF(-size, size * 0.45), at + QPointF(-size, -size * 0.08));
            envelope.cubicTo(at + QPointF(-size, -size * 1.28), at + QPointF(size, -size * 1.28),
                             at + QPointF(size, -size * 0.08));
            envelope.cubicTo(at + QPointF(size, size * 0.45), at + QPointF(size * 0.5, size * 0.8),
                             at + QPointF(size * 0.2, size * 1.25));
            envelope.closeSubpath();
            painter.save();
            painter.setClipPath(envelope);
            painter.fillRect(QRectF(at - QPointF(size, size * 1.1), QSizeF(size * 2, size * 2.5)),
                             cloth[0]);
            for (int gore = 0; gore < 6; ++gore) {
                const double half = size * std::cos((gore + 0.5) / 6 * 1.5708);
                painter.setBrush(gore % 2 ? cloth[0] : cloth[1]);
                painter.drawEllipse(at + QPointF(0, size * 0.05), std::max(half, 1.0), size * 1.4);
            }
            painter.fillRect(QRectF(at + QPointF(-size, size * 0.1), QSizeF(size * 2, size * 0.24)),
                             withAlpha(cloth[2], 0.9));
            QLinearGradient shadow(at.x() - size, at.y() - size, at.x() + size,
                                   at.y() + size * 0.6);
            const bool fromLeft = light.x() < at.x();
            shadow.setColorAt(0, fromLeft ? QColor(255, 245, 220, 110) : QColor(40, 20, 60, 130));
            shadow.setColorAt(0.5, QColor(0, 0, 0, 0));
            shadow.setColorAt(1, fromLeft ? QColor(40, 20, 60, 140) : QColor(255, 240, 210, 90));
            painter.fillRect(QRectF(at - QPointF(size, size * 1.2), QSizeF(size * 2, size * 2.6)),
                             shadow);
            painter.restore();
            painter.setPen(QPen(QColor(80, 50, 40, 200), std::max(0.7, size * 0.014)));
            painter.drawLine(at + QPointF(-size * 0.19, size * 1.25),
                             at + QPointF(-size * 0.12, size * 1.52));
            painter.drawLine(at + QPointF(size * 0.19, size * 1.25),
                             at + QPointF(size * 0.12, size * 1.52));
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(116, 70, 40));
            painter.drawRoundedRect(
                QRectF(at + QPointF(-size * 0.14, size * 1.5), QSizeF(size * 0.28, size * 0.22)),
                size * 0.04, size * 0.04);
            if (t < 0.6) {
                painter.setOpacity(0.42 * (1 - t));
                painter.fillPath(envelope, QColor(255, 220, 186));
            }
        });
    }
    canvas.glow(light, 1100, {255, 214, 150}, 0.35);
}
