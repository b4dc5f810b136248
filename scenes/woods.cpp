#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

namespace {

struct ForestLook
{
    QColor lightColor;
    QColor haze;
    QColor dark;
    QColor ground;
    QColor groundLit;
    QColor leaf;
    bool birch;
};

const ForestLook s_forests[] = {
    {{236, 244, 226},
     {176, 204, 190},
     {20, 44, 40},
     {40, 70, 40},
     {150, 176, 96},
     {74, 122, 62},
     false},
    {{255, 234, 170},
     {244, 196, 120},
     {52, 34, 26},
     {134, 66, 24},
     {242, 160, 60},
     {228, 130, 34},
     true},
    {{250, 250, 190},
     {170, 210, 120},
     {30, 44, 24},
     {40, 84, 30},
     {160, 206, 80},
     {104, 176, 52},
     false},
    {{240, 236, 248},
     {206, 214, 232},
     {56, 66, 92},
     {206, 216, 236},
     {252, 252, 255},
     {226, 232, 244},
     true},
    {{255, 206, 140},
     {220, 140, 90},
     {34, 24, 30},
     {60, 36, 30},
     {210, 120, 60},
     {140, 74, 36},
     false},
};

void trunk(QPainter &painter, Random &random, double x, double foot, double breadth,
           const QColor &color, const QColor &lit, bool birch)
{
    const double lean = random.between(-30, 30);
    QPainterPath path(QPointF(x - breadth * 0.5, foot));
    path.quadTo(x - breadth * 0.42, foot * 0.6, x - breadth * 0.34 + lean, -10);
    path.lineTo(x + breadth * 0.34 + lean, -10);
    path.quadTo(x + breadth * 0.42, foot * 0.6, x + breadth * 0.55, foot);
    path.quadTo(x, foot + breadth * 0.25, x - breadth * 0.5, foot);
    QLinearGradient bark(x - breadth / 2, 0, x + breadth / 2, 0);
    bark.setColorAt(0, mix(color, lit, birch ? 0.85 : 0.4));
    bark.setColorAt(0.35, mix(color, lit, birch ? 0.65 : 0.12));
    bark.setColorAt(1, mix(color, lit, birch ? 0.25 : 0));
    painter.fillPath(path, bark);
    if (!birch || breadth < 7)
        return;
    painter.save();
    painter.setClipPath(path);
    for (int i = 0; i < 34; ++i) {
        const double y = random.unit() * foot;
        const double wide = breadth * random.between(0.15, 0.7);
        painter.setBrush(withAlpha(QColor(40, 34, 36), random.between(0.3, 0.85)));
        painter.drawEllipse(
            QPointF(x + lean * (1 - y / foot) + random.between(-0.5, 0.5) * breadth, y), wide * 0.5,
            random.between(1, 4.5));
    }
    painter.restore();
}

void foliage(Canvas &canvas, double soft, double top, double bottom, const QColor &dark,
             const QColor &lit, int count, double size)
{
    Random &random = canvas.random();
    canvas.drawSoft(soft, [&](QPainter &painter) {
        for (int i = 0; i < count; ++i) {
            const double t = random.unit();
            painter.setBrush(withAlpha(mix(dark, lit, random.unit() * (1 - 0.4 * t)),
                                       random.between(0.35, 0.9)));
            const double radius = size * random.between(0.4, 1.2);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), mix(top, bottom, t * t)),
                                radius, radius * 0.7);
        }
    });
}

} // namespace

