#include "host/scan/filecategory.h"
#include "host/tree/checksweep.h"
#include "host/tree/itemkinds.h"
#include "host/tree/itemsearch.h"
#include "host/tree/itemtree.h"
#include "host/tree/slicedwork.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

namespace {

FoundItem item(qint64 id, qint64 parentId, const QString &path, const QString &name,
               qint64 size = 0)
{
    FoundItem found;
    found.id = id;
    found.parentId = parentId;
    found.path = path;
    found.name = name;
    found.size = size;
    found.folder = size < 0;
    found.size = qMax<qint64>(size, 0);
    return found;
}

VolumeInfo volume(const QString &root)
{
    VolumeInfo info;
    info.root = root;
    return info;
}

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

/// The same rules, told by walking everything each time.
class PlainModel
{
public:
    explicit PlainModel(const ItemTree &tree)
        : m_tree(tree)
    {
    }

    void add(const FoundItem &found)
    {
        m_items.insert(found.id, found);
        m_children[found.parentId].append(found.id);
    }
    void check(qint64 id, bool on)
    {
        const FoundItem found = m_items.value(id);
        if (!found.folder || children(id).isEmpty()) {
            if (isShown(id) && on)
                m_checked.insert(id);
            else if (isShown(id))
                m_checked.remove(id);
            return;
        }
        const auto inside = children(id);
        for (qint64 child : inside)
            check(child, on);
    }
    void setFilter(const ItemFilter &filter) { m_filter = filter; }

    int state(qint64 id) const
    {
        int leaves = 0;
        int checked = 0;
        count(id, &leaves, &checked);
        return checked == 0     ? Qt::Unchecked
            : checked == leaves ? Qt::Checked
                                : Qt::PartiallyChecked;
    }
    qint64 below(qint64 id) const
    {
        qint64 sum = 0;
        const auto inside = children(id);
        for (qint64 child : inside)
            sum += 1 + below(child);
        return sum;
    }
    qint64 bytes(qint64 id) const
    {
        if (!m_items.value(id).folder && id >= 0)
            return m_items.value(id).size;
        qint64 sum = 0;
        const auto inside = children(id);
        for (qint64 child : inside)
            sum += bytes(child);
        return sum;
    }
    int checkedFiles() const
    {
        int files = 0;
        for (qint64 id : m_checked)
            files += m_items.value(id).folder ? 0 : 1;
        return files;
    }
    QVector<qint64> children(qint64 id) const
    {
        QVector<qint64> shown;
        for (qint64 child : m_children.value(id)) {
            if (isShown(child))
                shown.append(child);
        }
        return shown;
    }
    bool isShown(qint64 id) const
    {
        const FoundItem found = m_items.value(id);
        if (!m_filter.isActive())
            return true;
        if (!found.folder)
            return m_filter.accepts(*record(id));
        return !children(id).isEmpty();
    }
    const ItemRecord *record(qint64 id) const
    {
        for (int i = 0; i < m_tree.records().size(); ++i) {
            if (m_tree.records().at(i)->fileId == id)
                return m_tree.records().at(i);
        }
        return nullptr;
    }
    QList<qint64> ids() const { return m_items.keys(); }
    bool isFolder(qint64 id) const { return m_items.value(id).folder; }
    void forget(qint64 folder) { m_checked.remove(folder); }

private:
    void count(qint64 id, int *leaves, int *checked) const
    {
        const QVector<qint64> below = children(id);
        if (id >= 0 && below.isEmpty()) {
            ++*leaves;
            *checked += m_checked.contains(id) ? 1 : 0;
        }
        for (qint64 child : below)
            count(child, leaves, checked);
    }

    const ItemTree &m_tree;
    QMap<qint64, FoundItem> m_items;
    QHash<qint64, QVector<qint64>> m_children;
    QSet<qint64> m_checked;
    ItemFilter m_filter;
};

} // namespace

