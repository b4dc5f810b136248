#include "content/sdcardcontentdatawidget.h"
#include "popups/rightmenudialog.h"
#include "popups/rightmenuframe.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QApplication>
#include <QScrollBar>
#include <QScroller>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

using Content = SDCardContentDataWidget;

class TestTouch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void tapClicks_data() { bothModes(); }
    void tapClicks();
    void twoTapsOpen();
    void dragScrolls_data() { bothModes(); }
    void dragScrolls();
    void longPressOpensTheMenu_data();
    void longPressOpensTheMenu();
    void longPressIsCancelled_data();
    void longPressIsCancelled();
    void longPressKeepsASelectionThatHoldsIt();
    void penRestsOrWorksLikeAMouse_data() { bothModes(); }
    void penRestsOrWorksLikeAMouse();

private:
    static void bothModes() { addRows<int>("mode", {{"grid", 0}, {"list", 2}}); }
    void show(int mode)
    {
        m_widget->setViewMode(mode);
        m_widget->updateData(&m_tree->root, QString());
        m_widget->resize(700, 500);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowActive(m_widget.data()));
        m_view = viewOf(*m_widget, mode);
    }
    QRect cell(int row) const { return m_view->visualRect(m_view->model()->index(row, 0)); }
    /// Where neither box nor picture is.
    QPoint name(int row) const { return cell(row).bottomRight() - QPoint(30, 12); }
    QPoint box(int row) const { return cell(row).topLeft() + QPoint(16, 16); }
    TreeItemData *record(int row) const { return m_tree->root.childFiles.at(row); }
    RightMenuDialog *menu() const
    {
        auto *dialog = m_widget->findChild<RightMenuDialog *>();
        return dialog && dialog->isVisible() ? dialog : nullptr;
    }

    void touchDown(const QPoint &pos) { touch().press(0, pos, m_view->viewport()); }
    void touchMove(const QPoint &pos) { touch().move(0, pos, m_view->viewport()); }
    void touchUp(const QPoint &pos) { touch().release(0, pos, m_view->viewport()); }
    void tap(const QPoint &pos)
    {
        touchDown(pos);
        touchUp(pos);
    }
    QTest::QTouchEventSequence touch() { return QTest::touchEvent(m_view->viewport(), m_device); }
    void pen(QEvent::Type type, const QPoint &pos, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, pos, m_view->viewport()->mapTo(m_widget.data(), pos),
                          m_view->viewport()->mapToGlobal(pos),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                          Qt::NoModifier, Qt::MouseEventSynthesizedByQt);
        QApplication::sendEvent(m_view->viewport(), &event);
    }

    QTouchDevice *m_device = nullptr;
    QScopedPointer<RecordTree> m_tree;
    QScopedPointer<Content> m_widget;
    QAbstractItemView *m_view = nullptr;
};

void TestTouch::initTestCase()
{
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
    m_device = QTest::createTouchDevice();
    QGuiApplication::styleHints()->setMousePressAndHoldInterval(150);
}

void TestTouch::init()
{
    m_widget.reset(new Content(1));
    m_tree.reset(new RecordTree);
    m_tree->addFiles(200);
}

void TestTouch::cleanup()
{
    m_widget.reset();
    m_view = nullptr;
}

void TestTouch::tapClicks()
{
    QFETCH(int, mode);
    show(mode);
    tap(name(3));
    QCOMPARE(m_view->currentIndex().row(), 3);
    QCOMPARE(m_widget->selectedItems(), QList<TreeItemData *>{record(3)});
    QSignalSpy checked(m_widget.data(), &Content::signalItemDataCheck);
    tap(box(4));
    QCOMPARE(checked.size(), 1);
    QCOMPARE(record(4)->checkState, int(Qt::Checked));
    QVERIFY(!menu());
}

void TestTouch::twoTapsOpen()
{
    show(0);
    QSignalSpy opened(m_widget.data(), &Content::signalDoubleClicked);
    tap(name(3));
    tap(name(3));
    QCOMPARE(opened.size(), 1);
    tap(name(3)); // the third is not the second of another pair
    QCOMPARE(opened.size(), 1);
}

void TestTouch::dragScrolls()
{
    QFETCH(int, mode);
    show(mode);
    m_view->setCurrentIndex(m_view->model()->index(0, 0));
    const QList<TreeItemData *> selected = m_widget->selectedItems();
    const QPoint from(150, 400);
    touchDown(from);
    for (int moved = 10; moved <= 300; moved += 10)
        touchMove(from - QPoint(0, moved));
    QVERIFY(m_view->verticalScrollBar()->value() > 100);
    touchUp(from - QPoint(0, 300));
    QCOMPARE(m_widget->selectedItems(), selected); // no band, no click
    QVERIFY(!menu());
    for (int row = 0; row < 200; ++row)
        QCOMPARE(record(row)->checkState, int(Qt::Unchecked));
    QScroller::scroller(m_view->viewport())->stop();
}

