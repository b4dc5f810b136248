#pragma once

#include <QtGlobal>

/// The row filters of PNG, undone. Any thread.
namespace PngRows {

constexpr int Slack = 4; ///< bytes behind the last row that are read, not used

/// \a row of \a size bytes, in place. \a above is the row before it, undone already, zeros for the
/// first one; \a pixelBytes is 1 to 4. Both rows may be read Slack bytes beyond their end. False
/// for a filter that does not exist.
bool unfilter(int filter, uchar *row, const uchar *above, int size, int pixelBytes);

} // namespace PngRows