void Scenes::forest(Canvas &canvas, int variant)
{
    variant %= 5;
    const ForestLook &look = s_forests[variant];
    Random &random = canvas.random();
    const QPointF light(canvas.width() * random.between(0.35, 0.65), 330);
    canvas.gradient({{0, mix(look.haze, look.leaf, 0.4)},
                     {0.4, look.lightColor},
                     {0.62, look.haze},
                     {1, look.ground}});
    canvas.glow(light, 700, look.lightColor, 0.9);
    const quint32 seed = canvas.newSeed();
    const double pathX = canvas.width() * random.between(0.4, 0.6);
    const Tint dark = Tint::of(look.ground);
    const Tint lit = Tint::of(look.groundLit);
    const Tint haze = Tint::of(look.haze);
    canvas.shade(QRectF(0, 600, canvas.width(), 400), 2, [&](double x, double y) {
        const double t = (y - 600) / 400;
        const double distance = 1 / (t + 0.12);
        const double u = (x - light.x()) * distance / 150;
        const double dapple = smoothstep(-0.1, 0.5, cloudNoise(u, distance * 3.2, 4, seed));
        const double fine = 0.2 * cloudNoise(x / 6, y / 4, 3, seed + 2);
        Tint tint = mix(dark, lit, std::clamp(dapple * (0.85 - 0.35 * t) + fine, 0.0, 1.0));
        const double curve = pathX + 90 * std::sin(t * 2.4) + (t - 0.1) * 40
            - (pathX - light.x()) * (1 - t);
        const double half = 8 + 130 * t + 12 * noise(y / 30, 1.5, seed + 3);
        const double trail = smoothstep(half, half * 0.7, std::abs(x - curve));
        tint = mix(tint, mix(lit, haze, 0.55).scaled(0.7 + 0.25 * dapple + fine), trail * 0.75);
        return mix(tint, haze, 0.9 * (1 - smoothstep(0, 0.5, t)));
    });
    constexpr int Layers = 6;
    for (int i = 0; i < Layers; ++i) {
        const double t = double(i) / (Layers - 1);
        const int count = int(mix(46, 5, std::sqrt(t)));
        const QColor color = mix(look.haze, look.dark, 0.14 + 0.86 * t);
        const QColor bark = mix(look.haze, look.birch ? QColor(244, 240, 232) : look.lightColor,
                                0.3 + 0.7 * t);
        if (!look.birch && variant != 4 && i < 3) {
            Ridge ground = downs(canvas, mix(600, 660, t), 12, 200);
            const QPainterPath firs = conifers(canvas, ground, mix(150, 330, t), mix(300, 620, t),
                                               mix(30, 70, t));
            canvas.draw([&](QPainter &painter) {
                painter.setClipRect(QRectF(0, 0, canvas.width(), mix(618, 665, t)));
                QLinearGradient fill(0, 100, 0, 680);
                fill.setColorAt(0, mix(color, look.leaf, 0.25 * t));
                fill.setColorAt(1, mix(color, look.haze, 0.5));
                painter.fillPath(firs, fill);
            });
        }
        canvas.drawSoft(i == Layers - 1 ? 4 : 0.6, [&](QPainter &painter) {
            for (int k = 0; k < count; ++k) {
                double x = random.unit() * canvas.width();
                if (i > 2 && std::abs(x - pathX) < 90 + 130 * t)
                    x += x < pathX ? -260 * t : 260 * t;
                trunk(painter, random, x, mix(608, 960, t * t) + random.between(-10, 20) * (1 + t),
                      mix(5, 62, t * t) * random.between(0.7, 1.2), color, bark, look.birch);
            }
        });
        if (i < Layers - 1) {
            foliage(canvas, mix(2, 7, t), -40, mix(460, 260, t),
                    mix(look.haze, mix(look.leaf, look.dark, 0.4), 0.2 + 0.7 * t),
                    mix(look.haze, mix(look.leaf, look.lightColor, 0.3), 0.3 + 0.7 * t),
                    int(mix(240, 90, t)), mix(16, 48, t));
            mist(canvas, 480, 700, look.haze, 0.34 * (1 - t));
        }
    }
    if (variant == 2 || variant == 0 || variant == 4) {
        canvas.drawSoft(16, [&](QPainter &painter) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
            for (int i = 0; i < 11; ++i) {
                const double angle = -0.2 + i * 0.13 + random.between(-0.04, 0.04);
                const QPointF from(light.x() - 60 + i * 14, -80);
                const double wide = random.between(16, 50);
                QPainterPath ray(from);
                ray.lineTo(from + QPointF(std::sin(angle) * 1100 - wide, std::cos(angle) * 1000));
                ray.lineTo(from
                           + QPointF(std::sin(angle) * 1100 + wide * 2, std::cos(angle) * 1000));
                QLinearGradient fade(0, 0, 0, 900);
                fade.setColorAt(0, withAlpha(look.lightColor, 0.34));
                fade.setColorAt(1, withAlpha(look.lightColor, 0));
                painter.fillPath(ray, fade);
            }
        });
    }
    if (variant == 1 || variant == 3)
        canvas.drawSoft(2, [&](QPainter &painter) {
            for (int i = 0; i < 170; ++i) {
                const double radius = random.between(2, 8);
                painter.setBrush(
                    withAlpha(variant == 3 ? QColor(Qt::white)
                                           : mix(look.leaf, QColor(255, 220, 90), random.unit()),
                              random.between(0.4, 0.95)));
                painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 1000),
                                    radius, radius * (variant == 3 ? 1 : 0.6));
            }
        });
    canvas.glow(light, 900, look.lightColor, 0.35);
}

