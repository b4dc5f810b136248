#include "foundtree.h"
#include "host/scan/filecategory.h"
#include "host/tree/checksweep.h"
#include "host/tree/itemkinds.h"
#include "host/tree/itemsearch.h"
#include "host/tree/slicedwork.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

namespace {

QVector<qint32> placesOf(const QList<TreeItemData *> &items)
{
    QVector<qint32> places;
    for (const TreeItemData *item : items)
        places.append(static_cast<const ItemRecord *>(item)->index);
    return places;
}

/// The first thing in which two records of the same place differ, as far as anybody can see it.
QString differenceOf(const ItemRecord &one, const ItemRecord &other)
{
    if (one.isShown != other.isShown)
        return "shown";
    if (one.isChecked != other.isChecked || one.checksNewcomers != other.checksNewcomers)
        return "check";
    if (one.checkState != other.checkState || one.checkedLeaves != other.checkedLeaves
        || one.leaves != other.leaves || one.isLeaf != other.isLeaf)
        return "state";
    if (one.itemCount != other.itemCount || one.folderSize != other.folderSize)
        return "size";
    if (placesOf(one.childFiles) != placesOf(other.childFiles)
        || placesOf(one.childFolders) != placesOf(other.childFolders))
        return "children";
    return bool(one.kindRoot) != bool(other.kindRoot) ? "kind" : "";
}

} // namespace

class TestTreeChecks : public QObject
{
    Q_OBJECT

private slots:
    void recordsAreFilled();
    void newcomersFollowOnlyWhatWasCheckedAsAWhole();
    void foreignPointersAreNotOurs();
    void searchListsTheSameRecords();
    void piecesMakeTheSameTree_data();
    void piecesMakeTheSameTree();
    void recordsThatAreGone();
    void workGoesOnBetweenEvents();
};

void TestTreeChecks::recordsAreFilled()
{
    ItemTree tree;
    tree.setVolumes(volumes({"E:", "F:"}));
    FoundItem file = item(12, 11, "IMG_1.JPG", 700);
    file.path = "DCIM";
    file.deleted = true;
    file.volume = 1;
    file.modifiedTime = 1700000000;
    FoundItem folder = item(11, -1, "DCIM", -1);
    folder.volume = 1;
    FoundItem lost = item(13, 999, "x", 1);
    lost.volume = 7;
    tree.add({folder, file, lost});

    const ItemRecord *photo = static_cast<ItemRecord *>(
        tree.kindRoots().first()->childFiles.value(0));
    QVERIFY(photo);
    QCOMPARE(photo->path, QString("/DCIM"));
    QCOMPARE(photo->extension, QString("JPG"));
    QCOMPARE(photo->volumeRoot, QString("F:"));
    QCOMPARE(photo->fileCategory, int(PhotoCategory));
    QVERIFY(!photo->exists);
    QCOMPARE(photo->cardPath(false), QString("DCIM/IMG_1.JPG"));
    QCOMPARE(photo->cardPath(true), QString("F:/DCIM/IMG_1.JPG"));
    QCOMPARE(photo->parent->itemCount, 1);
    QCOMPARE(photo->parent->folderSize, 700);
    QCOMPARE(tree.placeRoot()->childFolders.size(), 2);
    QCOMPARE(tree.placeRoot()->itemCount, 5);
    const FoundItem back = photo->found();
    QCOMPARE(back.path, file.path);
    QCOMPARE(back.parentId, file.parentId);
    QCOMPARE(back.volume, 1);
    QVERIFY(back.deleted);
    // what names no known place lands in a volume instead of nowhere
    QCOMPARE(tree.volumeRoots().first()->childFiles.value(0)->name, QString("x"));
}

