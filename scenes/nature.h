#pragma once

#include "scenes/canvas.h"

/// What landscapes are made of.
namespace Nature {

struct Clouds
{
    double cover = 0.5;   ///< 0 clear, 1 overcast
    double horizon = 600; ///< they end there, flat with distance
    QColor lit = Qt::white;
    QColor shade = QColor(150, 160, 180);
    double density = 0.85;
    double stretch = 1; ///< above 1: drawn out sideways
};
void clouds(Canvas &canvas, const Clouds &clouds, const QPointF &sun);

void sun(Canvas &canvas, const QPointF &center, double radius, const QColor &color,
         double strength);
void moon(Canvas &canvas, const QPointF &center, double radius, double phase);
void stars(Canvas &canvas, double horizon, int count);

/// Heights of a ridge, one each `Step` units from the left edge.
struct Ridge
{
    static constexpr double Step = 2;
    QVector<double> tops;
    double at(double x) const;
    double highest() const;
    QPainterPath area(double bottom) const;
};
Ridge peaks(Canvas &canvas, double base, double amplitude, double breadth, int octaves = 6);
Ridge downs(Canvas &canvas, double base, double amplitude, double breadth, int octaves = 3);

struct Rock
{
    QColor dark;
    QColor lit;
    QColor haze;
    double hazeTop = 0;      ///< haze at the crest, 0 to 1
    double hazeBottom = 0.6; ///< and at the foot
    double snow = 0;         ///< depth below the crest that snow reaches
    QColor snowLit = Qt::white;
    QColor snowShade = QColor(150, 170, 210);
    double lightFrom = 1; ///< 1 left, -1 right
};
void rock(Canvas &canvas, const Ridge &ridge, double foot, const Rock &look);

QPainterPath conifer(Random &random, const QPointF &foot, double height);
QPainterPath conifers(Canvas &canvas, const Ridge &ground, double low, double high, double gap);
QPainterPath leafyTree(Random &random, const QPointF &foot, double height, QPainterPath *trunk);
void mist(Canvas &canvas, double top, double bottom, const QColor &color, double strength);
void grass(Canvas &canvas, const Ridge &ground, double height, double gap, const QColor &dark,
           const QColor &lit);
/// Small bright strokes on water below a light.
void glitter(Canvas &canvas, double x, double top, double bottom, double spread,
             const QColor &color, int count);

} // namespace Nature
