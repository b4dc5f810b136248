// A host that replaces, resets or kills from inside the slots of our signals, at any moment.
#include "content/sdcardcontentdatawidget.h"
#include "popups/rightmenudialog.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using Content = SDCardContentDataWidget;

class TestCarelessHands : public QObject
{
    Q_OBJECT

private slots:
    void slotsMayDoAnything_data();
    void slotsMayDoAnything();
    void doubleClickMeansOneItem_data() { addRows<int>("mode", {{"grid", 0}, {"list", 2}}); }
    void doubleClickMeansOneItem();
    void quickClicksOpenOnce_data();
    void quickClicksOpenOnce();
    void menuMayOutliveItsWidget();

private:
    void show(int mode, int files);
    QAbstractItemView *view() const { return viewOf(*m_widget, m_mode); }
    QPoint spot(int row) const
    {
        const QRect first = view()->visualRect(view()->model()->index(row, m_mode == 0 ? 0 : 1));
        return m_mode == 0 ? QPoint(first.center().x(), first.bottom() - 8) : first.center();
    }
    QPoint icon(int row) const
    {
        const QRect cell = view()->visualRect(view()->model()->index(row, 0));
        return m_mode == 0 ? cell.topLeft() + QPoint(cell.width() / 2, 41)
                           : cell.topLeft() + QPoint(44, cell.height() / 2);
    }
    QPoint checkBox(int row) const
    {
        return view()->visualRect(view()->model()->index(row, 0)).topLeft() + QPoint(16, 18);
    }
    void send(QEvent::Type type, const QPoint &pos, ulong time);
    void doubleClick(const QPoint &pos);

    int m_mode = 0;
    std::unique_ptr<RecordTree> m_tree;
    std::unique_ptr<RecordTree> m_other;
    std::unique_ptr<Content> m_widget;
};

void TestCarelessHands::show(int mode, int files)
{
    m_mode = mode;
    m_widget.reset();
    m_tree = std::make_unique<RecordTree>();
    m_tree->addFiles(files);
    m_other = std::make_unique<RecordTree>();
    m_other->root.secondaryId = 2;
    m_other->addFiles(3);
    m_widget = std::make_unique<Content>(1);
    m_widget->resize(800, 500);
    m_widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
    m_widget->setViewMode(mode);
    m_widget->updateData(&m_tree->root, QString());
    QCoreApplication::processEvents();
}

void TestCarelessHands::send(QEvent::Type type, const QPoint &pos, ulong time)
{
    QMouseEvent event(type, pos, view()->viewport()->mapToGlobal(pos), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(view()->viewport(), &event);
}

void TestCarelessHands::doubleClick(const QPoint &pos)
{
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, pos);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, pos);
    QTest::mouseRelease(view()->viewport(), Qt::LeftButton, {}, pos);
}

void TestCarelessHands::slotsMayDoAnything_data()
{
    addColumns<int, QString, QString>({"mode", "moment", "deed"});
    for (const char *deed : {"other tree", "reset", "same tree grown", "kill it all"}) {
        for (int mode : {0, 1, 2}) {
            for (const char *moment : {"check", "open", "current", "more", "keys"})
                QTest::addRow("%s, mode %d, %s", moment, mode, deed)
                    << mode << QString(moment) << QString(deed);
        }
    }
}

void TestCarelessHands::slotsMayDoAnything()
{
    QFETCH(int, mode);
    QFETCH(QString, moment);
    QFETCH(QString, deed);
    show(mode, 120);
    int times = 0;
    const auto act = [&] {
        if (++times > 3)
            return;
        if (deed == QLatin1String("other tree")) {
            m_widget->updateData(&m_other->root, QString());
        } else if (deed == QLatin1String("reset")) {
            m_widget->reset();
        } else if (deed == QLatin1String("same tree grown")) {
            m_tree->addFiles(5, QStringLiteral("a%1.jpg"));
            m_widget->updateData(&m_tree->root, QString());
        } else {
            m_tree->clear();
        }
    };
    if (moment == QLatin1String("check")) {
        connect(m_widget.get(), &Content::signalItemDataCheck, this, act);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, checkBox(2));
    } else if (moment == QLatin1String("open")) {
        connect(m_widget.get(), &Content::signalDoubleClicked, this, act);
        doubleClick(spot(2));
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, icon(0));
    } else if (moment == QLatin1String("current")) {
        connect(m_widget.get(), &Content::signalCurrentItemChanged, this, act);
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, {}, spot(2));
        QTest::keyClick(view(), Qt::Key_Down, Qt::ShiftModifier);
    } else if (moment == QLatin1String("more")) {
        connect(m_widget.get(), &Content::signalQueryMoreData, this, act);
        m_tree->root.itemCount = 1000;
        QTest::keyClick(view(), Qt::Key_End);
    } else {
        connect(m_widget.get(), &Content::signalItemDataCheck, this, act);
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view(), Qt::Key_Space);
    }
    QVERIFY(times > 0);
    m_widget->grab();
    QTest::keyClick(view(), Qt::Key_Home);
    QTest::keyClick(view(), Qt::Key_End, Qt::ShiftModifier);
    const QList<TreeItemData *> items = m_widget->selectedItems();
    for (const TreeItemData *item : items)
        QVERIFY(!item->name.isEmpty());
    m_widget->updateData(&m_other->root, QString());
    QCOMPARE(view()->model()->rowCount(), 3);
}

