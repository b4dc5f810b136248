#include "content/itemchecks.h"

#include "common/guard.h"
#include "content/checkall.h"
#include "content/checktoggle.h"
#include "content/contentviews.h"
#include "model/scandatamodel.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>

ItemChecks::ItemChecks(ScanDataModel *model, ContentViews *views, CheckAll *control,
                       QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_views(views)
    , m_control(control)
{
    connect(control, &CheckAll::clicked, this, &ItemChecks::setAll);
}

void ItemChecks::setAll(Qt::CheckState state)
{
    guarded(Q_FUNC_INFO, [this, state] {
        if (!m_root)
            return;
        m_root->checkState = state;
        m_model->setAllCheckStates(state);
        m_views->repaint();
        emit allChecked(m_root, state);
    });
}

bool ItemChecks::isLargeWholeTree(const QVector<SelectedRows::Run> &rows) const
{
    // The host hears of each item as far as that is bearable, and select-all also means what the
    // root has not delivered yet.
    constexpr int Large = 1000;
    const int count = m_model->rowCount();
    return m_root && count >= Large && m_root->itemCount <= count && rows.size() == 1
        && rows.first().first == 0 && rows.first().last == count - 1;
}

bool ItemChecks::isAnyAlive(const QVector<SelectedRows::Run> &rows) const
{
    for (const SelectedRows::Run &run : rows) {
        for (int row = run.first; row <= run.last; ++row) {
            if (m_model->itemAt(row))
                return true;
        }
    }
    return false;
}

void ItemChecks::toggleSelected(const QModelIndex &current)
{
    guarded(Q_FUNC_INFO, [&] {
        QVector<SelectedRows::Run> rows = SelectedRows::runs(
            m_views->inUse()->selectionModel()->selection());
        if (!isAnyAlive(rows) && current.isValid())
            rows = {{current.row(), current.row()}};
        if (isLargeWholeTree(rows)) {
            m_control->choose(CheckToggle::nextForAll(*m_model));
            return;
        }
        toggleRows(rows);
    });
}

void ItemChecks::toggle(const QModelIndex &index)
{
    if (index.isValid())
        guarded(Q_FUNC_INFO, [&] { toggleRows({{index.row(), index.row()}}); });
}

void ItemChecks::toggleRows(const QVector<SelectedRows::Run> &rows)
{
    const CheckToggle::Result toggled = CheckToggle::toggle(*m_model, rows);
    for (const auto &item : toggled.items) {
        if (item) // a slot of the host may have replaced the tree
            emit itemChecked(item, toggled.state);
    }
}

void ItemChecks::refresh()
{
    guarded(Q_FUNC_INFO, [this] {
        m_model->refreshCheckStates();
        m_views->repaint();
        if (m_root)
            m_control->setState(m_root->checkState);
    });
}

void ItemChecks::refreshAllState()
{
    guarded(Q_FUNC_INFO, [this] {
        if (m_root)
            m_control->setState(CheckToggle::ofChildren(*m_root));
    });
}
