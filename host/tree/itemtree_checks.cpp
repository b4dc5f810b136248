#include "host/tree/itemkinds.h"
#include "host/tree/itemtree.h"

namespace {

/// Where that many leaves change, a tally is less work than following each change up to the roots.
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

/// Changes of many leaves. What counts them hears of a whole run of siblings at a time, since files
/// of one folder mostly follow each other, and is put right when all have changed.
class ItemTree::Tally
{
public:
    explicit Tally(ItemTree *tree)
        : m_tree(tree)
    {
    }

    void set(ItemRecord *leaf, bool checked)
    {
        if (!m_tree->mark(leaf, checked) || !leaf->isShown)
            return;
        if (leaf->folder() != m_folder) {
            passOn();
            m_folder = leaf->folder();
        }
        const int change = checked ? 1 : -1;
        m_change += change;
        if (leaf->kindRoot) {
            leaf->kindRoot->checkedLeaves += change;
            m_tree->m_allFiles->checkedLeaves += change;
        }
    }

    void finish()
    {
        passOn();
        m_tree->settleContainers();
    }

private:
    void passOn()
    {
        for (ItemRecord *folder = m_folder; folder && m_change != 0; folder = folder->folder())
            folder->checkedLeaves += m_change;
        m_change = 0;
    }

    ItemTree *m_tree;
    ItemRecord *m_folder = nullptr;
    int m_change = 0; // of the leaves right in it
};

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
    const bool many = record->leaves > ManyLeaves && record->leaves > m_folderList.size() / 8;
    Tally tally(this);
    QVector<ItemRecord *> open{record};
    while (!open.isEmpty()) {
        ItemRecord *current = open.takeLast();
        if (current->isFolder())
            setNewcomers(current, checked);
        if (current->isLeaf) {
            if (many)
                tally.set(current, checked);
            else
                setLeafChecked(current, checked);
            continue;
        }
        for (TreeItemData *file : qAsConst(current->childFiles)) {
            auto *leaf = static_cast<ItemRecord *>(file);
            if (many)
                tally.set(leaf, checked);
            else
                setLeafChecked(leaf, checked);
        }
        for (TreeItemData *folder : qAsConst(current->childFolders))
            open.append(static_cast<ItemRecord *>(folder));
        // the plug-in may have written a state that nothing below bears out
        writeCheckState(current);
    }
    if (many)
        tally.finish();
}

void ItemTree::setChecked(const QVector<ItemRecord *> &items, bool checked)
{
    if (items.size() <= ManyLeaves) {
        for (ItemRecord *item : items)
            setChecked(item, checked);
        return;
    }
    Tally tally(this);
    for (ItemRecord *item : items) {
        if (item->isLeaf && item->isShown && !item->isFolder())
            tally.set(item, checked);
    }
    tally.finish();
    for (ItemRecord *item : items) {
        if (item->isFolder())
            setChecked(item, checked);
    }
}

void ItemTree::checkDeleted()
{
    Tally tally(this);
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isShown && !record->exists && !record->isFolder())
            tally.set(record, true);
    }
    tally.finish();
}

void ItemTree::invertChecks()
{
    Tally tally(this);
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isShown && record->isLeaf)
            tally.set(record, !record->isChecked);
    }
    tally.finish();
}

void ItemTree::uncheckAll()
{
    Tally tally(this);
    for (int i = 0; i < m_records.size(); ++i) {
        ItemRecord *record = m_records.at(i);
        if (record->isLeaf)
            tally.set(record, false);
        if (record->isFolder())
            setNewcomers(record, false);
    }
    tally.finish();
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
    Tally tally(this);
    const auto setLeaf = [this, &tally](int index, bool on) {
        ItemRecord *record = m_records.at(index);
        if (record->isLeaf) // a folder that was empty then may have been filled since
            tally.set(record, on);
    };
    checked.forEach([&setLeaf](int index) { setLeaf(index, true); });
    unchecked.forEach([&setLeaf](int index) { setLeaf(index, false); });
    unflagged.forEach([this](int index) { setNewcomers(m_records.at(index), false); });
    flagged.forEach([this](int index) { setNewcomers(m_records.at(index), true); });
    tally.finish(); // takes back the flags of what is not wholly checked
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
