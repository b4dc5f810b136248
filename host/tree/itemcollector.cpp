#include "host/tree/itemcollector.h"

#include "host/tree/itemtree.h"
#include "host/tree/slicedwork.h"

#include <memory>

namespace {

constexpr int ItemsAStep = 512;

struct Checked
{
    const ItemTree &tree;
    int next = 0;
    QVector<FoundItem> items;

    bool step()
    {
        const int end = qMin(next + ItemsAStep, tree.records().size());
        for (; next < end; ++next) {
            const ItemRecord &record = *tree.records().at(next);
            if (tree.isChosen(record))
                items.append(record.found());
        }
        return next == tree.records().size();
    }
};

struct Below
{
    const ItemTree &tree;
    QList<TreeItemData *> open;
    QSet<qint64> seen; // a folder and something in it may both be selected
    QVector<FoundItem> items;

    bool step()
    {
        for (int i = 0; i < ItemsAStep && !open.isEmpty(); ++i)
            take(open.takeLast());
        return open.isEmpty();
    }

    void take(const TreeItemData *item)
    {
        const ItemRecord *record = tree.records().find(item);
        if (!record || seen.contains(record->secondaryId))
            return;
        seen.insert(record->secondaryId);
        if (!record->isRoot)
            items.append(record->found());
        open += record->childFolders;
        open += record->childFiles;
    }
};

template <typename Collection>
void collect(const std::shared_ptr<Collection> &collection, SlicedWork &work,
             const ItemCollector::Taker &taker)
{
    work.add([collection] { return collection->step(); },
             [collection, taker] { taker(collection->items); });
}

} // namespace

ItemCollector::ItemCollector(const ItemTree &tree, SlicedWork &work)
    : m_tree(tree)
    , m_work(work)
{
}

void ItemCollector::takeChecked(const Taker &taker)
{
    auto checked = std::make_shared<Checked>(Checked{m_tree, 0, {}});
    checked->items.reserve(m_tree.checkedFiles()); // or a million would be moved in one step
    collect(checked, m_work, taker);
}

void ItemCollector::takeBelow(const QList<TreeItemData *> &items, const Taker &taker)
{
    collect(std::make_shared<Below>(Below{m_tree, items, {}, {}}), m_work, taker);
}
