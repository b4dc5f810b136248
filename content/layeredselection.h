#pragma once

#include <QItemSelectionModel>

/// A selection model that tells its two layers apart: the range that a selection with Shift would
/// replace, and what was selected before it and stays. The stock model keeps them to itself, and a
/// reset would merge them.
class LayeredSelection : public QItemSelectionModel
{
    Q_OBJECT

public:
    LayeredSelection(QAbstractItemModel *model, QObject *parent);

    /// What stays when the running range is replaced; part of selection() or not yet.
    QItemSelection settled() const { return m_settled; }
    /// Replaces both layers; \a flags may add Rows.
    void setLayers(const QItemSelection &settledPart, const QItemSelection &all,
                   QItemSelectionModel::SelectionFlags flags);

    using QItemSelectionModel::select;
    void select(const QItemSelection &selection,
                QItemSelectionModel::SelectionFlags command) override;
    void reset() override;

private:
    void onLayoutChanged();

    QItemSelection m_settled;
    bool m_rangeRunning = false;
};
