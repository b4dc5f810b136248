#pragma once

#include "host/tree/checkhistory.h"
#include "host/tree/itemfilter.h"
#include "host/tree/recordstore.h"

#include <QHash>
#include <QSet>
#include <QVector>

#include <limits>

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

    /// Forgets everything. Nobody may use a record from here on; the caller has them destroyed.
    RecordStore::Remains clear();
    void setVolumes(const QVector<VolumeInfo> &volumes);
    /// Parents come before their children; an item whose parent is unknown lands in its volume.
    void add(const QVector<FoundItem> &batch);
    /// Begins to build the trees anew with what \a filter lets through; an earlier beginning is
    /// forgotten. Until the end the trees hold what has been let through so far, in the order that
    /// they will have then.
    void beginFilter(const ItemFilter &filter);
    /// Goes on with some \a records; true when that were the last.
    bool filterMore(int records);
    bool isFiltering() const { return m_filtered != Everything; }
    /// The records from this one on are still to be filtered.
    int filteredEnd() const { return qMin(m_filtered, m_records.size()); }
    /// The filter has let it through.
    bool isShown(const ItemRecord &record) const
    {
        return record.isShown && (record.isRoot || record.index < m_filtered);
    }

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

    /// Checks or unchecks what is shown at and below \a record; all states above follow. While the
    /// filter is at work, files only. More changes at once, and those of what isBig(), are for a
    /// CheckSweep.
    void setChecked(ItemRecord *record, bool checked);
    /// So much is below it that following each change up to the roots would be more work.
    bool isBig(const ItemRecord &record) const;

    /// What is changed between the two is one step of the history. The step, when it changed more
    /// than one file; null otherwise.
    void beginStep() { m_history.begin(); }
    const CheckStep *endStep() { return m_history.end(); }
    bool canUndo() const { return m_history.lastDone(); }
    bool canRedo() const { return m_history.lastUndone(); }

    /// Puts right what somebody else has written into the record's `checkState`.
    static void writeCheckState(ItemRecord *record);

    int checkedFiles() const { return m_checkedFiles; }
    qint64 checkedBytes() const { return m_checkedBytes; }
    /// Checked files that the filter hides.
    int hiddenCheckedFiles() const;
    /// A checked file, be it hidden, or a checked folder with nothing in it.
    bool isChosen(const ItemRecord &record) const;

    /// Grows whenever what a root shows may have changed.
    quint64 revision() const { return m_revision; }

private:
    friend class CheckSweep;
    class FilterRun;

    /// What comes to a folder.
    struct Growth
    {
        qint32 leaves = 0;
        qint32 checkedLeaves = 0;
        qint64 items = 0;
        qint64 bytes = 0;
    };
    static constexpr int Everything = std::numeric_limits<int>::max();

    ItemRecord *createRoot(const QString &name, int rootType);
    ItemRecord *createRecord(const FoundItem &item);
    void reset(ItemRecord *record);
    void resetRoots();
    void show(ItemRecord *record);
    void link(ItemRecord *record);
    void grow(ItemRecord *holder, Growth growth);
    void listByKind(ItemRecord *file);
    void takeAlong(ItemRecord *newcomer);
    void setNewcomers(ItemRecord *container, bool taken);
    void setLeafChecked(ItemRecord *leaf, bool checked);
    bool mark(ItemRecord *leaf, bool checked);
    void settleContainers();

    RecordStore m_records;
    QHash<qint64, ItemRecord *> m_folders; // by fileId
    QVector<ItemRecord *> m_folderList;    // all of them, whatever their ids
    QSet<QString> m_texts;                 // paths and extensions, one copy each
    QVector<ItemRecord *> m_volumes;
    QVector<ItemRecord *> m_kinds;
    ItemRecord *m_placeRoot = nullptr;
    ItemRecord *m_allFiles = nullptr;
    ItemFilter m_filter;
    int m_filtered = Everything;
    CheckHistory m_history;
    int m_checkedFiles = 0;
    qint64 m_checkedBytes = 0;
    quint64 m_revision = 0;
};
