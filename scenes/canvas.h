#pragma once

#include "scenes/noise.h"

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <functional>

/// A colour between 0 and 1 a channel, not premultiplied, for shading point by point.
struct Tint
{
    double r = 0;
    double g = 0;
    double b = 0;
    double a = 1;

    static Tint of(const QColor &color, double alpha = 1);
    Tint scaled(double factor) const { return {r * factor, g * factor, b * factor, a}; }
    Tint withAlpha(double alpha) const { return {r, g, b, alpha}; }
};

Tint mix(const Tint &from, const Tint &to, double t);
QColor mix(const QColor &from, const QColor &to, double t);
QColor withAlpha(QColor color, double alpha);

/// How the finished photo is developed.
struct Development
{
    double grain = 0.018;   ///< of the full range
    double vignette = 0.28; ///< darkening in the corners
    double bloom = 0.16;    ///< light that bleeds out of bright places
};

/// A photo being drawn. Positions are in units in which the photo is 1000 high, whatever its
/// number of pixels. Belongs to one thread; any number of canvases may work at once.
class Canvas
{
public:
    using Drawing = std::function<void(QPainter &)>;
    using Shading = std::function<Tint(double x, double y)>;

    Canvas(const QSize &pixels, quint64 seed);

    double width() const { return m_width; }
    double height() const { return Height; }
    QRectF bounds() const { return QRectF(0, 0, m_width, Height); }
    Random &random() { return m_random; }
    quint32 newSeed() { return quint32(m_random.below(1 << 30)); }

    /// From top to bottom.
    void gradient(const QRectF &area, const QGradientStops &stops);
    void gradient(const QGradientStops &stops) { gradient(bounds(), stops); }
    void draw(const Drawing &drawing);
    /// Drawn out of focus: \a radius is the blur's.
    void drawSoft(double radius, const Drawing &drawing);
    /// Shaded point by point, a sample each \a cell units.
    void shade(const QRectF &area, double cell, const Shading &shading,
               QPainter::CompositionMode mode = QPainter::CompositionMode_SourceOver);
    /// The same within a shape, whose edge stays sharp.
    void shade(const QPainterPath &shape, double cell, const Shading &shading);
    /// Light added around a point, fading out at \a radius.
    void glow(const QPointF &center, double radius, const QColor &color, double strength);
    /// What is above \a horizon, mirrored in moving water below it.
    void mirror(double horizon, double roughness, const QColor &water, double murk);
    void develop(const Development &development);

    const QImage &image() const { return m_image; }

    static constexpr double Height = 1000;

private:
    QImage shaded(const QRectF &area, double cell, const Shading &shading) const;
    void bloom(double strength);
    void grainAndVignette(const Development &development);

    QImage m_image;
    Random m_random;
    double m_width = 0;
    double m_scale = 1; ///< pixels a unit
};

/// Three box blurs in place: close to a Gaussian one. \a radius in pixels; premultiplied only.
void blur(QImage *image, int radius);
