#include "model/headerview.h"
#include "support/datarow.h"

#include <QLayout>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(QVector<int>)

class TestHeaderView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<Qt::CheckState>("Qt::CheckState"); }
    void clicksCycle_data();
    void clicksCycle();
    void shownSortIsWhereTheNextClickStarts();
    void checkAllClick_data();
    void checkAllClick();
    void unknownCheckStateChangesNothing();
    void hoverChangesOnlyTheEmptyBox();
    void widthClass_data();
    void widthClass();
    void rightMarginFollowsTheRightEnd();
};

void TestHeaderView::clicksCycle_data()
{
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<QVector<int>>("types");
    QTest::addColumn<QStringList>("states"); // of the four buttons at the end

    const QString none = QStringLiteral("default");
    const QString up = QStringLiteral("ascend");
    const QString down = QStringLiteral("descend");
    addRow("same button, to and fro", QStringList{"sizeButton", "sizeButton", "sizeButton"},
           QVector<int>{3, 4, 3}, QStringList{none, up, none, none});
    addRow("another button starts ascending", QStringList{"nameButton", "sizeButton"},
           QVector<int>{1, 3}, QStringList{none, up, none, none});
    addRow("no memory of an earlier direction",
           QStringList{"dateButton", "dateButton", "typeButton", "dateButton"},
           QVector<int>{7, 8, 5, 7}, QStringList{none, none, none, up});
    addRow("descending at the end", QStringList{"typeButton", "typeButton"}, QVector<int>{5, 6},
           QStringList{none, none, down, none});
    QTest::newRow("the path does not sort") << QStringList{"nameButton", "pathButton"}
                                            << QVector<int>{1} << QStringList{up, none, none, none};
}

static QStringList statesOf(const HeaderView &header)
{
    QStringList states;
    for (const char *name : {"nameButton", "sizeButton", "typeButton", "dateButton"})
        states +=
            header.findChild<QPushButton *>(QLatin1String(name))->property("state").toString();
    return states;
}

void TestHeaderView::clicksCycle()
{
    QFETCH(QStringList, clicks);
    QFETCH(QVector<int>, types);
    QFETCH(QStringList, states);
    HeaderView header;
    QVector<int> emitted;
    connect(&header, &HeaderView::signalSortClicked, this,
            [&](HeaderViewSortType type) { emitted += type; });
    for (const QString &name : clicks)
        header.findChild<QPushButton *>(name)->click();
    QCOMPARE(emitted, types);
    QCOMPARE(statesOf(header), states);
}

void TestHeaderView::shownSortIsWhereTheNextClickStarts()
{
    HeaderView header;
    QSignalSpy sorted(&header, &HeaderView::signalSortClicked);
    header.resetSort();
    QCOMPARE(statesOf(header), QStringList({"ascend", "default", "default", "default"}));
    header.setSortType(SizeDescending);
    QCOMPARE(statesOf(header), QStringList({"default", "descend", "default", "default"}));
    QCOMPARE(sorted.size(), 0);
    header.findChild<QPushButton *>("sizeButton")->click();
    QCOMPARE(header.sortType(), SizeAscending);

    header.setSortType(static_cast<HeaderViewSortType>(99)); // from a host that knows more sorts
    QCOMPARE(header.sortType(), NoSort);
}

void TestHeaderView::checkAllClick_data()
{
    addColumns<int, int>({"before", "after"});
    QTest::newRow("unchecked") << 0 << 2;
    QTest::newRow("half checked checks all") << 1 << 2;
    QTest::newRow("checked") << 2 << 0;
}

void TestHeaderView::checkAllClick()
{
    QFETCH(int, before);
    QFETCH(int, after);
    HeaderView header;
    header.setCheckState(before);
    QSignalSpy checked(&header, &HeaderView::signalAllChecked);
    header.findChild<QPushButton *>("checkAllButton")->click();
    QCOMPARE(checked.size(), 1);
    QCOMPARE(int(checked.first().first().value<Qt::CheckState>()), after);
    QCOMPARE(header.checkState(), after);
}

void TestHeaderView::unknownCheckStateChangesNothing()
{
    HeaderView header;
    header.setCheckState(Qt::Checked);
    QTest::ignoreMessage(QtDebugMsg, "HeaderView::setCheckState unknown state =  7");
    header.setCheckState(7);
    QCOMPARE(header.checkState(), int(Qt::Checked));
}

void TestHeaderView::hoverChangesOnlyTheEmptyBox()
{
    HeaderView header;
    auto *box = header.findChild<QPushButton *>("checkAllButton");
    const auto picture = [box] { return box->icon().pixmap(16, 16).toImage(); };
    for (int state : {0, 1, 2}) {
        header.setCheckState(state);
        const QImage resting = picture();
        QVERIFY(!resting.isNull());
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(box, &enter);
        QCOMPARE(picture() != resting, state == 0);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(box, &leave);
        QCOMPARE(picture(), resting);
    }
}

void TestHeaderView::widthClass_data()
{
    addColumns<int, bool>({"width", "large"});
    QTest::newRow("far below") << 500 << false;
    QTest::newRow("last small one") << 1000 << false;
    QTest::newRow("first large one") << 1001 << true;
}

void TestHeaderView::widthClass()
{
    QFETCH(int, width);
    QFETCH(bool, large);
    HeaderView header;
    header.resize(width - 1, 30);
    header.show();
    QVERIFY(QTest::qWaitForWindowExposed(&header));
    QSignalSpy resized(&header, &HeaderView::signalResize);
    header.resize(width, 30);
    QCOMPARE(resized.size(), 1);
    QCOMPARE(resized.first().first().toBool(), large);

    const auto right = [&](const char *name) {
        return header.findChild<QPushButton *>(QLatin1String(name))->geometry().right();
    };
    const auto left = [&](const char *name) {
        return header.findChild<QPushButton *>(QLatin1String(name))->geometry().left();
    };
    QCoreApplication::sendPostedEvents(&header, QEvent::LayoutRequest);
    const int plain = left("dateButton") - right("typeButton");
    QCOMPARE(left("sizeButton") - right("nameButton") - plain, large ? 64 : 0);
    QCOMPARE(left("typeButton") - right("sizeButton") - plain, large ? 72 : 0);
}

void TestHeaderView::rightMarginFollowsTheRightEnd()
{
    HeaderView header;
    const auto margins = [&] { return header.layout()->contentsMargins(); };
    QCOMPARE(margins(), QMargins(11, 0, 0, 0));
    header.rightEndWidget()->show();
    QCOMPARE(margins(), QMargins(11, 0, 8, 0));
    header.rightEndWidget()->hide();
    QCOMPARE(margins(), QMargins(11, 0, 0, 0));
}

QTEST_MAIN(TestHeaderView)
#include "tst_headerview.moc"
