#include "delegates/namestrips.h"

#include "delegates/devicegrid.h"
#include "delegates/namepainter.h"

#include <QImage>
#include <QPainter>

namespace {

constexpr int MostKilobytes = 8 * 1024;
constexpr int TopGap = 2; // above the glyphs of a name, where the picture may end

/// Whether \a strip still is as \a bare along its edges. If not, the glyphs may go on beyond.
bool isBareAtEdges(const QImage &strip, const QImage &bare)
{
    const int right = strip.width() - 1;
    const int bottom = strip.height() - 1;
    for (int x = 0; x <= right; ++x) {
        if (strip.pixel(x, 0) != bare.pixel(x, 0)
            || strip.pixel(x, bottom) != bare.pixel(x, bottom))
            return false;
    }
    for (int y = 0; y <= bottom; ++y) {
        if (strip.pixel(0, y) != bare.pixel(0, y) || strip.pixel(right, y) != bare.pixel(right, y))
            return false;
    }
    return true;
}

} // namespace

NameStrips::NameStrips()
    : m_strips(MostKilobytes)
{
}

bool NameStrips::draw(QPainter *painter, const DeviceGrid &grid, const Place &place,
                      const QString &text, NamePainter *names)
{
    const QRect area = place.name.adjusted(0, TopGap, 0, 0);
    if (text.isEmpty() || area.isEmpty() || place.plate.isNull() || area.intersects(place.covered))
        return false;
    const QRect strip = grid.deviceRect(area);
    const QRect plate = grid.deviceRect(place.plateRect);
    if (!plate.contains(strip))
        return false;

    const QPointF exact = grid.transform().map(QPointF(place.name.topLeft()));
    const Key key{text, place.plate.cacheKey(), strip.topLeft() - plate.topLeft(),
                  exact - strip.topLeft()};
    const int kilobytes = 1 + strip.width() * strip.height() / 256;
    Strip *known = m_strips.object(key);
    if (!known) {
        m_strips.insert(key, new Strip, kilobytes);
        return false;
    }
    if (known->state == State::SeenOnce) {
        known = new Strip(compose(painter, grid, place, strip, text, names));
        m_strips.insert(key, known, kilobytes);
    }
    if (known->state != State::Composed)
        return false;
    grid.draw(painter, area, known->picture);
    return true;
}

NameStrips::Strip NameStrips::compose(QPainter *painter, const DeviceGrid &grid, const Place &place,
                                      const QRect &strip, const QString &text, NamePainter *names)
{
    const QPoint plateOrigin = grid.deviceRect(place.plateRect).topLeft();
    QImage image = place.plate.copy(strip.translated(-plateOrigin)).toImage();
    const QImage bare = image.copy();
    {
        QPainter own(&image);
        own.setTransform(grid.transform() * QTransform::fromTranslate(-strip.x(), -strip.y()));
        own.setLayoutDirection(painter->layoutDirection());
        names->draw(&own, place.name, text, Qt::AlignHCenter | Qt::AlignVCenter);
    }
    if (!isBareAtEdges(image, bare))
        return {State::DoesNotFit, QPixmap()};
    return {State::Composed, QPixmap::fromImage(image)};
}
