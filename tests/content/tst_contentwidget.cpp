#include "content/scantableview.h"
#include "content/sdcardcontentdatawidget.h"
#include "content/thumbnailgrid.h"
#include "detail/itemdetailview.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "popups/rightmenudialog.h"
#include "support/recordtree.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using Content = SDCardContentDataWidget;

class TestContentWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
        qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
    }
    void growthDisturbsNothing_data();
    void growthDisturbsNothing();
    void shiftStartsFromTheSameItemAfterGrowth();
    void anotherTreeStartsAtItsFirstItem();
    void itemThatLeftHandsOverToItsNeighbour();
    void deadRecordsAreNeitherShownNorTouched();
    void rootMayDieAtAnyTime();
    void checkAllToggles_data();
    void checkAllToggles();
    void spaceTogglesTheSelection();
    void checkBoxClickReachesTheHost();
    void doubleClickOpens();
    void bottomAsksForMoreOnlyWhenMoreExists();
    void locateMakesCurrentAndVisible();
    void listKeepsItsPlaceWhileResultsStreamIn();
    void selectionMovesBetweenTheViews();
    void oneSelectAllOneSort();
    void paneFollowsTheCurrentItem();
    void contextMenuActs_data();
    void contextMenuActs();
    void rightClicksAndTheSelection_data();
    void rightClicksAndTheSelection();
    void menuKeyBringsTheItemIntoView();
    void pathClickLocates_data();
    void pathClickLocates();

private:
    static ThumbnailGrid *gridOf(Content &widget) { return widget.findChild<ThumbnailGrid *>(); }
    static QAbstractItemModel *modelOf(Content &widget) { return gridOf(widget)->model(); }
    static TreeItemData *itemAt(Content &widget, int row)
    {
        return static_cast<TreeItemData *>(modelOf(widget)->index(row, 0).internalPointer());
    }
    static void show(Content &widget)
    {
        widget.resize(700, 500);
        widget.show();
        QVERIFY(QTest::qWaitForWindowExposed(&widget));
    }
};

void TestContentWidget::growthDisturbsNothing_data()
{
    QTest::addColumn<bool>("sorted");
    QTest::newRow("host order") << false;
    QTest::newRow("sorted by name, descending") << true;
}

void TestContentWidget::growthDisturbsNothing()
{
    QFETCH(bool, sorted);
    RecordTree tree;
    tree.addFiles(400, QStringLiteral("m%1.jpg"));
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    ThumbnailGrid *grid = gridOf(widget);
    if (sorted)
        modelOf(widget)->sort(ScanDataModel::NameColumn, Qt::DescendingOrder);

    grid->verticalScrollBar()->setValue(grid->verticalScrollBar()->maximum() / 2 + 17);
    const int top = grid->visibleRows().first;
    const auto rowIndex = [&](int row) { return modelOf(widget)->index(row, 0); };
    grid->selectionModel()->select(rowIndex(top + 2), QItemSelectionModel::Select);
    grid->selectionModel()->select(rowIndex(top + 5), QItemSelectionModel::Select);
    grid->selectionModel()->setCurrentIndex(rowIndex(top + 5), QItemSelectionModel::NoUpdate);
    const TreeItemData *topItem = itemAt(widget, top);
    const QRect topRect = grid->visualRect(rowIndex(top));
    QList<TreeItemData *> selected = widget.selectedItems();
    QCOMPARE(selected.size(), 2);
    QSignalSpy current(&widget, &Content::signalCurrentItemChanged);

    for (int i = 0; i < 5; ++i) {
        tree.addFiles(37, QStringLiteral("z%1.jpg")); // before all others when descending
        widget.updateData(&tree.root, QString());
    }

    QCOMPARE(modelOf(widget)->rowCount(), 400 + 5 * 37);
    QCOMPARE(current.count(), 0);
    QList<TreeItemData *> after = widget.selectedItems();
    std::sort(selected.begin(), selected.end());
    std::sort(after.begin(), after.end());
    QCOMPARE(after, selected);
    QCOMPARE(static_cast<TreeItemData *>(grid->currentIndex().internalPointer())->fileId,
             (sorted ? 400 - 1 - (top + 5) : top + 5));
    bool found = false;
    for (int row = grid->visibleRows().first; row <= grid->visibleRows().second; ++row) {
        if (itemAt(widget, row) == topItem) {
            found = true;
            QCOMPARE(grid->visualRect(rowIndex(row)).top(), topRect.top());
        }
    }
    QVERIFY(found);
}

