#include "content/viewaccessible.h"

#include "content/itemaccessible.h"
#include "content/scantableview.h"
#include "content/tableaccessible.h"
#include "content/thumbnailgrid.h"

#include <QHash>

namespace {

constexpr int MostItems = 1024;

/// The views that somebody has asked about; without a listener there are none.
QHash<const QObject *, ViewAccessible *> &listenedTo()
{
    static auto *views = new QHash<const QObject *, ViewAccessible *>;
    return *views;
}

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    if (auto *grid = qobject_cast<ThumbnailGrid *>(object))
        return new ViewAccessible(grid, QAccessible::List);
    if (auto *table = qobject_cast<ScanTableView *>(object))
        return new TableAccessible(table);
    return nullptr;
}

} // namespace

ViewAccessible::ViewAccessible(QAbstractItemView *view, QAccessible::Role role)
    : QAccessibleWidget(view, role)
    , m_key(view)
    , m_items(MostItems)
{
    listenedTo().insert(m_key, this);
}

ViewAccessible::~ViewAccessible()
{
    listenedTo().remove(m_key);
}

ViewAccessible::Registered::Registered(QAccessibleInterface *accessible)
    : id(QAccessible::registerAccessibleInterface(accessible))
{
}

ViewAccessible::Registered::~Registered()
{
    QAccessible::deleteAccessibleInterface(id);
}

void ViewAccessible::install()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeAccessible);
    installed = true;
}

QAbstractItemView *ViewAccessible::view() const
{
    return static_cast<QAbstractItemView *>(object());
}

int ViewAccessible::itemCount() const
{
    return view() && view()->model() ? view()->model()->rowCount(view()->rootIndex()) : 0;
}

ItemAccessible *ViewAccessible::makeItem(int row) const
{
    return new ItemAccessible(view(), row);
}

ItemAccessible *ViewAccessible::item(int row) const
{
    if (row < 0 || row >= itemCount())
        return nullptr;
    if (const Registered *known = m_items.object(row)) {
        auto *item = static_cast<ItemAccessible *>(QAccessible::accessibleInterface(known->id));
        if (item && item->isValid())
            return item;
    }
    ItemAccessible *item = makeItem(row);
    m_items.insert(row, new Registered(item));
    return item;
}

int ViewAccessible::childCount() const
{
    return firstItem() + itemCount();
}

QAccessibleInterface *ViewAccessible::child(int index) const
{
    return index < firstItem() ? leadingChild(index) : item(index - firstItem());
}

int ViewAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    if (const auto *item = dynamic_cast<const ItemAccessible *>(child))
        return firstItem() + item->row();
    for (int index = 0; index < firstItem(); ++index) {
        if (child && leadingChild(index) == child)
            return index;
    }
    return -1;
}

QAccessibleInterface *ViewAccessible::childAt(int x, int y) const
{
    if (!view())
        return nullptr;
    for (int index = 0; index < firstItem(); ++index) {
        if (leadingChild(index)->rect().contains(x, y))
            return leadingChild(index);
    }
    const QPoint pos = view()->viewport()->mapFromGlobal({x, y});
    return view()->viewport()->rect().contains(pos) ? item(view()->indexAt(pos).row()) : nullptr;
}

QAccessibleInterface *ViewAccessible::focusChild() const
{
    return view() ? item(view()->currentIndex().row()) : nullptr;
}

QAccessible::State ViewAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.multiSelectable = true;
    return state;
}

// Events ---------------------------------------------------------------------------------------

void ViewAccessible::announce(QAccessible::Event type, int row)
{
    if (row < 0)
        return;
    QAccessibleEvent event(object(), type);
    event.setChild(firstItem() + row);
    QAccessible::updateAccessibility(&event);
}

void ViewAccessible::currentChanged(QAbstractItemView *view, const QModelIndex &current,
                                    const QModelIndex &previous)
{
    ViewAccessible *self = listenedTo().value(view);
    if (!self || !current.isValid())
        return;
    const void *item = current.internalPointer();
    // Results that stream in reset the model: nobody wants to hear the same item each time.
    const bool comesBack = !previous.isValid() && self->m_announcedRow == current.row()
        && self->m_announcedItem == item;
    self->m_announcedRow = current.row();
    self->m_announcedItem = item;
    self->item(current.row()); // from now on its checks are followed
    if (!comesBack && view->hasFocus())
        self->announce(QAccessible::Focus, current.row());
}

void ViewAccessible::selectionChanged(QAbstractItemView *view, const QItemSelection &selected,
                                      const QItemSelection &deselected)
{
    ViewAccessible *self = listenedTo().value(view);
    if (!self)
        return;
    // A range is told by its first item: one event a row would be a million.
    if (!deselected.isEmpty())
        self->announce(QAccessible::SelectionRemove, deselected.first().top());
    if (!selected.isEmpty())
        self->announce(QAccessible::SelectionAdd, selected.first().top());
}

void ViewAccessible::checksChanged(QAbstractItemView *view, int firstRow, int lastRow)
{
    ViewAccessible *self = listenedTo().value(view);
    if (!self)
        return;
    // Of all items only those that somebody has looked at.
    const auto rows = self->m_items.keys();
    for (int row : rows) {
        const Registered *known = row < firstRow || row > lastRow ? nullptr
                                                                  : self->m_items.object(row);
        auto *item = known
            ? static_cast<ItemAccessible *>(QAccessible::accessibleInterface(known->id))
            : nullptr;
        if (!item || !item->takeCheckChange())
            continue;
        QAccessible::State changed;
        changed.checked = true;
        changed.checkStateMixed = true;
        QAccessibleStateChangeEvent event(item, changed);
        QAccessible::updateAccessibility(&event);
    }
}
