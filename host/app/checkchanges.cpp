#include "host/app/checkchanges.h"

#include "host/tree/checksweep.h"
#include "host/tree/itemkinds.h"
#include "host/tree/itemsearch.h"
#include "host/tree/itemtree.h"
#include "host/tree/slicedwork.h"

namespace {
constexpr int RecordsAStep = 1024;
}

CheckChanges::CheckChanges(ItemTree &tree, ItemSearch &search, SlicedWork &work, QObject *parent)
    : QObject(parent)
    , m_tree(tree)
    , m_search(search)
    , m_work(work)
{
    m_goEnd.setSingleShot(true);
    m_goEnd.setInterval(0);
    connect(&m_goEnd, &QTimer::timeout, this, &CheckChanges::endSoon);
}

void CheckChanges::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    emit busyChanged(busy);
}

void CheckChanges::settle()
{
    if (m_goEnd.isActive())
        endSoon();
    if (m_busy)
        m_work.finish();
}

void CheckChanges::drop()
{
    m_goEnd.stop();
    m_work.drop();
    setBusy(false);
}

void CheckChanges::begin()
{
    m_tree.beginStep();
    setBusy(true);
}

/// \a make is called when it is the sweep's turn: what is done before may be a filter.
void CheckChanges::perform(const MakeSweep &make)
{
    const auto sweep = std::make_shared<std::unique_ptr<CheckSweep>>();
    m_work.add([sweep, make] {
        if (!*sweep)
            *sweep = make();
        return !*sweep || (*sweep)->run(RecordsAStep);
    });
}

void CheckChanges::endSoon()
{
    m_goEnd.stop();
    m_work.add([] { return true; }, [this] { end(); });
}

void CheckChanges::end()
{
    emit changed();
    const CheckStep *step = m_tree.endStep();
    const int checked = step ? step->checkedFiles : 0;
    const int unchecked = step ? step->uncheckedFiles : 0;
    setBusy(false);
    if (step)
        emit bulkChecked(checked, unchecked);
}

CheckChanges::MakeSweep CheckChanges::sweepFound(Qt::CheckState state)
{
    return [this, state]() -> std::unique_ptr<CheckSweep> {
        const TreeItemData *root = m_search.root();
        if (!root)
            return nullptr;
        QVector<ItemRecord *> found;
        found.reserve(m_search.count());
        for (const auto *list : {&root->childFolders, &root->childFiles}) {
            for (TreeItemData *child : *list)
                found.append(static_cast<ItemRecord *>(child));
        }
        return CheckSweep::below(m_tree, found, state == Qt::Checked);
    };
}

void CheckChanges::change(Bulk what, ItemRecord *shown)
{
    settle();
    begin();
    const auto below = [this](ItemRecord *root) {
        perform([this, root] { return CheckSweep::below(m_tree, root, true); });
    };
    switch (what) {
    case Bulk::CheckPhotos:
        below(m_tree.kindRoot(ItemKinds::PhotosRootType));
        break;
    case Bulk::CheckDeleted:
        perform([this] { return CheckSweep::deleted(m_tree); });
        break;
    case Bulk::CheckShown:
        if (m_search.isActive())
            perform(sweepFound(Qt::Checked));
        else
            below(shown);
        break;
    case Bulk::Invert:
        perform([this] { return CheckSweep::inverted(m_tree); });
        break;
    case Bulk::UncheckAll:
        perform([this] { return CheckSweep::none(m_tree); });
        break;
    }
    endSoon();
}

bool CheckChanges::undo()
{
    settle();
    if (!m_tree.canUndo())
        return false;
    replay([this] { return CheckSweep::undo(m_tree); });
    return true;
}

bool CheckChanges::redo()
{
    settle();
    if (!m_tree.canRedo())
        return false;
    replay([this] { return CheckSweep::redo(m_tree); });
    return true;
}

void CheckChanges::replay(const MakeSweep &make)
{
    setBusy(true);
    perform(make);
    endSoon();
}

/// A key may change ten thousand selected items, which come one by one: the records follow each,
/// the views follow when the last has come.
void CheckChanges::take(TreeItemData *item, Qt::CheckState state)
{
    ItemRecord *record = m_tree.records().find(item);
    if (!record)
        return;
    if (!m_goEnd.isActive())
        settle();
    begin();
    const bool checked = state == Qt::Checked;
    if (record->isFolder() && (!m_work.isIdle() || m_tree.isBig(*record)))
        perform([this, record, checked] { return CheckSweep::below(m_tree, record, checked); });
    else
        m_tree.setChecked(record, checked);
    m_goEnd.start();
}

void CheckChanges::takeFound(TreeItemData *item, Qt::CheckState state)
{
    if (!m_search.isRoot(item)) {
        take(item, state);
        return;
    }
    if (!m_goEnd.isActive())
        settle();
    begin();
    perform(sweepFound(state));
    m_goEnd.start();
}
