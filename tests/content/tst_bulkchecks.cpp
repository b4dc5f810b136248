// Space on large selections, and what a host gets to read of them.
#include "content/checktoggle.h"
#include "content/sdcardcontentdatawidget.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scanitemrole.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/eventcounter.h"
#include "support/recordtree.h"

#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using Content = SDCardContentDataWidget;

namespace {

constexpr int Many = 3000;

} // namespace

class TestBulkChecks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void wholeTreeIsOneAnnouncement_data();
    void wholeTreeIsOneAnnouncement();
    void partIsAnnouncedItemByItem_data();
    void partIsAnnouncedItemByItem();
    void hostMayReplaceTheTreeWhenTold();
    void selectionIsReadBackByRows();
    void largeSelectionStaysThroughASort_data();
    void largeSelectionStaysThroughASort();
    void togetherIsLikeOneByOne();
    void everyLongSortIsSeen_data() { addRows<int>("mode", {{"grid", 0}, {"list", 2}}); }
    void everyLongSortIsSeen();

private:
    QAbstractItemView *view(int mode) { return viewOf(*widget, mode); }
    QAbstractItemModel *model() { return view(0)->model(); }
    void select(QAbstractItemView *in, int first, int last)
    {
        in->selectionModel()->select({model()->index(first, 0), model()->index(last, 0)},
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    int checkedCount() const
    {
        int count = 0;
        for (const TreeItemData *file : qAsConst(tree->root.childFiles))
            count += file->checkState == Qt::Checked ? 1 : 0;
        return count;
    }

    std::unique_ptr<RecordTree> tree;
    std::unique_ptr<Content> widget;
};

void TestBulkChecks::init()
{
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
    tree = std::make_unique<RecordTree>();
    tree->addFiles(Many);
    widget = std::make_unique<Content>(2);
    widget->resize(700, 500);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    widget->updateData(&tree->root, QString());
}

void TestBulkChecks::cleanup()
{
    widget.reset();
    tree.reset();
}

void TestBulkChecks::wholeTreeIsOneAnnouncement_data()
{
    addColumns<int, bool, int, int>({"mode", "searchMode", "checkedBefore", "state"});
    QTest::newRow("grid") << 0 << false << 0 << int(Qt::Checked);
    QTest::newRow("grid, some checked") << 0 << false << 7 << int(Qt::Checked);
    QTest::newRow("grid, all checked") << 0 << false << Many << int(Qt::Unchecked);
    QTest::newRow("list") << 2 << false << 0 << int(Qt::Checked);
    QTest::newRow("results of a search") << 0 << true << 0 << int(Qt::Checked);
}

void TestBulkChecks::wholeTreeIsOneAnnouncement()
{
    QFETCH(int, mode);
    QFETCH(bool, searchMode);
    QFETCH(int, checkedBefore);
    QFETCH(int, state);
    widget->setViewMode(mode);
    widget->setSearchMode(searchMode);
    for (int i = 0; i < checkedBefore; ++i)
        tree->root.childFiles.at(i)->checkState = Qt::Checked;
    QSignalSpy items(widget.get(), &Content::signalItemDataCheck);
    QSignalSpy search(widget.get(), &Content::signalSearchSelectAllChecked);
    QSignalSpy changed(model(), &QAbstractItemModel::dataChanged);
    QTest::keyClick(view(mode), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(view(mode), Qt::Key_Space);

    QCOMPARE(checkedCount(), state == Qt::Checked ? Many : 0);
    QCOMPARE(tree->root.checkState, state);
    QCOMPARE(items.count(), searchMode ? 0 : 1);
    QCOMPARE(search.count(), searchMode ? 1 : 0);
    if (!searchMode)
        QCOMPARE(items.first().first().value<TreeItemData *>(), &tree->root);
    QCOMPARE(changed.count(), 1);
    const auto *button = widget->findChild<QPushButton *>(QStringLiteral("allCheckButton"));
    QCOMPARE(button->property("checkstate").toInt(), state);
}

void TestBulkChecks::partIsAnnouncedItemByItem_data()
{
    addColumns<bool, int>({"whole", "last"});
    QTest::newRow("all but one") << false << Many - 2;
    // select-all would also mean what is still to come
    QTest::newRow("all of what has been delivered") << true << Many - 1;
}

void TestBulkChecks::partIsAnnouncedItemByItem()
{
    QFETCH(bool, whole);
    QFETCH(int, last);
    if (whole)
        tree->root.itemCount = 2 * Many;
    TreeItemData *empty = tree->addFolder(QStringLiteral("EMPTY"));
    widget->updateData(&tree->root, QString());
    const int files = last + 1;
    select(view(0), 0, last + 1); // the folder comes first
    QSignalSpy items(widget.get(), &Content::signalItemDataCheck);
    QSignalSpy changed(model(), &QAbstractItemModel::dataChanged);
    QTest::keyClick(view(0), Qt::Key_Space);

    QCOMPARE(items.count(), files);
    QCOMPARE(items.at(5).first().value<TreeItemData *>(), tree->root.childFiles.at(5));
    QCOMPARE(checkedCount(), files);
    QCOMPARE(empty->checkState, int(Qt::Unchecked));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(1).toModelIndex().row(), last + 1);
}

void TestBulkChecks::hostMayReplaceTheTreeWhenTold()
{
    RecordTree other;
    other.addFiles(5);
    other.root.secondaryId = 99;
    int told = 0;
    connect(widget.get(), &Content::signalItemDataCheck, this,
            [this, count = &told, next = &other.root] {
                if (++*count == 10) {
                    widget->updateData(next, QString());
                    tree->clear();
                }
            });
    select(view(0), 0, Many - 2);
    QTest::keyClick(view(0), Qt::Key_Space);
    QCOMPARE(told, 10); // the rest has died
    QCOMPARE(model()->rowCount(), 5);
    disconnect(widget.get(), &Content::signalItemDataCheck, this, nullptr);
}

void TestBulkChecks::selectionIsReadBackByRows()
{
    const QList<TreeItemData *> files = tree->root.childFiles;
    select(view(0), 2000, 2001);
    select(view(0), 10, 12);
    const QList<TreeItemData *> expected = {files.at(10), files.at(11), files.at(12),
                                            files.at(2000), files.at(2001)};
    QCOMPARE(widget->selectedItems(), expected);
    // one item in the view at most: then the cards of the last multi-selection count
    view(0)->selectionModel()->select(model()->index(5, 0), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(widget->selectedItems(), expected);
    view(0)->selectAll();
    QCOMPARE(widget->selectedItems(), files);
}

void TestBulkChecks::largeSelectionStaysThroughASort_data()
{
    addColumns<int, int>({"mode", "first"});
    QTest::newRow("grid, some") << 0 << 700;
    QTest::newRow("grid, all") << 0 << 0;
    QTest::newRow("list, some") << 2 << 700;
}

void TestBulkChecks::largeSelectionStaysThroughASort()
{
    QFETCH(int, mode);
    QFETCH(int, first);
    widget->setViewMode(mode);
    for (int i = 0; i < Many; ++i)
        tree->root.childFiles.at(i)->fileSize = i * 7919 % Many; // every row goes elsewhere
    const TreeItemData *current = tree->root.childFiles.at(first + 3);
    view(mode)->setCurrentIndex(model()->index(first + 3, 0));
    select(view(mode), first, Many - 1);
    QList<TreeItemData *> expected = tree->root.childFiles.mid(first);
    QSignalSpy changed(view(mode)->selectionModel(), &QItemSelectionModel::selectionChanged);
    emit widget->findChild<HeaderView *>()->signalSortClicked(SizeDescending);

    QCOMPARE(view(mode)->currentIndex().internalPointer(), current);
    QVERIFY(model()->index(0, 0).data(SizeRole).toInt() > Many - 2);
    QCOMPARE(changed.count(), 0);
    std::sort(expected.begin(), expected.end(),
              [](TreeItemData *a, TreeItemData *b) { return a->fileSize > b->fileSize; });
    QCOMPARE(widget->selectedItems(), expected);
    if (mode == 0) { // the multi-selection has gone with its items, too
        view(mode)->selectionModel()->clearSelection();
        QCOMPARE(widget->selectedItems(), expected);
    }
}

// Random rows of a random tree: the same states as when each is written through the model, told of
// in few ranges that leave nothing out.
void TestBulkChecks::togetherIsLikeOneByOne()
{
    QRandomGenerator random(5);
    for (int round = 0; round < 150; ++round) {
        RecordTree bulk;
        RecordTree single;
        const int count = 1 + random.bounded(120);
        const int mostlyChecked = random.bounded(2);
        for (int i = 0; i < count; ++i) {
            const int kind = random.bounded(4);
            const int state = mostlyChecked && random.bounded(100) ? int(Qt::Checked)
                                                                   : random.bounded(3);
            const int inside = random.bounded(2);
            for (RecordTree *each : {&bulk, &single}) {
                TreeItemData *item = kind == 0 ? each->addFolder(QStringLiteral("folder"))
                                               : each->addFile(QStringLiteral("file.jpg"));
                item->checkState = state;
                if (kind == 0)
                    item->itemCount = inside;
            }
        }
        ScanDataModel together;
        ScanDataModel oneByOne;
        together.openFolder(&bulk.root);
        oneByOne.openFolder(&single.root);
        for (int i = random.bounded(4); i > 0; --i) {
            const int row = random.bounded(count);
            if (TreeItemData *const item = together.itemAt(row)) {
                bulk.kill(item);
                single.kill(oneByOne.itemAt(row));
            }
        }
        QVector<SelectedRows::Run> runs;
        for (int row = random.bounded(4); row < count; row += 2 + random.bounded(9)) {
            const int last = qMin(count - 1, row + random.bounded(6));
            runs.append({row, last});
            row = last;
        }

        std::vector<int> targets;
        bool allChecked = true;
        for (const SelectedRows::Run &run : qAsConst(runs)) {
            for (int row = run.first; row <= run.last; ++row) {
                const TreeItemData *const item = oneByOne.itemAt(row);
                if (!item || (item->kind == 1 && item->itemCount == 0))
                    continue;
                targets.push_back(row);
                allChecked = allChecked && item->checkState == Qt::Checked;
            }
        }
        const int wanted = allChecked ? Qt::Unchecked : Qt::Checked;
        for (const int row : targets)
            oneByOne.setData(oneByOne.index(row, 0), wanted, Qt::CheckStateRole);

        QSignalSpy changed(&together, &QAbstractItemModel::dataChanged);
        const CheckToggle::Result result = CheckToggle::toggle(together, runs);
        QCOMPARE(int(result.state), wanted);
        QCOMPARE(result.items.size(), targets.size());
        QVERIFY(changed.count() <= 16);
        QItemSelection told;
        for (const QList<QVariant> &signal : qAsConst(changed)) {
            for (int row = signal.at(0).toModelIndex().row();
                 row <= signal.at(1).toModelIndex().row(); ++row)
                told.select(together.index(row, 0), together.index(row, 0));
        }
        for (size_t i = 0; i < targets.size(); ++i) {
            QCOMPARE(result.items[i].data(), together.itemAt(targets[i]));
            QVERIFY(told.contains(together.index(targets[i], 0)));
        }
        for (int row = 0; row < count; ++row) {
            if (const TreeItemData *const item = oneByOne.itemAt(row))
                QCOMPARE(together.itemAt(row)->checkState, item->checkState);
        }
    }
}

// Two clicks that wait for the same moment: painting never stands still for both.
void TestBulkChecks::everyLongSortIsSeen()
{
    QFETCH(int, mode);
    constexpr int Long = 100000;
    tree->addFiles(Long - Many);
    widget->setViewMode(mode);
    widget->updateData(&tree->root, QString());
    QCoreApplication::processEvents();
    EventCounter paints(view(mode)->viewport(), QEvent::Paint);
    int busy = 0;
    connect(model(), &QAbstractItemModel::layoutAboutToBeChanged, &paints, [&] {
        const QCursor *const pointer = QGuiApplication::overrideCursor();
        busy += pointer && pointer->shape() == Qt::WaitCursor;
    });
    for (int click = 1; click <= 2; ++click) {
        emit widget->findChild<HeaderView *>()->signalSortClicked(click == 1 ? SizeAscending
                                                                             : SizeDescending);
        QCOMPARE(paints.count, click);
        QCOMPARE(busy, click);
        QVERIFY(!QGuiApplication::overrideCursor());
    }
}

QTEST_MAIN(TestBulkChecks)
#include "tst_bulkchecks.moc"
