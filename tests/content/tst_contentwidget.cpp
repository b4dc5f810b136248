#include "content/sdcardcontentdatawidget.h"
#include "detail/itemdetailview.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "popups/rightmenudialog.h"
#include "support/contentview.h"
#include "support/datarow.h"
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
    void init();
    void cleanup() { widget.reset(); }
    void anotherTreeStartsAtItsFirstItem();
    void itemThatLeftHandsOverToItsNeighbour();
    void rootMayDieAtAnyTime();
    void doubleClickOpens();
    void bottomAsksForMoreOnlyWhenMoreExists();
    void oneSelectAllOneSort();
    void paneFollowsTheCurrentItem();
    void contextMenuActs_data();
    void contextMenuActs();
    void menuKeyBringsTheItemIntoView();
    void pathClickLocates_data();
    void pathClickLocates();

private:
    ThumbnailGrid *grid() const { return widget->findChild<ThumbnailGrid *>(); }
    QAbstractItemModel *model() const { return grid()->model(); }
    QAbstractItemView *view(int mode) const { return viewOf(*widget, mode); }
    TreeItemData *itemAt(int row) const
    {
        return static_cast<TreeItemData *>(model()->index(row, 0).internalPointer());
    }
    void show(int files, int mode = 0)
    {
        tree->addFiles(files, QStringLiteral("m%1.jpg"));
        widget->setViewMode(mode);
        widget->updateData(&tree->root, QString());
    }

    std::unique_ptr<RecordTree> tree;
    std::unique_ptr<Content> widget;
};

void TestContentWidget::init()
{
    tree = std::make_unique<RecordTree>();
    widget = std::make_unique<Content>(1);
    widget->resize(700, 500);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
}

void TestContentWidget::anotherTreeStartsAtItsFirstItem()
{
    show(300);
    RecordTree second;
    second.root.secondaryId = 2;
    second.addFiles(300);
    grid()->verticalScrollBar()->setValue(900);
    grid()->selectAll();
    QSignalSpy current(widget.get(), &Content::signalCurrentItemChanged);
    widget->updateData(&second.root, QString());

    QCOMPARE(grid()->verticalScrollBar()->value(), 0);
    QVERIFY(widget->selectedItems().isEmpty());
    QCOMPARE(current.count(), 1);
    QCOMPARE(current.first().first().value<TreeItemData *>(), second.root.childFiles.first());
}

void TestContentWidget::itemThatLeftHandsOverToItsNeighbour()
{
    show(10);
    grid()->setCurrentIndex(model()->index(9, 0));
    tree->root.childFiles.removeLast();
    tree->root.itemCount = 9;
    widget->updateData(&tree->root, QString());
    QCOMPARE(grid()->currentIndex().row(), 8);
    tree->clear();
    QSignalSpy current(widget.get(), &Content::signalCurrentItemChanged);
    widget->updateData(&tree->root, QString());
    QCOMPARE(current.count(), 1);
    QVERIFY(!current.first().first().value<TreeItemData *>());
}

void TestContentWidget::rootMayDieAtAnyTime()
{
    show(5);
    tree.reset();
    widget->grab();
    QTest::mouseClick(widget->findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    widget->refreshCheckState();
    widget->refreshCheckAllState();
    widget->setScanState(4);
    widget->setViewMode(2);
    widget->setViewMode(0);
    QVERIFY(widget->selectedItems().isEmpty());
}

void TestContentWidget::doubleClickOpens()
{
    TreeItemData *folder = tree->addFolder(QStringLiteral("DCIM"));
    tree->addFile(QStringLiteral("inside.jpg"), folder);
    tree->addFolder(QStringLiteral("EMPTY"));
    show(1);
    QSignalSpy opened(widget.get(), &Content::signalDoubleClicked);
    const auto doubleClick = [&](int row) {
        const QPoint pos = grid()->visualRect(model()->index(row, 0)).center();
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, pos + QPoint(0, 40));
        QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, pos + QPoint(0, 40));
    };
    doubleClick(2);
    QCOMPARE(opened.count(), 1);
    QCOMPARE(model()->rowCount(), 3);
    doubleClick(1);
    QCOMPARE(opened.count(), 2);
    QCOMPARE(model()->rowCount(), 3);
    doubleClick(0);
    QCOMPARE(opened.count(), 3);
    QCOMPARE(opened.last().at(1).toString(), QStringLiteral("double_click"));
    QCOMPARE(model()->rowCount(), 1);
}

void TestContentWidget::bottomAsksForMoreOnlyWhenMoreExists()
{
    show(200);
    QSignalSpy more(widget.get(), &Content::signalQueryMoreData);
    QScrollBar *bar = grid()->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    QCOMPARE(more.count(), 0);
    tree->root.itemCount = 500;
    bar->setValue(bar->maximum() - 1);
    QCOMPARE(more.count(), 0);
    bar->setValue(bar->maximum());
    QCOMPARE(more.count(), 1);
}

