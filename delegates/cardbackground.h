#pragma once

#include "common/lazypixmap.h"
#include "delegates/cardlayout.h"
#include "model/recoverability.h"

#include <QBrush>
#include <QHash>
#include <QPixmap>

#include <optional>

class DeviceGrid;
class QPainter;
class RecoverabilityLabel;

/// What lies under a card's picture and name: the view's base, the card in one of its looks, and
/// the label at its foot. Composed once per size, look and label; then a card costs one copy.
class CardBackground
{
public:
    enum Look { NormalLook, HoverLook, SelectedLook };

    /// Loads the pictures of the current theme.
    void load();
    /// What has been composed is out of date: the label's language or font has changed.
    void clear() { m_plates.clear(); }

    struct Card
    {
        Look look = NormalLook;
        std::optional<Recoverability> label;
        bool dark = false;
    };
    /// Returns what now lies under the card from grid.deviceRect(plateRect()) on, pixel by pixel;
    /// null where that is not known: the base is not one opaque colour, or there is no grid.
    QPixmap draw(QPainter *painter, const DeviceGrid &grid, const CardLayout &layout,
                 const QBrush &base, const Card &card, const RecoverabilityLabel &label) const;
    /// All that a card covers: a cell lower than a card does not cut it.
    static QRect plateRect(const CardLayout &layout) { return layout.cell.united(layout.card); }

private:
    struct Key
    {
        QSize deviceSize;
        QSize cellSize;
        qreal scale;
        QRgb base; ///< 0: the base is not one opaque colour and not part of the plate
        int look;
        int label; ///< -1: none
        bool dark;
        bool mirrored;

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.look == b.look && a.label == b.label && a.base == b.base && a.dark == b.dark
                && a.mirrored == b.mirrored && a.scale == b.scale && a.deviceSize == b.deviceSize
                && a.cellSize == b.cellSize;
        }
        friend uint qHash(const Key &key, uint seed = 0)
        {
            const uint looks = uint(key.look) | uint(key.label + 1) << 4 | uint(key.dark) << 8
                | uint(key.mirrored) << 9;
            return ::qHash(key.deviceSize.width() << 16 ^ key.deviceSize.height(), seed)
                ^ ::qHash(looks, seed) ^ key.base;
        }
    };

    QPixmap compose(const Key &key, const CardLayout &layout, const Card &card,
                    const RecoverabilityLabel &label) const;

    LazyPixmap m_normal;
    LazyPixmap m_hover;
    LazyPixmap m_selected;
    mutable QHash<Key, QPixmap> m_plates;
};
