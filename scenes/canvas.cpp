#include "scenes/canvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

Tint Tint::of(const QColor &color, double alpha)
{
    return {color.redF(), color.greenF(), color.blueF(), alpha};
}

Tint mix(const Tint &from, const Tint &to, double t)
{
    return {mix(from.r, to.r, t), mix(from.g, to.g, t), mix(from.b, to.b, t), mix(from.a, to.a, t)};
}

QColor mix(const QColor &from, const QColor &to, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return QColor::fromRgbF(mix(from.redF(), to.redF(), t), mix(from.greenF(), to.greenF(), t),
                            mix(from.blueF(), to.blueF(), t), mix(from.alphaF(), to.alphaF(), t));
}

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(std::clamp(alpha, 0.0, 1.0));
    return color;
}

static int toByte(double value)
{
    return int(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
}

Canvas::Canvas(const QSize &pixels, quint64 seed)
    : m_image(pixels, QImage::Format_RGB32)
    , m_random(seed)
    , m_scale(pixels.height() / Height)
{
    m_width = pixels.width() / m_scale;
    m_image.fill(Qt::black);
}

void Canvas::gradient(const QRectF &area, const QGradientStops &stops)
{
    draw([&](QPainter &painter) {
        QLinearGradient fill(area.topLeft(), area.bottomLeft());
        fill.setStops(stops);
        painter.fillRect(area, fill);
    });
}

void Canvas::draw(const Drawing &drawing)
{
    QPainter painter(&m_image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(m_scale, m_scale);
    painter.setPen(Qt::NoPen);
    drawing(painter);
}

void Canvas::drawSoft(double radius, const Drawing &drawing)
{
    // A blur of a few pixels on a small layer: cheap, and smooth enough to be scaled up.
    constexpr double LayerRadius = 4;
    const double scale = std::min(m_scale, LayerRadius / radius);
    QImage layer(QSize(int(m_width * scale) + 2, int(Height * scale) + 2),
                 QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter painter(&layer);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.scale(scale, scale);
        painter.setPen(Qt::NoPen);
        drawing(painter);
    }
    blur(&layer, std::max(1, int(std::lround(radius * scale / 1.8))));
    draw([&](QPainter &painter) {
        painter.drawImage(QRectF(0, 0, layer.width() / scale, layer.height() / scale), layer);
    });
}

QImage Canvas::shaded(const QRectF &area, double cell, const Shading &shading) const
{
    QImage layer(
        QSize(int(std::ceil(area.width() / cell)) + 1, int(std::ceil(area.height() / cell)) + 1),
        QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < layer.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(layer.scanLine(row));
        for (int column = 0; column < layer.width(); ++column) {
            const Tint tint = shading(area.x() + (column + 0.5) * cell,
                                      area.y() + (row + 0.5) * cell);
            const double alpha = std::clamp(tint.a, 0.0, 1.0);
            line[column] = qRgba(toByte(std::clamp(tint.r, 0.0, 1.0) * alpha),
                                 toByte(std::clamp(tint.g, 0.0, 1.0) * alpha),
                                 toByte(std::clamp(tint.b, 0.0, 1.0) * alpha), toByte(alpha));
        }
    }
    return layer;
}

void Canvas::shade(const QRectF &area, double cell, const Shading &shading,
                   QPainter::CompositionMode mode)
{
    cell = std::max(cell, 1 / m_scale); // finer than a pixel is lost
    const QImage layer = shaded(area, cell, shading);
    draw([&](QPainter &painter) {
        painter.setCompositionMode(mode);
        painter.drawImage(
            QRectF(area.topLeft(), QSizeF(layer.width() * cell, layer.height() * cell)), layer);
    });
}

void Canvas::shade(const QPainterPath &shape, double cell, const Shading &shading)
{
    const QRectF area = shape.boundingRect().intersected(bounds());
    if (area.isEmpty())
        return;
    cell = std::max(cell, 1 / m_scale);
    QBrush brush(shaded(area, cell, shading));
    brush.setTransform(QTransform::fromTranslate(area.x(), area.y()).scale(cell, cell));
    draw([&](QPainter &painter) { painter.fillPath(shape, brush); });
}

void Canvas::glow(const QPointF &center, double radius, const QColor &color, double strength)
{
    draw([&](QPainter &painter) {
        QRadialGradient fall(center, radius);
        constexpr int Steps = 12;
        for (int i = 0; i <= Steps; ++i) {
            const double t = double(i) / Steps;
            const double left = std::exp(-4.5 * t * t) * (1 - t);
            fall.setColorAt(t, withAlpha(color, strength * left));
        }
        painter.setCompositionMode(QPainter::CompositionMode_Screen);
        painter.setBrush(fall);
        painter.drawEllipse(center, radius, radius);
    });
}

void Canvas::mirror(double horizon, double roughness, const QColor &water, double murk)
{
    const quint32 seed = newSeed();
    const int top = int(horizon * m_scale);
    const Tint deep = Tint::of(water);
    const QImage above = m_image.copy(0, 0, m_image.width(), std::max(1, top));
    for (int row = top; row < m_image.height(); ++row) {
        const double depth = (row - top) / double(m_image.height() - top);
        const double distance = 1 / (depth + 0.06); // far water is seen at a flat angle
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(row));
        const double wavesY = distance * 9;
        const double sway = roughness * m_scale * (6 + 34 * depth);
        for (int column = 0; column < m_image.width(); ++column) {
            const double x = (column / m_scale - m_width / 2) * distance / 260;
            const double wave = noise(x, wavesY, seed)
                + 0.5 * noise(x * 2.3, wavesY * 2.1, seed + 1);
            const int fromX = std::clamp(int(column + wave * sway * 0.35), 0, above.width() - 1);
            const int fromY = std::clamp(int(top - 1 - (row - top) * 0.92 - wave * sway), 0,
                                         above.height() - 1);
            const QRgb from = reinterpret_cast<const QRgb *>(above.constScanLine(fromY))[fromX];
            const double hidden = std::clamp(murk * (0.35 + 0.65 * depth) - wave * 0.05, 0.0, 1.0);
            line[column] = qRgb(toByte(mix(qRed(from) / 255.0 * 0.94, deep.r, hidden)),
                                toByte(mix(qGreen(from) / 255.0 * 0.95, deep.g, hidden)),
                                toByte(mix(qBlue(from) / 255.0 * 0.97, deep.b, hidden)));
        }
    }
}

void Canvas::develop(const Development &development)
{
    bloom(development.bloom);
    grainAndVignette(development);
}

void Canvas::bloom(double strength)
{
    QImage light = m_image.scaled(int(m_width / 6), int(Height / 6), Qt::IgnoreAspectRatio,
                                  Qt::SmoothTransformation);
    for (int row = 0; row < light.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(light.scanLine(row));
        for (int column = 0; column < light.width(); ++column) {
            const QRgb pixel = line[column];
            const double bright = smoothstep(110, 250, qGray(pixel)) * strength;
            line[column] = qRgb(int(qRed(pixel) * bright), int(qGreen(pixel) * bright),
                                int(qBlue(pixel) * bright));
        }
    }
    blur(&light, 5);
    draw([&](QPainter &painter) {
        painter.setCompositionMode(QPainter::CompositionMode_Screen);
        painter.drawImage(bounds(), light);
    });
}

void Canvas::grainAndVignette(const Development &development)
{
    const double middleX = m_image.width() / 2.0;
    const double middleY = m_image.height() / 2.0;
    const double reach = std::hypot(middleX, middleY);
    quint32 state = newSeed() | 1;
    const double grain = development.grain * 255;
    for (int row = 0; row < m_image.height(); ++row) {
        auto *line = reinterpret_cast<QRgb *>(m_image.scanLine(row));
        double before = 0;
        for (int column = 0; column < m_image.width(); ++column) {
            const double away = std::hypot(column - middleX, row - middleY) / reach;
            const double light = 1 - development.vignette * away * away * away;
            state = state * 1664525U + 1013904223U;
            const double speck = (double(state >> 16) / 32768.0 - 1) * grain;
            const double grown = 0.5 * (speck + before); // neighbours share a grain
            before = speck;
            const QRgb pixel = line[column];
            line[column] = qRgb(std::clamp(int(qRed(pixel) * light + grown + 0.5), 0, 255),
                                std::clamp(int(qGreen(pixel) * light + grown + 0.5), 0, 255),
                                std::clamp(int(qBlue(pixel) * light + grown + 0.5), 0, 255));
        }
    }
}

static void blurLine(quint32 *first, int count, int stride, int radius,
                     std::vector<quint32> *scratch)
{
    scratch->resize(size_t(count));
    for (int i = 0; i < count; ++i)
        (*scratch)[size_t(i)] = first[i * stride];
    const auto at = [&](int i) { return (*scratch)[size_t(std::clamp(i, 0, count - 1))]; };
    int sums[4] = {};
    const auto add = [&sums](QRgb pixel, int sign) {
        sums[0] += sign * qAlpha(pixel);
        sums[1] += sign * qRed(pixel);
        sums[2] += sign * qGreen(pixel);
        sums[3] += sign * qBlue(pixel);
    };
    for (int i = -radius; i <= radius; ++i)
        add(at(i), 1);
    const int span = 2 * radius + 1;
    for (int i = 0; i < count; ++i) {
        first[i * stride] = qRgba(sums[1] / span, sums[2] / span, sums[3] / span, sums[0] / span);
        add(at(i - radius), -1);
        add(at(i + radius + 1), 1);
    }
}

void blur(QImage *image, int radius)
{
    const int stride = image->bytesPerLine() / 4;
    auto *pixels = reinterpret_cast<quint32 *>(image->bits());
    std::vector<quint32> scratch;
    for (int pass = 0; pass < 3; ++pass) {
        for (int row = 0; row < image->height(); ++row)
            blurLine(pixels + row * stride, image->width(), 1, radius, &scratch);
        for (int column = 0; column < image->width(); ++column)
            blurLine(pixels + column, image->height(), stride, radius, &scratch);
    }
}
