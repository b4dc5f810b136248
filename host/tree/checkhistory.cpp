#include "host/tree/checkhistory.h"

namespace {

constexpr std::size_t MaxSteps = 32;

/// Something that changes back within a step has not changed. True when \a index is in \a now.
bool flip(int index, IndexSet *now, IndexSet *before)
{
    if (before->contains(index)) {
        before->remove(index);
        return false;
    }
    now->insert(index);
    return true;
}

} // namespace

void CheckHistory::begin()
{
    if (m_isOpen)
        return;
    m_open = CheckStep();
    m_open.serial = ++m_lastSerial;
    m_isOpen = true;
}

const CheckStep *CheckHistory::end()
{
    if (!m_isOpen)
        return nullptr;
    m_isOpen = false;
    if (m_open.checkedFiles + m_open.uncheckedFiles < 2)
        return nullptr;
    for (IndexSet *set : {&m_open.checked, &m_open.unchecked, &m_open.flagged, &m_open.unflagged})
        set->squeeze();
    m_undone.clear();
    m_done.push_back(std::move(m_open));
    if (m_done.size() > MaxSteps)
        m_done.pop_front();
    return lastDone();
}

void CheckHistory::recordLeaf(int index, bool isFile, bool checked)
{
    if (!m_isOpen)
        return;
    const bool isChange = checked ? flip(index, &m_open.checked, &m_open.unchecked)
                                  : flip(index, &m_open.unchecked, &m_open.checked);
    if (!isFile)
        return;
    if (isChange)
        ++(checked ? m_open.checkedFiles : m_open.uncheckedFiles);
    else
        --(checked ? m_open.uncheckedFiles : m_open.checkedFiles);
}

void CheckHistory::recordFlag(int index, bool flagged)
{
    if (!m_isOpen)
        return;
    if (flagged)
        flip(index, &m_open.flagged, &m_open.unflagged);
    else
        flip(index, &m_open.unflagged, &m_open.flagged);
}

void CheckHistory::joinLeaf(quint32 serial, int index, bool isFile)
{
    if (CheckStep *step = find(serial)) {
        step->checked.insert(index);
        step->checkedFiles += isFile ? 1 : 0;
    }
}

void CheckHistory::joinFlag(quint32 serial, int index)
{
    if (CheckStep *step = find(serial))
        step->flagged.insert(index);
}

void CheckHistory::markUndone()
{
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
}

void CheckHistory::markRedone()
{
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
}

quint32 CheckHistory::flaggedBy(int index) const
{
    if (m_isOpen)
        return m_open.serial;
    for (auto step = m_done.rbegin(); step != m_done.rend(); ++step) {
        if (step->flagged.contains(index))
            return step->serial;
    }
    return 0;
}

void CheckHistory::clear()
{
    m_isOpen = false;
    m_done.clear();
    m_undone.clear();
}

CheckStep *CheckHistory::find(quint32 serial)
{
    if (serial == 0)
        return nullptr;
    if (m_isOpen && m_open.serial == serial)
        return &m_open;
    for (auto step = m_done.rbegin(); step != m_done.rend(); ++step) {
        if (step->serial == serial)
            return &*step;
    }
    return nullptr;
}
