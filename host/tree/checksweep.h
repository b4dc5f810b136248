#pragma once

#include <QVector>

#include <memory>

class ItemTree;
struct ItemRecord;

/// A change of many checks that is made a piece at a time. Between two pieces all counts are right;
/// the states of what counts leaves, and whether it takes newcomers along, follow with the last
/// piece. Until then nothing is to be added to the tree, filtered or checked. GUI thread.
class CheckSweep
{
public:
    virtual ~CheckSweep();

    /// Checks or unchecks what is shown at and below \a record.
    static std::unique_ptr<CheckSweep> below(ItemTree &tree, ItemRecord *record, bool checked);
    /// The same for each of \a items.
    static std::unique_ptr<CheckSweep> below(ItemTree &tree, const QVector<ItemRecord *> &items,
                                             bool checked);
    /// Checks every shown file that is deleted.
    static std::unique_ptr<CheckSweep> deleted(ItemTree &tree);
    /// Turns round every shown file and empty folder.
    static std::unique_ptr<CheckSweep> inverted(ItemTree &tree);
    /// Unchecks everything, hidden files too.
    static std::unique_ptr<CheckSweep> none(ItemTree &tree);
    /// Takes the latest step of the history back, or makes it again; null when there is none. Files
    /// that were checked by hand in the meantime keep their checks, unless they belong to the step.
    static std::unique_ptr<CheckSweep> undo(ItemTree &tree);
    static std::unique_ptr<CheckSweep> redo(ItemTree &tree);

    /// Goes on with some \a records; true when that were the last.
    bool run(int records);
    void finish();

protected:
    explicit CheckSweep(ItemTree &tree);

    virtual bool step(int records) = 0;

    ItemRecord *recordAt(int index) const;
    int recordCount() const;
    void set(ItemRecord *leaf, bool checked);
    void setNewcomers(ItemRecord *container, bool taken);

private:
    void passOn();

    ItemTree &m_tree;
    ItemRecord *m_folder = nullptr;
    int m_change = 0; // of the leaves right in it
};
