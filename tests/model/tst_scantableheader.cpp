#include "model/columnfit.h"
#include "model/headersection.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "support/datarow.h"
#include "support/pixels.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <numeric>

namespace {

/// A table with our header; five columns, no rows.
struct Table
{
    explicit Table(Qt::LayoutDirection direction = Qt::LeftToRight, int width = 1000)
    {
        view.setLayoutDirection(direction);
        view.setHorizontalHeader(header);
        view.setModel(&model);
        view.setFrameShape(QFrame::NoFrame);
        view.verticalHeader()->hide();
        view.resize(width, 300);
        view.show();
        header->fitColumns(view.viewport()->width());
        QObject::connect(header, &ScanTableHeader::signalSortClicked, header,
                         [this](HeaderViewSortType type) { sorts += type; });
        QObject::connect(header, &ScanTableHeader::signalAllChecked, header,
                         [this](Qt::CheckState state) { checks += state; });
    }

    /// A point \a fromLeading pixels behind the section's leading edge.
    QPoint at(int section, int fromLeading, int y = HeaderMetrics::Height / 2) const
    {
        const int left = header->sectionViewportPosition(section);
        const int x = header->isRightToLeft()
            ? left + header->sectionSize(section) - 1 - fromLeading
            : left + fromLeading;
        return {x, y};
    }
    QPoint beforeTrailing(int section, int distance) const
    {
        return at(section, header->sectionSize(section) - distance);
    }
    void click(const QPoint &pos) const
    {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, pos);
    }
    void move(const QPoint &pos, Qt::MouseButtons buttons = Qt::NoButton) const
    {
        QMouseEvent event(QEvent::MouseMove, pos, Qt::NoButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(header->viewport(), &event);
    }
    int sumOfWidths() const
    {
        int sum = 0;
        for (int i = 0; i < header->count(); ++i)
            sum += header->sectionSize(i); // 0 when hidden
        return sum;
    }

    ScanDataModel model;
    QTableView view;
    ScanTableHeader *header = new ScanTableHeader; // the view's
    QVector<int> sorts;
    QVector<int> checks;
};

constexpr Qt::LayoutDirection Directions[] = {Qt::LeftToRight, Qt::RightToLeft};

const char *nameOf(Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? "RTL" : "LTR";
}

} // namespace

Q_DECLARE_METATYPE(QVector<int>)

class TestScanTableHeader : public QObject
{
    Q_OBJECT

private slots:
    void clickZones_data();
    void clickZones();
    void sortsCycle();
    void quickClicksAllCount();
    void boxIsPaintedWhereItIsHit_data()
    {
        addRows<Qt::LayoutDirection>("direction",
                                     {{"LTR", Qt::LeftToRight}, {"RTL", Qt::RightToLeft}});
    }
    void boxIsPaintedWhereItIsHit();
    void dragStopsAtMinimum_data();
    void dragStopsAtMinimum();
    void edgeShowsItsCursor();
    void otherColumnsAreResizedByTheBase();
    void textNeverReachesArrowOrEnd_data();
    void textNeverReachesArrowOrEnd();
    void columnsFillTheViewport_data();
    void columnsFillTheViewport();
    void narrowFit_data();
    void narrowFit();
    void draggedWidthSurvivesUntilTheViewportChanges();
    void hiddenColumnSurvivesTheModel();
};

