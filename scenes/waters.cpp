#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

namespace {

struct SeaLook
{
    QGradientStops sky;
    QPointF sun;
    QColor sunColor;
    double sunStrength;
    QColor water;
    double murk;
    double cover;
    QColor cloudLit;
    QColor cloudShade;
    QColor land;
};

const SeaLook s_seas[] = {
    {{{0, {44, 50, 104}}, {0.3, {150, 84, 134}}, {0.48, {244, 128, 96}}, {0.6, {255, 204, 110}}},
     {0.5, 0.55},
     {255, 176, 84},
     1,
     {40, 30, 66},
     0.35,
     0.5,
     {255, 150, 100},
     {96, 54, 104},
     {34, 22, 48}},
    {{{0, {30, 104, 190}}, {0.4, {120, 184, 226}}, {0.6, {218, 236, 240}}},
     {0.2, 0.12},
     {255, 252, 232},
     0.5,
     {16, 96, 140},
     0.75,
     0.5,
     {255, 255, 255},
     {176, 194, 214},
     {60, 84, 80}},
    {{{0, {70, 92, 120}}, {0.35, {162, 172, 184}}, {0.6, {240, 224, 206}}},
     {0.74, 0.46},
     {255, 232, 200},
     0.7,
     {62, 84, 100},
     0.5,
     0.72,
     {246, 234, 224},
     {120, 130, 150},
     {42, 46, 58}},
    {{{0, {20, 30, 78}}, {0.35, {70, 80, 150}}, {0.5, {190, 130, 170}}, {0.6, {255, 190, 170}}},
     {0.3, 0.57},
     {255, 190, 160},
     0.8,
     {24, 30, 76},
     0.4,
     0.35,
     {255, 180, 170},
     {80, 76, 140},
     {16, 18, 46}},
    {{{0, {8, 14, 40}}, {0.4, {24, 48, 96}}, {0.6, {80, 116, 164}}},
     {0.6, 0.2},
     {200, 216, 250},
     0,
     {6, 14, 36},
     0.4,
     0.4,
     {140, 160, 200},
     {26, 40, 76},
     {4, 8, 20}},
    {{{0, {26, 128, 160}}, {0.35, {120, 200, 206}}, {0.6, {252, 236, 200}}},
     {0.7, 0.4},
     {255, 238, 190},
     0.8,
     {14, 120, 134},
     0.6,
     0.45,
     {255, 248, 232},
     {150, 190, 200},
     {30, 70, 74}},
};

void sailBoat(QPainter &painter, const QPointF &at, double size, const QColor &hull,
              const QColor &sail)
{
    QPainterPath body(at + QPointF(-0.5, -0.05) * size);
    body.quadTo(at + QPointF(0, 0.02) * size, at + QPointF(0.55, -0.09) * size);
    body.quadTo(at + QPointF(0.42, 0.09) * size, at + QPointF(0.3, 0.08) * size);
    body.lineTo(at + QPointF(-0.36, 0.08) * size);
    body.closeSubpath();
    painter.fillPath(body, hull);
    painter.fillRect(QRectF(at + QPointF(0.03, -1.25) * size, QSizeF(0.022, 1.2) * size), hull);
    QPainterPath main(at + QPointF(0.02, -1.22) * size);
    main.quadTo(at + QPointF(-0.26, -0.6) * size, at + QPointF(-0.44, -0.14) * size);
    main.lineTo(at + QPointF(0.02, -0.12) * size);
    painter.fillPath(main, sail);
    QPainterPath jib(at + QPointF(0.07, -1.1) * size);
    jib.quadTo(at + QPointF(0.2, -0.6) * size, at + QPointF(0.5, -0.14) * size);
    jib.lineTo(at + QPointF(0.08, -0.16) * size);
    painter.fillPath(jib, mix(sail, hull, 0.18));
}

void lighthouse(Canvas &canvas, const QPointF &foot, double height, const QColor &shade)
{
    canvas.draw([&](QPainter &painter) {
        const double half = height * 0.1;
        QPainterPath tower(foot + QPointF(-half, 0));
        tower.lineTo(foot + QPointF(-half * 0.62, -height * 0.8));
        tower.lineTo(foot + QPointF(half * 0.62, -height * 0.8));
        tower.lineTo(foot + QPointF(half, 0));
        QLinearGradient white(foot.x() - half, 0, foot.x() + half, 0);
        white.setColorAt(0, QColor(252, 246, 236));
        white.setColorAt(1, mix(shade, QColor(200, 190, 190), 0.55));
        painter.fillPath(tower, white);
        painter.setClipPath(tower);
        for (int i = 0; i < 3; ++i)
            painter.fillRect(QRectF(foot.x() - half, foot.y() - height * (0.7 - 0.27 * i), half * 2,
                                    height * 0.13),
                             QColor(196, 58, 46, 225));
        painter.setClipping(false);
        painter.fillRect(
            QRectF(foot.x() - half * 0.85, foot.y() - height * 0.825, half * 1.7, height * 0.03),
            QColor(50, 50, 60));
        painter.fillRect(
            QRectF(foot.x() - half * 0.42, foot.y() - height * 0.92, half * 0.84, height * 0.1),
            QColor(255, 240, 190));
        QPainterPath roof(foot + QPointF(-half * 0.6, -height * 0.915));
        roof.lineTo(foot + QPointF(0, -height));
        roof.lineTo(foot + QPointF(half * 0.6, -height * 0.915));
        painter.fillPath(roof, QColor(150, 40, 38));
    });
    canvas.glow(foot + QPointF(0, -height * 0.87), height * 0.5, QColor(255, 226, 150), 0.8);
}

void gulls(Canvas &canvas, int count, const QColor &color)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < count; ++i) {
            const QPointF at(random.between(0.1, 0.9) * canvas.width(), random.between(120, 430));
            const double span = random.between(10, 26);
            QPainterPath wings(at + QPointF(-span, -span * 0.25));
            wings.quadTo(at + QPointF(-span * 0.45, -span * 0.55), at);
            wings.quadTo(at + QPointF(span * 0.45, -span * 0.6), at + QPointF(span, -span * 0.3));
            wings.quadTo(at + QPointF(span * 0.4, -span * 0.35), at + QPointF(0, span * 0.14));
            wings.quadTo(at + QPointF(-span * 0.4, -span * 0.3), at + QPointF(-span, -span * 0.25));
            painter.fillPath(wings, color);
        }
    });
}

} // namespace

