#include "content/scantableview.h"
#include "content/thumbnailgrid.h"
#include "support/recordtree.h"

#include "model/scandatamodel.h"
#include "support/datarow.h"
#include "support/eventcounter.h"

#include <QBackingStore>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QRubberBand>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>

namespace {

constexpr int RowHeight = 40;

/// Without the dots around the current one, which belong to the window and not to the cell, and in
/// another colour under the mouse.
class PlainCells : public QStyledItemDelegate
{
protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->state & QStyle::State_MouseOver)
            option->backgroundBrush = Qt::red;
        option->state &= ~QStyle::State_HasFocus;
    }
};

template <class View>
class Opened : public View
{
public:
    using View::visualRegionForSelection;
};

} // namespace

class TestScanTableView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void rowsLieAsInAStockTable_data();
    void rowsLieAsInAStockTable();
    void cleanup() { m_table.reset(); }
    void scrolledPixelsAreThoseOfAFreshPaint_data()
    {
        addRows<bool>("isGrid", {{"table", false}, {"grid", true}});
    }
    void scrolledPixelsAreThoseOfAFreshPaint();
    void bandSelectsWhatAPlainWalkWould_data();
    void bandSelectsWhatAPlainWalkWould();
    void bandScrollsAtTheEdge_data();
    void bandScrollsAtTheEdge();
    void hoverRepaintsTheRowsConcerned();
    void leavingClearsTheHoverCellOnce();

private:
    QPoint at(int row, int y, int x = 20) const
    {
        return {x, m_table->rowViewportPosition(row) + y};
    }
    QVector<int> selectedRows() const;

    RecordTree m_tree;
    ScanDataModel m_model;
    QScopedPointer<ScanTableView> m_table;
};

void TestScanTableView::init()
{
    m_tree.clear();
    m_tree.addFiles(60);
    m_model.openFolder(&m_tree.root);
    m_table.reset(new ScanTableView);
    m_table->setModel(&m_model);
    m_table->setRowHeight(RowHeight);
    m_table->resize(700, 500);
    m_table->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_table.data()));
}

void TestScanTableView::rowsLieAsInAStockTable_data()
{
    addColumns<int, int, bool, bool>({"rows", "width", "rightToLeft", "byPixel"});
    QTest::newRow("all columns in view") << 60 << 700 << false << true;
    QTest::newRow("scrolled by columns") << 60 << 250 << false << false;
    QTest::newRow("scrolled by pixels") << 60 << 250 << false << true;
    QTest::newRow("right to left") << 60 << 250 << true << true;
    QTest::newRow("right to left, by columns") << 60 << 250 << true << false;
    QTest::newRow("fewer rows than room") << 3 << 250 << false << false;
    QTest::newRow("a million pixels") << 30'000 << 700 << false << true;
}

