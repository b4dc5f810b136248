#pragma once

#include "host/tree/indexset.h"

#include <deque>

/// What one bulk change of checks has done. Holds places in the record store, no pointers.
struct CheckStep
{
    quint32 serial = 0;
    IndexSet checked;   ///< leaves
    IndexSet unchecked; ///< leaves
    IndexSet flagged;   ///< containers that take newcomers along since
    IndexSet unflagged;
    int checkedFiles = 0;
    int uncheckedFiles = 0;
};

/// The latest bulk changes of checks, to be undone and done again. A change is a bulk change when
/// it has changed more than one file. What the scan finds in a container that a step has checked as
/// a whole joins that step, so that undoing it leaves none of it behind. GUI thread.
class CheckHistory
{
public:
    /// Until end(), what changes is one step.
    void begin();
    /// The step, when it was a bulk change; null otherwise. What had been undone is forgotten then.
    const CheckStep *end();
    bool isRecording() const { return m_isOpen; }

    void recordLeaf(int index, bool isFile, bool checked);
    void recordFlag(int index, bool flagged);
    /// A new record has been checked, or takes newcomers along itself, because of step \a serial.
    void joinLeaf(quint32 serial, int index, bool isFile);
    void joinFlag(quint32 serial, int index);

    const CheckStep *lastDone() const { return m_done.empty() ? nullptr : &m_done.back(); }
    const CheckStep *lastUndone() const { return m_undone.empty() ? nullptr : &m_undone.back(); }
    /// lastDone() becomes lastUndone(), and the other way round.
    void markUndone();
    void markRedone();
    /// The latest step in force that has made the container at \a index take newcomers along; 0: no
    /// step has.
    quint32 flaggedBy(int index) const;
    void clear();

private:
    CheckStep *find(quint32 serial);

    CheckStep m_open;
    bool m_isOpen = false;
    quint32 m_lastSerial = 0;
    std::deque<CheckStep> m_done;
    std::deque<CheckStep> m_undone;
};