void TestContentWidget::shiftStartsFromTheSameItemAfterGrowth()
{
    RecordTree tree;
    tree.addFiles(20, QStringLiteral("m%1.jpg"));
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    modelOf(widget)->sort(ScanDataModel::NameColumn, Qt::DescendingOrder);
    ThumbnailGrid *grid = gridOf(widget);
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers) {
        const QRect cell = grid->visualRect(modelOf(widget)->index(row, 0));
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, modifiers,
                          cell.bottomLeft() + QPoint(cell.width() / 2, -8));
    };
    click(1, {});
    const TreeItemData *anchor = itemAt(widget, 1);
    tree.addFiles(3, QStringLiteral("z%1.jpg")); // three rows before the anchor
    widget.updateData(&tree.root, QString());
    QCOMPARE(itemAt(widget, 4), anchor);
    click(6, Qt::ShiftModifier);
    QCOMPARE(widget.selectedItems().size(), 3);
    QVERIFY(widget.selectedItems().contains(const_cast<TreeItemData *>(anchor)));
}

void TestContentWidget::anotherTreeStartsAtItsFirstItem()
{
    RecordTree first;
    first.addFiles(300);
    RecordTree second;
    second.root.secondaryId = 2;
    second.addFiles(300);
    Content widget(1);
    show(widget);
    widget.updateData(&first.root, QString());
    gridOf(widget)->verticalScrollBar()->setValue(900);
    gridOf(widget)->selectAll();
    QSignalSpy current(&widget, &Content::signalCurrentItemChanged);
    widget.updateData(&second.root, QString());

    QCOMPARE(gridOf(widget)->verticalScrollBar()->value(), 0);
    QVERIFY(widget.selectedItems().isEmpty());
    QCOMPARE(current.count(), 1);
    QCOMPARE(current.first().first().value<TreeItemData *>(), second.root.childFiles.first());
}

void TestContentWidget::itemThatLeftHandsOverToItsNeighbour()
{
    RecordTree tree;
    tree.addFiles(10);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    gridOf(widget)->setCurrentIndex(modelOf(widget)->index(9, 0));
    tree.root.childFiles.removeLast();
    tree.root.itemCount = 9;
    widget.updateData(&tree.root, QString());
    QCOMPARE(gridOf(widget)->currentIndex().row(), 8);
    tree.clear();
    QSignalSpy current(&widget, &Content::signalCurrentItemChanged);
    widget.updateData(&tree.root, QString());
    QCOMPARE(current.count(), 1);
    QVERIFY(!current.first().first().value<TreeItemData *>());
}

void TestContentWidget::deadRecordsAreNeitherShownNorTouched()
{
    RecordTree tree;
    tree.addFiles(30);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    gridOf(widget)->selectAll();
    const QList<TreeItemData *> files = tree.root.childFiles;
    for (int i = 0; i < 30; i += 3)
        tree.kill(files.at(i));
    widget.grab();
    QCOMPARE(widget.selectedItems().size(), 20);
    const QRect cell(gridOf(widget)->visualRect(modelOf(widget)->index(1, 0)));
    for (int x = 0; x < 600; x += 40)
        QTest::mouseMove(gridOf(widget)->viewport(), QPoint(x, cell.center().y()));
    QTest::keyClick(gridOf(widget), Qt::Key_Space);
    widget.refreshCheckState();
    widget.grab();
    QCOMPARE(files.at(1)->checkState, int(Qt::Checked));
}

