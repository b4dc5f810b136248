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

void ItemChecks::toggleSelected(const QModelIndex &current)
{
    const QItemSelectionModel *selection = m_views->inUse()->selectionModel();
    QModelIndexList indexes = m_views->mode() == ContentViews::GridOnly
        ? selection->selectedIndexes()
        : selection->selectedRows();
    if (indexes.isEmpty() && current.isValid())
        indexes = {current};
    const CheckToggle::Result toggled = CheckToggle::toggle(*m_model, indexes);
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
