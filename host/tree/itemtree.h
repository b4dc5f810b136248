#pragma once

#include "host/tree/checkhistory.h"
#include "host/tree/itemfilter.h"
#include "host/tree/recordstore.h"

#include <QHash>
#include <QSet>
#include <QVector>

/// The records of a scan as trees: by place (volumes, folders, files) and by kind. Items are added
/// while the scan runs; counts, sizes and check states of everything above follow at once.
///
/// Only what the filter lets through hangs in the trees and is counted there. A hidden file keeps
/// its check. GUI thread.
class ItemTree
{
public:
    ItemTree();
    ~ItemTree();

    /// Forgets everything. Nobody may use a record from here on.
    void clear();
    void setVolumes(const QVector<VolumeInfo> &volumes);
    /// Parents come before their children; an item whose parent is unknown lands in its volume.
    void add(const QVector<FoundItem> &batch);
    /// Builds the trees anew with what \a filter lets through.
    void setFilter(const ItemFilter &filter);

    /// The root by place: the only volume, or a root over several. Null before the first scan.
    ItemRecord *placeRoot() const { return m_placeRoot; }
    const QVector<ItemRecord *> &volumeRoots() const { return m_volumes; }
    bool hasSeveralVolumes() const { return m_volumes.size() > 1; }
    /// The root of all files, and those of the kinds, in the order of ItemKinds::All.
    ItemRecord *allFiles() const { return m_allFiles; }
    const QVector<ItemRecord *> &kindRoots() const { return m_kinds; }
    /// Null when \a rootType is that of no kind.
    ItemRecord *kindRoot(int rootType) const;
    const RecordStore &records() const { return m_records; }

    /// Checks or unchecks what is shown at and below \a record; all states above follow.
    void setChecked(ItemRecord *record, bool checked);
    /// The same for each of \a items.
    void setChecked(const QVector<ItemRecord *> &items, bool checked);
    /// Every shown file that is deleted.
    void checkDeleted();
    /// Turns round every shown file and empty folder.
    void invertChecks();
    /// Unchecks everything, hidden files too.
    void uncheckAll();

    /// What is changed between the two is one step of the history. The step, when it changed more
    /// than one file; null otherwise.
    void beginStep() { m_history.begin(); }
    const CheckStep *endStep() { return m_history.end(); }
    /// The step that was undone or done again; null when there is none. Files that were checked by
    /// hand in the meantime keep their checks, unless they belong to the step.
    const CheckStep *undo();
    const CheckStep *redo();
    bool canUndo() const { return m_history.lastDone(); }
    bool canRedo() const { return m_history.lastUndone(); }

    /// Puts right what somebody else has written into the record's `checkState`.
    static void writeCheckState(ItemRecord *record);

    int checkedFiles() const { return m_checkedFiles; }
    qint64 checkedBytes() const { return m_checkedBytes; }
    /// Checked files that the filter hides.
    int hiddenCheckedFiles() const;
    /// Checked files, hidden ones too, and the checked folders with nothing in them.
    QVector<const ItemRecord *> checkedItems() const;

    /// Grows whenever what a root shows may have changed.
    quint64 revision() const { return m_revision; }

private:
    class Tally;

    ItemRecord *createRoot(const QString &name, int rootType);
    ItemRecord *createRecord(const FoundItem &item);
    void resetContainer(ItemRecord *record);
    void show(ItemRecord *record);
    void link(ItemRecord *record);
    void listByKind(ItemRecord *file);
    void takeAlong(ItemRecord *newcomer);
    void setNewcomers(ItemRecord *container, bool taken);
    void setLeafChecked(ItemRecord *leaf, bool checked);
    bool mark(ItemRecord *leaf, bool checked);
    void markBelow(ItemRecord *record, bool checked);
    void apply(const IndexSet &checked, const IndexSet &unchecked, const IndexSet &flagged,
               const IndexSet &unflagged);
    void settleContainers();
    void rebuild();

    RecordStore m_records;
    QHash<qint64, ItemRecord *> m_folders; // by fileId
    QVector<ItemRecord *> m_folderList;    // all of them, whatever their ids
    QSet<QString> m_texts;                 // paths and extensions, one copy each
    QVector<ItemRecord *> m_volumes;
    QVector<ItemRecord *> m_kinds;
    ItemRecord *m_placeRoot = nullptr;
    ItemRecord *m_allFiles = nullptr;
    ItemFilter m_filter;
    CheckHistory m_history;
    int m_checkedFiles = 0;
    qint64 m_checkedBytes = 0;
    quint64 m_revision = 0;
};
