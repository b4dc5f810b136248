#pragma once

#include <QCache>
#include <QPixmap>
#include <QRect>
#include <QString>

class DeviceGrid;
class NamePainter;
class QPainter;

/// Names as they stand on the plates of their cards, composed when they are drawn for the second
/// time: blending glyphs takes longer than all else of a card that is painted again. Bounded by
/// memory; the least recently used goes first.
class NameStrips
{
public:
    NameStrips();

    /// What has been composed is out of date: colours, font or keyword have changed.
    void clear() { m_strips.clear(); }

    struct Place
    {
        QRect name;    ///< of the name, as the painter counts
        QPixmap plate; ///< what lies there, opaque
        QRect plateRect;
        QRect covered; ///< where something else lies on the plate
    };
    /// Draws \a text in the middle of its place; false: it has to be drawn by itself.
    bool draw(QPainter *painter, const DeviceGrid &grid, const Place &place, const QString &text,
              NamePainter *names);

private:
    struct Key
    {
        QString text;
        qint64 plate;
        QPoint shift;  ///< of the strip on the plate
        QPointF phase; ///< of logical coordinates among device pixels

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.plate == b.plate && a.shift == b.shift && a.phase == b.phase
                && a.text == b.text;
        }
        friend uint qHash(const Key &key, uint seed = 0)
        {
            return ::qHash(key.text, seed) ^ ::qHash(key.plate, seed);
        }
    };
    enum class State { SeenOnce, Composed, DoesNotFit };
    struct Strip
    {
        State state = State::SeenOnce;
        QPixmap picture;
    };

    static Strip compose(QPainter *painter, const DeviceGrid &grid, const Place &place,
                         const QRect &strip, const QString &text, NamePainter *names);

    QCache<Key, Strip> m_strips;
};
