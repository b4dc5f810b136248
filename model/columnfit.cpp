#include "model/columnfit.h"

#include <algorithm>

namespace ColumnFit {

std::vector<int> fit(int viewportWidth, int firstMinimum, const std::vector<Column> &others)
{
    std::vector<int> widths{0};
    int left = viewportWidth;
    for (const Column &column : others) {
        widths.push_back(column.wanted);
        left -= column.wanted;
    }
    for (size_t i = others.size(); i > 0 && left < firstMinimum; --i) {
        const Column &column = others[i - 1];
        const int given = std::min(firstMinimum - left, column.wanted - column.minimum);
        widths[i] -= given;
        left += given;
    }
    widths[0] = std::max(left, firstMinimum);
    return widths;
}

} // namespace ColumnFit
