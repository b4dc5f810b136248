#include "scenes/scenes.h"
#include "scenes/table.h"

#include <algorithm>
#include <cmath>

using namespace Table;

void Scenes::coffee(Canvas &canvas, int)
{
    wood(canvas, {70, 40, 24}, {168, 112, 70});
    Random &random = canvas.random();
    const QPointF center(canvas.width() * 0.47, 520);
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 26; ++i) {
            const QPointF at(canvas.width() * random.between(0.74, 0.98), random.between(90, 420));
            painter.save();
            painter.translate(at);
            painter.rotate(random.between(0, 180));
            QRadialGradient bean(QPointF(-8, -6), 34);
            bean.setColorAt(0, {140, 84, 50});
            bean.setColorAt(1, {44, 22, 12});
            painter.setBrush(QColor(20, 10, 10, 90));
            painter.drawEllipse(QPointF(4, 6), 27, 18);
            painter.setBrush(bean);
            painter.drawEllipse(QPointF(0, 0), 26, 17);
            painter.setPen(QPen(QColor(36, 16, 8), 3));
            QPainterPath slit(QPointF(-24, 0));
            slit.cubicTo(QPointF(-8, 8), QPointF(8, -8), QPointF(24, 0));
            painter.drawPath(slit);
            painter.restore();
        }
    });
    plate(canvas, center, 410, {226, 232, 232});
    shadow(canvas, center, 262, 0.5);
    canvas.draw([&](QPainter &painter) {
        painter.save();
        painter.translate(center);
        painter.rotate(-32);
        QLinearGradient grip(0, -34, 0, 34);
        grip.setColorAt(0, Qt::white);
        grip.setColorAt(1, {168, 178, 186});
        painter.setPen(QPen(QBrush(grip), 34, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(230, -56, 118, 112), 50, 50);
        painter.restore();
        QLinearGradient rim(center - QPointF(260, 260), center + QPointF(260, 260));
        rim.setColorAt(0, Qt::white);
        rim.setColorAt(1, {186, 194, 200});
        painter.setPen(Qt::NoPen);
        painter.setBrush(rim);
        painter.drawEllipse(center, 262, 262);
        QRadialGradient crema(center, 236);
        crema.setColorAt(0, {196, 128, 70});
        crema.setColorAt(0.8, {160, 92, 44});
        crema.setColorAt(1, {84, 42, 20});
        painter.setBrush(crema);
        painter.drawEllipse(center, 234, 234);
        // a fern poured in milk
        painter.setBrush(Qt::NoBrush);
        for (int i = 0; i < 6; ++i) {
            const double t = i / 5.0;
            const double y = mix(-150, 92, t);
            const double half = mix(34, 150, std::sin(t * 2.2));
            QPainterPath leaf(center + QPointF(-half, y + 10));
            leaf.cubicTo(center + QPointF(-half * 0.9, y + 76),
                         center + QPointF(-half * 0.2, y + 70), center + QPointF(0, y + 92));
            leaf.cubicTo(center + QPointF(half * 0.2, y + 70), center + QPointF(half * 0.9, y + 76),
                         center + QPointF(half, y + 10));
            painter.setPen(
                QPen(QColor(252, 238, 216), mix(12, 24, t), Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(leaf);
        }
        painter.setPen(QPen(QColor(170, 100, 50), 7, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(center + QPointF(0, -160), center + QPointF(0, 190));
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(252, 238, 216));
        QPainterPath heart(center + QPointF(0, -118));
        heart.cubicTo(center + QPointF(-70, -160), center + QPointF(-40, -214),
                      center + QPointF(0, -178));
        heart.cubicTo(center + QPointF(40, -214), center + QPointF(70, -160),
                      center + QPointF(0, -118));
        painter.drawPath(heart);
    });
    canvas.glow({canvas.width() * 0.15, 60}, 900, {255, 226, 180}, 0.35);
}

void Scenes::pizza(Canvas &canvas, int)
{
    wood(canvas, {46, 34, 32}, {120, 92, 74});
    Random &random = canvas.random();
    const QPointF center(canvas.width() * 0.52, 510);
    shadow(canvas, center, 425, 0.7);
    const quint32 seed = canvas.newSeed();
    const QPainterPath crust = blob(random, center, 425, 0.06);
    canvas.shade(crust, 1.6, [&](double x, double y) {
        const double away = std::hypot(x - center.x(), y - center.y()) / 425;
        const double char0 = smoothstep(0.2, 0.55, cloudNoise(x / 40, y / 40, 4, seed));
        const Tint dough = mix(Tint{0.93, 0.72, 0.42}, Tint{0.62, 0.34, 0.14},
                               std::abs(away - 0.93) * 5);
        return mix(dough, {0.25, 0.13, 0.07}, char0 * 0.75);
    });
    const QPainterPath sauce = blob(random, center, 352, 0.05);
    canvas.shade(sauce, 1.6, [&](double x, double y) {
        const double cheese = smoothstep(-0.12, 0.25, cloudNoise(x / 46, y / 46, 5, seed + 4));
        const double brown = smoothstep(0.2, 0.6, cloudNoise(x / 26, y / 26, 4, seed + 9));
        const Tint tomato = Tint{0.80, 0.17, 0.07}.scaled(0.9
                                                          + 0.2 * noise(x / 9, y / 9, seed + 1));
        const Tint melted = mix(Tint{1, 0.86, 0.5}, Tint{0.86, 0.52, 0.18}, brown * 0.7);
        return mix(tomato, melted, cheese);
    });
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 11; ++i) {
            const double angle = i * 2.39996;
            const QPointF at = center
                + QPointF(std::cos(angle), std::sin(angle)) * 300 * std::sqrt((i + 0.6) / 11);
            painter.setBrush(QColor(90, 10, 0, 120));
            painter.drawEllipse(at + QPointF(5, 7), 49, 48);
            ball(painter, at, 48, {214, 52, 32});
            painter.setBrush(QColor(250, 130, 70, 120));
            painter.drawEllipse(at, 34, 33);
            for (int s = 0; s < 6; ++s) {
                painter.setBrush(QColor(255, 226, 150, 220));
                painter.drawEllipse(at + QPointF(std::cos(s * 1.05), std::sin(s * 1.05)) * 20, 4.5,
                                    6);
            }
        }
        for (int i = 0; i < 9; ++i) {
            const double angle = i * 2.39996 + 1.1;
            const QPointF at = center
                + QPointF(std::cos(angle), std::sin(angle)) * 290 * std::sqrt((i + 0.5) / 9);
            leaf(painter, at, random.between(76, 116), random.between(0, 360), {44, 128, 46});
        }
        for (int i = 0; i < 12; ++i) {
            const QPointF at = center
                + QPointF(random.between(-250, 250), random.between(-250, 250));
            painter.setBrush(QColor(40, 34, 40));
            painter.drawEllipse(at, 17, 17);
            painter.setBrush(QColor(196, 120, 60));
            painter.drawEllipse(at, 7.5, 7.5);
        }
    });
    canvas.glow({canvas.width() * 0.2, 100}, 900, {255, 220, 170}, 0.35);
}

