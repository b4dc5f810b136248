#include "scenes/nature.h"
#include "scenes/scenes.h"

#include <algorithm>
#include <cmath>

using namespace Nature;

namespace {

struct Person
{
    QColor skin;
    QColor hair;
    QColor cloth;
    int hairStyle; ///< 0 short, 1 long, 2 bun, 3 curly, 4 cap, 5 bob
    bool beard = false;
    bool glasses = false;
    double age = 1; ///< below 1: larger, lower features, as a child has them
};

const Person s_people[] = {
    {{240, 196, 166}, {92, 54, 34}, {60, 110, 150}, 1},
    {{152, 100, 70}, {30, 22, 22}, {236, 180, 70}, 3},
    {{226, 172, 134}, {40, 30, 30}, {90, 120, 96}, 0, true},
    {{250, 212, 186}, {216, 156, 84}, {222, 110, 110}, 5},
    {{114, 72, 50}, {26, 18, 18}, {240, 236, 226}, 0, false, true},
    {{246, 206, 170}, {180, 80, 40}, {110, 90, 150}, 2},
    {{232, 184, 140}, {24, 20, 24}, {200, 70, 60}, 1},
    {{236, 190, 154}, {206, 206, 210}, {70, 84, 104}, 0, true, true},
};

QPainterPath faceShape(const QPointF &c, double s)
{
    QPainterPath face(c + QPointF(-0.5, -0.12) * s);
    face.cubicTo(c + QPointF(-0.53, -0.62) * s, c + QPointF(0.53, -0.62) * s,
                 c + QPointF(0.5, -0.12) * s);
    face.cubicTo(c + QPointF(0.5, 0.32) * s, c + QPointF(0.24, 0.68) * s, c + QPointF(0, 0.68) * s);
    face.cubicTo(c + QPointF(-0.24, 0.68) * s, c + QPointF(-0.5, 0.32) * s,
                 c + QPointF(-0.5, -0.12) * s);
    return face;
}

void hairBehind(QPainter &painter, const Person &who, const QPointF &c, double s)
{
    QLinearGradient strands(c.x() - s * 0.7, 0, c.x() + s * 0.7, 0);
    strands.setColorAt(0, mix(who.hair, Qt::white, 0.18));
    strands.setColorAt(1, mix(who.hair, Qt::black, 0.35));
    painter.setBrush(strands);
    if (who.hairStyle == 1) {
        QPainterPath fall(c + QPointF(-0.6, -0.1) * s);
        fall.cubicTo(c + QPointF(-0.68, -0.95) * s, c + QPointF(0.68, -0.95) * s,
                     c + QPointF(0.6, -0.1) * s);
        fall.cubicTo(c + QPointF(0.62, 0.5) * s, c + QPointF(0.86, 0.9) * s,
                     c + QPointF(0.66, 1.36) * s);
        fall.lineTo(c + QPointF(-0.7, 1.36) * s);
        fall.cubicTo(c + QPointF(-0.84, 0.9) * s, c + QPointF(-0.6, 0.5) * s,
                     c + QPointF(-0.6, -0.1) * s);
        painter.drawPath(fall);
    } else if (who.hairStyle == 5) {
        QPainterPath bob(c + QPointF(-0.62, 0) * s);
        bob.cubicTo(c + QPointF(-0.7, -0.92) * s, c + QPointF(0.7, -0.92) * s,
                    c + QPointF(0.62, 0) * s);
        bob.cubicTo(c + QPointF(0.68, 0.4) * s, c + QPointF(0.6, 0.6) * s,
                    c + QPointF(0.5, 0.62) * s);
        bob.lineTo(c + QPointF(-0.5, 0.62) * s);
        bob.cubicTo(c + QPointF(-0.6, 0.6) * s, c + QPointF(-0.68, 0.4) * s,
                    c + QPointF(-0.62, 0) * s);
        painter.drawPath(bob);
    } else if (who.hairStyle == 2) {
        painter.drawEllipse(c + QPointF(0.04, -0.78) * s, s * 0.24, s * 0.22);
    } else if (who.hairStyle == 3) {
        for (int i = 0; i < 34; ++i) {
            const double angle = -3.5 + 3.85 * i / 33;
            painter.drawEllipse(
                c + QPointF(std::cos(angle) * 0.55, -0.12 + std::sin(angle) * 0.52) * s, s * 0.2,
                s * 0.2);
        }
    }
}

void hairInFront(QPainter &painter, const Person &who, const QPointF &c, double s)
{
    QLinearGradient strands(c.x() - s * 0.5, c.y() - s * 0.6, c.x() + s * 0.5, c.y());
    strands.setColorAt(0, mix(who.hair, Qt::white, 0.3));
    strands.setColorAt(0.5, who.hair);
    strands.setColorAt(1, mix(who.hair, Qt::black, 0.3));
    QPainterPath top(c + QPointF(-0.535, 0.02) * s);
    top.cubicTo(c + QPointF(-0.62, -0.78) * s, c + QPointF(0.62, -0.8) * s,
                c + QPointF(0.535, 0.02) * s);
    switch (who.hairStyle) {
    case 1:
    case 5:
        top.cubicTo(c + QPointF(0.48, -0.2) * s, c + QPointF(0.3, -0.4) * s,
                    c + QPointF(-0.1, -0.44) * s);
        top.cubicTo(c + QPointF(-0.34, -0.34) * s, c + QPointF(-0.48, -0.14) * s,
                    c + QPointF(-0.535, 0.02) * s);
        break;
    case 3:
        top.cubicTo(c + QPointF(0.44, -0.3) * s, c + QPointF(-0.44, -0.3) * s,
                    c + QPointF(-0.535, 0.02) * s);
        break;
    default:
        top.cubicTo(c + QPointF(0.5, -0.16) * s, c + QPointF(0.42, -0.3) * s,
                    c + QPointF(0.3, -0.34) * s);
        top.cubicTo(c + QPointF(0.05, -0.3) * s, c + QPointF(-0.25, -0.42) * s,
                    c + QPointF(-0.36, -0.4) * s);
        top.cubicTo(c + QPointF(-0.46, -0.3) * s, c + QPointF(-0.48, -0.12) * s,
                    c + QPointF(-0.535, 0.02) * s);
        break;
    }
    painter.fillPath(top, strands);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(mix(who.hair, Qt::white, 0.55), 0.4), s * 0.014, Qt::SolidLine,
                        Qt::RoundCap));
    for (int i = 0; i < 5; ++i) {
        QPainterPath shine(c + QPointF(-0.4 + i * 0.06, -0.34 - i * 0.02) * s);
        shine.quadTo(c + QPointF(-0.28 + i * 0.09, -0.58) * s,
                     c + QPointF(-0.02 + i * 0.1, -0.6 + 0.015 * i) * s);
        painter.drawPath(shine);
    }
    painter.setPen(Qt::NoPen);
}

