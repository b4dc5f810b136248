#pragma once

#include "content/itemaccessible.h"

#include <QVector>

class ScanTableView;

/// A row of a ScanTableView for assistive technology, with its cells as children. A cell is made
/// when it is asked for and goes with its row.
class RowAccessible : public ItemAccessible
{
public:
    RowAccessible(ScanTableView *table, int row);
    ~RowAccessible() override;

    /// The columns that are shown, in their order.
    static QVector<int> shownColumns(const ScanTableView &table);

    QAccessible::Role role() const override { return QAccessible::Row; }
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    QRect itemRect() const override;

private:
    ScanTableView *table() const;

    mutable QVector<QAccessible::Id> m_cells; ///< by column of the model; 0: not made
};