void TestCarelessHands::doubleClickMeansOneItem()
{
    QFETCH(int, mode);
    show(mode, 20);
    QSignalSpy opened(m_widget.get(), &Content::signalDoubleClicked);
    const QPoint pos = spot(3);
    // another item under the pointer is not what was clicked first
    send(QEvent::MouseButtonPress, pos, 3000);
    send(QEvent::MouseButtonRelease, pos, 3050);
    m_tree->root.childFiles.removeFirst();
    m_tree->root.itemCount--;
    m_widget->updateData(&m_tree->root, QString());
    view()->verticalScrollBar()->setValue(0);
    m_tree->root.childFiles.removeFirst();
    m_tree->root.itemCount--;
    m_widget->updateData(&m_tree->root, QString());
    send(QEvent::MouseButtonDblClick, spot(0), 3150);
    QCOMPARE(opened.count(), 0);
}

void TestCarelessHands::quickClicksOpenOnce_data()
{
    addColumns<int, bool, int, ulong, int>({"mode", "onIcon", "clicks", "apart", "opens"});
    for (int mode : {0, 2}) {
        QTest::addRow("double on the icon, mode %d", mode) << mode << true << 2 << 120UL << 1;
        QTest::addRow("triple on the icon, mode %d", mode) << mode << true << 3 << 120UL << 1;
        QTest::addRow("triple on the name, mode %d", mode) << mode << false << 3 << 60UL << 1;
        QTest::addRow("six on the name, mode %d", mode) << mode << false << 6 << 60UL << 1;
        QTest::addRow("twice, slowly, on the icon, mode %d", mode)
            << mode << true << 2 << 900UL << 2;
    }
}

void TestCarelessHands::quickClicksOpenOnce()
{
    QFETCH(int, mode);
    QFETCH(bool, onIcon);
    QFETCH(int, clicks);
    QFETCH(ulong, apart);
    QFETCH(int, opens);
    show(mode, 20);
    QSignalSpy opened(m_widget.get(), &Content::signalDoubleClicked);
    const QPoint pos = onIcon ? icon(3) : spot(3);
    const bool fast = apart < ulong(QApplication::doubleClickInterval());
    for (int click = 0; click < clicks; ++click) {
        // the window system makes every second quick press a double click
        send(fast && click % 2 == 1 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, pos,
             5000 + ulong(click) * apart);
        send(QEvent::MouseButtonRelease, pos, 5000 + ulong(click) * apart + 20);
    }
    QCOMPARE(opened.count(), opens);
}

void TestCarelessHands::menuMayOutliveItsWidget()
{
    show(0, 6);
    QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, spot(2));
    QTRY_VERIFY(m_widget->findChild<RightMenuDialog *>());
    const QPointer<RightMenuDialog> menu = m_widget->findChild<RightMenuDialog *>();
    m_tree->clear();
    QSignalSpy recovered(m_widget.get(), &Content::signalRightMenuRecover);
    menu->slotRecoverEntry(); // the record has died
    QCOMPARE(recovered.count(), 0);
    m_tree->addFiles(6);
    m_widget->updateData(&m_tree->root, QString());
    QTest::mouseClick(view()->viewport(), Qt::RightButton, {}, spot(1));
    m_widget.reset(); // with the opening still to come, or the menu open
    QCoreApplication::processEvents();
    QVERIFY(!QApplication::activePopupWidget());
}

QTEST_MAIN(TestCarelessHands)
#include "tst_carelesshands.moc"
