#include "host/scan/scanids.h"

#include <QDateTime>

#include <atomic>

namespace {
constexpr int IdBitsPerMillisecond = 20; // no scan finds a million items in a millisecond
}

ScanIds::ScanIds()
{
    static std::atomic<qint64> s_latest{0};
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    qint64 latest = s_latest.load();
    qint64 mine = 0;
    do
        mine = qMax(now, latest + 1); // two scans in one millisecond
    while (!s_latest.compare_exchange_weak(latest, mine));
    m_last = mine << IdBitsPerMillisecond;
}
