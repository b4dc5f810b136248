#include "content/rowaccessible.h"

#include "content/scantableview.h"

#include <QHeaderView>

namespace {

/// Asks its row for everything but its own text and place.
class CellAccessible : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    CellAccessible(ScanTableView *table, RowAccessible *row, int column)
        : m_table(table)
        , m_row(row)
        , m_column(column)
    {
    }

    int column() const { return m_column; }

    bool isValid() const override { return m_table && m_row->isValid(); }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return m_row->window(); }
    QAccessibleInterface *parent() const override { return m_row; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }
    QAccessible::Role role() const override { return QAccessible::Cell; }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value && isFirst())
            return m_row->text(kind);
        return kind == QAccessible::Name ? index().data(Qt::AccessibleTextRole).toString()
                                         : QString();
    }

    QRect rect() const override
    {
        const QRect cell = m_table ? m_table->visualRect(index()) : QRect();
        return cell.isNull() ? QRect()
                             : QRect(m_table->viewport()->mapToGlobal(cell.topLeft()), cell.size());
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = m_row->state();
        state.focusable = false;
        state.focused = false;
        if (!isFirst()) {
            state.checkable = false;
            state.checked = false;
            state.checkStateMixed = false;
        }
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        return isFirst() ? m_row->interface_cast(type) : nullptr;
    }

    bool isSelected() const override { return m_row->state().selected; }
    QList<QAccessibleInterface *> columnHeaderCells() const override
    {
        QAccessibleInterface *header = QAccessible::queryAccessibleInterface(
            m_table->horizontalHeader());
        for (int i = 0; header && i < header->childCount(); ++i) {
            QAccessibleInterface *section = header->child(i);
            if (section->role() == QAccessible::ColumnHeader
                && section->tableCellInterface()->columnIndex() == columnIndex())
                return {section};
        }
        return {};
    }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override
    {
        return RowAccessible::shownColumns(*m_table).indexOf(m_column);
    }
    int rowIndex() const override { return m_row->row(); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return m_row->parent(); }

private:
    bool isFirst() const { return m_column == 0; }
    QModelIndex index() const { return m_row->index().sibling(m_row->row(), m_column); }

    QPointer<ScanTableView> m_table;
    RowAccessible *m_row; // outlives its cells
    int m_column;
};

} // namespace

RowAccessible::RowAccessible(ScanTableView *table, int row)
    : ItemAccessible(table, row)
{
}

RowAccessible::~RowAccessible()
{
    for (QAccessible::Id id : qAsConst(m_cells)) {
        if (id)
            QAccessible::deleteAccessibleInterface(id);
    }
}

ScanTableView *RowAccessible::table() const
{
    return static_cast<ScanTableView *>(view());
}

QVector<int> RowAccessible::shownColumns(const ScanTableView &table)
{
    QVector<int> columns;
    const int count = table.model() ? table.model()->columnCount() : 0;
    for (int column = 0; column < count; ++column) {
        if (!table.isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

int RowAccessible::childCount() const
{
    return table() && index().isValid() ? shownColumns(*table()).size() : 0;
}

QAccessibleInterface *RowAccessible::child(int number) const
{
    if (number < 0 || number >= childCount())
        return nullptr;
    const int column = shownColumns(*table()).at(number);
    if (m_cells.size() <= column)
        m_cells.resize(column + 1);
    if (!m_cells.at(column)) {
        auto *cell = new CellAccessible(table(), const_cast<RowAccessible *>(this), column);
        m_cells[column] = QAccessible::registerAccessibleInterface(cell);
    }
    return QAccessible::accessibleInterface(m_cells.at(column));
}

int RowAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *cell = dynamic_cast<const CellAccessible *>(child);
    return cell && cell->parent() == this ? shownColumns(*table()).indexOf(cell->column()) : -1;
}

QAccessibleInterface *RowAccessible::childAt(int x, int y) const
{
    for (int number = 0; number < childCount(); ++number) {
        if (child(number)->rect().contains(x, y))
            return child(number);
    }
    return nullptr;
}

QRect RowAccessible::itemRect() const
{
    const QRect cell = table()->visualRect(index());
    return cell.isNull() ? QRect()
                         : QRect(0, cell.top(), table()->viewport()->width(), cell.height());
}
