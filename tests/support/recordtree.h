#pragma once

#include "platform/item/treeitemdata.h"

#include <memory>
#include <vector>

/// A tree of records as a host would own it. Records may be killed one at a time.
class RecordTree
{
public:
    RecordTree()
    {
        root.kind = 1;
        root.secondaryId = 1;
        root.name = QStringLiteral("card");
    }
    ~RecordTree() { clear(); }

    TreeItemData *addFile(const QString &name, TreeItemData *folder = nullptr)
    {
        TreeItemData *item = add(name, folder);
        item->kind = 2;
        item->fileSize = 1000 + item->fileId;
        item->extension = name.section(QLatin1Char('.'), -1);
        (folder ? folder : &root)->childFiles.append(item);
        return item;
    }

    TreeItemData *addFolder(const QString &name, TreeItemData *folder = nullptr)
    {
        TreeItemData *item = add(name, folder);
        item->kind = 1;
        (folder ? folder : &root)->childFolders.append(item);
        return item;
    }

    void addFiles(int count, const QString &pattern = QStringLiteral("file%1.jpg"))
    {
        for (int i = 0; i < count; ++i)
            addFile(pattern.arg(m_nextId, 6, 10, QLatin1Char('0')));
    }

    /// As a careless host does it: the record goes, the lists still name it.
    void kill(TreeItemData *item)
    {
        for (auto &owned : m_items) {
            if (owned.get() == item)
                owned.reset();
        }
    }

    void clear()
    {
        root.childFolders.clear();
        root.childFiles.clear();
        root.itemCount = 0;
        m_items.clear();
    }

    TreeItemData root;

private:
    TreeItemData *add(const QString &name, TreeItemData *folder)
    {
        m_items.push_back(std::make_unique<TreeItemData>());
        TreeItemData *item = m_items.back().get();
        TreeItemData *holder = folder ? folder : &root;
        item->name = name;
        item->fileId = m_nextId;
        item->secondaryId = 1000000 + m_nextId;
        ++m_nextId;
        item->modifiedTime = 1700000000 + item->fileId;
        item->parent = holder;
        ++holder->itemCount;
        return item;
    }

    std::vector<std::unique_ptr<TreeItemData>> m_items;
    qint64 m_nextId = 0;
};
