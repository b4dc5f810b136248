#pragma once

#include "host/scan/founditem.h"

#include <QList>

#include <functional>

class ItemTree;
class SlicedWork;
class TreeItemData;

/// Makes lists of what is to be recovered, in slices and after what else is being done to the tree.
/// GUI thread.
class ItemCollector
{
public:
    using Taker = std::function<void(const QVector<FoundItem> &)>;

    ItemCollector(const ItemTree &tree, SlicedWork &work);

    /// What is checked, see ItemTree::isChosen().
    void takeChecked(const Taker &taker);
    /// Each of \a items once, folders with all that is shown in them.
    void takeBelow(const QList<TreeItemData *> &items, const Taker &taker);

private:
    const ItemTree &m_tree;
    SlicedWork &m_work;
};