void TestContentWidget::rootMayDieAtAnyTime()
{
    Content widget(1);
    show(widget);
    {
        RecordTree tree;
        tree.addFiles(5);
        widget.updateData(&tree.root, QString());
    }
    widget.grab();
    QTest::mouseClick(widget.findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    widget.refreshCheckState();
    widget.refreshCheckAllState();
    widget.setScanState(4);
    widget.setViewMode(2);
    widget.setViewMode(0);
    QVERIFY(widget.selectedItems().isEmpty());
}

void TestContentWidget::checkAllToggles_data()
{
    QTest::addColumn<bool>("searchMode");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::newRow("unchecked") << false << 0 << 2;
    QTest::newRow("partial becomes checked") << false << 1 << 2;
    QTest::newRow("checked") << false << 2 << 0;
    QTest::newRow("search") << true << 1 << 2;
}

void TestContentWidget::checkAllToggles()
{
    QFETCH(bool, searchMode);
    QFETCH(int, before);
    QFETCH(int, after);
    RecordTree tree;
    tree.addFiles(4);
    Content widget(2);
    show(widget);
    widget.setSearchMode(searchMode);
    tree.root.checkState = before;
    widget.updateData(&tree.root, QString());
    QSignalSpy item(&widget, &Content::signalItemDataCheck);
    QSignalSpy search(&widget, &Content::signalSearchSelectAllChecked);
    QSignalSpy changed(modelOf(widget), &QAbstractItemModel::dataChanged);
    QTest::mouseClick(widget.findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    for (const TreeItemData *file : qAsConst(tree.root.childFiles))
        QCOMPARE(file->checkState, after);
    QCOMPARE(tree.root.checkState, after);
    QCOMPARE(item.count(), searchMode ? 0 : 1);
    QCOMPARE(search.count(), searchMode ? 1 : 0);
    QCOMPARE(changed.count(), 1);
}

void TestContentWidget::spaceTogglesTheSelection()
{
    RecordTree tree;
    tree.addFiles(6);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    ThumbnailGrid *grid = gridOf(widget);
    grid->selectAll();
    tree.root.childFiles.at(2)->checkState = Qt::Checked;
    QSignalSpy checks(&widget, &Content::signalItemDataCheck);
    QTest::keyClick(grid, Qt::Key_Space);
    for (const TreeItemData *file : qAsConst(tree.root.childFiles))
        QCOMPARE(file->checkState, int(Qt::Checked));
    QCOMPARE(checks.count(), 6);
    QTest::keyClick(grid, Qt::Key_Space);
    for (const TreeItemData *file : qAsConst(tree.root.childFiles))
        QCOMPARE(file->checkState, int(Qt::Unchecked));
}

void TestContentWidget::checkBoxClickReachesTheHost()
{
    RecordTree tree;
    tree.addFiles(6);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    ThumbnailGrid *grid = gridOf(widget);
    QSignalSpy checks(&widget, &Content::signalItemDataCheck);
    const QRect cell = grid->visualRect(modelOf(widget)->index(1, 0));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(16, 16));
    QCOMPARE(checks.count(), 1);
    QCOMPARE(checks.first().first().value<TreeItemData *>(), tree.root.childFiles.at(1));
    QCOMPARE(tree.root.childFiles.at(1)->checkState, int(Qt::Checked));
}

void TestContentWidget::doubleClickOpens()
{
    RecordTree tree;
    TreeItemData *folder = tree.addFolder(QStringLiteral("DCIM"));
    tree.addFile(QStringLiteral("inside.jpg"), folder);
    tree.addFolder(QStringLiteral("EMPTY"));
    tree.addFile(QStringLiteral("top.jpg"));
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    ThumbnailGrid *grid = gridOf(widget);
    QSignalSpy opened(&widget, &Content::signalDoubleClicked);
    const auto doubleClick = [&](int row) {
        const QPoint pos = grid->visualRect(modelOf(widget)->index(row, 0)).center();
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, pos + QPoint(0, 40));
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, pos + QPoint(0, 40));
    };
    doubleClick(2);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(modelOf(widget)->rowCount(), 3);
    doubleClick(1);
    QCOMPARE(opened.count(), 2);
    QCOMPARE(modelOf(widget)->rowCount(), 3);
    doubleClick(0);
    QCOMPARE(opened.count(), 3);
    QCOMPARE(opened.last().at(1).toString(), QStringLiteral("double_click"));
    QCOMPARE(modelOf(widget)->rowCount(), 1);
}