void features(QPainter &painter, const Person &who, const QPointF &c, double s, double gaze)
{
    const double low = (1 - who.age) * 0.08;
    const QColor shade = mix(who.skin, QColor(120, 40, 40), 0.34);
    for (int side = -1; side <= 1; side += 2) {
        const QPointF eye = c + QPointF(0.2 * side, -0.02 + low) * s;
        const double wide = s * (0.098 + 0.02 * (1 - who.age));
        QPainterPath lid(eye + QPointF(-wide, 0));
        lid.quadTo(eye + QPointF(0, -wide * 1.2), eye + QPointF(wide, 0));
        lid.quadTo(eye + QPointF(0, wide * 0.75), eye + QPointF(-wide, 0));
        painter.fillPath(lid, QColor(252, 250, 248));
        painter.save();
        painter.setClipPath(lid);
        painter.setBrush(mix(who.hair, QColor(70, 90, 80), 0.5));
        painter.drawEllipse(eye + QPointF(gaze * wide * 0.3, -wide * 0.06), wide * 0.56,
                            wide * 0.56);
        painter.setBrush(QColor(18, 14, 16));
        painter.drawEllipse(eye + QPointF(gaze * wide * 0.3, -wide * 0.06), wide * 0.28,
                            wide * 0.28);
        painter.setBrush(Qt::white);
        painter.drawEllipse(eye + QPointF(gaze * wide * 0.3 - wide * 0.2, -wide * 0.26),
                            wide * 0.14, wide * 0.14);
        painter.restore();
        painter.setBrush(Qt::NoBrush);
        QPainterPath lash(eye + QPointF(-wide * 1.08, wide * 0.06));
        lash.quadTo(eye + QPointF(0, -wide * 1.34), eye + QPointF(wide * 1.1, -wide * 0.02));
        painter.setPen(QPen(mix(who.hair, Qt::black, 0.6), s * 0.022, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(lash);
        QPainterPath brow(c + QPointF(0.1 * side, -0.155 + low) * s);
        brow.quadTo(c + QPointF(0.21 * side, -0.225 + low) * s,
                    c + QPointF(0.325 * side, -0.15 + low) * s);
        painter.setPen(
            QPen(mix(who.hair, Qt::black, 0.15), s * 0.034, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(brow);
        painter.setPen(Qt::NoPen);
        QRadialGradient blush(c + QPointF(0.28 * side, 0.2 + low) * s, s * 0.17);
        blush.setColorAt(0, QColor(230, 90, 80, 80));
        blush.setColorAt(1, QColor(230, 90, 80, 0));
        painter.setBrush(blush);
        painter.drawEllipse(c + QPointF(0.28 * side, 0.2 + low) * s, s * 0.17, s * 0.17);
    }
    painter.setBrush(Qt::NoBrush);
    QPainterPath nose(c + QPointF(0.03, 0.0 + low) * s);
    nose.quadTo(c + QPointF(0.1, 0.17 + low) * s, c + QPointF(0.02, 0.2 + low) * s);
    painter.setPen(QPen(shade, s * 0.02, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(nose);
    painter.setPen(Qt::NoPen);
    if (who.beard) {
        QPainterPath beard(c + QPointF(-0.49, 0.08) * s);
        beard.cubicTo(c + QPointF(-0.36, 0.36) * s, c + QPointF(-0.26, 0.2) * s,
                      c + QPointF(0, 0.245) * s);
        beard.cubicTo(c + QPointF(0.26, 0.2) * s, c + QPointF(0.36, 0.36) * s,
                      c + QPointF(0.49, 0.08) * s);
        beard.cubicTo(c + QPointF(0.5, 0.44) * s, c + QPointF(0.24, 0.76) * s,
                      c + QPointF(0, 0.76) * s);
        beard.cubicTo(c + QPointF(-0.24, 0.76) * s, c + QPointF(-0.5, 0.44) * s,
                      c + QPointF(-0.49, 0.08) * s);
        painter.fillPath(beard, withAlpha(who.hair, 0.92));
    }
    QPainterPath smile(c + QPointF(-0.16, 0.325 + low) * s);
    smile.quadTo(c + QPointF(0, 0.36 + low) * s, c + QPointF(0.16, 0.325 + low) * s);
    smile.quadTo(c + QPointF(0, 0.52 + low) * s, c + QPointF(-0.16, 0.325 + low) * s);
    painter.fillPath(smile, QColor(150, 40, 46));
    painter.save();
    painter.setClipPath(smile);
    painter.fillRect(QRectF(c + QPointF(-0.14, 0.32 + low) * s, QSizeF(0.28, 0.06) * s),
                     QColor(255, 252, 248));
    painter.restore();
    if (who.glasses) {
        painter.setBrush(QColor(255, 255, 255, 34));
        painter.setPen(QPen(QColor(40, 34, 40), s * 0.024));
        for (int side = -1; side <= 1; side += 2)
            painter.drawRoundedRect(
                QRectF(c.x() + (0.2 * side - 0.145) * s, c.y() - 0.12 * s, 0.29 * s, 0.23 * s),
                s * 0.09, s * 0.09);
        painter.drawLine(c + QPointF(-0.055, -0.03) * s, c + QPointF(0.055, -0.03) * s);
        painter.setPen(Qt::NoPen);
    }
}

/// Head and shoulders; \a s is the breadth of the head.
void bust(Canvas &canvas, const Person &who, const QPointF &c, double s, double gaze, double bottom)
{
    canvas.draw([&](QPainter &painter) {
        hairBehind(painter, who, c, s);
        QPainterPath shoulders(c + QPointF(-0.2, 0.84) * s);
        shoulders.cubicTo(c + QPointF(-0.6, 0.98) * s, c + QPointF(-1.02, 1.02) * s,
                          c + QPointF(-1.12, 1.6) * s);
        shoulders.lineTo(c.x() - 1.2 * s, bottom);
        shoulders.lineTo(c.x() + 1.2 * s, bottom);
        shoulders.lineTo(c + QPointF(1.12, 1.6) * s);
        shoulders.cubicTo(c + QPointF(1.02, 1.02) * s, c + QPointF(0.6, 0.98) * s,
                          c + QPointF(0.2, 0.84) * s);
        shoulders.quadTo(c + QPointF(0, 1.05) * s, c + QPointF(-0.2, 0.84) * s);
        QLinearGradient weave(c.x() - s, c.y() + s * 0.8, c.x() + s, c.y() + s * 1.6);
        weave.setColorAt(0, mix(who.cloth, Qt::white, 0.2));
        weave.setColorAt(1, mix(who.cloth, QColor(20, 10, 40), 0.38));
        QPainterPath neck(c + QPointF(-0.21, 0.4) * s);
        neck.lineTo(c + QPointF(-0.22, 0.86) * s);
        neck.quadTo(c + QPointF(0, 1.16) * s, c + QPointF(0.22, 0.86) * s);
        neck.lineTo(c + QPointF(0.21, 0.4) * s);
        QLinearGradient throat(0, c.y() + 0.5 * s, 0, c.y() + s);
        throat.setColorAt(0, mix(who.skin, QColor(100, 40, 40), 0.4));
        throat.setColorAt(1, mix(who.skin, QColor(140, 60, 50), 0.12));
        painter.fillPath(shoulders, weave);
        painter.fillPath(neck, throat);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(mix(who.cloth, Qt::black, 0.22), s * 0.035, Qt::SolidLine, Qt::RoundCap));
        QPainterPath collar(c + QPointF(-0.23, 0.86) * s);
        collar.quadTo(c + QPointF(0, 1.2) * s, c + QPointF(0.23, 0.86) * s);
        painter.drawPath(collar);
        painter.setPen(Qt::NoPen);
        painter.setBrush(mix(who.skin, QColor(160, 60, 50), 0.2));
        if (who.hairStyle != 1 && who.hairStyle != 5) {
            painter.drawEllipse(c + QPointF(-0.51, 0.06) * s, s * 0.07, s * 0.12);
            painter.drawEllipse(c + QPointF(0.51, 0.06) * s, s * 0.07, s * 0.12);
        }
        QRadialGradient light(c + QPointF(-0.2, -0.2) * s, s * 1.05);
        light.setColorAt(0, mix(who.skin, QColor(255, 240, 220), 0.35));
        light.setColorAt(0.5, who.skin);
        light.setColorAt(1, mix(who.skin, QColor(120, 40, 50), 0.42));
        painter.fillPath(faceShape(c, s), light);
        features(painter, who, c, s, gaze);
        hairInFront(painter, who, c, s);
    });
}

void softPlace(Canvas &canvas, const QVector<QColor> &colors)
{
    Random &random = canvas.random();
    canvas.gradient({{0, colors.at(0)}, {0.6, colors.at(1)}, {1, colors.at(2)}});
    canvas.drawSoft(40, [&](QPainter &painter) {
        for (int i = 0; i < 70; ++i) {
            painter.setBrush(
                withAlpha(colors.at(random.below(colors.size())), random.between(0.2, 0.7)));
            const double radius = random.between(40, 160);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 1000),
                                radius, radius);
        }
    });
    canvas.drawSoft(5, [&](QPainter &painter) {
        for (int i = 0; i < 32; ++i) {
            painter.setBrush(
                withAlpha(mix(colors.last(), Qt::white, 0.35), random.between(0.08, 0.3)));
            const double radius = random.between(16, 64);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.unit() * 760),
                                radius, radius);
        }
    });
}

const QVector<QColor> s_places[] = {
    {{170, 196, 130}, {96, 140, 84}, {60, 96, 66}, {250, 240, 180}},
    {{250, 190, 120}, {206, 120, 90}, {120, 64, 74}, {255, 226, 160}},
    {{120, 150, 180}, {80, 100, 130}, {50, 60, 84}, {220, 230, 240}},
    {{250, 210, 200}, {230, 170, 170}, {190, 130, 140}, {255, 240, 230}},
    {{30, 40, 80}, {60, 50, 100}, {20, 20, 44}, {255, 190, 120}},
};

} // namespace

