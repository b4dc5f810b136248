#include "host/tree/checksweep.h"

#include "host/tree/itemtree.h"

#include <limits>

namespace {

/// Everything below some records.
class SubtreeSweep : public CheckSweep
{
public:
    SubtreeSweep(ItemTree &tree, const QVector<ItemRecord *> &items, bool checked)
        : CheckSweep(tree)
        , m_open(items)
        , m_checked(checked)
    {
    }

protected:
    bool step(int records) override
    {
        for (; records > 0 && (m_folder || !m_open.isEmpty()); --records) {
            if (m_folder)
                takeNextFile();
            else
                open(m_open.takeLast());
        }
        return !m_folder && m_open.isEmpty();
    }

private:
    void open(ItemRecord *record)
    {
        if (!record->isShown)
            return;
        if (record->isFolder())
            setNewcomers(record, m_checked);
        if (record->isLeaf) {
            set(record, m_checked);
        } else {
            m_folder = record;
            m_nextFile = 0;
        }
    }

    void takeNextFile()
    {
        const QList<TreeItemData *> &files = m_folder->childFiles;
        if (m_nextFile < files.size()) {
            set(static_cast<ItemRecord *>(files[m_nextFile++]), m_checked);
            return;
        }
        for (TreeItemData *folder : qAsConst(m_folder->childFolders))
            m_open.append(static_cast<ItemRecord *>(folder));
        m_folder = nullptr;
    }

    QVector<ItemRecord *> m_open;
    ItemRecord *m_folder = nullptr; // the one whose files are gone through
    int m_nextFile = 0;
    const bool m_checked;
};

/// Everything there is, in the order of the store.
class StoreSweep : public CheckSweep
{
public:
    enum What { Deleted, Inverted, None };

    StoreSweep(ItemTree &tree, What what)
        : CheckSweep(tree)
        , m_what(what)
    {
    }

protected:
    bool step(int records) override
    {
        for (; records > 0 && m_next < recordCount(); --records)
            take(recordAt(m_next++));
        return m_next == recordCount();
    }

private:
    void take(ItemRecord *record)
    {
        switch (m_what) {
        case Deleted:
            if (record->isShown && !record->exists && !record->isFolder())
                set(record, true);
            break;
        case Inverted:
            if (record->isShown && record->isLeaf)
                set(record, !record->isChecked);
            break;
        case None:
            if (record->isLeaf)
                set(record, false);
            if (record->isFolder())
                setNewcomers(record, false);
            break;
        }
    }

    const What m_what;
    int m_next = 0;
};

/// What a step of the history says. Nothing of it is recorded: no step is open.
class ReplaySweep : public CheckSweep
{
public:
    struct Change
    {
        IndexSet on;
        IndexSet off;
    };

    ReplaySweep(ItemTree &tree, Change leaves, Change flags)
        : CheckSweep(tree)
        , m_leaves(std::move(leaves))
        , m_flags(std::move(flags))
    {
    }

protected:
    bool step(int records) override
    {
        const auto setLeaf = [this](int index, bool on) {
            ItemRecord *leaf = recordAt(index);
            if (leaf->isLeaf) // a folder that was empty then may have been filled since
                set(leaf, on);
        };
        const auto setFlag = [this](int index, bool on) { setNewcomers(recordAt(index), on); };
        return replay(m_leaves.on, OnLeaves, &records, [&](int i) { setLeaf(i, true); })
            && replay(m_leaves.off, OffLeaves, &records, [&](int i) { setLeaf(i, false); })
            && replay(m_flags.off, OffFlags, &records, [&](int i) { setFlag(i, false); })
            && replay(m_flags.on, OnFlags, &records, [&](int i) { setFlag(i, true); });
    }

private:
    enum Part { OnLeaves, OffLeaves, OffFlags, OnFlags, PartCount };

