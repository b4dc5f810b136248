#include "host/tree/itemkinds.h"
#include "host/tree/itemtree.h"

/// Files that the filter lets through, one after the other. What counts them hears of a whole run
/// of siblings at a time, since files of one folder mostly follow each other. Nothing takes
/// newcomers along meanwhile.
class ItemTree::FilterRun
{
public:
    explicit FilterRun(ItemTree &tree)
        : m_tree(tree)
    {
    }

    void show(ItemRecord *file)
    {
        if (file->folder() != m_folder) {
            passOn();
            m_folder = file->folder();
            if (!m_folder->isShown)
                m_tree.show(m_folder);
        }
        file->isShown = true;
        file->checkedLeaves = file->isChecked ? 1 : 0;
        writeCheckState(file);
        file->kindRoot = m_tree.m_kinds.at(ItemKinds::indexOfCategory(file->fileCategory));
        for (ItemRecord *root : {file->kindRoot, m_tree.m_allFiles}) {
            root->childFiles.append(file);
            root->leaves += 1;
            root->checkedLeaves += file->checkedLeaves;
            root->itemCount += 1;
            root->folderSize += file->fileSize;
        }
        m_folder->childFiles.append(file);
        m_growth.leaves += 1;
        m_growth.checkedLeaves += file->checkedLeaves;
        m_growth.items += 1;
        m_growth.bytes += file->fileSize;
    }

    void passOn()
    {
        if (m_growth.items > 0)
            m_tree.grow(m_folder, m_growth);
        m_growth = Growth();
    }

    void finish()
    {
        passOn();
        for (ItemRecord *kind : qAsConst(m_tree.m_kinds))
            writeCheckState(kind);
        writeCheckState(m_tree.m_allFiles);
    }

private:
    ItemTree &m_tree;
    ItemRecord *m_folder = nullptr;
    Growth m_growth; // of that folder
};

void ItemTree::beginFilter(const ItemFilter &filter)
{
    if (!filter.isActive() && !m_filter.isActive() && !isFiltering())
        return;
    m_filter = filter;
    m_filtered = 0;
    resetRoots();
    ++m_revision;
}

bool ItemTree::filterMore(int records)
{
    if (!isFiltering())
        return true;
    FilterRun run(*this);
    for (; records > 0 && m_filtered < m_records.size(); --records, ++m_filtered) {
        ItemRecord *record = m_records.at(m_filtered);
        if (record->isRoot)
            continue;
        // Whatever it may hang below comes before it, and is of the new tree already.
        reset(record);
        if (!record->isFolder()) {
            if (m_filter.accepts(*record))
                run.show(record);
        } else if (!m_filter.isActive()) {
            run.passOn();
            show(record);
        }
    }
    run.finish();
    ++m_revision;
    if (m_filtered < m_records.size())
        return false;
    m_filtered = Everything;
    return true;
}

void ItemTree::reset(ItemRecord *record)
{
    record->kindRoot = nullptr;
    record->isShown = record->isRoot;
    record->isLeaf = !record->isRoot;
    record->leaves = record->isLeaf ? 1 : 0;
    if (!record->isFolder())
        return;
    record->childFolders.clear();
    record->childFiles.clear();
    record->itemCount = 0;
    record->folderSize = 0;
    record->checkedLeaves = 0;
    record->checksNewcomers = false;
    record->checkState = Qt::Unchecked;
}

void ItemTree::resetRoots()
{
    for (const auto &roots : {m_volumes, m_kinds, QVector<ItemRecord *>{m_allFiles}}) {
        for (ItemRecord *root : roots)
            reset(root);
    }
    if (!hasSeveralVolumes())
        return;
    reset(m_placeRoot);
    for (ItemRecord *volume : qAsConst(m_volumes)) {
        m_placeRoot->childFolders.append(volume);
        ++m_placeRoot->itemCount;
    }
}