void TestTouch::longPressOpensTheMenu_data()
{
    addColumns<int, bool>({"mode", "onBox"});
    QTest::newRow("card") << 0 << false;
    QTest::newRow("card's box") << 0 << true;
    QTest::newRow("row") << 2 << false;
    QTest::newRow("row's box") << 2 << true;
}

void TestTouch::longPressOpensTheMenu()
{
    QFETCH(int, mode);
    QFETCH(bool, onBox);
    show(mode);
    QSignalSpy opened(m_widget.data(), &Content::signalDoubleClicked);
    QSignalSpy recovered(m_widget.data(), &Content::signalRightMenuRecover);
    const QPoint pos = onBox ? box(2) : name(2);
    touchDown(pos);
    QTRY_VERIFY(menu());
    QCOMPARE(m_view->currentIndex().row(), 2);
    QCOMPARE(m_widget->selectedItems(), QList<TreeItemData *>{record(2)});
    // The finger has strayed onto an entry: its release there is not a choice.
    RightMenuFrame *entry = menu()->recoverEntry();
    QTest::mouseRelease(entry, Qt::LeftButton);
    QVERIFY(menu());
    touchUp(pos);
    QVERIFY(menu());
    QCOMPARE(record(2)->checkState, int(Qt::Unchecked));
    QCOMPARE(opened.size() + recovered.size(), 0);
    QTest::mouseClick(entry, Qt::LeftButton); // what Qt makes of a tap while a popup is open
    QCOMPARE(recovered.size(), 1);
    tap(box(5)); // and life goes on
    QCOMPARE(record(5)->checkState, int(Qt::Checked));
}

void TestTouch::longPressIsCancelled_data()
{
    QTest::addColumn<QString>("by");
    for (const char *by : {"a move", "a second finger", "a release", "a folder"})
        QTest::newRow(by) << QString(by);
}

void TestTouch::longPressIsCancelled()
{
    QFETCH(QString, by);
    if (by == "a folder")
        m_tree->addFolder(QStringLiteral("folder"));
    show(0);
    const QPoint pos = name(0);
    touchDown(pos);
    if (by == "a move")
        touchMove(pos + QPoint(0, 2 * QApplication::startDragDistance()));
    else if (by == "a second finger")
        touch().stationary(0).press(1, pos + QPoint(60, 0), m_view->viewport());
    else if (by == "a release")
        touchUp(pos);
    QElapsedTimer waited;
    waited.start();
    QTRY_VERIFY(menu() || waited.elapsed() > 400);
    QVERIFY(!menu());
    if (by == "a second finger") {
        touch().release(0, pos, m_view->viewport()).release(1, pos, m_view->viewport());
        QVERIFY(m_widget->selectedItems().isEmpty());
    }
}

void TestTouch::longPressKeepsASelectionThatHoldsIt()
{
    show(0);
    m_view->selectAll();
    touchDown(name(2));
    QTRY_VERIFY(menu());
    QCOMPARE(m_widget->selectedItems().size(), 200);
    menu()->close();
    touchUp(name(2));
}

void TestTouch::penRestsOrWorksLikeAMouse()
{
    QFETCH(int, mode);
    show(mode);
    const auto press = [&](const QPoint &pos) {
        pen(QEvent::MouseButtonPress, pos, Qt::LeftButton);
    };
    const auto release = [&](const QPoint &pos) {
        pen(QEvent::MouseButtonRelease, pos, Qt::NoButton);
    };
    press(box(1));
    release(box(1));
    QCOMPARE(record(1)->checkState, int(Qt::Checked));

    press(box(1));
    QTRY_VERIFY(menu());
    menu()->close();
    release(box(1));
    QCOMPARE(record(1)->checkState, int(Qt::Checked)); // not clicked a second time

    press(name(2));
    const QPoint away = name(2) + QPoint(0, 3 * cell(0).height() / 2);
    pen(QEvent::MouseMove, name(2) + QPoint(0, 20), Qt::LeftButton);
    pen(QEvent::MouseMove, away, Qt::LeftButton);
    release(away);
    QVERIFY(m_widget->selectedItems().size() > 1); // a rubber band
    QVERIFY(!menu());
}

QTEST_MAIN(TestTouch)
#include "tst_touch.moc"
