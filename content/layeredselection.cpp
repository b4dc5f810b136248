#include "content/layeredselection.h"

#include <QAbstractItemModel>

LayeredSelection::LayeredSelection(QAbstractItemModel *model, QObject *parent)
    : QItemSelectionModel(model, parent)
{
    if (model)
        connect(model, &QAbstractItemModel::layoutChanged, this,
                &LayeredSelection::onLayoutChanged);
}

void LayeredSelection::select(const QItemSelection &selected,
                              QItemSelectionModel::SelectionFlags command)
{
    constexpr auto writes = Select | Deselect | Toggle;
    if (command & Clear)
        m_settled.clear();
    else if (!(command & Current) && command != NoUpdate)
        m_settled = selection();
    if (command & (writes | Clear))
        m_rangeRunning = command & Current;
    QItemSelectionModel::select(selected, command);
}

void LayeredSelection::reset()
{
    QItemSelectionModel::reset();
    m_settled.clear();
    m_rangeRunning = false;
}

void LayeredSelection::setLayers(const QItemSelection &settledPart, const QItemSelection &all,
                                 QItemSelectionModel::SelectionFlags flags)
{
    if (settledPart.isEmpty()) {
        select(all, ClearAndSelect | flags);
        return;
    }
    select(settledPart, ClearAndSelect | flags);
    select(QItemSelection(), Select);
    select(all, SelectCurrent | flags);
}

void LayeredSelection::onLayoutChanged()
{
    // Ranges do not survive a sort. What was in the running range is now anywhere: the next range
    // replaces it all.
    const QItemSelection all = selection();
    m_settled = m_rangeRunning ? QItemSelection() : all;
    const bool quiet = blockSignals(true);
    if (m_rangeRunning)
        QItemSelectionModel::select(all, ClearAndSelect);
    else
        QItemSelectionModel::select(QItemSelection(), Select);
    blockSignals(quiet);
}
