#include "scenes/nature.h"

#include <algorithm>
#include <cmath>

namespace Nature {

void clouds(Canvas &canvas, const Clouds &look, const QPointF &sun)
{
    const quint32 seed = canvas.newSeed();
    const double threshold = 0.42 - 0.75 * look.cover;
    const auto density = [&](double x, double y) {
        const double far = std::max(0.02, (look.horizon - y) / look.horizon);
        const double u = (x - canvas.width() / 2) / (170 * look.stretch) / (0.18 + far);
        const double v = 2.3 / (0.18 + far);
        const double warp = 0.5 * noise(u * 0.7, v * 0.7, seed + 40);
        return cloudNoise(u + warp, v * 1.6 + warp, 6, seed);
    };
    const Tint lit = Tint::of(look.lit);
    const Tint dark = Tint::of(look.shade);
    const QRectF area(0, 0, canvas.width(), look.horizon);
    canvas.shade(area, 3, [&](double x, double y) {
        const double here = density(x, y);
        const double alpha = smoothstep(threshold, threshold + 0.4, here);
        if (alpha <= 0)
            return lit.withAlpha(0);
        const double dx = sun.x() - x;
        const double dy = sun.y() - y;
        const double away = std::max(1.0, std::hypot(dx, dy));
        const double toward = density(x + dx / away * 26, y + dy / away * 26);
        const double light = std::clamp(
            0.62 + (here - toward) * 1.5 - alpha * 0.28 + 0.3 * std::exp(-away / 300), 0.0, 1.0);
        const double fade = smoothstep(look.horizon, look.horizon * 0.72, y);
        return mix(dark, lit, light).withAlpha(alpha * look.density * (0.25 + 0.75 * fade));
    });
}

void sun(Canvas &canvas, const QPointF &center, double radius, const QColor &color, double strength)
{
    canvas.glow(center, radius * 22, color, 0.55 * strength);
    canvas.glow(center, radius * 8, color, 0.75 * strength);
    canvas.glow(center, radius * 3.2, mix(color, Qt::white, 0.5), strength);
    canvas.drawSoft(3, [&](QPainter &painter) {
        painter.setBrush(mix(color, Qt::white, 0.82));
        painter.drawEllipse(center, radius, radius);
    });
}

void moon(Canvas &canvas, const QPointF &center, double radius, double phase)
{
    const quint32 seed = canvas.newSeed();
    canvas.glow(center, radius * 7, QColor(150, 180, 230), 0.35);
    canvas.glow(center, radius * 2.6, QColor(220, 228, 245), 0.5);
    QPainterPath disc;
    disc.addEllipse(center, radius, radius);
    canvas.shade(disc, std::max(0.6, radius / 160), [&](double x, double y) {
        const double u = (x - center.x()) / radius;
        const double v = (y - center.y()) / radius;
        const double z = std::sqrt(std::max(0.0, 1 - u * u - v * v));
        const double seas = smoothstep(-0.05, 0.4, cloudNoise(u * 1.7, v * 1.7, 5, seed));
        const double craters = 0.06 * cloudNoise(u * 9, v * 9, 4, seed + 9);
        const double light = std::clamp(0.72 + 0.34 * z + u * phase, 0.04, 1.0);
        const double tone = (0.97 - 0.22 * seas + craters) * light;
        return Tint{tone, tone * 0.98, tone * 0.92, 1};
    });
}

void stars(Canvas &canvas, double horizon, int count)
{
    static const QColor s_colors[] = {
        {255, 255, 255}, {205, 222, 255}, {255, 236, 208}, {180, 205, 255}};
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < count; ++i) {
            const double bright = std::pow(random.unit(), 5);
            const double radius = 0.7 + 1.9 * bright;
            painter.setBrush(withAlpha(s_colors[random.below(4)], 0.3 + 0.7 * random.unit()));
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * horizon),
                                radius, radius);
        }
    });
    for (int i = 0; i < count / 120; ++i) {
        const QPointF at(random.unit() * canvas.width(), random.unit() * horizon);
        canvas.glow(at, random.between(9, 22), s_colors[random.below(4)], 0.9);
    }
}

double Ridge::at(double x) const
{
    return tops.at(std::clamp(int(x / Step), 0, tops.size() - 1));
}

double Ridge::highest() const
{
    return *std::min_element(tops.cbegin(), tops.cend());
}

