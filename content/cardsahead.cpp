#include "content/cardsahead.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

// together a page in much less time than a finger takes, and never a noticeable pause
constexpr int PauseMs = 1;
constexpr qint64 WorkNs = 1'500'000;

} // namespace

CardsAhead::CardsAhead(Prepare prepare)
    : m_prepare(std::move(prepare))
{
}

void CardsAhead::follow(const GridGeometry::Run &shown, int rowCount)
{
    if (shown.first == m_shown.first && shown.last == m_shown.last)
        return;
    const int below = rowCount - 1 - shown.last;
    const int above = shown.first;
    const bool down = (shown.first >= m_shown.first && below > 0) || above <= 0;
    m_shown = shown;
    m_step = down ? 1 : -1;
    m_next = down ? shown.last + 1 : shown.first - 1;
    m_left = std::min(down ? below : above, shown.last - shown.first + 1);
    if (m_left > 0)
        m_timer.start(PauseMs, this);
    else
        m_timer.stop();
}

void CardsAhead::forget()
{
    m_shown = {0, -1};
    m_timer.stop();
}

void CardsAhead::timerEvent(QTimerEvent *)
{
    QElapsedTimer clock;
    clock.start();
    for (; m_left > 0; --m_left, m_next += m_step) {
        if (clock.nsecsElapsed() > WorkNs) {
            m_timer.start(PauseMs, this); // anew: it would be due already
            return;
        }
        m_prepare(m_next);
    }
    m_timer.stop();
}
