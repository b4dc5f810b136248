// Keyboard and assistive technology of ScanTableHeader.
#include "model/scantableheader.h"

#include "model/headeraccessible.h"
#include "model/headersection.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int CheckSlackForKeys = HeaderMetrics::CheckSlack;

} // namespace

QVector<int> ScanTableHeader::shownParts() const
{
    QVector<int> parts;
    for (int section = 0; section < count(); ++section) {
        if (isSectionHidden(section))
            continue;
        if (section == 0)
            parts.append(CheckPart);
        parts.append(partOf(section));
    }
    return parts;
}

bool ScanTableHeader::takesKeys(int part) const
{
    return part == CheckPart || sectionOf(part) < SortCycle::SectionCount;
}

QRect ScanTableHeader::partRect(int part) const
{
    const HeaderSection section = sectionAt(part == CheckPart ? 0 : sectionOf(part));
    return part == CheckPart ? section.checkBox.adjusted(-CheckSlackForKeys, -CheckSlackForKeys,
                                                         CheckSlackForKeys, CheckSlackForKeys)
                             : section.rect;
}

void ScanTableHeader::activate(int part)
{
    if (part == CheckPart)
        toggleCheck();
    else if (takesKeys(part))
        sortBy(sectionOf(part));
}

void ScanTableHeader::setFocusPart(int part)
{
    const bool changed = part != m_focusPart;
    m_focusPart = part;
    viewport()->update();
    if (changed)
        HeaderAccessible::announceFocus(this);
}

void ScanTableHeader::moveFocus(bool onward)
{
    QVector<int> parts = shownParts();
    parts.erase(
        std::remove_if(parts.begin(), parts.end(), [this](int part) { return !takesKeys(part); }),
        parts.end());
    const int next = parts.indexOf(m_focusPart) + (onward ? 1 : -1);
    if (next >= 0 && next < parts.size())
        setFocusPart(parts.at(next));
}

void ScanTableHeader::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        moveFocus((event->key() == Qt::Key_Right) != isRightToLeft());
        break;
    case Qt::Key_Home:
        setFocusPart(CheckPart);
        break;
    case Qt::Key_End:
        setFocusPart(partOf(SortCycle::SectionCount - 1));
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            activate(m_focusPart);
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        break; // the rows do not move while the focus is here
    default:
        QWidget::keyPressEvent(event);
    }
}

void ScanTableHeader::focusInEvent(QFocusEvent *event)
{
    QHeaderView::focusInEvent(event);
    viewport()->update();
    HeaderAccessible::announceFocus(this);
}

void ScanTableHeader::focusOutEvent(QFocusEvent *event)
{
    QHeaderView::focusOutEvent(event);
    viewport()->update();
}
