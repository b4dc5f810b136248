#include "host/tree/itemkinds.h"
#include "host/tree/itemtree.h"

namespace {

/// Where that many leaves change, counting everything anew is less work than following each change
/// up to the roots.
constexpr int ManyLeaves = 2000;

/// Everything that counts \a record: the folders above it and, for files, the roots by kind.
template <typename Visit>
void forEachContainer(const ItemRecord *record, ItemRecord *allFiles, Visit visit)
{
    for (ItemRecord *folder = record->folder(); folder; folder = folder->folder())
        visit(folder);
    if (record->kindRoot) {
        visit(record->kindRoot);
        visit(allFiles);
    }
}

Qt::CheckState stateOf(const ItemRecord &record)
{
    if (record.checkedLeaves == 0)
        return Qt::Unchecked;
    return record.checkedLeaves == record.leaves ? Qt::Checked : Qt::PartiallyChecked;
}

} // namespace

void ItemTree::writeCheckState(ItemRecord *record)
{
    record->checkState = stateOf(*record);
}

/// What is found in something that is checked as a whole is checked too.
void ItemTree::takeAlong(ItemRecord *newcomer)
{
    if (newcomer->isChecked)
        return;
    const ItemRecord *taker = newcomer->folder();
    if (!taker->checksNewcomers && !newcomer->isFolder()) {
        const ItemRecord *kind = m_kinds[ItemKinds::indexOfCategory(newcomer->fileCategory)];
        taker = m_allFiles->checksNewcomers ? m_allFiles : kind;
    }
    if (!taker->checksNewcomers)
        return;
    newcomer->isChecked = true;
    m_history.joinLeaf(taker->newcomersBy, newcomer->index, !newcomer->isFolder());
    if (newcomer->isFolder()) {
        newcomer->checksNewcomers = true;
        newcomer->newcomersBy = taker->newcomersBy;
        m_history.joinFlag(taker->newcomersBy, newcomer->index);
    } else {
        ++m_checkedFiles;
        m_checkedBytes += newcomer->fileSize;
    }
}

void ItemTree::setNewcomers(ItemRecord *container, bool taken)
{
    if (container->checksNewcomers == taken)
        return;
    container->checksNewcomers = taken;
    container->newcomersBy = taken ? m_history.flaggedBy(container->index) : 0;
    m_history.recordFlag(container->index, taken);
}

/// The leaf alone; what counts it has to be told. False when nothing has changed.
bool ItemTree::mark(ItemRecord *leaf, bool checked)
{
    const bool changes = leaf->isChecked != checked;
    if (changes) {
        leaf->isChecked = checked;
        leaf->checkedLeaves = checked ? 1 : 0;
        m_history.recordLeaf(leaf->index, !leaf->isFolder(), checked);
        if (!leaf->isFolder()) {
            m_checkedFiles += checked ? 1 : -1;
            m_checkedBytes += checked ? leaf->fileSize : -leaf->fileSize;
        }
    }
    writeCheckState(leaf);
    return changes;
}

void ItemTree::setLeafChecked(ItemRecord *leaf, bool checked)
{
    if (!mark(leaf, checked))
        return;
    forEachContainer(leaf, m_allFiles, [this, checked](ItemRecord *container) {
        container->checkedLeaves += checked ? 1 : -1;
        writeCheckState(container);
        if (!checked)
            setNewcomers(container, false);
    });
}

void ItemTree::setChecked(ItemRecord *record, bool checked)
{
    if (!record->isShown)
        return;
    const bool many = record->leaves > ManyLeaves && record->leaves > m_records.size() / 8;
    QVector<ItemRecord *> open{record};
    while (!open.isEmpty()) {
        ItemRecord *current = open.takeLast();
        if (current->isFolder())
            setNewcomers(current, checked);
        if (current->isLeaf) {
            setLeafChecked(current, checked);
            continue;
        }
        for (TreeItemData *file : qAsConst(current->childFiles)) {
            auto *leaf = static_cast<ItemRecord *>(file);
            if (many)
                mark(leaf, checked);
            else
                setLeafChecked(leaf, checked);
        }
        for (TreeItemData *folder : qAsConst(current->childFolders))
            open.append(static_cast<ItemRecord *>(folder));
        // the plug-in may have written a state that nothing below bears out
        writeCheckState(current);
    }
    if (many)
        recount();
}

