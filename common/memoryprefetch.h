#pragma once

#include <QtGlobal>

/// Asks for \a rows rows of \a bytesPerRow bytes each, \a pitch bytes apart, to be brought near the
/// processor while it goes on. Long rows it fetches ahead by itself; short ones that lie far apart,
/// as those of a card on a wide screen, it waits for one by one. Reads nothing and may do nothing.
void prefetchRows(const uchar *first, qptrdiff pitch, int rows, int bytesPerRow);