void Scenes::cake(Canvas &canvas, int)
{
    Random &random = canvas.random();
    canvas.gradient({{0, {62, 34, 60}},
                     {0.6, {150, 74, 86}},
                     {0.72, {196, 120, 100}},
                     {0.73, {120, 70, 60}},
                     {1, {70, 40, 44}}});
    canvas.drawSoft(6, [&](QPainter &painter) {
        static const QColor s_lights[] = {
            {255, 200, 120}, {255, 140, 120}, {255, 226, 180}, {220, 120, 190}};
        for (int i = 0; i < 46; ++i) {
            painter.setBrush(withAlpha(s_lights[random.below(4)], random.between(0.12, 0.5)));
            const double radius = random.between(14, 62);
            painter.drawEllipse(QPointF(random.unit() * canvas.width(), random.between(20, 620)),
                                radius, radius);
        }
    });
    const double middle = canvas.width() * 0.5;
    canvas.drawSoft(22, [&](QPainter &painter) {
        painter.setBrush(QColor(20, 6, 16, 170));
        painter.drawEllipse(QPointF(middle + 20, 890), 400, 56);
    });
    const auto tier = [&](double top, double bottom, double half, const QColor &color) {
        canvas.draw([&](QPainter &painter) {
            const double flat = half * 0.15;
            QLinearGradient side(middle - half, 0, middle + half, 0);
            side.setColorAt(0, mix(color, Qt::white, 0.35));
            side.setColorAt(0.4, color);
            side.setColorAt(1, mix(color, QColor(80, 20, 50), 0.45));
            painter.setBrush(side);
            painter.drawEllipse(QPointF(middle, bottom), half, flat);
            painter.fillRect(QRectF(middle - half, top, half * 2, bottom - top), side);
            for (int i = 0; i <= 22; ++i) {
                const double angle = 3.1416 * i / 22;
                painter.setBrush(mix(QColor(255, 244, 236), QColor(120, 50, 70), 0.35 * i / 22));
                painter.drawEllipse(
                    QPointF(middle - std::cos(angle) * half, bottom + std::sin(angle) * flat - 6),
                    half * 0.055, half * 0.05);
            }
            QPainterPath icing;
            icing.addEllipse(QPointF(middle, top), half, flat);
            for (int i = 0; i < 15; ++i) {
                const double angle = 3.1416 * (i + 0.5) / 15;
                const double x = middle - std::cos(angle) * half * 0.97;
                const double y = top + std::sin(angle) * flat * 0.8;
                icing.addRoundedRect(
                    QRectF(x - half * 0.065, y - 12, half * 0.13, random.between(30, 86)),
                    half * 0.065, half * 0.065);
            }
            icing.setFillRule(Qt::WindingFill);
            QLinearGradient glaze(middle - half, 0, middle + half, 0);
            glaze.setColorAt(0, {120, 60, 40});
            glaze.setColorAt(1, {58, 24, 20});
            painter.fillPath(icing, glaze);
            painter.setBrush(QColor(255, 255, 255, 26));
            painter.drawEllipse(QPointF(middle - half * 0.2, top - flat * 0.15), half * 0.6,
                                flat * 0.5);
        });
    };
    tier(650, 850, 350, {250, 206, 206});
    tier(470, 640, 240, {255, 238, 222});
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 9; ++i) {
            const double angle = 6.2832 * i / 9;
            ball(painter, {middle + std::cos(angle) * 190, 462 + std::sin(angle) * 28}, 23,
                 {214, 26, 50});
        }
    });
    static const QColor s_wax[] = {
        {90, 180, 220}, {250, 200, 80}, {240, 120, 160}, {150, 210, 130}, {190, 150, 230}};
    for (int i = 0; i < 5; ++i) {
        const QPointF foot(middle - 120 + 60 * i, 466 + 12 * std::sin(i * 1.6));
        canvas.draw([&](QPainter &painter) {
            QLinearGradient wax(foot.x() - 9, 0, foot.x() + 9, 0);
            wax.setColorAt(0, mix(s_wax[i], Qt::white, 0.5));
            wax.setColorAt(1, mix(s_wax[i], Qt::black, 0.2));
            painter.fillRect(QRectF(foot.x() - 9, foot.y() - 130, 18, 134), wax);
        });
        const QPointF flame(foot.x(), foot.y() - 160);
        canvas.glow(flame, 210, {255, 180, 90}, 0.75);
        canvas.drawSoft(2, [&](QPainter &painter) {
            QPainterPath fire(flame + QPointF(0, 28));
            fire.cubicTo(flame + QPointF(-24, 14), flame + QPointF(-8, -18),
                         flame + QPointF(2, -42));
            fire.cubicTo(flame + QPointF(8, -14), flame + QPointF(24, 12), flame + QPointF(0, 28));
            QRadialGradient heat(flame + QPointF(0, 10), 46);
            heat.setColorAt(0, {255, 255, 230});
            heat.setColorAt(1, {255, 150, 40});
            painter.fillPath(fire, heat);
        });
    }
}

