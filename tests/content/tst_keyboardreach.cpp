#include "content/sdcardcontentdatawidget.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QApplication>
#include <QMetaMethod>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using Content = SDCardContentDataWidget;

Q_DECLARE_METATYPE(QMetaMethod)

/// Everything without a mouse.
class TestKeyboardReach : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void tabReachesEverything_data();
    void tabReachesEverything();
    void focusIsSeen_data();
    void focusIsSeen();
    void headerWorksByKey_data()
    {
        addRows<bool>("mirrored", {{"left to right", false}, {"right to left", true}});
    }
    void headerWorksByKey();
    void enterClicksButtons_data();
    void enterClicksButtons();
    void focusComesBackFromAPopup();
    void tabBringsTheCurrentItemIntoView_data()
    {
        addRows<int>("mode", {{"grid", 0}, {"list", 2}});
    }
    void tabBringsTheCurrentItemIntoView();

private:
    void show(int mode)
    {
        m_widget->setViewMode(mode);
        m_widget->updateData(&m_tree->root, QString());
        m_widget->resize(900, 600);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowActive(m_widget.data()));
    }
    template <typename Widget>
    Widget *find(const char *name = "") const
    {
        return m_widget->findChild<Widget *>(QLatin1String(name));
    }

    QScopedPointer<RecordTree> m_tree;
    QScopedPointer<Content> m_widget;
};

void TestKeyboardReach::initTestCase()
{
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
    qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
}

void TestKeyboardReach::init()
{
    m_widget.reset(new Content(1));
    m_tree.reset(new RecordTree);
    m_tree->addFiles(40);
    m_tree->root.childFiles.first()->path = QStringLiteral("\\DCIM");
}

void TestKeyboardReach::tabReachesEverything_data()
{
    addColumns<int, QStringList>({"mode", "stops"});
    QTest::newRow("grid") << 0 << QStringList{"allCheckButton", "nameButton", "sizeButton",
                                              "typeButton",     "dateButton", "listView"};
    addRow("list with pane", 1,
           QStringList{"ScanTableHeader", "ScanTableView", "openButton", "scrollArea", "labValue"});
    QTest::newRow("list") << 2 << QStringList{"ScanTableHeader", "ScanTableView"};
}

void TestKeyboardReach::tabReachesEverything()
{
    QFETCH(int, mode);
    QFETCH(QStringList, stops);
    // what the host has in its window comes behind, also behind what is made only when it is needed
    (new QPushButton(m_widget.data()))->setObjectName(QStringLiteral("host"));
    stops << QStringLiteral("host");
    show(mode);
    const auto nameOfFocus = [] {
        const QWidget *focus = QApplication::focusWidget();
        if (!focus)
            return QString();
        return focus->objectName().isEmpty() ? QString(focus->metaObject()->className())
                                             : focus->objectName();
    };
    const auto around = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QStringList seen;
        for (int i = 0; i < stops.size(); ++i) {
            seen << nameOfFocus();
            QTest::keyClick(m_widget->windowHandle(), key, modifiers);
        }
        seen << nameOfFocus();
        return seen;
    };
    QWidget *first = mode == 0 ? static_cast<QWidget *>(find<QPushButton>("allCheckButton"))
                               : find<ScanTableHeader>();
    first->setFocus(Qt::TabFocusReason);
    QStringList expected = stops + stops.mid(0, 1); // and round again: nothing holds the focus
    QCOMPARE(around(Qt::Key_Tab, Qt::NoModifier), expected);
    std::reverse(expected.begin(), expected.end());
    QCOMPARE(around(Qt::Key_Backtab, Qt::ShiftModifier), expected);
}

void TestKeyboardReach::focusIsSeen_data()
{
    addColumns<int, int>({"mode", "stops"});
    QTest::newRow("grid") << 0 << 6;
    QTest::newRow("list with pane") << 1 << 5;
    QTest::newRow("list") << 2 << 2;
}

void TestKeyboardReach::focusIsSeen()
{
    QFETCH(int, mode);
    QFETCH(int, stops);
    show(mode);
    m_widget->setFocusPolicy(Qt::StrongFocus);
    m_widget->setFocus();
    for (int i = 0; i < stops; ++i) {
        QTest::keyClick(m_widget->windowHandle(), Qt::Key_Tab);
        QWidget *focus = QApplication::focusWidget();
        QVERIFY(focus != m_widget.data());
        const QRect place(focus->mapTo(m_widget.data(), QPoint()), focus->size());
        const QImage with = m_widget->grab(place).toImage();
        m_widget->setFocus(Qt::OtherFocusReason);
        const QImage without = m_widget->grab(place).toImage();
        focus->setFocus(Qt::TabFocusReason);
        int different = 0;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                different += with.pixel(x, y) != without.pixel(x, y) ? 1 : 0;
        }
        // more than a text cursor, a line along a side at least
        QVERIFY2(different >= 40, qPrintable(focus->objectName()));
    }
}

