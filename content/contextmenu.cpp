#include "content/contextmenu.h"

#include "delegates/delegateitem.h"
#include "model/scandatamodel.h"
#include "popups/rightmenudialog.h"

#include <QAbstractItemView>
#include <QCursor>

namespace {

enum Action { Open = 1, Recover = 2 };

} // namespace

ContextMenu::ContextMenu(ScanDataModel *model, QWidget *parent)
    : QObject(parent)
    , m_model(model)
    , m_parent(parent)
{
}

bool ContextMenu::prepare(const QModelIndex &index)
{
    TreeItemData *item = m_model->itemAt(index);
    if (!item || item->kind != ItemKind::File)
        return false;
    m_item = item;
    if (!m_dialog) {
        m_dialog = new RightMenuDialog(m_parent);
        connect(m_dialog, &RightMenuDialog::signalsClose, this, &ContextMenu::finish);
    }
    return true;
}

void ContextMenu::openAtMouse(const QModelIndex &index)
{
    if (!prepare(index))
        return;
    m_dialog->showPoint(QCursor::pos(), index);
    m_dialog->show();
}

void ContextMenu::openByTouch(const QModelIndex &index, const QPoint &globalPos)
{
    if (prepare(index))
        m_dialog->openByTouch(globalPos, index);
}

void ContextMenu::openAtCurrent(QAbstractItemView &view)
{
    const QModelIndex index = view.currentIndex();
    if (!prepare(index))
        return;
    view.scrollTo(index);
    const QPoint middle = view.visualRect(index).intersected(view.viewport()->rect()).center();
    m_dialog->openByKeyboard(view.viewport()->mapToGlobal(middle), index);
}

void ContextMenu::finish()
{
    if (!m_dialog)
        return;
    const int action = m_dialog->selectedAction();
    const QPointer<TreeItemData> item = m_item;
    m_dialog->close();
    m_dialog->deleteLater();
    m_dialog = nullptr;
    if (!item)
        return;
    if (action == Open)
        emit openRequested(item, QStringLiteral("right_click_menu"));
    else if (action == Recover)
        emit recoverRequested(item);
}

void ContextMenu::updateTheme()
{
    if (m_dialog)
        m_dialog->updateTheme();
}

void ContextMenu::retranslate()
{
    if (m_dialog)
        m_dialog->doChangLanguage();
}
