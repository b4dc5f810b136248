#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

namespace {

struct MountainLook
{
    QGradientStops sky;
    QPointF sun; ///< as shares of width and height
    QColor sunColor;
    double sunStrength;
    QColor haze;
    QColor far;
    QColor near;
    QColor lit;
    double snow;
    double cloudCover;
    QColor cloudLit;
    QColor cloudShade;
    bool lake;
    QColor woods;
};

const MountainLook s_mountains[] = {
    // dawn, rose
    {{{0, {64, 88, 150}}, {0.35, {150, 142, 190}}, {0.55, {246, 178, 160}}, {0.7, {255, 220, 170}}},
     {0.68, 0.5},
     {255, 196, 130},
     0.8,
     {246, 190, 170},
     {150, 130, 175},
     {52, 52, 92},
     {255, 170, 140},
     120,
     0.35,
     {255, 196, 170},
     {140, 120, 165},
     false,
     {26, 30, 54}},
    // clear noon, lake
    {{{0, {28, 92, 168}}, {0.4, {92, 156, 214}}, {0.7, {190, 220, 236}}},
     {0.15, 0.1},
     {255, 250, 230},
     0.5,
     {176, 206, 226},
     {110, 140, 178},
     {60, 78, 86},
     {190, 186, 170},
     190,
     0.42,
     {255, 255, 255},
     {170, 188, 212},
     true,
     {22, 54, 44}},
    // golden evening
    {{{0, {52, 76, 120}}, {0.35, {214, 150, 110}}, {0.6, {255, 205, 120}}, {0.72, {255, 228, 165}}},
     {0.36, 0.52},
     {255, 214, 120},
     1,
     {255, 204, 130},
     {200, 140, 105},
     {66, 44, 48},
     {255, 178, 96},
     0,
     0.45,
     {255, 214, 150},
     {160, 98, 96},
     false,
     {30, 24, 30}},
    // blue hour, lake
    {{{0, {14, 28, 66}}, {0.4, {48, 84, 140}}, {0.62, {140, 150, 190}}, {0.75, {240, 190, 170}}},
     {0.5, 0.64},
     {255, 190, 150},
     0.5,
     {120, 136, 184},
     {84, 102, 150},
     {22, 34, 62},
     {130, 140, 180},
     150,
     0.3,
     {230, 180, 180},
     {60, 76, 122},
     true,
     {8, 16, 32}},
    // storm clearing, teal
    {{{0, {36, 52, 62}}, {0.4, {92, 118, 124}}, {0.7, {200, 210, 196}}},
     {0.72, 0.32},
     {255, 240, 200},
     0.55,
     {168, 186, 184},
     {104, 130, 136},
     {30, 48, 50},
     {150, 164, 140},
     70,
     0.85,
     {226, 228, 216},
     {62, 80, 88},
     false,
     {14, 30, 28}},
    // autumn lake
    {{{0, {60, 112, 170}}, {0.45, {150, 190, 214}}, {0.7, {246, 226, 196}}},
     {0.85, 0.3},
     {255, 236, 190},
     0.6,
     {220, 214, 206},
     {140, 150, 172},
     {96, 78, 66},
     {226, 178, 120},
     110,
     0.4,
     {255, 248, 236},
     {180, 182, 196},
     true,
     {120, 66, 26}},
    // winter, violet
    {{{0, {70, 96, 158}}, {0.4, {150, 164, 208}}, {0.66, {236, 206, 222}}},
     {0.2, 0.45},
     {255, 214, 214},
     0.7,
     {216, 206, 228},
     {160, 164, 204},
     {88, 96, 136},
     {230, 214, 232},
     420,
     0.35,
     {255, 232, 236},
     {150, 156, 196},
     false,
     {40, 52, 84}},
    // misty morning, green-blue layers
    {{{0, {120, 160, 176}}, {0.4, {188, 210, 206}}, {0.7, {250, 240, 214}}},
     {0.55, 0.38},
     {255, 246, 214},
     0.85,
     {226, 230, 214},
     {150, 182, 186},
     {24, 62, 70},
     {130, 166, 156},
     0,
     0.2,
     {255, 250, 236},
     {180, 200, 200},
     false,
     {10, 38, 44}},
};

} // namespace

