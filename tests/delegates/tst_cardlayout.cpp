#include "delegates/cardlayout.h"
#include "support/datarow.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::LayoutDirection)

class TestCardLayout : public QObject
{
    Q_OBJECT

private slots:
    void hits_data();
    void hits();
    void standsWhereItBelongs();
    void mirrorsInRightToLeft();
    void fitsPictures_data();
    void fitsPictures();
    void badgeStaysInsidePicture_data();
    void badgeStaysInsidePicture();
};

void TestCardLayout::hits_data()
{
    addColumns<QPoint, Qt::LayoutDirection, bool, bool>({"pos", "direction", "onBox", "onPreview"});

    const auto ltr = Qt::LeftToRight;
    const auto rtl = Qt::RightToLeft;
    QTest::newRow("middle of the box") << QPoint(16, 16) << ltr << true << false;
    QTest::newRow("first pixel of the slack") << QPoint(3, 3) << ltr << true << false;
    QTest::newRow("left of the slack") << QPoint(2, 3) << ltr << false << false;
    QTest::newRow("above the slack") << QPoint(3, 2) << ltr << false << false;
    QTest::newRow("last pixel of the slack") << QPoint(28, 28) << ltr << true << false;
    QTest::newRow("one right of the slack") << QPoint(29, 28) << ltr << false << false;
    QTest::newRow("one below the slack") << QPoint(28, 29) << ltr << false << false;
    QTest::newRow("first pixel of the preview") << QPoint(55, 23) << ltr << false << true;
    QTest::newRow("left of the preview") << QPoint(54, 23) << ltr << false << false;
    QTest::newRow("above the preview") << QPoint(55, 22) << ltr << false << false;
    QTest::newRow("last pixel of the preview") << QPoint(94, 62) << ltr << false << true;
    QTest::newRow("right of the preview") << QPoint(95, 62) << ltr << false << false;
    QTest::newRow("below the preview") << QPoint(94, 63) << ltr << false << false;
    QTest::newRow("mirrored: the box has moved") << QPoint(16, 16) << rtl << false << false;
    QTest::newRow("mirrored: last of the slack") << QPoint(146, 28) << rtl << true << false;
    QTest::newRow("mirrored: one past it") << QPoint(147, 28) << rtl << false << false;
    QTest::newRow("mirrored: the preview has not") << QPoint(55, 23) << rtl << false << true;
}

void TestCardLayout::hits()
{
    QFETCH(QPoint, pos);
    QFETCH(Qt::LayoutDirection, direction);
    const QPoint origin(300, 250); // cells do not stand at the origin
    const CardLayout layout(QRect(origin, CardLayout::sizeHint()), direction);
    QTEST(layout.hitsCheckBox(origin + pos), "onBox");
    QTEST(layout.hitsPreviewButton(origin + pos), "onPreview");
}

void TestCardLayout::standsWhereItBelongs()
{
    const CardLayout layout(QRect(10, 20, 160, 130)); // wider and higher than a card
    QCOMPARE(layout.card, QRect(10, 20, 160, 124));
    QCOMPARE(layout.checkBox, QRect(18, 28, 16, 16));
    QCOMPARE(layout.icon, QRect(58, 29, 64, 64));
    QCOMPARE(layout.thumbArea, QRect(12, 22, 156, 82));
    QCOMPARE(layout.name, QRect(18, 107, 144, 22));
    QCOMPARE(layout.countLine(20), QRect(80, 128, 20, 18));
    QCOMPARE(layout.countLine(500), QRect(18, 128, 144, 18));
    QCOMPARE(layout.overlay(layout.icon), QRect(70, 41, 40, 40));
    QCOMPARE(layout.overlay(QRect()), QRect(70, 43, 40, 40));
}

void TestCardLayout::mirrorsInRightToLeft()
{
    const QRect cell(10, 20, 150, 124);
    const CardLayout layout(cell, Qt::RightToLeft);
    QCOMPARE(layout.checkBox, QRect(136, 28, 16, 16));
    QCOMPARE(layout.repairBadge(layout.thumbArea), QRect(19, 27, 20, 20));
    QCOMPARE(layout.name, CardLayout(cell).name);
}

void TestCardLayout::fitsPictures_data()
{
    addColumns<QSize, QRect>({"picture", "drawn"});

    QTest::newRow("small: as it is") << QSize(100, 60) << QRect(27, 13, 96, 58);
    QTest::newRow("wide") << QSize(300, 100) << QRect(2, 18, 146, 48);
    QTest::newRow("exactly the area") << QSize(150, 82) << QRect(2, 2, 146, 80);
    QTest::newRow("one row too high") << QSize(110, 83) << QRect(23, 2, 104, 80);
    QTest::newRow("high") << QSize(146, 194) << QRect(46, 2, 57, 80);
    QTest::newRow("one column too wide") << QSize(151, 82) << QRect(2, 2, 146, 79);
    // 150.0 / 49 * 49 is below 150 in floating point
    QTest::newRow("scale without an exact inverse") << QSize(4900, 490) << QRect(2, 35, 146, 13);
    QTest::newRow("enormous") << QSize(60000, 40000) << QRect(15, 2, 119, 80);
}

void TestCardLayout::fitsPictures()
{
    QFETCH(QSize, picture);
    QTEST(CardLayout(QRect(0, 0, 150, 124)).thumbnail(picture), "drawn");
}

void TestCardLayout::badgeStaysInsidePicture_data()
{
    addColumns<QRect, QRect>({"picture", "badge"});

    QTest::newRow("a card's picture") << QRect(2, 2, 146, 82) << QRect(121, 7, 20, 20);
    QTest::newRow("narrower than the badge") << QRect(40, 2, 12, 80) << QRect(40, 7, 12, 12);
    QTest::newRow("lower than the badge") << QRect(2, 40, 146, 10) << QRect(131, 40, 10, 10);
    QTest::newRow("no picture") << QRect() << QRect(0, 0, 0, 0);
}

void TestCardLayout::badgeStaysInsidePicture()
{
    QFETCH(QRect, picture);
    QTEST(CardLayout(QRect(0, 0, 150, 124)).repairBadge(picture), "badge");
}

QTEST_APPLESS_MAIN(TestCardLayout)
#include "tst_cardlayout.moc"
