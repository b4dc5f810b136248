#include "content/cardaccessible.h"

#include "content/thumbnailgrid.h"

CardAccessible::CardAccessible(ThumbnailGrid *grid, int row)
    : m_grid(grid)
    , m_row(row)
{
}

QModelIndex CardAccessible::index() const
{
    if (!m_grid || !m_grid->model())
        return {};
    return m_grid->model()->index(m_row, m_grid->modelColumn(), m_grid->rootIndex());
}

bool CardAccessible::isValid() const
{
    return m_grid && m_grid->model() && m_row < m_grid->model()->rowCount(m_grid->rootIndex());
}

QWindow *CardAccessible::window() const
{
    QAccessibleInterface *list = parent();
    return list ? list->window() : nullptr;
}

QAccessibleInterface *CardAccessible::parent() const
{
    return m_grid ? QAccessible::queryAccessibleInterface(m_grid) : nullptr;
}

QString CardAccessible::text(QAccessible::Text kind) const
{
    const QModelIndex item = index();
    if (kind == QAccessible::Description)
        return item.data(Qt::AccessibleDescriptionRole).toString();
    if (kind != QAccessible::Name)
        return {};
    const QString name = item.data(Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? item.data(Qt::DisplayRole).toString() : name;
}

QRect CardAccessible::rect() const
{
    const QRect card = m_grid ? m_grid->visualRect(index()) : QRect();
    if (card.isNull())
        return {};
    return {m_grid->viewport()->mapToGlobal(card.topLeft()), card.size()};
}

QAccessible::State CardAccessible::state() const
{
    QAccessible::State state;
    const QModelIndex item = index();
    if (!item.isValid() || !m_grid->selectionModel()) {
        state.invalid = true;
        return state;
    }
    const Qt::ItemFlags flags = item.flags();
    state.disabled = !(flags & Qt::ItemIsEnabled);
    state.selectable = flags.testFlag(Qt::ItemIsSelectable);
    state.multiSelectable = m_grid->selectionMode() == QAbstractItemView::ExtendedSelection;
    state.selected = m_grid->selectionModel()->isSelected(item);
    state.focusable = true;
    state.focused = m_grid->currentIndex() == item;
    state.invisible = !m_grid->isVisible();
    state.offscreen = !m_grid->viewport()->rect().intersects(m_grid->visualRect(item));
    const QVariant check = item.data(Qt::CheckStateRole);
    if (check.isValid()) {
        state.checkable = true;
        state.checked = check.toInt() == Qt::Checked;
        state.checkStateMixed = check.toInt() == Qt::PartiallyChecked;
    }
    return state;
}