void Scenes::mountains(Canvas &canvas, int variant)
{
    const MountainLook &look = s_mountains[variant % 8];
    const QPointF light(look.sun.x() * canvas.width(), look.sun.y() * Canvas::Height);
    const double shore = look.lake ? 640 : Canvas::Height;
    canvas.gradient(look.sky);
    clouds(canvas, {look.cloudCover, 620, look.cloudLit, look.cloudShade, 0.85, 1.6}, light);
    sun(canvas, light, 24, look.sunColor, look.sunStrength);

    const int layers = look.lake ? 4 : 5;
    for (int i = 0; i < layers; ++i) {
        const double t = double(i) / (layers - 1);
        const double base = look.lake ? mix(600, 630, t) : mix(640, 900, t * t);
        const double amplitude = (look.lake ? mix(400, 90, t) : mix(330, 210, t))
            * canvas.random().between(0.85, 1.15);
        const Ridge ridge = peaks(canvas, base, amplitude, mix(430, 260, t));
        Rock rockLook;
        rockLook.dark = mix(look.far, look.near, t);
        rockLook.lit = mix(mix(look.lit, look.far, 0.5), mix(look.lit, look.near, 0.45), t);
        rockLook.haze = look.haze;
        rockLook.hazeTop = mix(0.42, 0.02, t);
        rockLook.hazeBottom = mix(0.95, look.lake ? 0.35 : 0.55, t);
        rockLook.snow = i < 3 ? look.snow * mix(1, 0.5, t) : 0;
        rockLook.snowLit = mix(QColor(252, 252, 255), look.lit, 0.25);
        rockLook.snowShade = mix(rockLook.dark, QColor(150, 172, 216), 0.6);
        rockLook.lightFrom = look.sun.x() < 0.5 ? 1 : -1;
        rock(canvas, ridge, look.lake ? shore : base + amplitude * 0.7 + 120, rockLook);
        if (i + 1 < layers)
            mist(canvas, base - 60, base + 90, look.haze, 0.5 * (1 - 0.6 * t));
    }
    if (look.lake) {
        const QPainterPath woods = conifers(canvas, downs(canvas, 628, 8, 240), 26, 62, 13);
        canvas.draw([&](QPainter &painter) {
            QLinearGradient fill(0, 560, 0, 640);
            fill.setColorAt(0, mix(look.woods, look.haze, 0.12));
            fill.setColorAt(1, look.woods);
            painter.setClipRect(QRectF(0, 0, canvas.width(), shore));
            painter.fillPath(woods, fill);
        });
        mist(canvas, 590, 650, look.haze, 0.4);
        canvas.mirror(shore, 0.28, mix(look.woods, look.far, 0.45), 0.42);
        return;
    }
    const QPainterPath back = conifers(canvas, downs(canvas, 905, 40, 420), 50, 110, 22);
    canvas.draw(
        [&](QPainter &painter) { painter.fillPath(back, mix(look.woods, look.haze, 0.28)); });
    mist(canvas, 840, 980, look.haze, 0.35);
    const QPainterPath front = conifers(canvas, downs(canvas, 985, 60, 520), 80, 210, 40);
    canvas.draw([&](QPainter &painter) { painter.fillPath(front, look.woods); });
    canvas.glow(light, 900, look.sunColor, 0.22 * look.sunStrength);
}

namespace {

struct HillLook
{
    QGradientStops sky;
    QPointF sun;
    QColor sunColor;
    QColor haze;
    QColor dark;
    QColor lit;
    double rows; ///< furrows or rows of plants; 0 none
    QColor rowColor;
    double cloudCover;
};

const HillLook s_hills[] = {
    {{{0, {44, 116, 196}}, {0.5, {150, 200, 232}}, {0.7, {226, 240, 240}}},
     {0.8, 0.18},
     {255, 248, 214},
     {206, 226, 220},
     {44, 98, 44},
     {150, 190, 74},
     0,
     {},
     0.5},
    {{{0, {86, 128, 176}}, {0.45, {206, 208, 206}}, {0.7, {255, 226, 178}}},
     {0.3, 0.46},
     {255, 220, 150},
     {246, 214, 170},
     {112, 52, 24},
     {226, 138, 46},
     0,
     {},
     0.4},
    {{{0, {90, 84, 150}}, {0.4, {204, 140, 176}}, {0.66, {255, 204, 160}}},
     {0.62, 0.5},
     {255, 206, 140},
     {240, 190, 190},
     {66, 44, 112},
     {160, 112, 200},
     30,
     {96, 62, 150},
     0.35},
    {{{0, {58, 110, 176}}, {0.5, {180, 204, 214}}, {0.7, {250, 232, 206}}},
     {0.14, 0.34},
     {255, 232, 190},
     {244, 218, 184},
     {164, 84, 40},
     {246, 188, 112},
     0,
     {},
     0.12},
    {{{0, {78, 120, 184}}, {0.5, {178, 202, 230}}, {0.7, {250, 226, 224}}},
     {0.7, 0.5},
     {255, 222, 196},
     {232, 226, 238},
     {134, 156, 204},
     {252, 248, 252},
     0,
     {},
     0.35},
    {{{0, {70, 130, 190}}, {0.5, {196, 214, 210}}, {0.7, {255, 236, 190}}},
     {0.22, 0.4},
     {255, 230, 160},
     {238, 226, 180},
     {60, 84, 26},
     {196, 190, 70},
     24,
     {50, 78, 24},
     0.45},
};

} // namespace