static void milkyWay(Canvas &canvas, double tilt)
{
    const quint32 seed = canvas.newSeed();
    const double middle = canvas.width() / 2;
    canvas.shade(
        canvas.bounds(), 3,
        [&](double x, double y) {
            const double along = (x - middle) * std::cos(tilt) + (y - 400) * std::sin(tilt);
            const double across = -(x - middle) * std::sin(tilt) + (y - 400) * std::cos(tilt)
                + 50 * noise(along / 300, 1.2, seed + 9);
            const double band = std::exp(-across * across / 26000);
            const double core = std::exp(-across * across / 7000)
                * std::exp(-(along - 150) * (along - 150) / 120000);
            const double gas = 0.55 + 0.75 * cloudNoise(along / 150, across / 90, 6, seed);
            const double dust = smoothstep(0.05, 0.5,
                                           cloudNoise(along / 120, across / 46, 6, seed + 20))
                * std::exp(-across * across / 4500);
            const double light = std::clamp(band * gas * (1 - 0.85 * dust), 0.0, 1.0);
            return Tint{0.62 + 0.36 * core, 0.62 + 0.14 * core, 0.86 - 0.18 * core,
                        light * (0.5 + 0.4 * core)};
        },
        QPainter::CompositionMode_Screen);
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 3600; ++i) {
            const double along = random.between(-0.7, 0.7) * canvas.width() * 1.2;
            const double across = (random.unit() + random.unit() + random.unit() - 1.5) * 170;
            const QPointF at(middle + along * std::cos(tilt) - across * std::sin(tilt),
                             400 + along * std::sin(tilt) + across * std::cos(tilt));
            painter.setBrush(withAlpha(QColor(240, 240, 255), random.between(0.15, 0.75)));
            const double radius = random.between(0.5, 1.2);
            painter.drawEllipse(at, radius, radius);
        }
    });
}

static void aurora(Canvas &canvas, const QColor &low, const QColor &high)
{
    const quint32 seed = canvas.newSeed();
    const Tint green = Tint::of(low);
    const Tint violet = Tint::of(high);
    for (int curtain = 0; curtain < 3; ++curtain) {
        const double base = 480 - 110 * curtain;
        const auto phase = quint32(curtain * 7);
        canvas.shade(
            QRectF(0, 0, canvas.width(), 700), 3,
            [&](double x, double y) {
                const double fold = base + 110 * noise(x / 420, 0.5 + curtain, seed + phase)
                    + 34 * noise(x / 110, 2.5, seed + phase + 1);
                const double up = fold - y;
                if (up < -40)
                    return green.withAlpha(0);
                const double rays = 0.55 + 0.45 * noise(x / 16 + up / 260, 0.7, seed + phase + 2)
                    + 0.3 * noise(x / 60, 1.1, seed + phase + 3);
                const double height = 250 + 120 * noise(x / 150, 4.4, seed + phase);
                const double body = smoothstep(-40, 12, up)
                    * std::exp(-std::max(0.0, up) / height * 1.7);
                return mix(green, violet, smoothstep(0.15, 0.95, up / height))
                    .withAlpha(std::clamp(body * rays, 0.0, 1.0) * (0.85 - 0.2 * curtain));
            },
            QPainter::CompositionMode_Screen);
    }
}

static void starTrails(Canvas &canvas)
{
    Random &random = canvas.random();
    const QPointF pole(canvas.width() * 0.42, 330);
    canvas.draw([&](QPainter &painter) {
        painter.setBrush(Qt::NoBrush);
        for (int i = 0; i < 620; ++i) {
            const double radius = 12 + 1200 * std::sqrt(random.unit());
            const QColor color = mix(QColor(255, 226, 190), QColor(170, 200, 255), random.unit());
            painter.setPen(
                QPen(withAlpha(color, random.between(0.12, 0.85)), random.between(0.6, 2.0)));
            painter.drawArc(QRectF(pole.x() - radius, pole.y() - radius, radius * 2, radius * 2),
                            int(random.unit() * 5760), int(random.between(22, 34) * 16));
        }
    });
}