/// One random step after the other in both, then all that they say and show must be the same.
void TestScanTableView::rowsLieAsInAStockTable()
{
    QFETCH(int, rows);
    QFETCH(int, width);
    QFETCH(bool, rightToLeft);
    QFETCH(bool, byPixel);
    m_table.reset();
    m_tree.clear();
    m_tree.addFiles(rows);
    m_model.openFolder(&m_tree.root);
    Opened<RowTable> ours;
    Opened<QTableView> stock;
    stock.setShowGrid(false);
    stock.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    stock.verticalHeader()->hide();
    stock.verticalHeader()->setMinimumSectionSize(RowHeight);
    stock.verticalHeader()->setDefaultSectionSize(RowHeight);
    for (QTableView *view : {static_cast<QTableView *>(&ours), static_cast<QTableView *>(&stock)}) {
        view->setModel(&m_model);
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        view->setHorizontalScrollMode(byPixel ? QAbstractItemView::ScrollPerPixel
                                              : QAbstractItemView::ScrollPerItem);
        view->horizontalHeader()->moveSection(4, 1);
        view->setColumnHidden(2, true);
        view->resize(width, 333);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));
    }
    ours.setRowHeight(RowHeight);
    stock.setSelectionModel(ours.selectionModel());

    QRandomGenerator random(7);
    QVector<TreeItemData *> dead;
    const auto both = [&](const auto &work) {
        work(static_cast<QTableView &>(ours));
        work(static_cast<QTableView &>(stock));
    };
    for (int step = 0; step < 60; ++step) {
        const int count = m_model.rowCount();
        const QModelIndex index = m_model.index(random.bounded(count), random.bounded(5));
        switch (step % 6) {
        case 0:
            if (TreeItemData *item = m_model.itemAt(random.bounded(count))) {
                m_tree.kill(item);
                dead.append(item);
            }
            break;
        case 1:
            ours.selectionModel()->select(index,
                                          QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
            break;
        case 2:
            both([value = random.bounded(count * RowHeight)](QTableView &view) {
                view.verticalScrollBar()->setValue(value);
            });
            break;
        case 3:
            if (step > 30) {
                for (TreeItemData *item : qAsConst(dead))
                    m_tree.root.childFiles.removeOne(item);
                m_tree.addFiles(10);
                m_model.openFolder(&m_tree.root);
            }
            break;
        default: {
            const auto hint = QAbstractItemView::ScrollHint(random.bounded(4));
            both([&](QTableView &view) { view.scrollTo(index, hint); });
        }
        }
        QCoreApplication::processEvents();
        for (const auto bar :
             {&QAbstractScrollArea::verticalScrollBar, &QAbstractScrollArea::horizontalScrollBar}) {
            const QScrollBar *mine = (ours.*bar)();
            const QScrollBar *theirs = (stock.*bar)();
            QCOMPARE(mine->maximum(), theirs->maximum());
            QCOMPARE(mine->pageStep(), theirs->pageStep());
            QCOMPARE(mine->singleStep(), theirs->singleStep());
            QCOMPARE(mine->value(), theirs->value());
        }
        for (int i = 0; i < 20; ++i) {
            const QPoint pos(random.bounded(-20, width + 20), random.bounded(-50, 400));
            QCOMPARE(ours.indexAt(pos), stock.indexAt(pos));
            QCOMPARE(ours.rowAt(pos.y()), stock.rowAt(pos.y()));
            const QModelIndex cell = m_model.index(random.bounded(m_model.rowCount()), i % 5);
            QCOMPARE(ours.visualRect(cell), stock.visualRect(cell));
            QCOMPARE(ours.rowViewportPosition(cell.row()), stock.rowViewportPosition(cell.row()));
        }
        const QItemSelection selected = ours.selectionModel()->selection();
        const QRegion changed = stock.visualRegionForSelection(selected);
        QVERIFY((changed & stock.viewport()->rect())
                    .subtracted(ours.visualRegionForSelection(selected))
                    .isEmpty());
        QCOMPARE(ours.viewport()->grab().toImage(), stock.viewport()->grab().toImage());
    }
}