void ItemTree::checkDeleted()
{
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isShown && !record->exists && !record->isFolder())
            mark(record, true);
    }
    recount();
}

void ItemTree::invertChecks()
{
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isShown && record->isLeaf)
            mark(record, !record->isChecked);
    }
    recount();
}

void ItemTree::uncheckAll()
{
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isLeaf)
            mark(record, false);
        if (record->isFolder())
            setNewcomers(record, false);
    }
    recount();
}

const CheckStep *ItemTree::undo()
{
    m_history.end();
    if (!m_history.lastDone())
        return nullptr;
    m_history.markUndone();
    const CheckStep *step = m_history.lastUndone();
    apply(step->unchecked, step->checked, step->unflagged, step->flagged);
    return step;
}

const CheckStep *ItemTree::redo()
{
    m_history.end();
    if (!m_history.lastUndone())
        return nullptr;
    m_history.markRedone();
    const CheckStep *step = m_history.lastDone();
    apply(step->checked, step->unchecked, step->flagged, step->unflagged);
    return step;
}

/// Nothing of it is recorded: no step is open.
void ItemTree::apply(const IndexSet &checked, const IndexSet &unchecked, const IndexSet &flagged,
                     const IndexSet &unflagged)
{
    const auto setLeaf = [this](int index, bool on) {
        ItemRecord *record = m_records.at(index);
        if (record->isLeaf) // a folder that was empty then may have been filled since
            mark(record, on);
    };
    checked.forEach([&setLeaf](int index) { setLeaf(index, true); });
    unchecked.forEach([&setLeaf](int index) { setLeaf(index, false); });
    unflagged.forEach([this](int index) { setNewcomers(m_records.at(index), false); });
    flagged.forEach([this](int index) { setNewcomers(m_records.at(index), true); });
    recount(); // takes back the flags of what is not wholly checked
}

/// All counts and states above the leaves, in one sweep from the last record to the first: what is
/// in a folder comes after the folder.
void ItemTree::recount()
{
    QVector<ItemRecord *> roots = m_volumes + m_kinds;
    roots << m_allFiles;
    if (m_placeRoot && !m_volumes.contains(m_placeRoot))
        roots << m_placeRoot;
    for (ItemRecord *root : qAsConst(roots))
        root->checkedLeaves = 0;
    for (ItemRecord *folder : qAsConst(m_folderList)) {
        if (!folder->isLeaf)
            folder->checkedLeaves = 0;
    }
    const auto settle = [this](ItemRecord *record) {
        writeCheckState(record);
        if (record->checkedLeaves < record->leaves)
            setNewcomers(record, false);
    };
    for (int i = m_records.size() - 1; i >= 0; --i) {
        ItemRecord *record = m_records.at(i);
        if (record->isRoot || !record->isShown)
            continue;
        if (record->isFolder())
            settle(record);
        record->folder()->checkedLeaves += record->checkedLeaves;
        if (record->kindRoot)
            record->kindRoot->checkedLeaves += record->checkedLeaves;
    }
    for (const ItemRecord *kind : qAsConst(m_kinds))
        m_allFiles->checkedLeaves += kind->checkedLeaves;
    if (hasSeveralVolumes()) {
        for (const ItemRecord *volume : qAsConst(m_volumes))
            m_placeRoot->checkedLeaves += volume->checkedLeaves;
    }
    for (ItemRecord *root : qAsConst(roots))
        settle(root);
}

int ItemTree::hiddenCheckedFiles() const
{
    return m_checkedFiles - m_allFiles->checkedLeaves;
}

QVector<const ItemRecord *> ItemTree::checkedItems() const
{
    QVector<const ItemRecord *> items;
    items.reserve(m_checkedFiles);
    for (int i = 0; i < m_records.size(); ++i) {
        const ItemRecord *record = m_records.at(i);
        if (record->isLeaf && record->isChecked && (record->isShown || !record->isFolder()))
            items.append(record);
    }
    return items;
}
