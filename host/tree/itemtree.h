#pragma once

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
    const RecordStore &records() const { return m_records; }

    /// Checks or unchecks what is shown at and below \a record; all states above follow.
    void setChecked(ItemRecord *record, bool checked);
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
    ItemRecord *createRoot(const QString &name, int rootType);
    ItemRecord *createRecord(const FoundItem &item);
    void resetContainer(ItemRecord *record);
    void show(ItemRecord *record);
    void link(ItemRecord *record);
    void listByKind(ItemRecord *file);
    void setLeafChecked(ItemRecord *leaf, bool checked);
    void rebuild();

    RecordStore m_records;
    QHash<qint64, ItemRecord *> m_folders; // by fileId
    QSet<QString> m_texts;                 // paths and extensions, one copy each
    QVector<ItemRecord *> m_volumes;
    QVector<ItemRecord *> m_kinds;
    ItemRecord *m_placeRoot = nullptr;
    ItemRecord *m_allFiles = nullptr;
    ItemFilter m_filter;
    int m_checkedFiles = 0;
    qint64 m_checkedBytes = 0;
    quint64 m_revision = 0;
};
