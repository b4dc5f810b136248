#pragma once

#include "content/viewaccessible.h"

class ScanTableView;

/// What assistive technology sees of a ScanTableView: the header, and below it one child a row
/// with a cell for each visible column. Columns count as they are shown.
class TableAccessible : public ViewAccessible, public QAccessibleTableInterface
{
public:
    explicit TableAccessible(ScanTableView *table);

    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    /// No more than a few screens of them.
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override { return itemCount(); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }
    /// Children look after themselves.
    void modelChange(QAccessibleTableModelChangeEvent *) override { }

protected:
    int firstItem() const override { return 1; }
    QAccessibleInterface *leadingChild(int) const override;
    ItemAccessible *makeItem(int row) const override;

private:
    ScanTableView *table() const;
    bool select(int row, QItemSelectionModel::SelectionFlags command);
};