class TestTreeChecks : public QObject
{
    Q_OBJECT

private slots:
    void recordsAreFilled();
    void behavesLikeThePlainModel_data();
    void behavesLikeThePlainModel();
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
    tree.setVolumes({volume("E:"), volume("F:")});
    FoundItem file = item(12, 11, "DCIM", "IMG_1.JPG", 700);
    file.deleted = true;
    file.volume = 1;
    file.modifiedTime = 1700000000;
    FoundItem folder = item(11, -1, QString(), "DCIM", -1);
    folder.volume = 1;
    FoundItem lost = item(13, 999, "gone", "x", 1);
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

void TestTreeChecks::behavesLikeThePlainModel_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed : {1u, 7u, 42u, 1977u, 2026u})
        QTest::addRow("seed %u", seed) << seed;
}

void TestTreeChecks::behavesLikeThePlainModel()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const auto below = [&random](int end) { return int(random.bounded(end)); };
    ItemTree tree;
    tree.setVolumes({volume("card")});
    PlainModel model(tree);
    QVector<FoundItem> folders;
    const QStringList endings{"jpg", "mp4", "txt", "zip", "odd"};

    for (qint64 id = 1; id <= 400; ++id) {
        const int action = below(10);
        if (action < 6) {
            const bool atRoot = folders.isEmpty() || below(6) == 0;
            const FoundItem parent = atRoot ? FoundItem() : folders[below(folders.size())];
            FoundItem found = item(id, parent.id, atRoot ? QString() : parent.fullPath(),
                                   QString("%1.%2").arg(id).arg(endings[below(5)]),
                                   below(3) ? below(1000) : -1);
            found.deleted = below(3) == 0;
            // whatever was checked as a whole takes newcomers with it, which has a test of its own
            const ItemRecord *holder = atRoot ? tree.placeRoot() : model.record(parent.id);
            bool takesAlong = false;
            for (const ItemRecord *above = holder; above; above = above->folder())
                takesAlong = takesAlong || above->checkState == Qt::Checked;
            if (takesAlong || tree.allFiles()->checkState == Qt::Checked
                || std::any_of(tree.kindRoots().begin(), tree.kindRoots().end(),
                               [](auto *root) { return root->checkState == Qt::Checked; }))
                continue;
            if (found.folder)
                folders.append(found);
            model.add(found);
            tree.add({found});
        } else if (action < 9) {
            const QList<qint64> ids = model.ids();
            if (ids.isEmpty())
                continue;
            const qint64 chosen = ids[below(ids.size())];
            const bool on = below(2);
            model.check(chosen, on);
            tree.setChecked(const_cast<ItemRecord *>(model.record(chosen)), on);
        } else {
            FilterCondition condition;
            if (below(2))
                condition.mode = ItemFilter::DeletedOnly;
            if (below(2))
                condition.list1 = QStringList{"zenvo_photo", "zenvo_others"};
            if (below(3) == 0)
                condition.minSize = 300;
            model.setFilter(ItemFilter(condition));
            tree.beginFilter(ItemFilter(condition));
            while (!tree.filterMore(1 + below(40))) { }
        }

        QCOMPARE(tree.checkedFiles(), model.checkedFiles());
        QCOMPARE(tree.placeRoot()->checkState, model.state(-1));
        QCOMPARE(tree.placeRoot()->itemCount, model.below(-1));
        QCOMPARE(tree.placeRoot()->folderSize, model.bytes(-1));
        if (id % 10 != 0)
            continue;
        const auto ids = model.ids();
        for (qint64 shown : ids) {
            if (!model.isShown(shown))
                continue;
            const ItemRecord *record = model.record(shown);
            QCOMPARE(record->checkState, model.state(shown));
            QCOMPARE(record->childFolders.size() + record->childFiles.size(),
                     model.children(shown).size());
            if (record->isFolder())
                QCOMPARE(record->folderSize, model.bytes(shown));
        }
    }
}