void Scenes::sea(Canvas &canvas, int variant)
{
    variant %= 6;
    const SeaLook &look = s_seas[variant];
    constexpr double Horizon = 590;
    const QPointF light(look.sun.x() * canvas.width(), look.sun.y() * Canvas::Height);
    canvas.gradient(look.sky);
    if (variant == 4)
        stars(canvas, 520, 700);
    clouds(canvas, {look.cover, Horizon, look.cloudLit, look.cloudShade, 0.85, 2.2}, light);
    if (variant == 4)
        moon(canvas, light, 46, 0.1);
    else
        sun(canvas, light, 30, look.sunColor, look.sunStrength);

    const auto coast = [&](double base, double amplitude, double breadth, double from, double to,
                           const QColor &color) {
        Ridge ridge = peaks(canvas, base, amplitude, breadth, 5);
        for (int i = 0; i < ridge.tops.size(); ++i) {
            const double x = i * Ridge::Step / canvas.width();
            const double inside = smoothstep(from - 0.12, from + 0.1, x)
                * smoothstep(to + 0.12, to - 0.1, x);
            ridge.tops[i] = mix(Horizon + 12, ridge.tops.at(i), inside);
        }
        Rock rockLook;
        rockLook.dark = color;
        rockLook.lit = mix(color, look.sunColor, 0.35);
        rockLook.haze = mix(color, look.cloudLit, 0.5);
        rockLook.hazeTop = 0.05;
        rockLook.hazeBottom = 0.5;
        rockLook.lightFrom = look.sun.x() < 0.5 ? 1 : -1;
        canvas.draw([&](QPainter &) {});
        rock(canvas, ridge, Horizon + 2, rockLook);
        return ridge;
    };
    const QColor distant = mix(look.land, look.cloudLit, 0.55);
    if (variant != 1)
        coast(Horizon + 20, 130, 300, variant % 2 ? 0.0 : 0.55, variant % 2 ? 0.45 : 1.0, distant);
    if (variant == 2 || variant == 5) {
        const Ridge cape = coast(Horizon + 30, 260, 330, -0.2, 0.3, look.land);
        const double x = 0.24 * canvas.width();
        if (variant == 2)
            lighthouse(canvas, QPointF(x, cape.at(x) + 4), 190, look.land);
    }
    canvas.mirror(Horizon, variant == 1 ? 1.1 : 0.62, look.water, look.murk);
    if (look.sun.y() > 0.35 || variant == 4)
        glitter(canvas, light.x(), Horizon + 3, 990, 190,
                variant == 4 ? QColor(200, 215, 245) : mix(look.sunColor, Qt::white, 0.35), 900);
    if (variant == 0 || variant == 1 || variant == 3) {
        Random &random = canvas.random();
        const QColor sail = variant == 1 ? QColor(252, 250, 244)
                                         : mix(look.land, look.sunColor, 0.22);
        canvas.draw([&](QPainter &painter) {
            const int boats = variant == 1 ? 5 : 1;
            for (int i = 0; i < boats; ++i) {
                const double t = variant == 1 ? 0.1 + 0.16 * i : 0.45;
                const QPointF at(
                    canvas.width()
                        * (variant == 1 ? 0.16 + 0.17 * i + random.between(-0.04, 0.04) : 0.72),
                    Horizon + 8 + 190 * t * t);
                const double size = 34 + 120 * t;
                sailBoat(painter, at, size, look.land, sail);
                painter.save();
                painter.translate(at.x(), at.y() + size * 0.14);
                painter.scale(1, -0.5);
                painter.setOpacity(0.22);
                sailBoat(painter, {}, size, look.land, sail);
                painter.restore();
            }
        });
    }
    if (variant != 4)
        gulls(canvas, 4 + variant, withAlpha(mix(look.land, look.cloudShade, 0.3), 0.8));
    if (look.sunStrength > 0)
        canvas.glow(light, 1100, look.sunColor, 0.25 * look.sunStrength);
}