void TestScanTableHeader::clickZones_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("fromLeading"); // negative: before the trailing edge
    QTest::addColumn<int>("y");
    QTest::addColumn<QVector<int>>("sorts");
    QTest::addColumn<QVector<int>>("checks");

    const int middle = HeaderMetrics::Height / 2;
    const QVector<int> none;
    for (Qt::LayoutDirection direction : Directions) {
        const auto row = [&](const char *name, int section, int from, int y,
                             const QVector<int> &sorts, const QVector<int> &checks) {
            QTest::addRow("%s, %s", nameOf(direction), name)
                << direction << section << from << y << sorts << checks;
        };
        row("one before the box", 0, 3, middle, {1}, none);
        row("first pixel of the box", 0, 4, middle, none, {2});
        row("last pixel of the box", 0, 27, middle, none, {2});
        row("one behind the box", 0, 28, middle, {1}, none);
        row("one above the box", 0, 16, 3, {1}, none);
        row("top of the box", 0, 16, 4, none, {2});
        row("bottom of the box", 0, 16, 27, none, {2});
        row("one below the box", 0, 16, 28, {1}, none);
        row("name, one before its edge", 0, -7, middle, {1}, none);
        row("name, its edge", 0, -6, middle, none, none);
        row("size, the name's edge", 1, 6, middle, none, none);
        row("size, first pixel", 1, 7, middle, {3}, none);
        row("type, near the leading edge", 2, 6, middle, none, none);
        row("type, past the leading edge", 2, 7, middle, {5}, none);
        row("type, last pixel", 2, -7, middle, {5}, none);
        row("type, five before its end", 2, -5, middle, none, none);
        row("date", 3, 40, middle, {7}, none);
        row("the location does not sort", 4, 40, middle, none, none);
        row("nor at its end", 4, -3, middle, none, none);
    }
}

void TestScanTableHeader::clickZones()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, section);
    QFETCH(int, fromLeading);
    QFETCH(int, y);
    QFETCH(QVector<int>, sorts);
    QFETCH(QVector<int>, checks);
    Table table(direction);
    QPoint pos = fromLeading < 0 ? table.beforeTrailing(section, -fromLeading)
                                 : table.at(section, fromLeading);
    pos.setY(y);
    table.click(pos);
    QCOMPARE(table.sorts, sorts);
    QCOMPARE(table.checks, checks);
}

void TestScanTableHeader::sortsCycle()
{
    Table table;
    table.click(table.at(1, 20));
    table.click(table.at(1, 20));
    table.click(table.at(0, 60));
    QCOMPARE(table.sorts, QVector<int>({3, 4, 1}));
    QCOMPARE(table.header->sortIndicatorSection(), 0);

    table.header->setSortType(TypeDescending); // chosen elsewhere: nothing is emitted
    QCOMPARE(table.header->sortIndicatorSection(), 2);
    QCOMPARE(table.header->sortIndicatorOrder(), Qt::DescendingOrder);
    table.click(table.at(2, 20));
    QCOMPARE(table.sorts, QVector<int>({3, 4, 1, 5}));

    table.header->resetSort();
    QCOMPARE(table.header->sortType(), NoSort);
    QCOMPARE(table.sorts.size(), 4);
}

void TestScanTableHeader::quickClicksAllCount()
{
    Table table;
    table.click(table.at(1, 20));
    QTest::mouseDClick(table.header->viewport(), Qt::LeftButton, {}, table.at(1, 20));
    QCOMPARE(table.sorts, QVector<int>({3, 4}));
    table.click(table.at(0, 16));
    QTest::mouseDClick(table.header->viewport(), Qt::LeftButton, {}, table.at(0, 16));
    QCOMPARE(table.checks, QVector<int>({2, 0}));
    table.header->setCheckState(Qt::PartiallyChecked); // which is on the way to all
    QTest::mouseClick(table.header->viewport(), Qt::RightButton, {}, table.at(0, 16));
    QCOMPARE(table.checks.size(), 2);
    table.click(table.at(0, 16));
    QCOMPARE(table.checks.last(), int(Qt::Checked));
}

void TestScanTableHeader::boxIsPaintedWhereItIsHit()
{
    QFETCH(Qt::LayoutDirection, direction);
    Table table(direction);
    const auto picture = [&] { return table.header->viewport()->grab().toImage(); };
    const QImage empty = picture();
    table.header->setCheckState(Qt::Checked);
    const QRect painted = difference(empty, picture());
    const QPoint first = table.at(0, 8, 8);
    const QPoint last = table.at(0, 23, 23);
    const QRect box = QRect(QPoint(qMin(first.x(), last.x()), first.y()),
                            QPoint(qMax(first.x(), last.x()), last.y()));
    QVERIFY2(box.contains(painted) && painted.width() >= 14 && painted.height() >= 14,
             qPrintable(QStringLiteral("%1 %2 %3x%4")
                            .arg(painted.x())
                            .arg(painted.y())
                            .arg(painted.width())
                            .arg(painted.height())));
}