void TestContentWidget::bottomAsksForMoreOnlyWhenMoreExists()
{
    RecordTree tree;
    tree.addFiles(200);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    QSignalSpy more(&widget, &Content::signalQueryMoreData);
    QScrollBar *bar = gridOf(widget)->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    QCOMPARE(more.count(), 0);
    tree.root.itemCount = 500;
    bar->setValue(bar->maximum() - 1);
    QCOMPARE(more.count(), 0);
    bar->setValue(bar->maximum());
    QCOMPARE(more.count(), 1);
}

void TestContentWidget::locateMakesCurrentAndVisible()
{
    RecordTree tree;
    tree.addFiles(500);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    QSignalSpy current(&widget, &Content::signalCurrentItemChanged);
    widget.locateFileId(321);
    QCOMPARE(gridOf(widget)->currentIndex().row(), 321);
    const auto visible = gridOf(widget)->visibleRows();
    QVERIFY(visible.first <= 321 && 321 <= visible.second);
    QCOMPARE(current.count(), 1);
    widget.locateFileId(-1);
    widget.locateSecondaryId(77);
    QCOMPARE(gridOf(widget)->currentIndex().row(), 321);
}

void TestContentWidget::listKeepsItsPlaceWhileResultsStreamIn()
{
    RecordTree tree;
    tree.addFiles(300, QStringLiteral("m%1.jpg"));
    Content widget(1);
    show(widget);
    widget.setViewMode(2);
    widget.updateData(&tree.root, QString());
    auto *table = widget.findChild<ScanTableView *>();
    modelOf(widget)->sort(ScanDataModel::NameColumn, Qt::DescendingOrder);
    QCoreApplication::processEvents();
    table->verticalScrollBar()->setValue(2000);
    const int top = table->visibleRows().first;
    const TreeItemData *topItem = itemAt(widget, top);
    const int y = table->rowViewportPosition(top);
    table->selectRow(top + 3);
    const QList<TreeItemData *> selected = widget.selectedItems();
    QCOMPARE(selected.size(), 1);

    for (int i = 0; i < 3; ++i) {
        tree.addFiles(20, QStringLiteral("z%1.jpg"));
        widget.updateData(&tree.root, QString());
    }
    QCOMPARE(itemAt(widget, top + 60), topItem);
    QCOMPARE(table->rowViewportPosition(top + 60), y);
    QCOMPARE(widget.selectedItems(), selected);
}

void TestContentWidget::selectionMovesBetweenTheViews()
{
    RecordTree tree;
    tree.addFiles(50);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    for (int row : {3, 4, 30})
        gridOf(widget)->selectionModel()->select(modelOf(widget)->index(row, 0),
                                                 QItemSelectionModel::Select);
    const QList<TreeItemData *> selected = widget.selectedItems();
    widget.setViewMode(1);
    QCOMPARE(widget.selectedItems(), selected);
    auto *table = widget.findChild<ScanTableView *>();
    table->selectRow(7);
    widget.setViewMode(0);
    QCOMPARE(widget.selectedItems(), QList<TreeItemData *>{tree.root.childFiles.at(7)});
    widget.setViewMode(17);
    QVERIFY(gridOf(widget)->isVisible());
}

