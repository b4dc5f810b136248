#pragma once

#include <QMargins>

class QPixmap;
class QRect;

/// Paints the soft shadow of a popup. Each size, ratio and strength is composed once a process.
/// GUI thread.
class DropShadowManager
{
public:
    /// How far the shadow reaches around the popup's body, in device-independent pixels.
    static constexpr QMargins Reach{15, 35, 15, 25};
    static constexpr int BodyRadius = 8;

    /// \a ratio: device pixels per pixel of the screen that the shadow is shown on. \a radius: of
    /// the body's corners.
    explicit DropShadowManager(qreal ratio, int radius = BodyRadius);

    /// Makes \a pixmap the shadow for \a rect, that is the body and its margins together. The
    /// opacity \a darkness, of 255, is that of a whole shadow, of which the lower edge shows the
    /// rim; at the upper edge \a topShare per cent of it are left, for light falls from above. The
    /// body itself is filled with white. An empty \a rect leaves a null pixmap.
    void paint(QPixmap *pixmap, const QRect &rect, int darkness, int topShare) const;

private:
    QPixmap compose(const QRect &rect, int darkness, int topShare) const;

    qreal m_ratio;
    int m_radius;
};
