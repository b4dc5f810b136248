#pragma once

#include <QPoint>
#include <QRect>

/// State of a rubber band over scrolled content: armed by a press, active once the pointer has
/// gone far enough. It starts at a place of the content and ends at a place of the viewport.
class RubberBand
{
public:
    /// Active once the pointer has gone \a distance pixels, sideways and down together.
    explicit RubberBand(int distance)
        : m_distance(distance)
    {
    }

    void arm(const QPoint &viewportPos, const QPoint &offset);
    void disarm();

    bool isArmed() const { return m_state != State::Off; }
    bool isActive() const { return m_state == State::Active; }

    /// Follows the pointer; true while the band is active. The end stays inside \a viewport: what
    /// has never been shown is not selected.
    bool moveTo(const QPoint &viewportPos, const QPoint &offset, const QRect &viewport);
    /// The content under the pointer has been scrolled to \a offset; the band reaches on.
    void setOffset(const QPoint &offset) { m_offset = offset; }
    /// The content that it started at has been moved.
    void moveOrigin(const QPoint &by) { m_origin += by; }

    /// In viewport coordinates: from the press to the pointer, not normalised.
    QRect span() const { return {m_origin - m_offset, m_end}; }
    /// In viewport coordinates, normalised.
    QRect rect() const;
    /// Pixels to scroll by now, because the pointer is at the upper or lower edge or beyond it.
    int autoScrollStep(const QRect &viewport, int margin) const;

private:
    enum class State { Off, Armed, Active };

    int m_distance;
    State m_state = State::Off;
    QPoint m_origin;
    QPoint m_offset;
    QPoint m_pointer;
    QPoint m_end;
};
