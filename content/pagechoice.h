#pragma once

struct FilterCondition;
class TreeItemData;

/// Which page of a content area fits what is known. Plain decisions, no widgets.
namespace PageChoice {

enum class Page { Results, Scanning, NoData, Loading, NoFilter, SearchHint, AISearchHint };

/// What the decisions depend on. \a filter and \a root may be null.
struct Situation
{
    bool searchSide = false;
    bool searchMode = false;
    bool scanFinished = false;
    const FilterCondition *filter = nullptr;
    const TreeItemData *root = nullptr;
};

/// True when the host's filter can hide anything. A null filter cannot.
bool isFilterActive(const FilterCondition *filter);

/// A root with a known count is taken at its word; one of unknown count by what it has delivered.
bool hasItems(const TreeItemData *root);

/// \a root or a node that it hangs from shows a category of files, from wherever they lie.
bool isCategoryTree(const TreeItemData *root);

/// Nothing was found: because of the filter, or at all.
Page nothingFound(const Situation &situation);
/// A tree has been handed over.
Page forTree(const Situation &situation);
/// The scan has ended while \a current was shown.
Page forFinishedScan(const Situation &situation, Page current);

} // namespace PageChoice