void TestScanTableHeader::dragStopsAtMinimum_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("by"); // towards the trailing side
    QTest::addColumn<int>("width");
    for (Qt::LayoutDirection direction : Directions) {
        const auto row = [&](const char *name, int by, int width) {
            QTest::addRow("%s, %s", nameOf(direction), name) << direction << by << width;
        };
        row("wider", 25, 325);
        row("narrower", -60, 240);
        row("to the minimum", -80, 220);
        row("one past the minimum", -81, 220);
        row("out of the window", -500, 220);
    }
}

void TestScanTableHeader::dragStopsAtMinimum()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, by);
    QFETCH(int, width);
    Table table(direction);
    table.header->resizeSection(0, 300);
    const QPoint start = table.beforeTrailing(0, 4);
    const QPoint delta(direction == Qt::RightToLeft ? -by : by, 0);
    QTest::mousePress(table.header->viewport(), Qt::LeftButton, {}, start);
    table.move(start + delta / 2, Qt::LeftButton);
    table.move(start + delta, Qt::LeftButton);
    QCOMPARE(table.header->sectionSize(0), width);
    QTest::mouseRelease(table.header->viewport(), Qt::LeftButton, {}, start + delta);
    table.move(start + delta + QPoint(40, 0)); // over is over
    QCOMPARE(table.header->sectionSize(0), width);
    QVERIFY(table.sorts.isEmpty());
}

void TestScanTableHeader::edgeShowsItsCursor()
{
    Table table;
    const auto shape = [&] { return table.header->cursor().shape(); };
    table.move(table.beforeTrailing(0, 30));
    QCOMPARE(shape(), Qt::ArrowCursor);
    table.move(table.beforeTrailing(0, 6));
    QCOMPARE(shape(), Qt::SplitHCursor);
    table.move(table.beforeTrailing(0, 7));
    QCOMPARE(shape(), Qt::ArrowCursor);

    // a drag stopped by the minimum leaves the pointer away from the edge
    table.header->resizeSection(0, 220);
    const QPoint start = table.beforeTrailing(0, 0);
    QTest::mousePress(table.header->viewport(), Qt::LeftButton, {}, start);
    table.move(start - QPoint(50, 0), Qt::LeftButton);
    QCOMPARE(shape(), Qt::SplitHCursor);
    QTest::mouseRelease(table.header->viewport(), Qt::LeftButton, {}, start - QPoint(50, 0));
    QCOMPARE(shape(), Qt::ArrowCursor);
}

void TestScanTableHeader::otherColumnsAreResizedByTheBase()
{
    Table table;
    const int before = table.header->sectionSize(2);
    const QPoint start = table.beforeTrailing(2, 2);
    QTest::mousePress(table.header->viewport(), Qt::LeftButton, {}, start);
    table.move(start + QPoint(30, 0), Qt::LeftButton);
    QTest::mouseRelease(table.header->viewport(), Qt::LeftButton, {}, start + QPoint(30, 0));
    QCOMPARE(table.header->sectionSize(2), before + 30);

    table.header->resizeSection(0, 10); // by whatever hand
    QCOMPARE(table.header->sectionSize(0), 220);
}

void TestScanTableHeader::textNeverReachesArrowOrEnd_data()
{
    addColumns<Qt::LayoutDirection, int, int, int>({"direction", "section", "width", "text"});
    for (Qt::LayoutDirection direction : Directions) {
        for (int section : {0, 1}) {
            for (int width : {60, 100, 220}) {
                for (int text : {0, 30, 400})
                    QTest::addRow("%s, section %d, %d wide, text %d", nameOf(direction), section,
                                  width, text)
                        << direction << section << width << text;
            }
        }
    }
}