void TestTreeChecks::newcomersFollowOnlyWhatWasCheckedAsAWhole()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({item(1, -1, "whole", -1), item(2, 1, "a.jpg", 5), item(3, -1, "single", -1),
              item(4, 3, "b.jpg", 5)});
    ItemRecord *whole = static_cast<ItemRecord *>(tree.placeRoot()->childFolders[0]);
    ItemRecord *single = static_cast<ItemRecord *>(tree.placeRoot()->childFolders[1]);
    tree.setChecked(whole, true);
    tree.setChecked(static_cast<ItemRecord *>(single->childFiles[0]), true);
    QCOMPARE(single->checkState, int(Qt::Checked));

    tree.add({item(5, 1, "c.mp4", 5), item(6, 3, "d.mp4", 5)});
    QCOMPARE(whole->checkState, int(Qt::Checked));
    QCOMPARE(single->checkState, int(Qt::PartiallyChecked));
    QCOMPARE(tree.checkedFiles(), 3);
    QCOMPARE(tree.checkedBytes(), 15);

    tree.setChecked(static_cast<ItemRecord *>(whole->childFiles[0]), false);
    tree.add({item(7, 1, "e.mp4", 5)});
    QCOMPARE(tree.checkedFiles(), 2);

    tree.setChecked(tree.allFiles(), true);
    QCOMPARE(tree.checkedFiles(), 5);
    tree.add({item(8, -1, "f.mp4", 5)});
    QCOMPARE(tree.checkedFiles(), 6);
    QCOMPARE(tree.placeRoot()->checkState, int(Qt::Checked));

    FilterCondition onlyBig;
    onlyBig.minSize = 100;
    tree.beginFilter(ItemFilter(onlyBig));
    tree.filterMore(tree.records().size());
    QCOMPARE(tree.hiddenCheckedFiles(), 6);
    int chosen = 0;
    for (int i = 0; i < tree.records().size(); ++i)
        chosen += tree.isChosen(*tree.records().at(i)) ? 1 : 0;
    QCOMPARE(chosen, 6);
    QCOMPARE(tree.placeRoot()->itemCount, 0);
}

void TestTreeChecks::foreignPointersAreNotOurs()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({item(1, -1, "a.jpg", 5)});
    TreeItemData stranger;
    TreeItemData *ours = tree.placeRoot()->childFiles.first();
    QCOMPARE(tree.records().find(ours), ours);
    QVERIFY(!tree.records().find(&stranger));
    QVERIFY(!tree.records().find(nullptr));
    QVERIFY(!tree.records().find(reinterpret_cast<TreeItemData *>(quintptr(ours) + 8)));
    QVERIFY(!tree.records().find(ours + 100000));
    tree.clear();
    QVERIFY(!tree.records().find(ours));
}

void TestTreeChecks::searchListsTheSameRecords()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    ItemSearch search(tree);
    QSignalSpy progressed(&search, &ItemSearch::progressed);
    tree.add({item(1, -1, "Beach", -1), item(2, 1, "BEACH 1.jpg", 5), item(3, 1, "hill.jpg", 5)});
    search.start("beach", ItemSearch::By::Name);
    QTRY_VERIFY(search.isComplete());
    QCOMPARE(search.count(), 2);
    search.updateCheckState();
    QCOMPARE(search.root()->checkState, int(Qt::Unchecked));

    tree.setChecked(tree.records().find(search.root()->childFiles.first()), true);
    search.updateCheckState();
    QCOMPARE(search.root()->checkState, int(Qt::PartiallyChecked));

    tree.add({item(4, 1, "another beach.jpg", 5)});
    search.resume();
    QTRY_COMPARE(search.count(), 3);
    search.start("no such thing", ItemSearch::By::Name);
    progressed.clear();
    QVERIFY(progressed.wait());
    QCOMPARE(search.count(), 0);
}