void TestKeyboardReach::headerWorksByKey()
{
    QFETCH(bool, mirrored);
    show(2);
    m_widget->setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Key onward = mirrored ? Qt::Key_Left : Qt::Key_Right;
    const Qt::Key back = mirrored ? Qt::Key_Right : Qt::Key_Left;
    QSignalSpy checked(m_widget.data(), &Content::signalItemDataCheck);
    QSignalSpy sorted(m_widget.data(), &Content::signalSortClicked);
    const auto lastSort = [&] { return sorted.last().at(1).value<HeaderViewSortType>(); };
    auto *header = find<ScanTableHeader>();
    header->setFocus(Qt::TabFocusReason);
    const auto press = [&](Qt::Key key) { QTest::keyClick(header, key); };

    press(Qt::Key_Space);
    QCOMPARE(checked.size(), 1);
    QCOMPARE(header->checkState(), int(Qt::Checked));
    QCOMPARE(m_tree->root.childFiles.at(7)->checkState, int(Qt::Checked));
    press(back); // nothing before it
    press(onward);
    press(onward);
    press(Qt::Key_Return);
    QCOMPARE(lastSort(), SizeAscending);
    press(Qt::Key_Space);
    QCOMPARE(lastSort(), SizeDescending);
    press(Qt::Key_End);
    press(onward); // the location does not sort
    press(Qt::Key_Enter);
    QCOMPARE(lastSort(), DateAscending);
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    QCOMPARE(header->checkState(), int(Qt::Unchecked));
    QCOMPARE(sorted.size(), 3);
    QCOMPARE(find<ScanTableView>()->currentIndex().row(), 0);
    press(Qt::Key_Down); // the rows stay while the focus is above them
    QCOMPARE(find<ScanTableView>()->currentIndex().row(), 0);
}

void TestKeyboardReach::enterClicksButtons_data()
{
    addColumns<int, QString, QMetaMethod>({"mode", "button", "signal"});
    QTest::newRow("select all") << 0 << "allCheckButton"
                                << QMetaMethod::fromSignal(&Content::signalItemDataCheck);
    addRow("sort", 0, "sizeButton", QMetaMethod::fromSignal(&Content::signalSortClicked));
    addRow("open", 1, "openButton", QMetaMethod::fromSignal(&Content::signalDoubleClicked));
}

void TestKeyboardReach::enterClicksButtons()
{
    QFETCH(int, mode);
    QFETCH(QString, button);
    QFETCH(QMetaMethod, signal);
    show(mode);
    QSignalSpy spy(m_widget.data(), signal);
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(m_widget->findChild<QPushButton *>(button), key);
    QCOMPARE(spy.size(), 3);
}

void TestKeyboardReach::focusComesBackFromAPopup()
{
    show(0);
    auto *grid = find<ThumbnailGrid>("listView");
    grid->setFocus(Qt::TabFocusReason);
    QTest::keyClick(grid, Qt::Key_Right);
    const QImage before = grid->grab().toImage();
    for (Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent leave(QEvent::FocusOut, reason);
        QApplication::sendEvent(grid, &leave);
        QFocusEvent enter(QEvent::FocusIn, reason);
        QApplication::sendEvent(grid, &enter);
        QCOMPARE(grid->grab().toImage(), before);
    }
}

void TestKeyboardReach::tabBringsTheCurrentItemIntoView()
{
    QFETCH(int, mode);
    m_tree->addFiles(400);
    show(mode);
    QAbstractItemView *view = viewOf(*m_widget, mode);
    view->setCurrentIndex(view->model()->index(200, 0));
    view->scrollToTop();
    view->clearFocus();
    view->setFocus(Qt::MouseFocusReason);
    QCOMPARE(view->verticalScrollBar()->value(), 0); // what is clicked at stays where it is
    view->clearFocus();
    view->setFocus(Qt::TabFocusReason);
    QVERIFY(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
}

QTEST_MAIN(TestKeyboardReach)
#include "tst_keyboardreach.moc"