namespace {

void palm(Canvas &canvas, const QPointF &foot, const QPointF &crown, double size,
          const QColor &wood, const QColor &leaf)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        const QPointF bend((foot.x() * 0.7 + crown.x() * 0.3), (foot.y() + crown.y()) / 2 + 60);
        QPainterPath trunk(foot + QPointF(-size * 0.07, 0));
        trunk.quadTo(bend + QPointF(-size * 0.05, 0), crown + QPointF(-size * 0.025, 0));
        trunk.lineTo(crown + QPointF(size * 0.03, 0));
        trunk.quadTo(bend + QPointF(size * 0.04, 0), foot + QPointF(size * 0.09, 0));
        QLinearGradient bark(foot.x() - size * 0.1, 0, foot.x() + size * 0.1, 0);
        bark.setColorAt(0, mix(wood, Qt::white, 0.2));
        bark.setColorAt(1, mix(wood, Qt::black, 0.35));
        painter.fillPath(trunk, bark);
        for (int i = 0; i < 15; ++i) {
            const double angle = -3.5 + 4.0 * i / 14 + random.between(-0.12, 0.12);
            const double reach = size * random.between(0.8, 1.15);
            const QPointF tip = crown
                + QPointF(std::cos(angle) * reach, std::sin(angle) * reach * 0.62 + reach * 0.34);
            const QPointF over = crown
                + QPointF(std::cos(angle) * reach * 0.55,
                          std::sin(angle) * reach * 0.62 - reach * 0.06);
            QPainterPath rib(crown);
            rib.quadTo(over, tip);
            const QColor color = mix(leaf, i % 2 ? QColor(190, 210, 110) : QColor(Qt::black),
                                     i % 2 ? 0.22 : 0.2);
            for (double t = 0.08; t < 1; t += 0.03) {
                const QPointF at = rib.pointAtPercent(t);
                const double length = size * 0.24 * std::sin(3.1416 * (0.12 + 0.85 * t));
                const double slant = rib.angleAtPercent(t) * 3.14159 / 180;
                for (int side = -1; side <= 1; side += 2) {
                    const double turn = slant + side * 0.75;
                    const QPointF end = at
                        + QPointF(std::cos(turn) * length,
                                  -std::sin(turn) * length + length * 0.35);
                    QPainterPath leaflet(at);
                    leaflet.quadTo((at + end) / 2 + QPointF(2.5, -2.5), end);
                    leaflet.quadTo((at + end) / 2 + QPointF(-2.5, 2.5), at);
                    painter.fillPath(leaflet, color);
                }
            }
        }
    });
}

} // namespace

