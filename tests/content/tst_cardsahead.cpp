#include "content/cardsahead.h"
#include "support/datarow.h"

#include <QtTest>

using Rows = QVector<int>;
Q_DECLARE_METATYPE(GridGeometry::Run)

class TestCardsAhead : public QObject
{
    Q_OBJECT

private slots:
    void goesOnTheWayThatWasScrolled_data();
    void goesOnTheWayThatWasScrolled();
    void startsAgainWithOtherRows();
};

void TestCardsAhead::goesOnTheWayThatWasScrolled_data()
{
    using Run = GridGeometry::Run;
    addColumns<Run, Run, int, Rows>({"before", "shown", "rowCount", "prepared"});
    QTest::newRow("first page") << Run{0, -1} << Run{0, 2} << 100 << Rows{3, 4, 5};
    QTest::newRow("down") << Run{0, 2} << Run{3, 5} << 100 << Rows{6, 7, 8};
    QTest::newRow("up") << Run{30, 32} << Run{27, 29} << 100 << Rows{26, 25, 24};
    QTest::newRow("no whole page left") << Run{0, 2} << Run{3, 5} << 8 << Rows{6, 7};
    QTest::newRow("back from the end") << Run{0, 2} << Run{6, 8} << 9 << Rows{5, 4, 3};
    QTest::newRow("down from the top") << Run{3, 5} << Run{0, 2} << 9 << Rows{3, 4, 5};
    QTest::newRow("all are shown") << Run{0, -1} << Run{0, 2} << 3 << Rows{};
    QTest::newRow("none") << Run{0, 2} << Run{0, -1} << 0 << Rows{};
}

void TestCardsAhead::goesOnTheWayThatWasScrolled()
{
    QFETCH(GridGeometry::Run, before);
    QFETCH(GridGeometry::Run, shown);
    QFETCH(int, rowCount);
    QFETCH(Rows, prepared);
    Rows rows;
    CardsAhead ahead([&rows](int row) { rows.append(row); });
    ahead.follow(before, 100);
    ahead.follow(shown, rowCount);
    QTRY_COMPARE(rows, prepared);
    ahead.follow(shown, rowCount); // painted again where it is
    bool later = false;
    CardsAhead another([&later](int) { later = true; }); // its timer would be the second one
    another.follow({0, 0}, 2);
    QTRY_VERIFY(later);
    QCOMPARE(rows, prepared);
}

void TestCardsAhead::startsAgainWithOtherRows()
{
    Rows rows;
    CardsAhead ahead([&rows](int row) { rows.append(row); });
    ahead.follow({0, 1}, 10);
    QTRY_COMPARE(rows, Rows({2, 3}));
    ahead.forget();
    ahead.follow({0, 1}, 10);
    QTRY_COMPARE(rows, Rows({2, 3, 2, 3}));
}

QTEST_GUILESS_MAIN(TestCardsAhead)
#include "tst_cardsahead.moc"