QPainterPath Ridge::area(double bottom) const
{
    QPolygonF outline;
    outline.reserve(tops.size() + 2);
    for (int i = 0; i < tops.size(); ++i)
        outline << QPointF(i * Step, tops.at(i));
    outline << QPointF(tops.size() * Step, bottom) << QPointF(0, bottom);
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

Ridge peaks(Canvas &canvas, double base, double amplitude, double breadth, int octaves)
{
    const quint32 seed = canvas.newSeed();
    const double shift = canvas.random().unit() * 50;
    Ridge ridge;
    for (double x = 0; x <= canvas.width() + Ridge::Step; x += Ridge::Step) {
        const double u = x / breadth + shift;
        const double massif = 0.55 + 0.45 * noise(u * 0.45, 7.7, seed + 50);
        ridge.tops << base - amplitude * massif * (0.25 + 1.0 * ridgeNoise(u, 0.5, octaves, seed));
    }
    return ridge;
}

Ridge downs(Canvas &canvas, double base, double amplitude, double breadth, int octaves)
{
    const quint32 seed = canvas.newSeed();
    const double shift = canvas.random().unit() * 50;
    Ridge ridge;
    for (double x = 0; x <= canvas.width() + Ridge::Step; x += Ridge::Step)
        ridge.tops << base - amplitude * cloudNoise(x / breadth + shift, 0.5, octaves, seed);
    return ridge;
}

void rock(Canvas &canvas, const Ridge &ridge, double foot, const Rock &look)
{
    const quint32 seed = canvas.newSeed();
    const double span = std::max(40.0, foot - ridge.highest());
    const Tint dark = Tint::of(look.dark);
    const Tint lit = Tint::of(look.lit);
    const Tint haze = Tint::of(look.haze);
    const Tint snowLit = Tint::of(look.snowLit);
    const Tint snowShade = Tint::of(look.snowShade);
    const auto relief = [&](double x, double depth) {
        return ridgeNoise(x / (span * 0.55) + 0.25 * noise(x / 90, depth / 90, seed + 70),
                          depth / (span * 0.9), 6, seed);
    };
    canvas.shade(ridge.area(foot), 2, [&](double x, double y) {
        const double depth = y - ridge.at(x);
        const double step = span * 0.02;
        const double face = (relief(x, depth)
                             - relief(x - look.lightFrom * step, depth - step * 0.6));
        const double crest = (ridge.at(x - 14) - ridge.at(x + 14)) / 28 * -look.lightFrom;
        const double light = std::clamp(0.42 + face * 4.2 + crest * 0.3 * std::exp(-depth / 60),
                                        0.0, 1.0);
        Tint tint = mix(dark, lit, light);
        if (look.snow > 0) {
            const double line = look.snow * (0.75 + 0.5 * noise(x / 40, y / 60, seed + 80))
                + face * look.snow * 2.2 - (ridge.at(x) - ridge.highest()) * 0.55;
            const double cover = smoothstep(line, line - 26, depth);
            tint = mix(tint, mix(snowShade, snowLit, smoothstep(0.25, 0.6, light)), cover);
        }
        const double down = std::clamp((y - ridge.highest()) / span, 0.0, 1.0);
        return mix(tint, haze, mix(look.hazeTop, look.hazeBottom, down * down));
    });
}

QPainterPath conifer(Random &random, const QPointF &foot, double height)
{
    const double half = height * random.between(0.17, 0.23);
    const int tiers = std::clamp(int(height / 9), 6, 22);
    QPolygonF left;
    QPolygonF right;
    const double lean = random.between(-0.015, 0.015) * height;
    for (int i = 0; i < tiers; ++i) {
        const double t = double(i + 1) / tiers;
        const double y = foot.y() - height * (1 - t * 0.94);
        const double reach = half * std::pow(t, 0.85);
        const double x = foot.x() + lean * (1 - t);
        left << QPointF(x - reach * random.between(0.75, 1.1), y + height * 0.018)
             << QPointF(x - reach * random.between(0.35, 0.5), y - height * 0.012);
        right << QPointF(x + reach * random.between(0.75, 1.1), y + height * 0.018)
              << QPointF(x + reach * random.between(0.35, 0.5), y - height * 0.012);
    }
    QPolygonF outline;
    outline << QPointF(foot.x() + lean, foot.y() - height);
    outline += right;
    outline << QPointF(foot.x() + half * 0.1, foot.y() - height * 0.05)
            << QPointF(foot.x() + half * 0.1, foot.y() + 4)
            << QPointF(foot.x() - half * 0.1, foot.y() + 4)
            << QPointF(foot.x() - half * 0.1, foot.y() - height * 0.05);
    std::reverse(left.begin(), left.end());
    outline += left;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addPolygon(outline);
    path.closeSubpath();
    return path;
}

QPainterPath conifers(Canvas &canvas, const Ridge &ground, double low, double high, double gap)
{
    Random &random = canvas.random();
    const quint32 seed = canvas.newSeed();
    QPainterPath wood = ground.area(Canvas::Height + 10);
    wood.setFillRule(Qt::WindingFill);
    for (double x = -gap; x < canvas.width() + gap; x += gap * random.between(0.5, 1.5)) {
        const double stand = 0.5 + 0.5 * noise(x / 130, 3.3, seed);
        const double height = mix(low, high, stand) * random.between(0.7, 1.15);
        // sunk a little, so that no light shows below the lowest branches
        wood.addPath(conifer(random, QPointF(x, ground.at(x) + 3 + 0.06 * height), height));
    }
    return wood;
}

QPainterPath leafyTree(Random &random, const QPointF &foot, double height, QPainterPath *trunk)
{
    const double thick = height * 0.035;
    QPainterPath wood;
    wood.moveTo(foot.x() - thick, foot.y());
    wood.quadTo(foot.x() - thick * 0.3, foot.y() - height * 0.3, foot.x(), foot.y() - height * 0.7);
    wood.quadTo(foot.x() + thick * 0.4, foot.y() - height * 0.3, foot.x() + thick, foot.y());
    trunk->addPath(wood);
    QPainterPath crown;
    crown.setFillRule(Qt::WindingFill);
    for (int i = 0; i < 90; ++i) {
        const double angle = random.unit() * 6.2832;
        const double away = std::sqrt(random.unit());
        const QPointF at(foot.x() + std::cos(angle) * away * height * 0.32,
                         foot.y() - height * 0.64 + std::sin(angle) * away * height * 0.34);
        const double radius = height * random.between(0.03, 0.085);
        crown.addEllipse(at, radius, radius * 0.85);
    }
    return crown;
}

void mist(Canvas &canvas, double top, double bottom, const QColor &color, double strength)
{
    const quint32 seed = canvas.newSeed();
    const Tint tint = Tint::of(color);
    canvas.shade(QRectF(0, top, canvas.width(), bottom - top), 5, [&](double x, double y) {
        const double t = (y - top) / (bottom - top);
        const double body = std::sin(t * 3.1416);
        const double shreds = 0.6 + 0.9 * cloudNoise(x / 260, y / 60, 5, seed);
        return tint.withAlpha(strength * body * std::clamp(shreds, 0.0, 1.0));
    });
}

void grass(Canvas &canvas, const Ridge &ground, double height, double gap, const QColor &dark,
           const QColor &lit)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        for (double x = -5; x < canvas.width() + 5; x += gap * random.between(0.4, 1.4)) {
            const QPointF foot(x, ground.at(std::max(0.0, x)) + random.between(0, height));
            const double reach = height * random.between(0.5, 1.2);
            const QPointF tip(x + random.between(-0.45, 0.45) * reach, foot.y() - reach);
            QPainterPath blade(foot - QPointF(reach * 0.035, 0));
            blade.quadTo(foot + QPointF(0, -reach * 0.6), tip);
            blade.quadTo(foot + QPointF(reach * 0.03, -reach * 0.5),
                         foot + QPointF(reach * 0.035, 0));
            painter.fillPath(blade, mix(dark, lit, random.unit()));
        }
    });
}

void glitter(Canvas &canvas, double x, double top, double bottom, double spread,
             const QColor &color, int count)
{
    Random &random = canvas.random();
    canvas.draw([&](QPainter &painter) {
        painter.setCompositionMode(QPainter::CompositionMode_Screen);
        for (int i = 0; i < count; ++i) {
            const double t = std::pow(random.unit(), 1.4);
            const double side = (random.unit() + random.unit() + random.unit() - 1.5) / 1.5;
            const double reach = spread * (0.25 + t);
            const double width = 3 + 26 * t * random.unit();
            painter.setBrush(withAlpha(color, random.between(0.08, 0.75) * (1 - std::abs(side))));
            painter.drawEllipse(QPointF(x + side * reach, mix(top, bottom, t)), width,
                                0.6 + 1.9 * t);
        }
    });
}

} // namespace Nature