    /// True when the end of the set has been reached.
    template <typename Visit>
    bool replay(const IndexSet &set, Part part, int *records, Visit visit)
    {
        int &next = m_next[part];
        for (; *records > 0 && next >= 0; --*records) {
            next = set.next(next);
            if (next >= 0)
                visit(next++);
        }
        return next < 0;
    }

    const Change m_leaves;
    const Change m_flags;
    int m_next[PartCount] = {};
};

} // namespace

CheckSweep::CheckSweep(ItemTree &tree)
    : m_tree(tree)
{
}

CheckSweep::~CheckSweep() = default;

std::unique_ptr<CheckSweep> CheckSweep::below(ItemTree &tree, ItemRecord *record, bool checked)
{
    return below(tree, QVector<ItemRecord *>{record}, checked);
}

std::unique_ptr<CheckSweep> CheckSweep::below(ItemTree &tree, const QVector<ItemRecord *> &items,
                                              bool checked)
{
    return std::make_unique<SubtreeSweep>(tree, items, checked);
}

std::unique_ptr<CheckSweep> CheckSweep::deleted(ItemTree &tree)
{
    return std::make_unique<StoreSweep>(tree, StoreSweep::Deleted);
}

std::unique_ptr<CheckSweep> CheckSweep::inverted(ItemTree &tree)
{
    return std::make_unique<StoreSweep>(tree, StoreSweep::Inverted);
}

std::unique_ptr<CheckSweep> CheckSweep::none(ItemTree &tree)
{
    return std::make_unique<StoreSweep>(tree, StoreSweep::None);
}

std::unique_ptr<CheckSweep> CheckSweep::undo(ItemTree &tree)
{
    CheckHistory &history = tree.m_history;
    history.end();
    if (!history.lastDone())
        return nullptr;
    history.markUndone();
    const CheckStep &step = *history.lastUndone();
    return std::make_unique<ReplaySweep>(tree, ReplaySweep::Change{step.unchecked, step.checked},
                                         ReplaySweep::Change{step.unflagged, step.flagged});
}

std::unique_ptr<CheckSweep> CheckSweep::redo(ItemTree &tree)
{
    CheckHistory &history = tree.m_history;
    history.end();
    if (!history.lastUndone())
        return nullptr;
    history.markRedone();
    const CheckStep &step = *history.lastDone();
    return std::make_unique<ReplaySweep>(tree, ReplaySweep::Change{step.checked, step.unchecked},
                                         ReplaySweep::Change{step.flagged, step.unflagged});
}

bool CheckSweep::run(int records)
{
    const bool done = step(records);
    passOn();
    if (done)
        m_tree.settleContainers(); // also takes back the flags of what is not wholly checked
    return done;
}

void CheckSweep::finish()
{
    run(std::numeric_limits<int>::max());
}

ItemRecord *CheckSweep::recordAt(int index) const
{
    return m_tree.m_records.at(index);
}

int CheckSweep::recordCount() const
{
    return m_tree.m_records.size();
}

void CheckSweep::setNewcomers(ItemRecord *container, bool taken)
{
    m_tree.setNewcomers(container, taken);
}

/// What counts a leaf hears of a whole run of siblings at a time, since files of one folder mostly
/// follow each other.
void CheckSweep::set(ItemRecord *leaf, bool checked)
{
    if (!m_tree.mark(leaf, checked) || !leaf->isShown)
        return;
    if (leaf->folder() != m_folder) {
        passOn();
        m_folder = leaf->folder();
    }
    const int change = checked ? 1 : -1;
    m_change += change;
    if (leaf->kindRoot) {
        leaf->kindRoot->checkedLeaves += change;
        m_tree.m_allFiles->checkedLeaves += change;
    }
}

void CheckSweep::passOn()
{
    for (ItemRecord *folder = m_folder; folder && m_change != 0; folder = folder->folder())
        folder->checkedLeaves += m_change;
    m_change = 0;
}
