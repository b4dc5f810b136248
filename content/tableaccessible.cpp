#include "content/tableaccessible.h"

#include "content/rowaccessible.h"
#include "content/scantableview.h"

#include <QHeaderView>

namespace {

constexpr int MostCells = 500;

} // namespace

TableAccessible::TableAccessible(ScanTableView *table)
    : ViewAccessible(table, QAccessible::Table)
{
}

ScanTableView *TableAccessible::table() const
{
    return static_cast<ScanTableView *>(object());
}

void *TableAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface *>(this);
    return ViewAccessible::interface_cast(type);
}

QAccessibleInterface *TableAccessible::leadingChild(int) const
{
    return QAccessible::queryAccessibleInterface(table()->horizontalHeader());
}

ItemAccessible *TableAccessible::makeItem(int row) const
{
    return new RowAccessible(table(), row);
}

int TableAccessible::columnCount() const
{
    return table() ? RowAccessible::shownColumns(*table()).size() : 0;
}

QAccessibleInterface *TableAccessible::cellAt(int row, int column) const
{
    const ItemAccessible *item = this->item(row);
    return item ? item->child(column) : nullptr;
}

QString TableAccessible::columnDescription(int column) const
{
    if (column < 0 || column >= columnCount())
        return {};
    const int section = RowAccessible::shownColumns(*table()).at(column);
    return table()->model()->headerData(section, Qt::Horizontal).toString();
}

int TableAccessible::selectedRowCount() const
{
    int rows = 0;
    if (table() && table()->selectionModel()) {
        const QItemSelection selection = table()->selectionModel()->selection();
        for (const QItemSelectionRange &range : selection)
            rows += range.height();
    }
    return rows;
}

int TableAccessible::selectedCellCount() const
{
    return selectedRowCount() * columnCount();
}

QList<int> TableAccessible::selectedRows() const
{
    QList<int> rows;
    if (table() && table()->selectionModel()) {
        const QItemSelection selection = table()->selectionModel()->selection();
        for (const QItemSelectionRange &range : selection) {
            for (int row = range.top(); row <= range.bottom(); ++row)
                rows.append(row);
        }
    }
    return rows;
}

QList<QAccessibleInterface *> TableAccessible::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    const QList<int> rows = selectedRows();
    const int columns = columnCount();
    for (int row : rows) {
        if (cells.size() + columns > MostCells)
            break; // a million cells would stop reader and program alike
        for (int column = 0; column < columns; ++column)
            cells.append(cellAt(row, column));
    }
    return cells;
}

bool TableAccessible::isRowSelected(int row) const
{
    const ItemAccessible *item = this->item(row);
    return item && item->state().selected;
}

bool TableAccessible::select(int row, QItemSelectionModel::SelectionFlags command)
{
    const ItemAccessible *item = this->item(row);
    if (!item || !item->index().isValid() || !table()->selectionModel())
        return false;
    table()->selectionModel()->select(item->index(), command | QItemSelectionModel::Rows);
    return true;
}

bool TableAccessible::selectRow(int row)
{
    return select(row, QItemSelectionModel::ClearAndSelect);
}

bool TableAccessible::unselectRow(int row)
{
    return select(row, QItemSelectionModel::Deselect);
}
