#include "foundtree.h"
#include "host/tree/checksweep.h"
#include "host/tree/itemkinds.h"
#include "support/datarow.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr int MaxSteps = 32;

using Checks = QMap<qint64, bool>; // of files and empty folders, by id

FoundItem folder(qint64 id, qint64 parentId = -1)
{
    return item(id, parentId, QStringLiteral("folder %1").arg(id), -1);
}

ItemRecord *find(const ItemTree &tree, qint64 id)
{
    for (int i = 0; i < tree.records().size(); ++i) {
        ItemRecord *record = tree.records().at(i);
        if (!record->isRoot && record->fileId == id)
            return record;
    }
    return nullptr;
}

Checks checksOf(const ItemTree &tree)
{
    Checks checks;
    QSet<const TreeItemData *> filled;
    for (int i = 0; i < tree.records().size(); ++i)
        filled.insert(tree.records().at(i)->parent);
    for (int i = 0; i < tree.records().size(); ++i) {
        const ItemRecord *record = tree.records().at(i);
        if (!record->isRoot && !filled.contains(record))
            checks.insert(record->fileId, record->isChecked);
    }
    return checks;
}

struct Count
{
    int leaves = 0;
    int checked = 0;
    qint64 items = 0;
    qint64 bytes = 0;
};

/// Walks everything below; an empty string when all that is told on the way is what it should be.
QString faultBelow(const ItemRecord *record, Count *count)
{
    Count own;
    for (const auto *list : {&record->childFolders, &record->childFiles}) {
        for (const TreeItemData *child : *list) {
            const QString fault = faultBelow(static_cast<const ItemRecord *>(child), &own);
            if (!fault.isEmpty())
                return fault;
            ++own.items;
        }
    }
    if (own.leaves == 0 && !record->isRoot) {
        own.leaves = 1;
        own.checked = record->isChecked ? 1 : 0;
    }
    if (!record->isFolder())
        own.bytes = record->fileSize;
    count->leaves += own.leaves;
    count->checked += own.checked;
    count->items += own.items;
    count->bytes += own.bytes;
    const int state = own.checked == 0 ? Qt::Unchecked
        : own.checked == own.leaves    ? Qt::Checked
                                       : Qt::PartiallyChecked;
    if (record->checkState != state)
        return QStringLiteral("%1 says %2 instead of %3")
            .arg(record->name)
            .arg(record->checkState)
            .arg(state);
    if (record->itemCount != own.items || record->size() != own.bytes)
        return record->name + QStringLiteral(" has another count or size");
    if (record->checksNewcomers && own.checked < own.leaves)
        return record->name + QStringLiteral(" takes newcomers along but is not wholly checked");
    return {};
}

QString faultOf(const ItemTree &tree, const ItemFilter &filter = {})
{
    Count byPlace;
    Count byKind;
    Count all;
    QString fault = faultBelow(tree.placeRoot(), &byPlace) + faultBelow(tree.allFiles(), &all);
    for (const ItemRecord *root : tree.kindRoots())
        fault += faultBelow(root, &byKind);
    int files = 0;
    qint64 bytes = 0;
    Count shown;
    for (int i = 0; i < tree.records().size(); ++i) {
        const ItemRecord *record = tree.records().at(i);
        if (!record->isFolder() && record->isChecked) {
            ++files;
            bytes += record->fileSize;
        }
        if (record->isRoot)
            continue;
        const bool expected = record->isFolder() ? !filter.isActive() || record->itemCount > 0
                                                 : filter.accepts(*record);
        if (record->isShown != expected)
            fault += record->name + QStringLiteral(" is hidden or shown");
        shown.items += record->isShown ? 1 : 0;
        shown.leaves += record->isShown && !record->isFolder() ? 1 : 0;
    }
    if (tree.hasSeveralVolumes())
        shown.items += tree.volumeRoots().size();
    if (byPlace.items != shown.items || all.items != shown.leaves || byKind.items != shown.leaves)
        fault += QStringLiteral("not all are listed");
    if (files != tree.checkedFiles() || bytes != tree.checkedBytes())
        fault +=
            QStringLiteral("%1 files are checked, told are %2").arg(files).arg(tree.checkedFiles());
    return fault;
}

/// What is shown at and below \a record is checked, and nothing else.
void check(const ItemRecord *record, bool on, Checks *checks)
{
    for (const auto *list : {&record->childFolders, &record->childFiles}) {
        for (const TreeItemData *child : *list)
            check(static_cast<const ItemRecord *>(child), on, checks);
    }
    if (record->isShown && record->isLeaf)
        checks->insert(record->fileId, on);
}

bool finished(const std::unique_ptr<CheckSweep> &sweep)
{
    if (sweep)
        sweep->finish();
    return bool(sweep);
}

