#pragma once

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class CheckSweep;
class ItemSearch;
class ItemTree;
class SlicedWork;
class TreeItemData;
struct ItemRecord;

/// Changes of checks, by the user in the plug-in or in the host, as steps that can be undone. Those
/// of many files are made in slices, one after the other. GUI thread.
class CheckChanges : public QObject
{
    Q_OBJECT

public:
    enum class Bulk { CheckPhotos, CheckDeleted, CheckShown, Invert, UncheckAll };

    /// \a work is what else is done to the tree in slices, in its order.
    CheckChanges(ItemTree &tree, ItemSearch &search, SlicedWork &work, QObject *parent = nullptr);

    /// Changes many at once. \a shown: what is on screen when no search is.
    void change(Bulk what, ItemRecord *shown);
    /// Takes the latest change of more than one file back, or makes it again. False when there is
    /// none.
    bool undo();
    bool redo();
    /// What the plug-in tells; all that it tells in one go is one change.
    void take(TreeItemData *item, Qt::CheckState state);
    void takeFound(TreeItemData *item, Qt::CheckState state);

    /// Makes at once what is still being made.
    void settle();
    /// Forgets it: the records are about to go.
    void drop();

signals:
    void changed();
    /// More than one file.
    void bulkChecked(int checkedFiles, int uncheckedFiles);
    /// While it is true nothing is to be added to the tree.
    void busyChanged(bool busy);

private:
    using MakeSweep = std::function<std::unique_ptr<CheckSweep>()>;

    void begin();
    void perform(const MakeSweep &make);
    void replay(const MakeSweep &make);
    void endSoon();
    void end();
    MakeSweep sweepFound(Qt::CheckState state);
    void setBusy(bool busy);

    ItemTree &m_tree;
    ItemSearch &m_search;
    SlicedWork &m_work;
    QTimer m_goEnd;
    bool m_busy = false;
};
