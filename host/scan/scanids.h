#pragma once

#include <QtGlobal>

/// Hands out the ids of one scan. They begin at the time of the scan, so an id is never given
/// twice, not even by a later run of the program: a thumbnail file of an earlier scan cannot be
/// taken for one of this scan. One thread.
class ScanIds
{
public:
    ScanIds();
    qint64 next() { return ++m_last; }

private:
    qint64 m_last;
};
