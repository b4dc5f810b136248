#include "content/rubberband.h"

#include <QtGlobal>

namespace {
constexpr int SlowestStep = 2;
constexpr int FastestStep = 60;
constexpr int DistancePerPixel = 3; // the further beyond the edge, the faster
} // namespace

void RubberBand::arm(const QPoint &viewportPos, const QPoint &offset)
{
    m_state = State::Armed;
    m_origin = viewportPos + offset;
    m_offset = offset;
    m_pointer = m_end = viewportPos;
}

void RubberBand::disarm()
{
    m_state = State::Off;
}

bool RubberBand::moveTo(const QPoint &viewportPos, const QPoint &offset, const QRect &viewport)
{
    if (m_state == State::Off)
        return false;
    m_offset = offset;
    m_pointer = viewportPos;
    m_end = QPoint(qBound(viewport.left(), viewportPos.x(), viewport.right()),
                   qBound(viewport.top(), viewportPos.y(), viewport.bottom()));
    const int moved = (viewportPos + offset - m_origin).manhattanLength();
    if (m_state == State::Armed && moved >= m_distance)
        m_state = State::Active;
    return isActive();
}

QRect RubberBand::rect() const
{
    const QPoint origin = m_origin - m_offset;
    return {QPoint(qMin(origin.x(), m_end.x()), qMin(origin.y(), m_end.y())),
            QPoint(qMax(origin.x(), m_end.x()), qMax(origin.y(), m_end.y()))};
}

int RubberBand::autoScrollStep(const QRect &viewport, int margin) const
{
    const int above = viewport.top() + margin - m_pointer.y();
    const int below = m_pointer.y() - (viewport.bottom() - margin);
    const int beyond = qMax(above, below);
    if (!isActive() || beyond <= 0)
        return 0;
    const int step = qBound(SlowestStep, beyond / DistancePerPixel, FastestStep);
    return above > below ? -step : step;
}