bool undo(ItemTree &tree)
{
    return finished(CheckSweep::undo(tree));
}

bool redo(ItemTree &tree)
{
    return finished(CheckSweep::redo(tree));
}

/// What a step changed, as seen from outside.
struct Change
{
    Checks before;
    Checks after;
};

Change differenceOf(const Checks &before, const Checks &after)
{
    Change change;
    for (auto check = after.begin(); check != after.end(); ++check) {
        if (before.value(check.key()) != check.value()) {
            change.before.insert(check.key(), before.value(check.key()));
            change.after.insert(check.key(), check.value());
        }
    }
    return change;
}

} // namespace

class TestCheckHistory : public QObject
{
    Q_OBJECT

private slots:
    void behavesLikeSnapshots_data();
    void behavesLikeSnapshots();
    void newcomersGoWithTheStepThatTookThem();
    void aStepChangesMoreThanOneFile();
    void backAndForthIsNoChange();
    void whatIsGoneIsForgotten();
    void setsOfIndexes();
};

void TestCheckHistory::behavesLikeSnapshots_data()
{
    addColumns<quint32, QStringList>({"seed", "roots"});
    for (quint32 seed = 1; seed <= 12; ++seed)
        QTest::addRow("seed %u", seed)
            << seed << QStringList(QStringList{"E:", "F:"}.mid(seed % 2));
}

void TestCheckHistory::behavesLikeSnapshots()
{
    QFETCH(quint32, seed);
    QFETCH(QStringList, roots);
    QRandomGenerator random(seed);
    const auto below = [&random](int end) { return int(random.bounded(end)); };
    ItemTree tree;
    tree.setVolumes(volumes(roots));
    ItemFilter filter;
    QVector<qint64> folders{-1};
    QVector<Change> done;
    QVector<Change> undone;
    QSet<qint64> takenAlong; // with which step they go is the business of another test
    const QStringList endings{"jpg", "mp4", "txt", "odd"};

    for (int turn = 1; turn <= 400; ++turn) {
        const Checks before = checksOf(tree);
        Checks expected = before;
        const int action = below(20);
        if (action < 6 || before.isEmpty()) {
            FoundItem found = item(turn, folders[below(folders.size())],
                                   QString("%1.%2").arg(turn).arg(endings[below(4)]), below(900));
            found.folder = below(4) == 0;
            found.deleted = below(3) == 0;
            found.volume = below(roots.size());
            if (found.folder)
                folders.append(found.id);
            tree.add({found});
            if (checksOf(tree).value(found.id))
                takenAlong.insert(found.id);
        } else if (action < 8) {
            FilterCondition condition;
            condition.mode = below(2) ? ItemFilter::DeletedOnly : ItemFilter::AnyState;
            if (below(3) == 0)
                condition.list1 = QStringList{"zenvo_photo", "zenvo_others"};
            if (below(3) == 0)
                condition.minSize = 300;
            filter = ItemFilter(condition);
            tree.beginFilter(filter);
            tree.filterMore(tree.records().size());
        } else if (action < 12) {
            const bool again = action == 11;
            QVector<Change> &from = again ? undone : done;
            QCOMPARE(again ? redo(tree) : undo(tree), !from.isEmpty());
            if (!from.isEmpty()) {
                const Change change = from.takeLast();
                (again ? done : undone).append(change);
                const Checks &wanted = again ? change.after : change.before;
                for (auto check = wanted.begin(); check != wanted.end(); ++check)
                    expected.insert(check.key(), check.value());
                const Checks now = checksOf(tree);
                for (auto check = now.begin(); check != now.end(); ++check)
                    QVERIFY2(takenAlong.contains(check.key())
                                 || check.value() == expected.value(check.key()),
                             qPrintable(QString("turn %1, item %2").arg(turn).arg(check.key())));
            }
        } else {
            tree.beginStep();
            if (action == 12)
                CheckSweep::deleted(tree)->finish();
            else if (action == 13)
                CheckSweep::inverted(tree)->finish();
            else if (action == 14)
                CheckSweep::none(tree)->finish();
            else {
                ItemRecord *record = find(tree, (before.begin() + below(before.size())).key());
                if (action == 15)
                    record = below(2) ? tree.allFiles() : tree.placeRoot();
                else if (action == 16)
                    record = tree.kindRoots()[below(9)];
                else if (action == 17 && folders.size() > 1)
                    record = find(tree, folders[1 + below(folders.size() - 1)]);
                const bool on = below(2);
                check(record, on, &expected);
                tree.setChecked(record, on);
                QCOMPARE(checksOf(tree), expected);
            }
            if (tree.endStep()) {
                done.append(differenceOf(before, checksOf(tree)));
                undone.clear();
                if (done.size() > MaxSteps)
                    done.removeFirst();
            }
        }
        const QString fault = faultOf(tree, filter);
        QVERIFY2(fault.isEmpty(), qPrintable(QString("turn %1: %2").arg(turn).arg(fault)));
    }
}

