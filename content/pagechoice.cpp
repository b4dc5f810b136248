#include "content/pagechoice.h"

#include "platform/item/filtercondition.h"
#include "platform/item/treeitemdata.h"

#include <QSet>

namespace PageChoice {

bool isFilterActive(const FilterCondition *filter)
{
    if (!filter)
        return false;
    const bool bounded = filter->minSize != FilterCondition::Unset
        || filter->maxSize != FilterCondition::Unset || filter->minTime != FilterCondition::Unset
        || filter->maxTime != FilterCondition::Unset;
    return bounded || !filter->text1.isEmpty() || !filter->text2.isEmpty()
        || !filter->list1.isEmpty() || !filter->list2.isEmpty()
        || filter->mode != FilterCondition::NoMode;
}

bool hasItems(const TreeItemData *root)
{
    if (!root)
        return false;
    if (root->itemCount < 0)
        return !root->childFolders.isEmpty() || !root->childFiles.isEmpty();
    return root->itemCount > 0;
}

bool isCategoryTree(const TreeItemData *root)
{
    static const QSet<int> categories{9, 10, 11, 23, 24, 25, 26, 27, 50, 51, 52, 56};
    // A host's broken links must not hold us here for ever.
    for (int depth = 0; root && depth < 1000; ++depth, root = root->parent) {
        if (categories.contains(root->rootType))
            return true;
    }
    return false;
}

Page nothingFound(const Situation &situation)
{
    return !situation.searchMode && isFilterActive(situation.filter) ? Page::NoFilter
                                                                     : Page::NoData;
}

Page forTree(const Situation &situation)
{
    if (hasItems(situation.root))
        return Page::Results;
    if (situation.searchSide) {
        const bool described = situation.filter && situation.filter->aiSearch;
        return described ? Page::AISearchHint : Page::SearchHint;
    }
    return situation.scanFinished ? nothingFound(situation) : Page::Scanning;
}

Page forFinishedScan(const Situation &situation, Page current)
{
    if (!situation.searchSide && !hasItems(situation.root))
        return nothingFound(situation);
    return current == Page::Scanning ? Page::NoData : current;
}

} // namespace PageChoice
