#include "model/headersection.h"

#include <algorithm>

using namespace HeaderMetrics;

namespace {

int textFrom(int logicalIndex)
{
    return TextInset + (logicalIndex == 0 ? CheckRoom : 0);
}

} // namespace

HeaderSection::HeaderSection(const QRect &section, int logicalIndex,
                             Qt::LayoutDirection layoutDirection)
    : rect(section)
    , direction(layoutDirection)
    , m_textFrom(textFrom(logicalIndex))
{
    if (logicalIndex != 0)
        return;
    checkBox = mirrored(CheckInset, CheckSide);
    checkBox.setTop(rect.top() + (rect.height() - CheckSide) / 2);
    checkBox.setHeight(CheckSide);
}

int HeaderSection::leadingDistance(int x) const
{
    return direction == Qt::RightToLeft ? rect.right() - x : x - rect.left();
}

QRect HeaderSection::mirrored(int from, int width) const
{
    const int left = direction == Qt::RightToLeft ? rect.right() + 1 - from - width
                                                  : rect.left() + from;
    return {left, rect.top(), width, rect.height()};
}

bool HeaderSection::hitsCheckBox(const QPoint &pos) const
{
    return !checkBox.isNull()
        && checkBox.adjusted(-CheckSlack, -CheckSlack, CheckSlack, CheckSlack).contains(pos);
}

bool HeaderSection::isNearLeadingEdge(int x) const
{
    return std::abs(leadingDistance(x)) <= EdgeReach;
}

bool HeaderSection::isNearTrailingEdge(int x) const
{
    return std::abs(leadingDistance(x) - rect.width()) <= EdgeReach;
}

bool HeaderSection::isAtOrBeyondTrailingEdge(int x) const
{
    return leadingDistance(x) >= rect.width() - EdgeReach;
}

int HeaderSection::textLimit(bool withArrow) const
{
    const int arrow = withArrow ? ArrowGap + ArrowSide : 0;
    return std::max(0, rect.width() - m_textFrom - arrow);
}

QRect HeaderSection::textRect(int textWidth, bool withArrow) const
{
    return mirrored(m_textFrom, std::min(textWidth, textLimit(withArrow)));
}

QRect HeaderSection::arrowRect(int textWidth) const
{
    const int from = m_textFrom + std::min(textWidth, textLimit(true)) + ArrowGap;
    QRect arrow = mirrored(from, ArrowSide);
    arrow.setTop(rect.top() + (rect.height() - ArrowSide) / 2);
    arrow.setHeight(ArrowSide);
    return arrow;
}

int HeaderSection::roomBesideText(int logicalIndex, bool withArrow)
{
    return textFrom(logicalIndex) + (withArrow ? ArrowGap + ArrowSide : TextInset);
}
