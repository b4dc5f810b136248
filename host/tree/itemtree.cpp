#include "host/tree/itemtree.h"

#include "host/scan/filecategory.h"
#include "host/tree/itemkinds.h"

#include <algorithm>

ItemTree::ItemTree()
{
    clear();
}

ItemTree::~ItemTree() = default;

RecordStore::Remains ItemTree::clear()
{
    m_folders.clear();
    m_folderList.clear();
    m_texts.clear();
    m_volumes.clear();
    m_kinds.clear();
    m_placeRoot = nullptr;
    RecordStore::Remains remains = m_records.takeAll();
    m_filtered = Everything;
    m_history.clear(); // the places that it knows are given out anew
    m_checkedFiles = 0;
    m_checkedBytes = 0;
    m_allFiles = createRoot(QString(), ItemKinds::AllFilesRootType);
    for (const ItemKind &kind : ItemKinds::All)
        m_kinds.append(createRoot(QLatin1String(kind.key), kind.rootType));
    ++m_revision;
    return remains;
}

void ItemTree::setVolumes(const QVector<VolumeInfo> &volumes)
{
    for (const VolumeInfo &info : volumes) {
        // among several, the root tells them apart; a single one goes by the name that people gave
        // it
        const bool hasName = volumes.size() == 1 && !info.label.isEmpty();
        ItemRecord *volume = createRoot(hasName ? info.label : info.root, 0);
        volume->volumeRoot = info.root;
        volume->volume = m_volumes.size();
        m_volumes.append(volume);
    }
    if (m_volumes.size() == 1) {
        m_placeRoot = m_volumes.first();
    } else if (!m_volumes.isEmpty()) {
        m_placeRoot = createRoot(QString(), 0);
        for (ItemRecord *volume : qAsConst(m_volumes)) {
            volume->parent = m_placeRoot;
            volume->path = QStringLiteral("/");
            m_placeRoot->childFolders.append(volume);
            ++m_placeRoot->itemCount;
        }
    }
    ++m_revision;
}

void ItemTree::add(const QVector<FoundItem> &batch)
{
    if (m_volumes.isEmpty())
        return;
    for (const FoundItem &item : batch) {
        ItemRecord *record = createRecord(item);
        if (record->isFolder()) {
            m_folders.insert(record->fileId, record);
            m_folderList.append(record);
        }
        if (isFiltering())
            continue; // the filter comes to it
        if (record->isFolder()) {
            if (!m_filter.isActive())
                show(record);
        } else if (m_filter.accepts(*record)) {
            show(record);
        }
    }
    ++m_revision;
}

ItemRecord *ItemTree::kindRoot(int rootType) const
{
    const auto found = std::find_if(
        m_kinds.begin(), m_kinds.end(),
        [rootType](const ItemRecord *kind) { return kind->rootType == rootType; });
    return found != m_kinds.end() ? *found : nullptr;
}

ItemRecord *ItemTree::createRoot(const QString &name, int rootType)
{
    ItemRecord *root = m_records.create();
    root->name = name;
    root->kind = ItemRecord::FolderKind;
    root->rootType = rootType;
    root->exists = true;
    root->isRoot = true;
    root->isShown = true;
    return root;
}

ItemRecord *ItemTree::createRecord(const FoundItem &item)
{
    const auto shared = [this](const QString &text) {
        const auto known = m_texts.constFind(text);
        return known != m_texts.constEnd() ? *known : *m_texts.insert(text);
    };
    ItemRecord *volume = m_volumes.value(item.volume, m_volumes.first());
    ItemRecord *record = m_records.create();
    record->fileId = item.id;
    record->name = item.name;
    record->path = shared(QLatin1Char('/') + item.path);
    record->volumeRoot = volume->volumeRoot;
    record->volume = volume->volume;
    record->modifiedTime = item.modifiedTime;
    record->exists = !item.deleted;
    record->address = item.address;
    record->sequence = item.sequence;
    record->parent = m_folders.value(item.parentId, volume);
    record->isLeaf = true;
    record->leaves = 1;
    if (item.folder) {
        record->kind = ItemRecord::FolderKind;
    } else {
        record->kind = ItemRecord::FileKind;
        record->fileSize = item.size;
        record->extension = shared(extensionOf(item.name));
        record->fileCategory = categoryOfExtension(record->extension);
    }
    return record;
}

/// A folder that the filter had no use for comes with the first thing in it that is shown.
void ItemTree::show(ItemRecord *record)
{
    if (!record->folder()->isShown)
        show(record->folder());
    record->isShown = true;
    takeAlong(record);
    if (record->isLeaf)
        record->checkedLeaves = record->isChecked ? 1 : 0;
    writeCheckState(record);
    if (!record->isFolder())
        listByKind(record);
    link(record);
}

void ItemTree::listByKind(ItemRecord *file)
{
    file->kindRoot = m_kinds[ItemKinds::indexOfCategory(file->fileCategory)];
    for (ItemRecord *root : {file->kindRoot, m_allFiles}) {
        root->childFiles.append(file);
        root->leaves += 1;
        root->checkedLeaves += file->checkedLeaves;
        root->itemCount += 1;
        root->folderSize += file->fileSize;
        writeCheckState(root);
        if (root->checkedLeaves < root->leaves)
            setNewcomers(root, false);
    }
}

void ItemTree::link(ItemRecord *record)
{
    ItemRecord *holder = record->folder();
    (record->isFolder() ? holder->childFolders : holder->childFiles).append(record);
    grow(holder, {record->leaves, record->checkedLeaves, 1, record->fileSize});
}

void ItemTree::grow(ItemRecord *holder, Growth growth)
{
    if (holder->isLeaf) {
        // It counted itself while it was empty; from now on its contents count for it.
        growth.leaves -= 1;
        growth.checkedLeaves -= holder->checkedLeaves;
        holder->isLeaf = false;
        holder->isChecked = false;
    }
    for (ItemRecord *folder = holder; folder; folder = folder->folder()) {
        folder->leaves += growth.leaves;
        folder->checkedLeaves += growth.checkedLeaves;
        folder->itemCount += growth.items;
        folder->folderSize += growth.bytes;
        writeCheckState(folder);
        if (folder->checkedLeaves < folder->leaves)
            setNewcomers(folder, false);
    }
}