void Scenes::portrait(Canvas &canvas, int variant)
{
    static const int s_who[] = {0, 1, 2, 3, 6};
    softPlace(canvas, s_places[variant % 5]);
    const double s = std::min(300.0, canvas.width() * 0.36);
    const QPointF c(canvas.width() * 0.5, 420);
    canvas.glow({canvas.width() * 0.2, 150}, 700, s_places[variant % 5].last(), 0.5);
    bust(canvas, s_people[s_who[variant % 5]], c, s, variant % 2 ? -0.5 : 0.4, 1010);
    canvas.glow(c + QPointF(-s * 0.8, -s * 0.8), s * 2, {255, 244, 214}, 0.28);
}

void Scenes::group(Canvas &canvas, int variant)
{
    softPlace(canvas, s_places[variant % 2]);
    const int count = variant % 2 ? 5 : 4;
    const double pitch = canvas.width() / (count + 0.2);
    const double s = std::min(190.0, pitch * 0.56);
    for (int row = 1; row >= 0; --row)
        for (int i = 0; i < count; ++i) {
            if ((i % 2 == 1) != (row == 1))
                continue;
            Person who = s_people[(i * 3 + variant * 2 + 1) % 8];
            const QPointF c(pitch * (i + 0.6), row ? 330 : 480);
            bust(canvas, who, c, s * (row ? 0.94 : 1.05), i < count / 2 ? 0.4 : -0.4, 1010);
        }
    canvas.glow({canvas.width() * 0.2, 80}, 1100, {255, 240, 200}, 0.4);
}

