// The grid against a stock list view in icon mode: where both mean the same, both must answer the
// same.
#include "content/thumbnailgrid.h"
#include "support/carddelegate.h"
#include "support/datarow.h"
#include "support/plainlistmodel.h"

#include <QRandomGenerator>
#include <QScrollBar>
#include <QtTest>

namespace {

template <class View>
class Opened : public View
{
public:
    using View::contentsSize;
    using View::horizontalOffset;
    using View::setSelection;
    using View::setState;
    using View::verticalOffset;
    static constexpr auto Banding = View::DragSelectingState;
    static constexpr auto Idle = View::NoState;
};

using Ours = Opened<ThumbnailGrid>;
using Stock = Opened<QListView>;

QVector<int> selectedRows(const QAbstractItemView &view)
{
    QVector<int> rows;
    const QItemSelection selection = view.selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace

class TestThumbnailGridStock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void geometry_data() { shapes(); }
    void geometry();
    void hits_data() { shapes(); }
    void hits();
    void rectangles_data() { shapes(); }
    void rectangles();
    void clicks_data() { shapes(); }
    void clicks();
    void keys_data() { shapes(); }
    void keys();

private:
    void shapes();
    void setUp(QListView *view, int width, int spacing, bool rightToLeft);
    void setUpBoth(bool mirrorTheStock);
    QPoint forStock(const QPoint &point) const;
    void sameScroll();
    QPoint randomPoint() { return {random(-40, 700), random(-200, 900)}; }
    int random(int from, int to) { return m_random.bounded(from, to); }

    QRandomGenerator m_random;
    QScopedPointer<PlainListModel> m_model;
    QScopedPointer<CardDelegate> m_delegate;
    QScopedPointer<Ours> m_ours;
    QScopedPointer<Stock> m_stock;
};

void TestThumbnailGridStock::init()
{
    m_random.seed(20261121);
}

void TestThumbnailGridStock::cleanup()
{
    m_ours.reset();
    m_stock.reset();
}

void TestThumbnailGridStock::shapes()
{
    addColumns<int, int, int, QSize, bool>({"rows", "width", "spacing", "cell", "rightToLeft"});
    const QSize card(150, 124);
    for (bool rightToLeft : {false, true}) {
        const auto row = [rightToLeft](const char *name, int rows, int width, int spacing,
                                       const QSize &cell) {
            const QByteArray tag = QByteArray(name) + (rightToLeft ? ", right to left" : "");
            QTest::newRow(tag.constData()) << rows << width << spacing << cell << rightToLeft;
        };
        row("four columns", 103, 680, 8, card);
        row("exact fit", 103, 8 + 4 * 158 + 1, 8, card);
        row("one pixel less than a fit", 103, 8 + 4 * 158, 8, card);
        row("no spacing", 103, 640, 0, card);
        row("fewer than a line", 3, 680, 8, card);
        row("a full last line", 40, 680, 8, card);
        row("narrower than a card", 30, 120, 8, card);
        row("small cells", 997, 655, 3, QSize(31, 22));
        row("a single item", 1, 680, 8, card);
    }
}

void TestThumbnailGridStock::setUp(QListView *view, int width, int spacing, bool rightToLeft)
{
    view->setViewMode(QListView::IconMode);
    view->setMovement(QListView::Static);
    view->setFlow(QListView::LeftToRight);
    view->setWrapping(true);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setSpacing(spacing);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setFrameShape(QFrame::NoFrame);
    view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    view->setItemDelegate(m_delegate.data());
    view->setModel(m_model.data());
    view->resize(width + view->style()->pixelMetric(QStyle::PM_ScrollBarExtent), 500);
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view));
    QCoreApplication::processEvents();
}

/// A stock view mirrors its cards but neither its cursor keys nor its Shift ranges. With
/// \a mirrorTheStock false it stays left-to-right, and what it is asked is mirrored instead.
void TestThumbnailGridStock::setUpBoth(bool mirrorTheStock)
{
    QFETCH(int, rows);
    QFETCH(int, width);
    QFETCH(int, spacing);
    QFETCH(QSize, cell);
    QFETCH(bool, rightToLeft);
    m_ours.reset(new Ours);
    m_stock.reset(new Stock);
    m_model.reset(new PlainListModel(rows));
    m_delegate.reset(new CardDelegate(cell));
    setUp(m_ours.data(), width, spacing, rightToLeft);
    setUp(m_stock.data(), width, spacing, rightToLeft && mirrorTheStock);
    QCOMPARE(m_ours->viewport()->size(), m_stock->viewport()->size());
    // the one that had the focus has a current item already
    m_ours->setCurrentIndex(m_model->index(rows / 2, 0));
    m_stock->setCurrentIndex(m_model->index(rows / 2, 0));
    sameScroll();
}

QPoint TestThumbnailGridStock::forStock(const QPoint &point) const
{
    if (m_ours->isRightToLeft() == m_stock->isRightToLeft())
        return point;
    const int x = point.x() + m_ours->horizontalOffset();
    const int width = qMax(m_ours->viewport()->width(), m_ours->contentsSize().width());
    return {width - 1 - x - m_stock->horizontalOffset(), point.y()};
}

void TestThumbnailGridStock::sameScroll()
{
    m_ours->horizontalScrollBar()->setValue(0);
    m_stock->horizontalScrollBar()->setValue(0);
    m_stock->verticalScrollBar()->setValue(m_ours->verticalScrollBar()->value());
}

