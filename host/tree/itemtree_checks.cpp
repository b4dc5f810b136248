#include "host/tree/itemkinds.h"
#include "host/tree/itemtree.h"

namespace {

/// From so many leaves on, a sweep is less work than following each change up to the roots.
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
    if (!mark(leaf, checked) || !isShown(*leaf))
        return;
    forEachContainer(leaf, m_allFiles, [this, checked](ItemRecord *container) {
        container->checkedLeaves += checked ? 1 : -1;
        writeCheckState(container);
        if (!checked)
            setNewcomers(container, false);
    });
}

bool ItemTree::isBig(const ItemRecord &record) const
{
    return record.leaves > ManyLeaves && record.leaves > m_folderList.size() / 8;
}

void ItemTree::setChecked(ItemRecord *record, bool checked)
{
    if (!record->isShown)
        return;
    QVector<ItemRecord *> open{record};
    while (!open.isEmpty()) {
        ItemRecord *current = open.takeLast();
        if (current->isFolder())
            setNewcomers(current, checked);
        if (current->isLeaf) {
            setLeafChecked(current, checked);
            continue;
        }
        for (TreeItemData *file : qAsConst(current->childFiles))
            setLeafChecked(static_cast<ItemRecord *>(file), checked);
        for (TreeItemData *folder : qAsConst(current->childFolders))
            open.append(static_cast<ItemRecord *>(folder));
        // the plug-in may have written a state that nothing below bears out
        writeCheckState(current);
    }
}

/// The states of whatever counts leaves, from counts that are right. What is not wholly checked
/// takes no newcomers along.
void ItemTree::settleContainers()
{
    const auto settle = [this](ItemRecord *record) {
        writeCheckState(record);
        if (record->checkedLeaves < record->leaves)
            setNewcomers(record, false);
    };
    for (ItemRecord *folder : qAsConst(m_folderList)) {
        if (folder->isShown)
            settle(folder);
    }
    for (const auto &roots : {m_volumes, m_kinds, QVector<ItemRecord *>{m_allFiles}}) {
        for (ItemRecord *root : roots)
            settle(root);
    }
    if (hasSeveralVolumes())
        settle(m_placeRoot);
}

int ItemTree::hiddenCheckedFiles() const
{
    return m_checkedFiles - m_allFiles->checkedLeaves;
}

bool ItemTree::isChosen(const ItemRecord &record) const
{
    return record.isLeaf && record.isChecked && (isShown(record) || !record.isFolder());
}