void TestContentWidget::oneSelectAllOneSort()
{
    show(5);
    auto *bar = widget->findChild<HeaderView *>();
    auto *header = widget->findChild<ScanTableHeader *>();
    QSignalSpy checks(widget.get(), &Content::signalItemDataCheck);
    QSignalSpy sorts(widget.get(), &Content::signalSortClicked);

    emit header->signalAllChecked(Qt::Checked);
    QCOMPARE(bar->checkState(), int(Qt::Checked));
    QTest::mouseClick(widget->findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    QCOMPARE(header->checkState(), int(Qt::Unchecked));
    QCOMPARE(checks.count(), 2);

    QTest::mouseClick(bar->findChild<QPushButton *>(QStringLiteral("sizeButton")), Qt::LeftButton);
    QCOMPARE(header->sortType(), SizeAscending);
    emit header->signalSortClicked(SizeDescending);
    QCOMPARE(bar->sortType(), SizeDescending);
    QCOMPARE(itemAt(0), tree->root.childFiles.last());
    QCOMPARE(sorts.count(), 2);
    QCOMPARE(sorts.last().at(1).value<HeaderViewSortType>(), SizeDescending);
    widget->reset();
    QCOMPARE(header->sortType(), NoSort);
}

void TestContentWidget::paneFollowsTheCurrentItem()
{
    QSignalSpy metadata(widget.get(), &Content::signalGetMetaData);
    show(5, 1);
    auto *pane = widget->findChild<ItemDetailView *>();
    auto *table = widget->findChild<ScanTableView *>();
    QVERIFY(pane->isVisible());
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    const auto *name = pane->findChild<QLabel *>(QStringLiteral("namelabel"));
    QCOMPARE(name->accessibleName(), tree->root.childFiles.at(1)->name);
    QTRY_COMPARE(metadata.count(), 1);
    QCOMPARE(metadata.first().first().value<TreeItemData *>(), tree->root.childFiles.at(1));
    widget->setViewMode(2);
    QVERIFY(!pane->isVisible());
}

void TestContentWidget::contextMenuActs_data()
{
    addColumns<int, bool, int>({"mode", "byKey", "entry"});
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
    show(6, mode);
    QSignalSpy opened(widget.get(), &Content::signalDoubleClicked);
    QSignalSpy recovered(widget.get(), &Content::signalRightMenuRecover);
    QAbstractItemView *view = this->view(mode);
    const QModelIndex index = model()->index(2, 0);
    view->setCurrentIndex(index);
    RightMenuDialog *menu = nullptr;
    for (int times = 0; times < 3; ++times) { // an impatient hand has one menu all the same
        if (menu)
            menu->close();
        if (byKey) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
            QCoreApplication::sendEvent(view, &event);
        } else {
            QTest::mouseClick(view->viewport(), Qt::RightButton, {},
                              view->visualRect(index).center());
        }
        QTRY_COMPARE(widget->findChildren<RightMenuDialog *>().size(), 1);
        menu = widget->findChild<RightMenuDialog *>();
        QTRY_VERIFY(menu->isVisible());
    }

    tree->addFiles(3); // results stream in while the menu is open
    widget->updateData(&tree->root, QString());
    if (entry == 0)
        menu->slotPreviewItem();
    else
        menu->slotRecoverEntry();
    QCOMPARE(opened.count(), entry == 0 ? 1 : 0);
    QCOMPARE(recovered.count(), entry == 1 ? 1 : 0);
    const QList<QVariant> arguments = entry == 0 ? opened.first() : recovered.first();
    QCOMPARE(arguments.first().value<TreeItemData *>(), tree->root.childFiles.at(2));
    if (entry == 0)
        QCOMPARE(arguments.at(1).toString(), QStringLiteral("right_click_menu"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!widget->findChild<RightMenuDialog *>());
}

void TestContentWidget::menuKeyBringsTheItemIntoView()
{
    show(300);
    grid()->setCurrentIndex(model()->index(150, 0));
    grid()->scrollToTop();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint());
    QCoreApplication::sendEvent(grid(), &event);
    const QRect card = grid()->visualRect(grid()->currentIndex());
    QVERIFY(grid()->viewport()->rect().contains(card));
    auto *menu = widget->findChild<RightMenuDialog *>();
    QVERIFY(menu && menu->isVisible());
    QVERIFY(menu->geometry().contains(grid()->viewport()->mapToGlobal(card.center())));
}

void TestContentWidget::pathClickLocates_data()
{
    addColumns<int, QString, QString>({"mode", "from", "what"});
    addRow("pane", 1, "detail_view", "path_jump_icon");
    addRow("list", 2, "list_view", "path_text_link");
}

void TestContentWidget::pathClickLocates()
{
    QFETCH(int, mode);
    QFETCH(QString, from);
    QFETCH(QString, what);
    widget->resize(1000, 500);
    tree->root.rootType = 26;
    TreeItemData *file = tree->addFile(QStringLiteral("a.jpg"));
    file->path = QStringLiteral("/DCIM");
    show(0, mode);
    QSignalSpy located(widget.get(), &Content::signalLocateFile);
    QSignalSpy sensors(widget.get(), &Content::signalSensorsData);
    const QRect cell = view(mode)->visualRect(
        model()->index(0, mode == 1 ? ScanDataModel::DateColumn : ScanDataModel::PathColumn));
    const QPoint pos = mode == 1 ? QPoint(cell.right() - 16, cell.center().y()) : cell.center();
    QTest::mouseClick(view(mode)->viewport(), Qt::LeftButton, {}, pos);
    QCOMPARE(located.count(), 1);
    QCOMPARE(located.first().first().value<TreeItemData *>(), file);
    const QVariantMap map = sensors.value(0).value(1).toMap();
    QCOMPARE(map.value(QStringLiteral("click_from")).toString(), from);
    QCOMPARE(map.value(QStringLiteral("click_what")).toString(), what);
}

QTEST_MAIN(TestContentWidget)
#include "tst_contentwidget.moc"
