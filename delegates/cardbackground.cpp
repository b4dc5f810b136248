#include "delegates/cardbackground.h"

#include "common/commonfunction.h"
#include "delegates/devicegrid.h"
#include "delegates/ninesliced.h"
#include "delegates/recoverabilitylabel.h"

#include <QPainter>

namespace {

// more than the looks and labels of two sizes: only a size in motion, on resizing, runs past it
constexpr int MostPlates = 48;

} // namespace

void CardBackground::load()
{
    m_normal = {CommonFunction::themePixmap, QStringLiteral("icon_sdcardthum_normal")};
    m_hover = {CommonFunction::themePixmap, QStringLiteral("icon_sdcardthum_hover")};
    m_selected = {CommonFunction::themePixmap, QStringLiteral("icon_sdcardthum_press")};
    clear();
}

QPixmap CardBackground::draw(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                             const QBrush &base, const Card &card,
                             const RecoverabilityLabel &label) const
{
    const QRect plate = plateRect(layout);
    const bool opaque = base.style() == Qt::SolidPattern && base.color().alpha() == 255
        && plate == layout.cell && grid.isAligned();
    if (!opaque)
        painter->fillRect(layout.cell, base);

    const QSize deviceSize = grid.isAligned() ? grid.deviceRect(plate).size() : plate.size();
    if (deviceSize.isEmpty())
        return {};
    const Key key{deviceSize,
                  layout.cell.size(),
                  grid.isAligned() ? grid.scale() : 1.0,
                  opaque ? base.color().rgb() : 0,
                  card.look,
                  card.label ? int(*card.label) : -1,
                  card.dark,
                  layout.direction == Qt::RightToLeft};
    auto it = m_plates.find(key);
    if (it == m_plates.end()) {
        if (m_plates.size() >= MostPlates)
            m_plates.clear();
        it = m_plates.insert(key, compose(key, layout, card, label));
    }
    if (grid.isAligned())
        grid.drawLowest(painter, plate, *it);
    else
        painter->drawPixmap(plate, *it);
    return opaque ? *it : QPixmap();
}

QPixmap CardBackground::compose(const Key &key, const CardLayout &layout, const Card &card,
                                const RecoverabilityLabel &label) const
{
    QPixmap plate(key.deviceSize);
    plate.fill(key.base ? QColor(key.base) : QColor(Qt::transparent));

    QPainter painter(&plate);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect target(0, 0, key.deviceSize.width(), qRound(layout.card.height() * key.scale));
    drawNineSliced(&painter, target, m_normal, key.scale);
    if (card.look != NormalLook)
        drawNineSliced(&painter, target, card.look == HoverLook ? m_hover : m_selected, key.scale);
    if (card.label) {
        painter.scale(key.scale, key.scale);
        painter.translate(-layout.card.topLeft());
        label.paint(&painter, layout.cell, *card.label, card.dark, layout.direction);
    }
    return plate;
}