static void tent(Canvas &canvas, const QPointF &foot, double size)
{
    canvas.glow(foot, size * 2.6, QColor(255, 150, 60), 0.5);
    canvas.draw([&](QPainter &painter) {
        QPainterPath body(foot + QPointF(-size, 0));
        body.quadTo(foot + QPointF(-size * 0.3, -size * 0.5), foot + QPointF(0, -size * 0.85));
        body.quadTo(foot + QPointF(size * 0.45, -size * 0.5), foot + QPointF(size * 1.2, 0));
        body.closeSubpath();
        QRadialGradient fire(foot + QPointF(0, -size * 0.2), size * 1.1);
        fire.setColorAt(0, QColor(255, 236, 170));
        fire.setColorAt(0.5, QColor(255, 160, 60));
        fire.setColorAt(1, QColor(160, 60, 20));
        painter.fillPath(body, fire);
        painter.setPen(QPen(QColor(110, 44, 20), size * 0.02));
        painter.drawLine(foot + QPointF(0, -size * 0.85), foot + QPointF(-size * 0.16, 0));
        painter.drawLine(foot + QPointF(0, -size * 0.85), foot + QPointF(size * 0.3, 0));
    });
}

void Scenes::nightSky(Canvas &canvas, int variant)
{
    variant %= 6;
    Random &random = canvas.random();
    static const QGradientStops s_skies[] = {
        {{0, {6, 8, 28}}, {0.5, {18, 26, 64}}, {0.8, {66, 62, 104}}, {1, {130, 92, 100}}},
        {{0, {4, 10, 24}}, {0.5, {10, 34, 56}}, {0.8, {20, 70, 84}}, {1, {24, 84, 84}}},
        {{0, {4, 8, 24}}, {0.5, {12, 22, 56}}, {0.85, {40, 50, 90}}, {1, {70, 70, 100}}},
        {{0, {10, 14, 44}}, {0.5, {34, 46, 96}}, {0.85, {110, 92, 130}}, {1, {190, 130, 120}}},
        {{0, {5, 6, 14}}, {1, {16, 18, 34}}},
        {{0, {10, 6, 34}}, {0.5, {36, 20, 76}}, {0.8, {96, 44, 110}}, {1, {190, 90, 110}}},
    };
    canvas.gradient(QRectF(0, 0, canvas.width(), variant == 4 ? 1000 : 880), s_skies[variant]);
    if (variant == 4) {
        stars(canvas, 1000, 260);
        moon(canvas, {canvas.width() * 0.5, 500}, 330, 0.42);
        return;
    }
    if (variant == 2)
        starTrails(canvas);
    else
        stars(canvas, 860, 1500);
    if (variant == 0 || variant == 5)
        milkyWay(canvas, variant == 0 ? -0.75 : 0.62);
    if (variant == 1)
        aurora(canvas, {90, 255, 150}, {150, 90, 230});
    if (variant == 3)
        moon(canvas, {canvas.width() * 0.7, 260}, 70, -0.5);
    const bool lake = variant == 1 || variant == 3;
    const double shore = lake ? 720 : 1000;
    const QColor haze = s_skies[variant].last().second;
    for (int i = 0; i < 3; ++i) {
        const double t = i / 2.0;
        const Ridge ridge = peaks(canvas, lake ? mix(690, 715, t) : mix(800, 960, t),
                                  mix(210, 90, t), mix(340, 220, t));
        Rock look;
        look.dark = mix(QColor(26, 30, 62), QColor(6, 8, 18), t);
        look.lit = mix(QColor(62, 66, 110), QColor(16, 20, 38), t);
        look.haze = haze;
        look.hazeTop = 0.15 * (1 - t);
        look.hazeBottom = 0.6 * (1 - t);
        look.snow = i == 0 ? 70 : 0;
        look.snowLit = QColor(130, 140, 190);
        look.snowShade = QColor(70, 80, 130);
        rock(canvas, ridge, shore + (lake ? 0 : 10), look);
    }
    if (lake) {
        const QPainterPath woods = conifers(canvas, downs(canvas, 716, 6, 200), 24, 66, 15);
        canvas.draw([&](QPainter &painter) {
            painter.setClipRect(QRectF(0, 0, canvas.width(), shore));
            painter.fillPath(woods, QColor(6, 12, 20));
        });
        canvas.mirror(shore, 0.3, QColor(4, 10, 22), 0.42);
        return;
    }
    const QPainterPath front = conifers(canvas, downs(canvas, 985, 40, 500), 70, 220, 34);
    canvas.draw([&](QPainter &painter) { painter.fillPath(front, QColor(4, 6, 12)); });
    if (variant == 5 || variant == 2)
        tent(canvas, {canvas.width() * random.between(0.4, 0.6), 962}, 60);
}