void Scenes::ramen(Canvas &canvas, int)
{
    wood(canvas, {36, 28, 30}, {96, 74, 66});
    Random &random = canvas.random();
    const QPointF center(canvas.width() * 0.48, 510);
    shadow(canvas, center, 430, 0.75);
    canvas.draw([&](QPainter &painter) {
        QLinearGradient bowl(center - QPointF(400, 400), center + QPointF(400, 400));
        bowl.setColorAt(0, {60, 96, 140});
        bowl.setColorAt(1, {14, 26, 50});
        painter.setBrush(bowl);
        painter.drawEllipse(center, 430, 430);
        painter.setBrush(QColor(232, 230, 220));
        painter.drawEllipse(center, 398, 398);
        QRadialGradient broth(center, 380);
        broth.setColorAt(0, {226, 150, 70});
        broth.setColorAt(0.9, {186, 96, 36});
        broth.setColorAt(1, {110, 50, 20});
        painter.setBrush(broth);
        painter.drawEllipse(center, 372, 372);
        QPainterPath inside;
        inside.addEllipse(center, 366, 366);
        painter.setClipPath(inside);
        painter.setBrush(Qt::NoBrush);
        for (int i = 0; i < 170; ++i) {
            const QPointF from = center
                + QPointF(random.between(-330, 120), random.between(-60, 330));
            QPainterPath noodle(from);
            noodle.cubicTo(from + QPointF(random.between(20, 120), random.between(-120, 60)),
                           from + QPointF(random.between(80, 200), random.between(-20, 150)),
                           from + QPointF(random.between(120, 320), random.between(-70, 70)));
            painter.setPen(QPen(QColor(150, 90, 30, 120), 15, Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(noodle.translated(2, 3));
            painter.setPen(QPen(mix(QColor(255, 226, 140), QColor(240, 190, 90), random.unit()), 11,
                                Qt::SolidLine, Qt::RoundCap));
            painter.drawPath(noodle);
        }
        painter.setPen(Qt::NoPen);
        const auto egg = [&](const QPointF &at) {
            painter.setBrush(QColor(80, 40, 10, 110));
            painter.drawEllipse(at + QPointF(6, 9), 92, 78);
            painter.setBrush(QColor(255, 250, 238));
            painter.drawEllipse(at, 92, 78);
            QRadialGradient yolk(at - QPointF(12, 14), 62);
            yolk.setColorAt(0, {255, 200, 60});
            yolk.setColorAt(1, {236, 130, 16});
            painter.setBrush(yolk);
            painter.drawEllipse(at, 52, 48);
            painter.setBrush(QColor(255, 255, 255, 140));
            painter.drawEllipse(at - QPointF(18, 18), 12, 7);
        };
        egg(center + QPointF(150, -150));
        egg(center + QPointF(236, 10));
        for (int i = 0; i < 3; ++i) {
            const QPointF at = center + QPointF(-190 + 74 * i, -190 + 26 * i);
            painter.setBrush(QColor(60, 20, 10, 110));
            painter.drawEllipse(at + QPointF(6, 10), 108, 100);
            painter.setBrush(QColor(164, 96, 70));
            painter.drawEllipse(at, 108, 100);
            painter.setBrush(QColor(240, 206, 180));
            painter.drawEllipse(at + QPointF(-6, -4), 92, 83);
            painter.setBrush(QColor(196, 130, 104));
            painter.drawEllipse(at + QPointF(4, 4), 66, 60);
            painter.setBrush(QColor(226, 176, 150));
            painter.drawEllipse(at + QPointF(-10, 6), 36, 26);
        }
        for (int i = 0; i < 3; ++i) {
            painter.save();
            painter.translate(center + QPointF(90 + 46 * i, 236 - 34 * i));
            painter.rotate(-34 + 12 * i);
            painter.setBrush(mix(QColor(20, 48, 36), QColor(40, 80, 60), i / 2.0));
            painter.drawRect(QRectF(-56, -90, 112, 190));
            painter.restore();
        }
        for (int i = 0; i < 60; ++i) {
            const QPointF at = center + QPointF(random.between(-140, 60), random.between(-70, 120));
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(mix(QColor(70, 150, 60), QColor(180, 220, 120), random.unit()), 5));
            painter.drawEllipse(at, 12, 11);
        }
        painter.setPen(Qt::NoPen);
        for (int i = 0; i < 60; ++i) {
            painter.setBrush(QColor(255, 206, 120, 90));
            const double radius = random.between(4, 15);
            painter.drawEllipse(center
                                    + QPointF(random.between(-360, 360), random.between(-360, 360)),
                                radius, radius);
        }
    });
    canvas.draw([&](QPainter &painter) {
        for (int i = 0; i < 2; ++i) {
            painter.setPen(QPen(QColor(20, 10, 10, 120), 20, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(canvas.width() * 0.80 + i * 44 + 10, 70),
                             QPointF(canvas.width() * 0.86 + i * 44 + 10, 960));
            painter.setPen(QPen(QColor(176, 60, 40), 18, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(canvas.width() * 0.80 + i * 44, 60),
                             QPointF(canvas.width() * 0.86 + i * 44, 950));
            painter.setPen(QPen(QColor(240, 130, 90, 150), 4, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(canvas.width() * 0.80 + i * 44 - 4, 60),
                             QPointF(canvas.width() * 0.86 + i * 44 - 4, 950));
        }
    });
    canvas.glow({canvas.width() * 0.15, 80}, 900, {255, 230, 190}, 0.38);
}
