#pragma once

#include <QItemSelectionModel>

/// A selection model that tells its two layers apart: the range that a selection with Shift would
/// replace, and what was selected before it and stays. The stock model keeps the two to itself and
/// puts them together at each reading, which loses rows beside one whose record has died: such a
/// row has no index that a range could end at. Here the stock model is given the sum.
class LayeredSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    LayeredSelection(QAbstractItemModel *model, QObject *parent);

    /// What stays when the running range is replaced; part of selection() or not yet.
    QItemSelection settled() const { return m_settled; }
    /// The selection of last is a range that the next one replaces.
    bool isRangeRunning() const { return m_rangeRunning; }
    /// Replaces both layers; \a flags may add Rows.
    void setLayers(const QItemSelection &settledPart, const QItemSelection &all, bool rangeRunning,
                   QItemSelectionModel::SelectionFlags flags);

    /// What \a command does to \a lower with \a upper, among dead rows too.
    QItemSelection combined(const QItemSelection &lower, const QItemSelection &upper,
                            QItemSelectionModel::SelectionFlags command) const;

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection,
                QItemSelectionModel::SelectionFlags command) override;
    void reset() override;

private:
    void onLayoutChanged();
    QItemSelection wholeRows(const QItemSelection &selection) const;
    /// Ranges are cut into others there and would end at a dead row.
    bool isCutAtDeadRow(const QItemSelection &selection) const;
    QItemSelection combinedByRows(const QItemSelection &lower, const QItemSelection &upper,
                                  QItemSelectionModel::SelectionFlags command) const;

    QItemSelection m_settled;
    bool m_rangeRunning = false;
};