void TestScanTableHeader::textNeverReachesArrowOrEnd()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, section);
    QFETCH(int, width);
    QFETCH(int, text);
    const HeaderSection layout(QRect(37, 0, width, 32), section, direction);
    const QRect textRect = layout.textRect(text, true);
    const QRect arrow = layout.arrowRect(text);
    QVERIFY(textRect.isEmpty() || layout.rect.contains(textRect));
    QVERIFY(layout.rect.contains(arrow));
    QVERIFY(!textRect.intersects(arrow) && !layout.checkBox.intersects(arrow)
            && !layout.checkBox.intersects(textRect));
    QCOMPARE(arrow.left() < textRect.left(), direction == Qt::RightToLeft);
    // what the section asks for is enough for its text
    const int room = HeaderSection::roomBesideText(section, true);
    const HeaderSection roomy(QRect(0, 0, text + room, 32), section, direction);
    QCOMPARE(roomy.textRect(text, true).width(), text);
}

void TestScanTableHeader::columnsFillTheViewport_data()
{
    addColumns<int, bool>({"width", "pane"});
    for (int width : {640, 641, 799, 960, 1000, 1001, 1366, 1920, 3840}) {
        for (bool pane : {false, true})
            QTest::addRow("%d%s", width, pane ? ", pane" : "") << width << pane;
    }
}

void TestScanTableHeader::columnsFillTheViewport()
{
    QFETCH(int, width);
    QFETCH(bool, pane);
    Table table(Qt::LeftToRight, width);
    table.header->setDetailPaneShown(pane);
    table.header->fitColumns(width);
    QCOMPARE(table.sumOfWidths(), width);
    QCOMPARE(table.header->isSectionHidden(4), pane);
    QVERIFY(table.header->sectionSize(0) >= 220);
    for (int section = 1; section < (pane ? 4 : 5); ++section)
        QVERIFY(table.header->sectionSize(section) >= table.header->sectionSizeHint(section));
    // and back again
    table.header->setDetailPaneShown(!pane);
    QCOMPARE(table.sumOfWidths(), width);
}

void TestScanTableHeader::narrowFit_data()
{
    addColumns<int, QVector<int>>({"viewport", "widths"});
    // others want 100, 80, 200 and need 60, 50, 70
    QTest::newRow("plenty") << 700 << QVector<int>{320, 100, 80, 200};
    QTest::newRow("first at its minimum") << 600 << QVector<int>{220, 100, 80, 200};
    QTest::newRow("one less: the last gives") << 599 << QVector<int>{220, 100, 80, 199};
    QTest::newRow("the last has no more to give") << 470 << QVector<int>{220, 100, 80, 70};
    QTest::newRow("the one before it gives") << 469 << QVector<int>{220, 100, 79, 70};
    QTest::newRow("all at their minimum") << 400 << QVector<int>{220, 60, 50, 70};
    QTest::newRow("nothing left to give") << 10 << QVector<int>{220, 60, 50, 70};
}

void TestScanTableHeader::narrowFit()
{
    QFETCH(int, viewport);
    QFETCH(QVector<int>, widths);
    const std::vector<int> fitted = ColumnFit::fit(viewport, 220, {{100, 60}, {80, 50}, {200, 70}});
    QCOMPARE(QVector<int>(fitted.begin(), fitted.end()), widths);
}

void TestScanTableHeader::draggedWidthSurvivesUntilTheViewportChanges()
{
    Table table;
    const int width = table.view.viewport()->width();
    table.header->resizeSection(0, 500); // what a drag does
    table.header->fitColumns(width);
    table.model.clear(); // an update is a reset
    QCOMPARE(table.header->sectionSize(0), 500);
    table.header->fitColumns(width - 1);
    QCOMPARE(table.sumOfWidths(), width - 1);
}

void TestScanTableHeader::hiddenColumnSurvivesTheModel()
{
    QTableView view;
    auto *header = new ScanTableHeader;
    view.setHorizontalHeader(header);
    header->setDetailPaneShown(true); // before there is a column to hide
    header->fitColumns(900);
    ScanDataModel model;
    view.setModel(&model);
    QVERIFY(header->isSectionHidden(4));
    model.clear();
    QVERIFY(header->isSectionHidden(4));
}

QTEST_MAIN(TestScanTableHeader)
#include "tst_scantableheader.moc"
