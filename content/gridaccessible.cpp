#include "content/gridaccessible.h"

#include "content/cardaccessible.h"
#include "content/thumbnailgrid.h"

namespace {

constexpr int MostChildren = 1024;

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *grid = qobject_cast<ThumbnailGrid *>(object);
    return grid ? new GridAccessible(grid) : nullptr;
}

} // namespace

GridAccessible::GridAccessible(ThumbnailGrid *grid)
    : QAccessibleWidget(grid, QAccessible::List)
{
}

GridAccessible::~GridAccessible()
{
    forgetChildren();
}

void GridAccessible::install()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeAccessible);
    installed = true;
}

ThumbnailGrid *GridAccessible::grid() const
{
    return static_cast<ThumbnailGrid *>(object());
}

void GridAccessible::forgetChildren() const
{
    for (QAccessible::Id id : qAsConst(m_children))
        QAccessible::deleteAccessibleInterface(id);
    m_children.clear();
}

int GridAccessible::childCount() const
{
    return grid() && grid()->model() ? grid()->model()->rowCount(grid()->rootIndex()) : 0;
}

QAccessibleInterface *GridAccessible::child(int row) const
{
    if (row < 0 || row >= childCount())
        return nullptr;
    if (const QAccessible::Id known = m_children.value(row))
        return QAccessible::accessibleInterface(known);
    if (m_children.size() >= MostChildren)
        forgetChildren();
    auto *card = new CardAccessible(grid(), row);
    m_children.insert(row, QAccessible::registerAccessibleInterface(card));
    return card;
}

int GridAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *card = dynamic_cast<const CardAccessible *>(child);
    return card ? card->row() : -1;
}

QAccessibleInterface *GridAccessible::childAt(int x, int y) const
{
    if (!grid())
        return nullptr;
    const QPoint pos = grid()->viewport()->mapFromGlobal({x, y});
    return grid()->viewport()->rect().contains(pos) ? child(grid()->indexAt(pos).row()) : nullptr;
}

QAccessibleInterface *GridAccessible::focusChild() const
{
    return grid() ? child(grid()->currentIndex().row()) : nullptr;
}