void TestThumbnailGridStock::geometry()
{
    setUpBoth(true);
    QCOMPARE(m_ours->verticalScrollBar()->maximum(), m_stock->verticalScrollBar()->maximum());
    QCOMPARE(m_ours->horizontalScrollBar()->maximum(), m_stock->horizontalScrollBar()->maximum());
    for (int scroll : {0, 57, 400}) {
        m_ours->verticalScrollBar()->setValue(scroll);
        m_ours->horizontalScrollBar()->setValue(scroll / 10);
        m_stock->verticalScrollBar()->setValue(scroll);
        m_stock->horizontalScrollBar()->setValue(scroll / 10);
        for (int row = 0; row < m_model->rowCount(); ++row) {
            const QModelIndex index = m_model->index(row, 0);
            QCOMPARE(m_ours->visualRect(index), m_stock->visualRect(index));
        }
    }
    QCOMPARE(m_ours->visualRect({}), QRect());
}

void TestThumbnailGridStock::hits()
{
    setUpBoth(true);
    for (int i = 0; i < 3000; ++i) {
        const QPoint point = randomPoint();
        QCOMPARE(m_ours->indexAt(point), m_stock->indexAt(point));
    }
}

void TestThumbnailGridStock::rectangles()
{
    setUpBoth(false);
    const QRect inside = m_ours->viewport()->rect();
    const QVector<QItemSelectionModel::SelectionFlags> commands{
        QItemSelectionModel::ClearAndSelect, QItemSelectionModel::Select,
        QItemSelectionModel::Toggle,         QItemSelectionModel::Deselect,
        QItemSelectionModel::SelectCurrent,  QItemSelectionModel::ToggleCurrent};
    for (int i = 0; i < 1500; ++i) {
        const bool banding = random(0, 2) == 1;
        const auto command = commands.at(random(0, commands.size()));
        const QPoint from = randomPoint();
        // a selection ends at the pointer or at the current card; a stock view ignores any other
        const QPoint to(random(0, inside.width()), random(0, inside.height()));
        const QPoint stockFrom = forStock(from);
        const QPoint stockTo = forStock(to);
        QRect forStockView(stockFrom, stockTo);
        if (banding) // which takes the area of a band normalised only
            forStockView = QRect(
                QPoint(qMin(stockFrom.x(), stockTo.x()), qMin(stockFrom.y(), stockTo.y())),
                QPoint(qMax(stockFrom.x(), stockTo.x()), qMax(stockFrom.y(), stockTo.y())));
        m_ours->setState(banding ? Ours::Banding : Ours::Idle);
        m_stock->setState(banding ? Stock::Banding : Stock::Idle);
        m_ours->setSelection(QRect(from, to), command);
        m_stock->setSelection(forStockView, command);
        QCOMPARE(selectedRows(*m_ours), selectedRows(*m_stock));
    }
}

void TestThumbnailGridStock::clicks()
{
    setUpBoth(false);
    const QVector<Qt::KeyboardModifiers> modifiers{Qt::NoModifier, Qt::NoModifier,
                                                   Qt::ShiftModifier, Qt::ControlModifier};
    const QRect inside = m_ours->viewport()->rect();
    for (int i = 0; i < 400; ++i) {
        const QPoint point(random(0, inside.width()), random(0, inside.height()));
        const auto modifier = modifiers.at(random(0, modifiers.size()));
        const auto button = random(0, 8) == 0 ? Qt::RightButton : Qt::LeftButton;
        QTest::mouseClick(m_ours->viewport(), button, modifier, point);
        QTest::mouseClick(m_stock->viewport(), button, modifier, forStock(point));
        QCOMPARE(selectedRows(*m_ours), selectedRows(*m_stock));
        QCOMPARE(m_ours->currentIndex(), m_stock->currentIndex());
        sameScroll();
    }
}

void TestThumbnailGridStock::keys()
{
    setUpBoth(false);
    int columns = 1;
    while (columns < m_model->rowCount()
           && m_ours->visualRect(m_model->index(columns, 0)).y()
               == m_ours->visualRect(m_model->index(0, 0)).y())
        ++columns;
    const int last = m_model->rowCount() - 1;
    const int linesPerPage = 1
        + m_ours->viewport()->height() / m_delegate->sizeHint({}, {}).height();
    const QVector<Qt::Key> choice{Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,   Qt::Key_Right,
                                  Qt::Key_Down, Qt::Key_Home, Qt::Key_End,    Qt::Key_Space,
                                  Qt::Key_Up,   Qt::Key_Left, Qt::Key_PageUp, Qt::Key_PageDown};
    const QVector<Qt::KeyboardModifiers> modifiers{Qt::NoModifier, Qt::ShiftModifier,
                                                   Qt::ShiftModifier, Qt::ControlModifier};
    for (int i = 0; i < 400; ++i) {
        const Qt::Key key = choice.at(random(0, choice.size()));
        const auto modifier = modifiers.at(random(0, modifiers.size()));
        Qt::Key stockKey = key;
        if (m_ours->isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
            stockKey = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
        const int row = m_ours->currentIndex().row();
        if ((key == Qt::Key_Down || key == Qt::Key_PageDown) && row % columns > last % columns
            && row + linesPerPage * columns > last)
            continue; // no card below: a stock view stays, ours goes on to the last card
        QTest::keyClick(m_ours.data(), key, modifier);
        QTest::keyClick(m_stock.data(), stockKey, modifier);
        QCOMPARE(m_ours->currentIndex(), m_stock->currentIndex());
        QCOMPARE(selectedRows(*m_ours), selectedRows(*m_stock));
    }
}

QTEST_MAIN(TestThumbnailGridStock)
#include "tst_thumbnailgrid_stock.moc"