/// On a page of one colour what is there already is moved, not painted.
void TestScanTableView::scrolledPixelsAreThoseOfAFreshPaint()
{
    QFETCH(bool, isGrid);
    QWidget window;
    window.resize(400, 300);
    auto *grid = new ThumbnailGrid(&window);
    auto *table = new ScanTableView(&window);
    PlainCells cells;
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(grid), static_cast<QAbstractItemView *>(table)}) {
        view->setModel(&m_model);
        view->setItemDelegate(&cells);
        view->setStyleSheet(QStringLiteral("background: #1E212D; qproperty-pageColor: #1E212D;"));
        view->setGeometry(window.rect());
        view->setVisible((view == grid) == isGrid);
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
    QAbstractItemView *view = isGrid ? static_cast<QAbstractItemView *>(grid) : table;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    view->selectionModel()->select(m_model.index(3, 0),
                                   QItemSelectionModel::Select | QItemSelectionModel::Rows);
    view->setCurrentIndex(m_model.index(5, 0));
    const auto *shown = dynamic_cast<QImage *>(window.backingStore()->paintDevice());
    if (!shown)
        QSKIP("the window's pixels are elsewhere");
    QRandomGenerator random(3);
    for (int step = 0; step < 60; ++step) {
        QScrollBar *bar = step % 5 == 4 ? view->horizontalScrollBar() : view->verticalScrollBar();
        bar->setValue(bar->value() + random.bounded(-40, 90));
        QMouseEvent move(QEvent::MouseMove, QPoint(random.bounded(400), random.bounded(300)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        if (step % 3 == 2)
            QCoreApplication::sendEvent(view->viewport(), &move);
        if (step % 7 == 6) // and something changes before it is painted
            view->selectionModel()->select(m_model.index(random.bounded(60), 0),
                                           QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
        for (int round = 0; round < 3; ++round) // the stock view waits before it repaints
            QCoreApplication::processEvents();
        QCOMPARE(shown->convertToFormat(QImage::Format_RGB32),
                 window.grab().toImage().convertToFormat(QImage::Format_RGB32));
    }
    QVERIFY(view->verticalScrollBar()->value() > 0);
}

QVector<int> TestScanTableView::selectedRows() const
{
    QVector<int> rows;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void TestScanTableView::bandSelectsWhatAPlainWalkWould_data()
{
    addColumns<QPoint, QPoint, int>({"from", "to", "scroll"});
    QTest::newRow("inside one row") << QPoint(10, 5) << QPoint(60, 30) << 0;
    QTest::newRow("touches by one pixel") << QPoint(10, 39) << QPoint(60, 81) << 0;
    QTest::newRow("upwards, scrolled") << QPoint(60, 300) << QPoint(10, 7) << 333;
    QTest::newRow("into the first column") << QPoint(400, 10) << QPoint(50, 200) << 0;
    QTest::newRow("beyond the upper edge") << QPoint(30, 100) << QPoint(50, -500) << 120;
    QTest::newRow("beyond the lower edge") << QPoint(30, 300) << QPoint(50, 9000) << 0;
}

void TestScanTableView::bandSelectsWhatAPlainWalkWould()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    QFETCH(int, scroll);
    m_table->setColumnWidth(0, 220);
    m_table->verticalScrollBar()->setValue(scroll);
    const QRect band = QRect(from, to).normalized();
    QVector<int> expected;
    const int pressed = m_table->rowAt(from.y());
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (m_table->visualRect(m_model.index(row, 0)).intersects(band) || row == pressed)
            expected.append(row);
    }
    // The stock view's own drag selection would add rows of its own: what counts is the release.
    QTest::mousePress(m_table->viewport(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_table->viewport(), &move);
    m_table->verticalScrollBar()->setValue(scroll);
    m_table->clearSelection();
    m_table->selectRow(pressed);
    m_table->verticalScrollBar()->setValue(scroll);
    QTest::mouseRelease(m_table->viewport(), Qt::LeftButton, {}, to);
    QCOMPARE(selectedRows(), expected);
}

void TestScanTableView::bandScrollsAtTheEdge_data()
{
    QTest::addColumn<int>("scroll");
    QTest::addColumn<int>("pressedRow");
    QTest::addColumn<int>("beyond"); // pixels from the edge outwards
    QTest::addColumn<int>("lastRow");
    QTest::newRow("below the lower edge") << 0 << 2 << 250 << 59;
    QTest::newRow("above the upper edge") << 100000 << 57 << 250 << 0;
    QTest::newRow("just inside the lower edge") << 1200 << 33 << -2 << 59;
}

void TestScanTableView::bandScrollsAtTheEdge()
{
    QFETCH(int, scroll);
    QFETCH(int, pressedRow);
    QFETCH(int, beyond);
    QFETCH(int, lastRow);
    QWidget *viewport = m_table->viewport();
    QScrollBar *bar = m_table->verticalScrollBar();
    bar->setValue(scroll);
    const QPoint pointer(40, lastRow == 0 ? -beyond : viewport->height() + beyond);
    QTest::mousePress(viewport, Qt::LeftButton, {}, at(pressedRow, 20));
    QMouseEvent move(QEvent::MouseMove, pointer, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QTRY_COMPARE_WITH_TIMEOUT(bar->value(), lastRow == 0 ? 0 : bar->maximum(), 20000);
    const int first = qMin(pressedRow, lastRow);
    QTRY_COMPARE(selectedRows().size(), qMax(pressedRow, lastRow) - first + 1);
    // the band has gone along with its origin, which is far outside by now
    const QRect drawn = viewport->findChild<QRubberBand *>()->geometry();
    QVERIFY(lastRow == 0 ? drawn.bottom() >= viewport->height() - 1 : drawn.top() <= 0);

    const QPoint middle = viewport->rect().center();
    QMouseEvent back(QEvent::MouseMove, middle, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &back);
    const int under = m_table->rowAt(middle.y());
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, middle);
    const QVector<int> rows = selectedRows();
    QCOMPARE(rows.first(), qMin(pressedRow, under));
    QCOMPARE(rows.last(), qMax(pressedRow, under));
    QCOMPARE(rows.size(), qAbs(pressedRow - under) + 1);
}

void TestScanTableView::hoverRepaintsTheRowsConcerned()
{
    QCoreApplication::processEvents();
    EventCounter paints(m_table->viewport(), QEvent::Paint);
    for (int row = 0; row < 8; ++row) {
        QTest::mouseMove(m_table->viewport(), at(row, 10));
        QTest::mouseMove(m_table->viewport(), at(row, 12));
        QCoreApplication::processEvents();
        QCOMPARE(m_table->hoverRow(), row);
        QVERIFY(row == 0 || paints.painted.boundingRect().height() <= 2 * RowHeight);
        paints.painted = QRegion();
    }
}

void TestScanTableView::leavingClearsTheHoverCellOnce()
{
    QTest::mouseMove(m_table->viewport(), at(3, 10));
    QCoreApplication::processEvents();
    QCOMPARE(m_table->hoverColumn(), 0);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_table.data(), &leave);
    QCOMPARE(m_table->hoverRow(), -1);
    QCoreApplication::processEvents();
    EventCounter paints(m_table->viewport(), QEvent::Paint);
    QCoreApplication::sendEvent(m_table.data(), &leave);
    QCoreApplication::processEvents();
    QCOMPARE(paints.count, 0);
}

QTEST_MAIN(TestScanTableView)
#include "tst_scantableview.moc"