void TestContentWidget::oneSelectAllOneSort()
{
    RecordTree tree;
    tree.addFiles(5);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    auto *bar = widget.findChild<HeaderView *>();
    auto *header = widget.findChild<ScanTableHeader *>();
    QSignalSpy checks(&widget, &Content::signalItemDataCheck);
    QSignalSpy sorts(&widget, &Content::signalSortClicked);

    emit header->signalAllChecked(Qt::Checked);
    QCOMPARE(bar->checkState(), int(Qt::Checked));
    QTest::mouseClick(widget.findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    QCOMPARE(header->checkState(), int(Qt::Unchecked));
    QCOMPARE(checks.count(), 2);

    QTest::mouseClick(bar->findChild<QPushButton *>(QStringLiteral("sizeButton")), Qt::LeftButton);
    QCOMPARE(header->sortType(), SizeAscending);
    emit header->signalSortClicked(SizeDescending);
    QCOMPARE(bar->sortType(), SizeDescending);
    QCOMPARE(itemAt(widget, 0), tree.root.childFiles.last());
    QCOMPARE(sorts.count(), 2);
    QCOMPARE(sorts.last().at(1).value<HeaderViewSortType>(), SizeDescending);
    widget.reset();
    QCOMPARE(header->sortType(), NoSort);
}

void TestContentWidget::paneFollowsTheCurrentItem()
{
    RecordTree tree;
    tree.addFiles(5);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    QSignalSpy metadata(&widget, &Content::signalGetMetaData);
    widget.setViewMode(1);
    auto *pane = widget.findChild<ItemDetailView *>();
    auto *table = widget.findChild<ScanTableView *>();
    QVERIFY(pane->isVisible());
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    const auto *name = pane->findChild<QLabel *>(QStringLiteral("namelabel"));
    QCOMPARE(name->accessibleName(), tree.root.childFiles.at(1)->name);
    QTRY_COMPARE(metadata.count(), 1);
    QCOMPARE(metadata.first().first().value<TreeItemData *>(), tree.root.childFiles.at(1));
    widget.setViewMode(2);
    QVERIFY(!pane->isVisible());
}

void TestContentWidget::contextMenuActs_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<int>("entry");
    QTest::newRow("grid, mouse, preview") << 0 << false << 0;
    QTest::newRow("grid, key, recover") << 0 << true << 1;
    QTest::newRow("list, mouse, recover") << 2 << false << 1;
    QTest::newRow("list, key, preview") << 2 << true << 0;
}

void TestContentWidget::contextMenuActs()
{
    QFETCH(int, mode);
    QFETCH(bool, byKey);
    QFETCH(int, entry);
    RecordTree tree;
    tree.addFiles(6);
    Content widget(1);
    show(widget);
    widget.setViewMode(mode);
    widget.updateData(&tree.root, QString());
    QSignalSpy opened(&widget, &Content::signalDoubleClicked);
    QSignalSpy recovered(&widget, &Content::signalRightMenuRecover);
    QAbstractItemView *view = gridOf(widget);
    if (mode != 0)
        view = widget.findChild<ScanTableView *>();
    const QModelIndex index = modelOf(widget)->index(2, 0);
    view->setCurrentIndex(index);
    if (byKey) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
        QCoreApplication::sendEvent(view, &event);
    } else {
        QTest::mouseClick(view->viewport(), Qt::RightButton, {}, view->visualRect(index).center());
    }
    RightMenuDialog *menu = nullptr;
    QTRY_VERIFY((menu = widget.findChild<RightMenuDialog *>()) && menu->isVisible());

    tree.addFiles(3); // results stream in while the menu is open
    widget.updateData(&tree.root, QString());
    if (entry == 0)
        menu->slotPreviewItem();
    else
        menu->slotRecoverEntry();
    QCOMPARE(opened.count(), entry == 0 ? 1 : 0);
    QCOMPARE(recovered.count(), entry == 1 ? 1 : 0);
    const QList<QVariant> arguments = entry == 0 ? opened.first() : recovered.first();
    QCOMPARE(arguments.first().value<TreeItemData *>(), tree.root.childFiles.at(2));
    if (entry == 0)
        QCOMPARE(arguments.at(1).toString(), QStringLiteral("right_click_menu"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!widget.findChild<RightMenuDialog *>());
}

void TestContentWidget::rightClicksAndTheSelection_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("row");
    QTest::addColumn<QList<int>>("selected");
    for (int mode : {0, 2}) {
        const char *view = mode == 0 ? "grid" : "list";
        QTest::addRow("%s, on a selected item", view) << mode << 1 << QList<int>{0, 1, 2};
        QTest::addRow("%s, on another", view) << mode << 5 << QList<int>{5};
    }
}