/// Everything is checked by accident while the scan runs: one key takes it all back.
void TestCheckHistory::newcomersGoWithTheStepThatTookThem()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({folder(1), item(2, 1, "a.jpg"), item(3, 1, "b.jpg"), item(4, -1, "c.txt"),
              item(5, -1, "d.txt")});
    tree.setChecked(find(tree, 5), true);

    tree.beginStep();
    tree.setChecked(tree.placeRoot(), true);
    QVERIFY(tree.endStep());
    tree.add({item(6, 1, "e.jpg"), folder(7, 1), item(8, 7, "f.jpg"), folder(9)});
    QCOMPARE(tree.checkedFiles(), 6);

    QVERIFY(undo(tree));
    QCOMPARE(tree.checkedFiles(), 1);
    QCOMPARE(faultOf(tree), QString());
    tree.add({item(10, 7, "g.jpg"), item(11, -1, "h.jpg")});
    QCOMPARE(tree.checkedFiles(), 1);

    QVERIFY(redo(tree));
    QCOMPARE(tree.checkedFiles(), 6); // those that came meanwhile were never part of it
    QCOMPARE(faultOf(tree), QString());
    tree.add({item(12, 9, "i.jpg")}); // into a folder that is wholly checked again
    QCOMPARE(tree.checkedFiles(), 7);
    QVERIFY(undo(tree));
    QCOMPARE(tree.checkedFiles(), 1);
    QCOMPARE(faultOf(tree), QString());
}

void TestCheckHistory::aStepChangesMoreThanOneFile()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({folder(1), item(2, 1, "a.jpg"), folder(3), item(4, 3, "b.jpg"), item(5, 3, "c.jpg")});
    const auto step = [&tree](qint64 id, bool checked) {
        tree.beginStep();
        tree.setChecked(find(tree, id), checked);
        return tree.endStep();
    };
    QVERIFY(!step(1, true)); // one file
    QVERIFY(step(3, true));
    QVERIFY(!step(3, true)); // none
    QVERIFY(undo(tree));
    QVERIFY(!step(5, true));
    QVERIFY(tree.canRedo()); // a single check does not end what can be redone
    QVERIFY(step(3, true) == nullptr);
    QVERIFY(redo(tree));
    QVERIFY(undo(tree));
    QCOMPARE(tree.checkedFiles(), 1);
    QVERIFY(!undo(tree));
}

void TestCheckHistory::backAndForthIsNoChange()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({item(1, -1, "a.jpg"), item(2, -1, "b.jpg"), item(3, -1, "c.jpg")});
    tree.setChecked(find(tree, 1), true);
    tree.beginStep();
    CheckSweep::inverted(tree)->finish();
    CheckSweep::inverted(tree)->finish();
    tree.setChecked(tree.allFiles(), true);
    tree.setChecked(find(tree, 2), false);
    QVERIFY(!tree.endStep()); // of three, only the third is another now
}

void TestCheckHistory::whatIsGoneIsForgotten()
{
    ItemTree tree;
    tree.setVolumes(volumes({"card"}));
    tree.add({item(1, -1, "a.jpg"), item(2, -1, "b.jpg")});
    tree.beginStep();
    tree.setChecked(tree.allFiles(), true);
    QVERIFY(tree.endStep());
    tree.beginStep();
    tree.clear();
    QVERIFY(!undo(tree));
    tree.setVolumes(volumes({"card"}));
    tree.add({item(1, -1, "a.jpg")});
    QVERIFY(!undo(tree));
    QCOMPARE(faultOf(tree), QString());
}

void TestCheckHistory::setsOfIndexes()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 20; ++round) {
        IndexSet set;
        QSet<int> plain;
        const int end = 1 << (round % 12 + 1);
        for (int i = 0; i < 500; ++i) {
            const int index = 1000 + int(random.bounded(end));
            if (random.bounded(3) == 0) {
                set.remove(index);
                plain.remove(index);
            } else {
                set.insert(index);
                plain.insert(index);
            }
            if (i % 100 == 99)
                set.squeeze();
        }
        QVector<int> visited;
        for (int index = set.next(0); index >= 0; index = set.next(index + 1))
            visited.append(index);
        QVector<int> wanted(plain.begin(), plain.end());
        std::sort(wanted.begin(), wanted.end());
        QCOMPARE(visited, wanted);
        QVERIFY(!set.contains(0) && !set.contains(100000));
    }
}

QTEST_GUILESS_MAIN(TestCheckHistory)
#include "tst_check_history.moc"