static void figure(QPainter &painter, const QPointF &foot, double h, double stride,
                   const QColor &color, bool pack)
{
    painter.setBrush(color);
    painter.drawEllipse(foot + QPointF(0, -0.93) * h, h * 0.062, h * 0.075);
    QPainterPath body(foot + QPointF(-0.09, -0.83) * h);
    body.quadTo(foot + QPointF(0, -0.88) * h, foot + QPointF(0.09, -0.83) * h);
    body.quadTo(foot + QPointF(0.1, -0.6) * h, foot + QPointF(0.075, -0.46) * h);
    body.lineTo(foot + QPointF(0.05 + stride, -0.2) * h);
    body.lineTo(foot + QPointF(0.05 + stride * 1.2, 0) * h);
    body.lineTo(foot + QPointF(-0.01 + stride * 1.1, 0) * h);
    body.lineTo(foot + QPointF(0, -0.4) * h);
    body.lineTo(foot + QPointF(-0.02 - stride, 0) * h);
    body.lineTo(foot + QPointF(-0.09 - stride, 0) * h);
    body.lineTo(foot + QPointF(-0.075, -0.46) * h);
    body.closeSubpath();
    painter.drawPath(body);
    painter.save();
    painter.setPen(QPen(color, h * 0.042, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({foot + QPointF(-0.08, -0.8) * h, foot + QPointF(-0.13, -0.62) * h,
                   foot + QPointF(-0.1, -0.47) * h}));
    painter.drawPolyline(QPolygonF({foot + QPointF(0.08, -0.8) * h, foot + QPointF(0.14, -0.64) * h,
                                    foot + QPointF(0.17, -0.5) * h}));
    painter.restore();
    if (pack)
        painter.drawRoundedRect(QRectF(foot + QPointF(-0.19, -0.84) * h, QSizeF(0.13, 0.27) * h),
                                h * 0.04, h * 0.04);
}

void Scenes::silhouettes(Canvas &canvas, int variant)
{
    variant %= 3;
    static const QGradientStops s_skies[] = {
        {{0, {40, 60, 120}},
         {0.35, {200, 110, 110}},
         {0.6, {255, 180, 100}},
         {0.8, {255, 226, 160}}},
        {{0, {70, 40, 110}},
         {0.4, {220, 90, 120}},
         {0.65, {255, 160, 110}},
         {0.85, {255, 214, 150}}},
        {{0, {60, 140, 190}},
         {0.4, {170, 210, 214}},
         {0.65, {255, 226, 170}},
         {0.85, {255, 206, 130}}},
    };
    const QColor dark = variant == 2 ? QColor(44, 40, 56) : QColor(26, 16, 32);
    const QPointF light(canvas.width() * 0.42, variant == 1 ? 600 : 520);
    canvas.gradient(s_skies[variant]);
    clouds(canvas,
           {0.42, 760, {255, 206, 160}, mix(dark, s_skies[variant].at(1).second, 0.7), 0.75, 2},
           light);
    sun(canvas, light, variant == 1 ? 84 : 44, {255, 214, 140}, 1);
    for (int i = 0; i < 3; ++i) {
        const double t = i / 2.0;
        const Ridge ridge = peaks(canvas, mix(720, 880, t), mix(150, 80, t), mix(320, 240, t));
        Rock look;
        look.dark = look.lit = mix(s_skies[variant].at(1).second, dark, 0.25 + 0.4 * t);
        look.haze = s_skies[variant].last().second;
        look.hazeTop = 0.3 * (1 - t);
        look.hazeBottom = 0.85 - 0.3 * t;
        rock(canvas, ridge, 1010, look);
    }
    Ridge knoll = downs(canvas, 900, 12, 90);
    for (int i = 0; i < knoll.tops.size(); ++i) {
        const double x = i * Ridge::Step / canvas.width();
        knoll.tops[i] -= 120 * std::exp(-std::pow((x - 0.6) / 0.24, 2));
    }
    canvas.draw([&](QPainter &painter) {
        const auto stand = [&](double share) {
            return QPointF(share * canvas.width(), knoll.at(share * canvas.width()) + 8);
        };
        if (variant == 0) {
            figure(painter, stand(0.6), 270, 0.07, dark, true);
            painter.setPen(QPen(dark, 6, Qt::SolidLine, Qt::RoundCap));
            const QPointF hand = stand(0.6) + QPointF(0.17, -0.5) * 270;
            painter.drawLine(hand + QPointF(-4, -40), hand + QPointF(26, 140));
        } else if (variant == 1) {
            figure(painter, stand(0.57), 290, 0.02, dark, false);
            figure(painter, stand(0.645), 264, 0.02, dark, false);
            painter.setBrush(dark);
            QPainterPath dress(stand(0.645) + QPointF(-16, -130));
            dress.lineTo(stand(0.645) + QPointF(-54, -34));
            dress.lineTo(stand(0.645) + QPointF(48, -34));
            dress.lineTo(stand(0.645) + QPointF(18, -130));
            painter.drawPath(dress);
        } else {
            figure(painter, stand(0.6), 200, 0.05, dark, false);
            const QPointF hand = stand(0.6) + QPointF(0.17, -0.5) * 200;
            static const QColor s_air[] = {
                {236, 70, 70}, {250, 190, 60}, {70, 150, 210}, {120, 190, 110}, {230, 120, 180}};
            for (int i = 0; i < 5; ++i) {
                const QPointF at = hand
                    + QPointF(-40 + i * 52 + (i % 2) * 14, -270 - 46 * std::sin(i * 1.5));
                painter.setPen(QPen(QColor(60, 50, 60, 190), 1.8));
                painter.drawLine(hand, at + QPointF(0, 50));
                painter.setPen(Qt::NoPen);
                QRadialGradient rubber(at - QPointF(14, 18), 64);
                rubber.setColorAt(0, mix(s_air[i], Qt::white, 0.6));
                rubber.setColorAt(0.4, s_air[i]);
                rubber.setColorAt(1, mix(s_air[i], Qt::black, 0.3));
                painter.setBrush(rubber);
                painter.drawEllipse(at, 40, 49);
            }
        }
        painter.setPen(Qt::NoPen);
        painter.fillPath(knoll.area(1010), dark);
    });
    for (int band = 0; band < 2; ++band) {
        Ridge edge = knoll;
        for (double &top : edge.tops)
            top += band * 30;
        grass(canvas, edge, 34, 5, dark, mix(dark, QColor(255, 190, 110), 0.18));
    }
    canvas.glow(light, 1000, {255, 200, 130}, 0.35);
}