void TestTreeChecks::newcomersFollowOnlyWhatWasCheckedAsAWhole()
{
    ItemTree tree;
    tree.setVolumes({volume("card")});
    tree.add({item(1, -1, "", "whole", -1), item(2, 1, "whole", "a.jpg", 5),
              item(3, -1, "", "single", -1), item(4, 3, "single", "b.jpg", 5)});
    ItemRecord *whole = static_cast<ItemRecord *>(tree.placeRoot()->childFolders[0]);
    ItemRecord *single = static_cast<ItemRecord *>(tree.placeRoot()->childFolders[1]);
    tree.setChecked(whole, true);
    tree.setChecked(static_cast<ItemRecord *>(single->childFiles[0]), true);
    QCOMPARE(single->checkState, int(Qt::Checked));

    tree.add({item(5, 1, "whole", "c.mp4", 5), item(6, 3, "single", "d.mp4", 5)});
    QCOMPARE(whole->checkState, int(Qt::Checked));
    QCOMPARE(single->checkState, int(Qt::PartiallyChecked));
    QCOMPARE(tree.checkedFiles(), 3);
    QCOMPARE(tree.checkedBytes(), 15);

    tree.setChecked(static_cast<ItemRecord *>(whole->childFiles[0]), false);
    tree.add({item(7, 1, "whole", "e.mp4", 5)});
    QCOMPARE(tree.checkedFiles(), 2);

    tree.setChecked(tree.allFiles(), true);
    QCOMPARE(tree.checkedFiles(), 5);
    tree.add({item(8, -1, "", "f.mp4", 5)});
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
    tree.setVolumes({volume("card")});
    tree.add({item(1, -1, "", "a.jpg", 5)});
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
    tree.setVolumes({volume("card")});
    ItemSearch search(tree);
    QSignalSpy progressed(&search, &ItemSearch::progressed);
    tree.add({item(1, -1, "", "Beach", -1), item(2, 1, "Beach", "BEACH 1.jpg", 5),
              item(3, 1, "Beach", "hill.jpg", 5)});
    search.start("beach", ItemSearch::By::Name);
    QTRY_VERIFY(search.isComplete());
    QCOMPARE(search.count(), 2);
    search.updateCheckState();
    QCOMPARE(search.root()->checkState, int(Qt::Unchecked));

    tree.setChecked(tree.records().find(search.root()->childFiles.first()), true);
    search.updateCheckState();
    QCOMPARE(search.root()->checkState, int(Qt::PartiallyChecked));

    tree.add({item(4, 1, "Beach", "another beach.jpg", 5)});
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
    const QVector<VolumeInfo> volumes = QVector<VolumeInfo>{volume("E:"), volume("F:")}.mid(
        0, 1 + int(seed % 2));
    pieces.setVolumes(volumes);
    whole.setVolumes(volumes);
    QVector<qint64> folders{-1};
    const QStringList endings{"jpg", "mp4", "txt", "odd"};
    qint64 lastId = 0;
    const auto addSome = [&] {
        QVector<FoundItem> batch;
        for (int i = below(30); i > 0; --i) {
            ++lastId;
            FoundItem found = item(lastId, folders[below(folders.size())], QString(),
                                   QString("%1.%2").arg(lastId).arg(endings[below(4)]),
                                   below(5) ? below(900) : -1);
            found.volume = below(volumes.size());
            found.deleted = below(3) == 0;
            if (found.folder)
                folders.append(found.id);
            batch.append(found);
            // a folder that seems to be empty has a check of its own, which ends when something in
            // it is seen, be it through a filter that another has cut short
            if (found.folder) {
                FoundItem seen = item(++lastId, found.id, QString(), "seen.jpg", 500);
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
    tree.setVolumes({volume("card")});
    for (int id = 1; id <= 3000; ++id)
        tree.add({item(id, -1, "", QString("%1.jpg").arg(id), 5)});
    QVector<QPointer<TreeItemData>> guards;
    for (int i = 0; i < tree.records().size(); ++i)
        guards.append(tree.records().at(i));
    TreeItemData *const first = guards.first();
    RecordStore::Remains remains = tree.clear();
    tree.setVolumes({volume("another")});
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
