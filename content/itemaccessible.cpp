#include "content/itemaccessible.h"

#include "content/itemactions.h"
#include "delegates/delegateitem.h"
#include "model/scanitemrole.h"
#include "model/spokentext.h"

#include <QKeySequence>

ItemAccessible::ItemAccessible(QAbstractItemView *view, int row)
    : m_view(view)
    , m_row(row)
    , m_item(index().internalPointer())
    , m_knownCheckState(checkState())
{
}

QModelIndex ItemAccessible::index() const
{
    return m_view && m_view->model() ? m_view->model()->index(m_row, 0, m_view->rootIndex())
                                     : QModelIndex();
}

bool ItemAccessible::isValid() const
{
    return m_view && m_view->model() && m_row < m_view->model()->rowCount(m_view->rootIndex())
        && index().internalPointer() == m_item;
}

QWindow *ItemAccessible::window() const
{
    QAccessibleInterface *list = parent();
    return list ? list->window() : nullptr;
}

QAccessibleInterface *ItemAccessible::parent() const
{
    return m_view ? QAccessible::queryAccessibleInterface(m_view) : nullptr;
}

int ItemAccessible::checkState() const
{
    return index().data(Qt::CheckStateRole).toInt();
}

bool ItemAccessible::takesChecks() const
{
    const QModelIndex item = index();
    if (!item.data(Qt::CheckStateRole).isValid())
        return false;
    const QVariant kind = item.data(KindRole);
    return !kind.isValid() || !ItemKind::isFolderLike(kind.toInt())
        || item.data(CountRole).toLongLong() > 0;
}

bool ItemAccessible::takeCheckChange()
{
    const int now = checkState();
    const bool changed = now != m_knownCheckState;
    m_knownCheckState = now;
    return changed;
}

QString ItemAccessible::text(QAccessible::Text kind) const
{
    const QModelIndex item = index();
    switch (kind) {
    case QAccessible::Name: {
        const QString name = item.data(Qt::AccessibleTextRole).toString();
        return name.isEmpty() ? item.data(Qt::DisplayRole).toString() : name;
    }
    case QAccessible::Description:
        if (!item.isValid())
            return {};
        return SpokenText::joined(
            {item.data(Qt::AccessibleDescriptionRole).toString(),
             SpokenText::position(m_row, item.model()->rowCount(item.parent()))});
    case QAccessible::Value:
        return takesChecks() ? SpokenText::checkState(checkState()) : QString();
    default:
        return {};
    }
}

QRect ItemAccessible::itemRect() const
{
    return m_view->visualRect(index());
}

QRect ItemAccessible::rect() const
{
    const QRect item = m_view ? itemRect() : QRect();
    if (item.isNull())
        return {};
    return {m_view->viewport()->mapToGlobal(item.topLeft()), item.size()};
}

QAccessible::State ItemAccessible::state() const
{
    QAccessible::State state;
    const QModelIndex item = index();
    if (!item.isValid() || !m_view->selectionModel()) {
        state.invalid = true;
        return state;
    }
    const Qt::ItemFlags flags = item.flags();
    state.disabled = !(flags & Qt::ItemIsEnabled);
    state.selectable = flags.testFlag(Qt::ItemIsSelectable);
    state.multiSelectable = m_view->selectionMode() == QAbstractItemView::ExtendedSelection;
    state.selected = m_view->selectionModel()->isSelected(item);
    state.focusable = true;
    state.focused = m_view->currentIndex().row() == m_row && m_view->hasFocus();
    state.active = m_view->currentIndex().row() == m_row;
    state.invisible = !m_view->isVisible();
    state.offscreen = !m_view->viewport()->rect().intersects(itemRect());
    if (takesChecks()) {
        state.checkable = true;
        state.checked = checkState() == Qt::Checked;
        state.checkStateMixed = checkState() == Qt::PartiallyChecked;
    }
    return state;
}

void *ItemAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QStringList ItemAccessible::actionNames() const
{
    if (!index().isValid())
        return {};
    QStringList names;
    if (takesChecks())
        names << toggleAction();
    return names << pressAction() << setFocusAction();
}

void ItemAccessible::doAction(const QString &action)
{
    const QModelIndex item = index();
    auto *actions = dynamic_cast<ItemActions *>(m_view.data());
    if (!isValid() || !item.isValid() || !actions)
        return;
    if (action == setFocusAction()) {
        m_view->setFocus(Qt::OtherFocusReason);
        m_view->setCurrentIndex(item);
    } else if (action == pressAction()) {
        actions->requestOpen(item);
    } else if (action == toggleAction() && takesChecks()) {
        actions->requestToggle(item);
    }
}

QStringList ItemAccessible::keyBindingsForAction(const QString &action) const
{
    if (action == toggleAction())
        return {QKeySequence(Qt::Key_Space).toString()};
    if (action == pressAction())
        return {QKeySequence(Qt::Key_Return).toString()};
    return {};
}
