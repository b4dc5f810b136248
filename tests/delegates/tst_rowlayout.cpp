#include "delegates/rowlayout.h"

#include "model/scandatamodel.h"
#include "support/datarow.h"

#include <QtTest>

namespace {

constexpr QRect Cell(100, 200, 300, 60);
constexpr QPoint Left(108, 208); // first pixel of the check area, from left to right

RowLayout layoutOf(int column, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return RowLayout(Cell, column, direction);
}

QPoint mirrored(const QPoint &pos)
{
    return {Cell.left() + Cell.right() - pos.x(), pos.y()};
}

} // namespace

class TestRowLayout : public QObject
{
    Q_OBJECT

private slots:
    void checkArea_data();
    void checkArea();
    void nameColumn();
    void locationImage();
    void mirrors();
    void nameAndSuffixShareTheirRoom_data();
    void nameAndSuffixShareTheirRoom();
    void narrowCells_data()
    {
        addRows<QSize>("size",
                       {{"nothing", QSize(0, 0)},
                        {"narrower than the icon", QSize(20, 44)},
                        {"low", QSize(200, 6)}});
    }
    void narrowCells();
};

void TestRowLayout::checkArea_data()
{
    addColumns<QPoint, bool>({"pos", "hit"});

    QTest::newRow("first pixel") << Left << true;
    QTest::newRow("left of it") << Left - QPoint(1, 0) << false;
    QTest::newRow("above it") << Left - QPoint(0, 1) << false;
    QTest::newRow("last pixel") << Left + QPoint(26, 26) << true;
    QTest::newRow("right of it") << Left + QPoint(27, 26) << false;
    QTest::newRow("below it, on the box of a high row") << Left + QPoint(4, 27) << false;
}

void TestRowLayout::checkArea()
{
    QFETCH(QPoint, pos);
    for (int column = 0; column < ScanDataModel::ColumnCount; ++column) {
        QTEST(layoutOf(column).hitsCheckArea(pos), "hit");
        QTEST(layoutOf(column, Qt::RightToLeft).hitsCheckArea(mirrored(pos)), "hit");
    }
}

void TestRowLayout::nameColumn()
{
    const RowLayout layout = layoutOf(ScanDataModel::NameColumn);
    QCOMPARE(layout.checkBox, QRect(108, 222, 16, 16));
    QCOMPARE(layout.icon, QRect(131, 214, 32, 32));
    QCOMPARE(layout.name, QRect(166, 218, 399 - 166 - 4, 24));
    QCOMPARE(layout.repairBadge(), QRect(162 - 13, 245 - 13, 10, 10));
    QVERIFY(layout.hitsIcon({131, 214}));
    QVERIFY(!layout.hitsIcon({163, 214}));
}

void TestRowLayout::locationImage()
{
    const RowLayout layout = layoutOf(ScanDataModel::DateColumn);
    QCOMPARE(layout.locationImage.size(), QSize(24, 24));
    QCOMPARE(layout.locationImage.center().y(), Cell.center().y());
    QVERIFY(Cell.contains(layout.locationImage));
    QVERIFY(!layout.locationImage.intersects(layout.text));
    for (int column : {0, 1, 2, 4})
        QVERIFY(!layoutOf(column).hitsLocationImage(layout.locationImage.center()));
}

void TestRowLayout::mirrors()
{
    for (int column = 0; column < ScanDataModel::ColumnCount; ++column) {
        const RowLayout left = layoutOf(column);
        const RowLayout right = layoutOf(column, Qt::RightToLeft);
        const std::pair<QRect, QRect> pairs[] = {
            {left.checkArea, right.checkArea},
            {left.checkBox, right.checkBox},
            {left.icon, right.icon},
            {left.name, right.name},
            {left.text, right.text},
            {left.locationImage, right.locationImage},
            {left.repairBadge(), right.repairBadge()},
            {left.suffix(50, 20), right.suffix(50, 20)},
        };
        for (const auto &pair : pairs) {
            if (pair.first.isEmpty())
                continue;
            QCOMPARE(pair.second.size(), pair.first.size());
            QCOMPARE(pair.second.topRight(), mirrored(pair.first.topLeft()));
        }
    }
}

void TestRowLayout::nameAndSuffixShareTheirRoom_data()
{
    addColumns<int, int>({"nameWidth", "suffixWidth"});

    QTest::newRow("room for both") << 60 << 40;
    QTest::newRow("name cut to the room") << 189 << 40;
    QTest::newRow("suffix wider than all") << 0 << 500;
}

void TestRowLayout::nameAndSuffixShareTheirRoom()
{
    QFETCH(int, nameWidth);
    QFETCH(int, suffixWidth);
    for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const RowLayout layout = layoutOf(ScanDataModel::NameColumn, direction);
        const QRect text = layout.nameText(suffixWidth);
        const QRect suffix = layout.suffix(nameWidth, suffixWidth);
        QVERIFY(text.isEmpty() || layout.name.contains(text));
        QVERIFY(layout.name.contains(suffix));
        QVERIFY(nameWidth <= text.width());
        QCOMPARE(direction == Qt::LeftToRight ? suffix.left() - layout.name.left()
                                              : layout.name.right() - suffix.right(),
                 nameWidth);
    }
}

void TestRowLayout::narrowCells()
{
    QFETCH(QSize, size);
    for (int column = 0; column < ScanDataModel::ColumnCount; ++column) {
        const RowLayout layout({QPoint(), size}, column);
        QVERIFY(layout.nameText(40).width() >= 0);
        QVERIFY(layout.repairBadge().width() >= 0);
    }
}

QTEST_APPLESS_MAIN(TestRowLayout)
#include "tst_rowlayout.moc"
