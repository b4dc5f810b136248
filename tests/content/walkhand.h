#pragma once

#include <QtGlobal>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

/// What a hand that selects, moves and checks should have brought about: items by number, in the
/// plainest terms, knowing no view and no index.
class WalkHand
{
public:
    using Id = qint64;
    enum : Id { Nothing = -1 };

    std::vector<Id> order; ///< as shown; the dead keep their places until the next results
    std::set<Id> dead;
    std::set<Id> selected;
    std::set<Id> settled; ///< of them, what the next range leaves alone
    bool rangeRunning = false;
    std::set<Id> beforeBand;
    Id current = Nothing;
    Id anchor = Nothing;
    std::map<Id, int> checks;

    bool isAlive(Id id) const { return id != Nothing && dead.count(id) == 0; }
    int rowOf(Id id) const
    {
        const auto found = std::find(order.begin(), order.end(), id);
        return found == order.end() ? -1 : int(found - order.begin());
    }
    std::set<Id> aliveSelected() const
    {
        std::set<Id> alive;
        for (Id id : selected) {
            if (isAlive(id))
                alive.insert(id);
        }
        return alive;
    }

    void go(Id id) { current = anchor = id; }
    void only(const std::set<Id> &ids)
    {
        selected = ids;
        settled.clear();
        rangeRunning = false;
    }
    /// A press on nothing ends a range, no more.
    void settle()
    {
        settled = selected;
        rangeRunning = false;
        anchor = current;
    }
    void flip(Id id)
    {
        settled = selected;
        rangeRunning = false;
        if (selected.erase(id) == 0)
            selected.insert(id);
    }
    void rangeTo(Id id)
    {
        const auto ends = std::minmax({rowOf(anchor), rowOf(id)});
        selected = settled;
        for (int row = ends.first; row <= ends.second; ++row)
            selected.insert(order[size_t(row)]);
        rangeRunning = true;
        current = id;
    }
    void all() { only({order.begin(), order.end()}); }

    /// The results of now, in the order of now.
    void results(const std::vector<Id> &shown)
    {
        const int row = rowOf(current);
        order = shown;
        const std::set<Id> listed(shown.begin(), shown.end());
        keepOnly(&selected, listed);
        keepOnly(&settled, listed);
        keepOnly(&beforeBand, listed);
        if (listed.count(current) == 0)
            current = order[size_t(std::min(std::max(row, 0), int(order.size()) - 1))];
        if (listed.count(anchor) == 0)
            anchor = current;
        dead.clear();
    }
    void sorted(const std::vector<Id> &shown)
    {
        order = shown;
        settled = rangeRunning ? std::set<Id>() : selected;
    }

    /// Whose checks a Space would change.
    std::vector<Id> targets() const
    {
        std::vector<Id> ids;
        for (Id id : selected) {
            if (isAlive(id))
                ids.push_back(id);
        }
        if (ids.empty() && isAlive(current))
            ids.push_back(current);
        return ids;
    }
    void toggleChecks(const std::vector<Id> &ids)
    {
        const bool allChecked = std::all_of(ids.begin(), ids.end(),
                                            [this](Id id) { return checks[id] == Qt::Checked; });
        for (Id id : ids)
            checks[id] = allChecked ? Qt::Unchecked : Qt::Checked;
    }
    void clickCheck(Id id) { checks[id] = checks[id] == Qt::Checked ? Qt::Unchecked : Qt::Checked; }
    void checkAll(int state)
    {
        for (Id id : order) {
            if (isAlive(id))
                checks[id] = state;
        }
    }

private:
    static void keepOnly(std::set<Id> *ids, const std::set<Id> &listed)
    {
        for (auto it = ids->begin(); it != ids->end();)
            it = listed.count(*it) ? std::next(it) : ids->erase(it);
    }
};