void Scenes::hills(Canvas &canvas, int variant)
{
    const HillLook &look = s_hills[variant % 6];
    const bool desert = variant % 6 == 3;
    const bool snow = variant % 6 == 4;
    const QPointF light(look.sun.x() * canvas.width(), look.sun.y() * Canvas::Height);
    canvas.gradient(look.sky);
    clouds(canvas,
           {look.cloudCover, 560, mix(look.sunColor, Qt::white, 0.6),
            mix(look.haze, QColor(120, 130, 160), 0.5), 0.9, 1.2},
           light);
    sun(canvas, light, 22, look.sunColor, 0.7);

    Ridge ridge;
    constexpr int Layers = 6;
    for (int i = 0; i < Layers; ++i) {
        const double t = double(i) / (Layers - 1);
        ridge = downs(canvas, mix(530, 860, t * t) + (i == 0 ? 0 : 20),
                      mix(45, desert ? 190 : 105, t), mix(300, 800, t), desert ? 2 : 3);
        const quint32 seed = canvas.newSeed();
        const Tint dark = Tint::of(look.dark);
        const Tint lit = Tint::of(look.lit);
        const Tint haze = Tint::of(look.haze);
        const Tint rowTint = Tint::of(look.rowColor);
        const double side = look.sun.x() < 0.5 ? 1 : -1;
        const double vanish = canvas.width() * (0.5 + 0.2 * side);
        canvas.shade(ridge.area(Canvas::Height), 2, [&](double x, double y) {
            const double depth = y - ridge.at(x);
            const double crest = (ridge.at(x - 20) - ridge.at(x + 20)) / 40 * -side;
            const double roll = cloudNoise(x / mix(120, 420, t), y / mix(40, 130, t),
                                           desert ? 2 : 4, seed);
            double level = desert ? 0.5 + crest * 2.4 + roll * 0.3 - depth / 1400
                                  : 0.5 + crest * 1.1 + roll * 0.5 - depth / 900;
            if (desert)
                level += 0.06
                    * std::sin((y * 1.6 + 26 * noise(x / 120, y / 60, seed + 3)) / (2 + 5 * t));
            level += 0.1 * cloudNoise(x / 7, y / 4, 2, seed + 1) * t;
            Tint tint = mix(dark, lit, std::clamp(level, 0.0, 1.0));
            if (look.rows > 0 && i >= 4) {
                const double slant = (x - vanish) / (depth + 90) * look.rows * 0.5;
                const double furrow = 0.5
                    + 0.5 * std::sin(slant * 3.2 + noise(x / 60, y / 60, seed) * 0.8);
                const double tufts = 0.3 * cloudNoise(x / 9, y / 6, 3, seed + 5);
                tint = mix(tint, rowTint.scaled(0.9 + tufts), 0.75 * smoothstep(0.5, 0.85, furrow));
            }
            return mix(tint, haze, 0.72 * (1 - t) * (1 - t) + 0.1 * (1 - t));
        });
        if (!desert && i >= 1 && i <= 4) {
            QPainterPath wood;
            QPainterPath trunks;
            wood.setFillRule(Qt::WindingFill);
            Random &random = canvas.random();
            const int groups = 2 + random.below(4);
            for (int g = 0; g < groups; ++g) {
                const double center = random.unit() * canvas.width();
                for (int k = 0; k < 7; ++k) {
                    const double x = center + random.between(-60, 60) * (0.4 + t);
                    const double height = mix(14, 88, t) * random.between(0.7, 1.3);
                    const QPointF foot(x, ridge.at(std::clamp(x, 0.0, canvas.width())) + 3);
                    if (snow)
                        wood.addPath(conifer(random, foot, height * 1.5));
                    else
                        wood.addPath(leafyTree(random, foot, height, &trunks));
                }
            }
            const QColor leaf = mix(snow ? QColor(54, 72, 104) : mix(look.dark, Qt::black, 0.3),
                                    look.haze, 0.65 * (1 - t));
            canvas.draw([&](QPainter &painter) {
                painter.fillPath(trunks, mix(leaf, Qt::black, 0.3));
                QLinearGradient fill(0, ridge.highest() - 80, 0, ridge.highest() + 110);
                fill.setColorAt(0, mix(leaf, look.lit, 0.4));
                fill.setColorAt(1, leaf);
                painter.fillPath(wood, fill);
            });
        }
        if (i < 4)
            mist(canvas, ridge.highest(), ridge.highest() + 130, look.haze, 0.3 * (1 - t));
    }
    if (!desert && !snow)
        for (int band = 0; band < 5; ++band) {
            Ridge ground = ridge;
            for (double &top : ground.tops)
                top = std::max(top + 20, 900.0) + band * 26;
            grass(canvas, ground, 24 + 12 * band, 5,
                  mix(look.dark, look.rows > 0 ? look.rowColor : look.dark, 0.5), look.lit);
        }
    if (variant % 6 == 0) {
        static const QColor s_petals[] = {
            {222, 50, 44}, {246, 200, 60}, {250, 250, 246}, {160, 110, 210}};
        Random &random = canvas.random();
        canvas.draw([&](QPainter &painter) {
            for (int i = 0; i < 420; ++i) {
                const double t = std::sqrt(random.unit());
                painter.setBrush(s_petals[random.below(4)]);
                const double radius = 1.5 + 7 * t * t;
                painter.drawEllipse(QPointF(random.unit() * canvas.width(), mix(880, 1000, t)),
                                    radius, radius * 0.75);
            }
        });
    }
    canvas.glow(light, 1000, look.sunColor, 0.28);
}
