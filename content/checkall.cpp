#include "content/checkall.h"

#include "common/checkicon.h"
#include "common/commonfunction.h"
#include "common/screenpixmap.h"
#include "model/checkbuttonaccessible.h"
#include "model/headerview.h"
#include "model/scantableheader.h"

#include <QPushButton>
#include <QVariant>

namespace {

const char StateProperty[] = "checkstate";

} // namespace

CheckAll::CheckAll(QPushButton *button, HeaderView *bar, ScanTableHeader *header, QObject *parent)
    : QObject(parent)
    , m_button(button)
    , m_bar(bar)
    , m_header(header)
{
    CheckButtonAccessible::attach(button, StateProperty);
    button->setAutoDefault(true); // Enter clicks, as Space does
    bar->setCheckButtonVisible(false);
    setState(Qt::Unchecked);
    connect(button, &QPushButton::clicked, this,
            [this] { choose(state() == Qt::Checked ? Qt::Unchecked : Qt::Checked); });
    connect(bar, &HeaderView::signalAllChecked, this, &CheckAll::choose);
    connect(header, &ScanTableHeader::signalAllChecked, this, &CheckAll::choose);
}

int CheckAll::state() const
{
    return m_button->property(StateProperty).toInt();
}

void CheckAll::setState(int state)
{
    const bool changed = state != this->state();
    m_button->setProperty(StateProperty, state);
    if (changed)
        CheckButtonAccessible::announce(m_button);
    refresh();
    m_bar->setCheckState(state);
    m_header->setCheckState(state);
}

void CheckAll::refresh()
{
    m_button->setIcon(QIcon(screenPixmap(CommonFunction::themePixmap(checkIconName(state())))));
}

void CheckAll::choose(Qt::CheckState state)
{
    setState(state);
    emit clicked(state);
}