/// A tree that is filtered, checked and added to in pieces of any size, and one where all is done
/// in one go: in the end they cannot be told apart.
void TestTreeChecks::piecesMakeTheSameTree_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestTreeChecks::piecesMakeTheSameTree()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const auto below = [&random](int end) { return int(random.bounded(end)); };
    ItemTree pieces;
    ItemTree whole;
    const QStringList roots = QStringList({"E:", "F:"}).mid(int(seed % 2));
    pieces.setVolumes(volumes(roots));
    whole.setVolumes(volumes(roots));
    QVector<qint64> folders{-1};
    const QStringList endings{"jpg", "mp4", "txt", "odd"};
    qint64 lastId = 0;
    const auto addSome = [&] {
        QVector<FoundItem> batch;
        for (int i = below(30); i > 0; --i) {
            ++lastId;
            FoundItem found = item(lastId, folders[below(folders.size())],
                                   QString("%1.%2").arg(lastId).arg(endings[below(4)]),
                                   below(5) ? below(900) : -1);
            found.volume = below(roots.size());
            found.deleted = below(3) == 0;
            if (found.folder)
                folders.append(found.id);
            batch.append(found);
            // a folder that seems to be empty has a check of its own, which ends when something in
            // it is seen, be it through a filter that another has cut short
            if (found.folder) {
                FoundItem seen = item(++lastId, found.id, "seen.jpg", 500);
                seen.volume = found.volume;
                seen.deleted = true;
                batch.append(seen);
            }
        }
        pieces.add(batch);
        whole.add(batch);
    };
    const auto someItems = [&](const ItemTree &tree, const QVector<int> &places) {
        QVector<ItemRecord *> items;
        for (int place : places)
            items.append(tree.records().at(place % tree.records().size()));
        return items;
    };

    for (int turn = 0; turn < 60; ++turn) {
        addSome();
        const int action = below(5);
        if (action < 2) {
            FilterCondition condition;
            condition.mode = below(3) ? ItemFilter::DeletedOnly : ItemFilter::AnyState;
            condition.minSize = below(3) ? FilterCondition::Unset : 300;
            pieces.beginFilter(ItemFilter(condition));
            whole.beginFilter(ItemFilter(condition));
            whole.filterMore(whole.records().size());
            // a later filter, another letter, may come before this one has ended
            while (below(8) != 0 && !pieces.filterMore(1 + below(40))) {
                if (below(4) == 0)
                    addSome();
                if (below(4) == 0) { // somebody checks a file that is on screen
                    const int place = below(pieces.records().size());
                    ItemRecord *file = whole.records().at(place);
                    if (!file->isFolder() && file->isShown && pieces.records().at(place)->isShown) {
                        pieces.setChecked(pieces.records().at(place), turn % 2);
                        whole.setChecked(file, turn % 2);
                    }
                }
            }
            if (below(2))
                continue;
        }
        while (!pieces.filterMore(1 + below(40))) { }
        QVector<int> places;
        for (int i = below(20); i > 0; --i)
            places.append(below(pieces.records().size()));
        const bool on = below(2);
        const auto change = [&](ItemTree &tree) -> std::unique_ptr<CheckSweep> {
            switch (action) {
            case 2:
                return CheckSweep::below(tree, someItems(tree, places), on);
            case 3:
                return on ? CheckSweep::deleted(tree) : CheckSweep::inverted(tree);
            default:
                return places.size() < 8 ? CheckSweep::redo(tree) : CheckSweep::undo(tree);
            }
        };
        if (action == 2 || action == 3) {
            pieces.beginStep();
            whole.beginStep();
        }
        const auto sweep = change(pieces);
        if (const auto atOnce = change(whole))
            atOnce->finish();
        while (sweep && !sweep->run(1 + below(50))) { }
        pieces.endStep();
        whole.endStep();

        QCOMPARE(pieces.checkedFiles(), whole.checkedFiles());
        QCOMPARE(pieces.checkedBytes(), whole.checkedBytes());
        QCOMPARE(pieces.hiddenCheckedFiles(), whole.hiddenCheckedFiles());
        for (int i = 0; i < whole.records().size(); ++i) {
            const QString difference = differenceOf(*pieces.records().at(i),
                                                    *whole.records().at(i));
            QVERIFY2(
                difference.isEmpty(),
                qPrintable(QString("turn %1, record %2: %3").arg(turn).arg(i).arg(difference)));
        }
    }
}

void TestTreeChecks::recordsThatAreGone()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    for (int id = 1; id <= 3000; ++id)
        tree.add({item(id, -1, QString("%1.jpg").arg(id), 5)});
    QVector<QPointer<TreeItemData>> guards;
    for (int i = 0; i < tree.records().size(); ++i)
        guards.append(tree.records().at(i));
    TreeItemData *const first = guards.first();
    RecordStore::Remains remains = tree.clear();
    tree.setVolumes(volumes({"another"}));
    QVERIFY(guards.first() && guards.last()); // still to be destroyed
    QVERIFY(!tree.records().find(first));
    while (!remains.destroyBlock()) { }
    for (const auto &guard : qAsConst(guards))
        QVERIFY(!guard);
}

void TestTreeChecks::workGoesOnBetweenEvents()
{
    SlicedWork work;
    QStringList done;
    const auto job = [&work, &done](const QString &name, int steps) {
        work.add(
            [left = steps]() mutable {
                QThread::msleep(1);
                return --left == 0;
            },
            [&done, name] { done.append(name); });
    };
    job("small", 1);
    QCOMPARE(done, QStringList{"small"});
    job("first", 30);
    job("second", 30);
    QVERIFY(!work.isIdle() && done.size() == 1);
    QTRY_COMPARE(done, (QStringList{"small", "first", "second"}));
    QVERIFY(work.isIdle());

    done.clear();
    work.add([] { return true; }, [&job] { job("from inside", 30); });
    QVERIFY(done.isEmpty());
    work.finish();
    QCOMPARE(done, QStringList{"from inside"});
    job("forgotten", 30);
    work.drop();
    QVERIFY(work.isIdle() && done.size() == 1);
}

QTEST_GUILESS_MAIN(TestTreeChecks)
#include "tst_tree_checks.moc"