void TestContentWidget::rightClicksAndTheSelection()
{
    QFETCH(int, mode);
    QFETCH(int, row);
    QFETCH(QList<int>, selected);
    RecordTree tree;
    tree.addFiles(8);
    Content widget(1);
    show(widget);
    widget.setViewMode(mode);
    widget.updateData(&tree.root, QString());
    QAbstractItemView *view = gridOf(widget);
    if (mode != 0)
        view = widget.findChild<ScanTableView *>();
    const auto index = [&](int at) { return modelOf(widget)->index(at, 0); };
    for (int at : {0, 1, 2})
        view->selectionModel()->select(index(at),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QSignalSpy recovered(&widget, &Content::signalRightMenuRecover);
    // An impatient hand: the menu is closed by each press and opened again, and there is one.
    const auto menus = [&] { return widget.findChildren<RightMenuDialog *>(); };
    for (int clicks = 0; clicks < 3; ++clicks) {
        QTest::mouseClick(view->viewport(), Qt::RightButton, {},
                          view->visualRect(index(row)).center());
        QTRY_VERIFY(menus().size() == 1 && menus().constFirst()->isVisible());
        QList<TreeItemData *> expected;
        for (int at : qAsConst(selected))
            expected << tree.root.childFiles.at(at);
        QList<TreeItemData *> found = widget.selectedItems();
        std::sort(found.begin(), found.end());
        std::sort(expected.begin(), expected.end());
        QCOMPARE(found, expected);
        if (clicks < 2)
            menus().constFirst()->close();
    }
    menus().constFirst()->slotRecoverEntry();
    QCOMPARE(recovered.size(), 1);
    QCOMPARE(recovered.first().first().value<TreeItemData *>(), tree.root.childFiles.at(row));
}

void TestContentWidget::menuKeyBringsTheItemIntoView()
{
    RecordTree tree;
    tree.addFiles(300);
    Content widget(1);
    show(widget);
    widget.updateData(&tree.root, QString());
    ThumbnailGrid *grid = gridOf(widget);
    grid->setCurrentIndex(modelOf(widget)->index(150, 0));
    grid->scrollToTop();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(grid, &event);
    const QRect card = grid->visualRect(grid->currentIndex());
    QVERIFY(grid->viewport()->rect().contains(card));
    auto *menu = widget.findChild<RightMenuDialog *>();
    QVERIFY(menu && menu->isVisible());
    QVERIFY(menu->geometry().contains(grid->viewport()->mapToGlobal(card.center())));
}

void TestContentWidget::pathClickLocates_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("what");
    QTest::newRow("pane") << 1 << "detail_view"
                          << "path_jump_icon";
    QTest::newRow("list") << 2 << "list_view"
                          << "path_text_link";
}

void TestContentWidget::pathClickLocates()
{
    QFETCH(int, mode);
    QFETCH(QString, from);
    QFETCH(QString, what);
    RecordTree tree;
    tree.root.rootType = 26;
    TreeItemData *file = tree.addFile(QStringLiteral("a.jpg"));
    file->path = QStringLiteral("/DCIM");
    Content widget(1);
    widget.resize(1000, 500);
    widget.setViewMode(mode);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    widget.updateData(&tree.root, QString());
    QSignalSpy located(&widget, &Content::signalLocateFile);
    QSignalSpy sensors(&widget, &Content::signalSensorsData);
    auto *table = widget.findChild<ScanTableView *>();
    const QRect cell = table->visualRect(modelOf(widget)->index(
        0, mode == 1 ? ScanDataModel::DateColumn : ScanDataModel::PathColumn));
    const QPoint pos = mode == 1 ? QPoint(cell.right() - 16, cell.center().y()) : cell.center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, pos);
    QCOMPARE(located.count(), 1);
    QCOMPARE(located.first().first().value<TreeItemData *>(), file);
    const QVariantMap map = sensors.value(0).value(1).toMap();
    QCOMPARE(map.value(QStringLiteral("click_from")).toString(), from);
    QCOMPARE(map.value(QStringLiteral("click_what")).toString(), what);
}

QTEST_MAIN(TestContentWidget)
#include "tst_contentwidget.moc"