void Scenes::beach(Canvas &canvas, int variant)
{
    variant %= 3;
    const bool evening = variant == 1;
    constexpr double Horizon = 430;
    const QPointF light(canvas.width() * (evening ? 0.6 : 0.25), evening ? 390 : 90);
    if (evening)
        canvas.gradient({{0, {66, 76, 150}},
                         {0.2, {206, 122, 150}},
                         {0.34, {255, 170, 120}},
                         {0.44, {255, 222, 160}}});
    else
        canvas.gradient({{0, variant ? QColor(40, 130, 200) : QColor(24, 112, 204)},
                         {0.3, {120, 196, 236}},
                         {0.44, {220, 242, 244}}});
    clouds(canvas,
           {0.45, Horizon, evening ? QColor(255, 190, 160) : QColor(255, 255, 255),
            evening ? QColor(150, 100, 150) : QColor(190, 210, 226), 0.9, 1.7},
           light);
    sun(canvas, light, evening ? 28 : 20, evening ? QColor(255, 196, 120) : QColor(255, 250, 230),
        evening ? 0.95 : 0.4);

    const quint32 seed = canvas.newSeed();
    const Tint deep = Tint::of(evening ? QColor(86, 70, 130) : QColor(8, 92, 160));
    const Tint shallow = Tint::of(evening ? QColor(250, 170, 140) : QColor(70, 208, 204));
    const Tint sand = Tint::of(evening ? QColor(206, 150, 124) : QColor(244, 222, 180));
    const Tint wet = Tint::of(evening ? QColor(226, 140, 120) : QColor(202, 178, 140));
    const Tint foam = Tint::of(evening ? QColor(255, 232, 220) : QColor(252, 255, 255));
    canvas.shade(
        QRectF(0, Horizon, canvas.width(), Canvas::Height - Horizon), 1.6, [&](double x, double y) {
            const double depth = (y - Horizon) / (Canvas::Height - Horizon);
            const double u = (x / canvas.width() - 0.5);
            const double edge = 0.6 + 0.16 * u + 0.05 * noise(x / 230, 0.5, seed)
                + 0.02 * noise(x / 60, 2.5, seed);
            const double distance = 1 / (depth + 0.07);
            const double wave = cloudNoise((x - canvas.width() / 2) * distance / 420, distance * 7,
                                           3, seed + 1);
            if (depth < edge) {
                const double t = depth / edge;
                Tint tint = mix(deep, shallow, std::pow(t, 1.3)).scaled(1 + wave * 0.24);
                const double crest = std::max(
                    smoothstep(0.86, 0.9, t + 0.02 * wave) * smoothstep(0.965, 0.93, t),
                    0.8 * smoothstep(0.6, 0.625, t + 0.03 * wave) * smoothstep(0.68, 0.64, t));
                const double lace = smoothstep(-0.15, 0.25, cloudNoise(x / 24, y / 9, 4, seed + 2));
                tint = mix(tint, foam, crest * lace);
                return mix(tint, foam, smoothstep(0.972, 0.99, t) * (0.5 + 0.5 * lace));
            }
            const double dry = smoothstep(edge + 0.02, edge + 0.16, depth);
            const double ripple = 0.05 * cloudNoise(x / 60, y / 14, 4, seed + 4)
                + 0.03 * noise(x / 3, y / 3, seed + 5);
            return mix(wet, sand, dry).scaled(1 + ripple * (0.5 + dry));
        });
    if (evening)
        glitter(canvas, light.x(), Horizon + 2, 760, 120, QColor(255, 220, 170), 420);
    if (variant != 2) {
        const QColor leaf = evening ? QColor(40, 30, 50) : QColor(44, 116, 52);
        const QColor wood = evening ? QColor(44, 30, 46) : QColor(150, 112, 76);
        palm(canvas, {canvas.width() * 0.86, 960}, {canvas.width() * 0.72, 330}, 260, wood, leaf);
        palm(canvas, {canvas.width() * 0.95, 900}, {canvas.width() * 0.9, 240}, 220, wood, leaf);
    } else {
        const QPointF foot(canvas.width() * 0.34, 900);
        canvas.drawSoft(5, [&](QPainter &painter) {
            painter.setBrush(QColor(90, 70, 50, 120));
            painter.drawEllipse(foot + QPointF(70, 8), 200, 26);
        });
        canvas.draw([&](QPainter &painter) {
            painter.setPen(QPen(QColor(236, 230, 220), 9));
            painter.drawLine(foot, foot + QPointF(50, -330));
            painter.setPen(Qt::NoPen);
            static const QColor s_stripes[] = {{232, 74, 66}, {252, 248, 240}};
            const QPointF top = foot + QPointF(52, -370);
            for (int i = 0; i < 8; ++i) {
                const double from = -210 + i * 52.5;
                QPainterPath stripe(top);
                stripe.quadTo(top + QPointF(from * 0.85, 30),
                              top + QPointF(from - 6, 136 + from * 0.15));
                stripe.quadTo(top + QPointF(from + 26, 152 + from * 0.15),
                              top + QPointF(from + 52, 140 + from * 0.15));
                stripe.quadTo(top + QPointF((from + 52.5) * 0.85, 30), top);
                painter.fillPath(stripe, mix(s_stripes[i % 2], QColor(60, 20, 60), 0.22 * i / 7));
            }
            painter.setBrush(QColor(60, 130, 190));
            painter.drawRoundedRect(QRectF(foot + QPointF(-150, -36), QSizeF(330, 20)), 8, 8);
            painter.drawPolygon(QPolygonF({foot + QPointF(150, -36), foot + QPointF(240, -120),
                                           foot + QPointF(256, -112), foot + QPointF(178, -20)}));
        });
    }
    canvas.glow(light, 900, evening ? QColor(255, 180, 130) : QColor(255, 255, 240),
                evening ? 0.3 : 0.2);
}
