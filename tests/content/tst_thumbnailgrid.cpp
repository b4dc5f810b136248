#include "content/thumbnailgrid.h"
#include "support/carddelegate.h"
#include "support/datarow.h"
#include "support/plainlistmodel.h"

#include <QScrollBar>
#include <QtTest>

#include <utility>

namespace {

/// Notes which cards are painted in which state, and which events reach them.
class NotingDelegate : public CardDelegate
{
public:
    using CardDelegate::CardDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        CardDelegate::paint(painter, option, index);
        states[index.row()] = option.state;
    }

    bool editorEvent(QEvent *event, QAbstractItemModel *, const QStyleOptionViewItem &,
                     const QModelIndex &index) override
    {
        events.append({event->type(), index.row()});
        return false;
    }

    mutable QMap<int, QStyle::State> states;
    QVector<QPair<QEvent::Type, int>> events;
};

constexpr int Spacing = 8;
constexpr int Columns = 4;
constexpr QSize Card(150, 124);

} // namespace

class TestThumbnailGrid : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void shiftRangeIsOneRange();
    void topCardStaysOnResize();
    void stretchedCardsFillTheLine_data();
    void stretchedCardsFillTheLine();
    void scrollToShowsWholeCard_data();
    void scrollToShowsWholeCard();

    void bandScrollsAtTheEdge();
    void severalByKeyAreAnnounced();

    void repaintsOnlyWhatChanged_data();
    void repaintsOnlyWhatChanged();
    void hoverFollowsPointerAndContent();

    void survives_data();
    void survives();
    void resetWhilePressed();

private:
    void show(int rows);
    QPoint centre(int row) const { return m_grid->visualRect(m_model->index(row, 0)).center(); }
    QVector<int> selected() const;
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers = {});
    void move(const QPoint &to, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers = {});

    QScopedPointer<PlainListModel> m_model;
    QScopedPointer<NotingDelegate> m_delegate;
    QScopedPointer<ThumbnailGrid> m_grid;
};

void TestThumbnailGrid::init()
{
    m_model.reset(new PlainListModel);
    m_delegate.reset(new NotingDelegate(Card));
    m_grid.reset(new ThumbnailGrid);
    m_grid->setFrameShape(QFrame::NoFrame);
    m_grid->setSpacing(Spacing);
    m_grid->setItemDelegate(m_delegate.data());
    m_grid->setModel(m_model.data());
}

void TestThumbnailGrid::cleanup()
{
    m_grid.reset();
}

void TestThumbnailGrid::show(int rows)
{
    m_model->reset(rows);
    const int bar = m_grid->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_grid->resize(Spacing + Columns * (Card.width() + Spacing) + 1 + bar, 500);
    m_grid->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_grid.data()));
    m_grid->setFocus();
    QCoreApplication::processEvents();
}

QVector<int> TestThumbnailGrid::selected() const
{
    QVector<int> rows;
    const QModelIndexList indexes = m_grid->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void TestThumbnailGrid::move(const QPoint &to, Qt::MouseButtons buttons,
                             Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(QEvent::MouseMove, to, m_grid->viewport()->mapToGlobal(to), Qt::NoButton,
                      buttons, modifiers);
    QCoreApplication::sendEvent(m_grid->viewport(), &event);
}

void TestThumbnailGrid::drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(m_grid->viewport(), Qt::LeftButton, modifiers, from);
    move((from + to) / 2, Qt::LeftButton, modifiers);
    move(to, Qt::LeftButton, modifiers);
    QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, modifiers, to);
}

void TestThumbnailGrid::shiftRangeIsOneRange()
{
    show(1000000);
    m_grid->setCurrentIndex(m_model->index(6, 0));
    QTest::keyClick(m_grid.data(), Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(m_grid->selectionModel()->selection().size(), 1);
    QCOMPARE(m_grid->selectionModel()->selection().first().height(), 999994);
    QTest::keyClick(m_grid.data(), Qt::Key_Home, Qt::ShiftModifier);
    QCOMPARE(selected(), QVector<int>({0, 1, 2, 3, 4, 5, 6}));
    QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, Qt::ControlModifier, centre(8));
    QTest::keyClick(m_grid.data(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(selected(), QVector<int>({0, 1, 2, 3, 4, 5, 6, 8, 9}));
    QTest::keyClick(m_grid.data(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_grid->selectionModel()->selection().size(), 1);
    QVERIFY(m_grid->selectionModel()->isSelected(m_model->index(999999, 0)));
    QTest::keyClick(m_grid.data(), Qt::Key_Escape);
    QVERIFY(!m_grid->selectionModel()->hasSelection());
}

void TestThumbnailGrid::topCardStaysOnResize()
{
    show(1000);
    const QSize size = m_grid->size();
    m_grid->verticalScrollBar()->setValue(3000);
    const QPair<int, int> seen = m_grid->visibleRows();
    const int y = m_grid->visualRect(m_model->index(seen.first, 0)).y();
    for (int columns : {3, 1, 2, 5}) {
        m_grid->resize(size.width() + (columns - Columns) * (Card.width() + Spacing), 500);
        QTRY_COMPARE(m_grid->visualRect(m_model->index(seen.first, 0)).y(), y);
    }
    m_grid->resize(size);
    QTRY_COMPARE(m_grid->verticalScrollBar()->value(), 3000);
    QCOMPARE(m_grid->visibleRows(), seen);
}

void TestThumbnailGrid::stretchedCardsFillTheLine_data()
{
    addColumns<int, Qt::LayoutDirection>({"width", "direction"});
    for (int width : {500, 641, 700, 701, 957, 1920}) {
        QTest::newRow(qPrintable(QString::number(width))) << width << Qt::LeftToRight;
        QTest::newRow(qPrintable(QString::number(width) + " mirrored")) << width << Qt::RightToLeft;
    }
}

void TestThumbnailGrid::stretchedCardsFillTheLine()
{
    QFETCH(int, width);
    QFETCH(Qt::LayoutDirection, direction);
    constexpr int Reserved = 13;
    m_grid->setLayoutDirection(direction);
    m_grid->setReservedWidth(Reserved);
    m_grid->setCardsStretched(true);
    show(100);
    m_grid->resize(width, 500);
    QCoreApplication::processEvents();
    const auto rectOf = [this](int row) { return m_grid->visualRect(m_model->index(row, 0)); };
    int last = 0;
    while (rectOf(last + 1).top() == rectOf(0).top())
        ++last;
    const QRect line = rectOf(0) | rectOf(last);
    const int room = m_grid->viewport()->width() - Reserved - 2 * Spacing;
    QVERIFY2(line.width() <= room && line.width() > room - 2 - last,
             qPrintable(QString("%1 of %2").arg(line.width()).arg(room)));
    for (int row : {0, 1, last, last + 1, 99}) {
        m_grid->scrollTo(m_model->index(row, 0));
        QCOMPARE(rectOf(row).size(), rectOf(0).size());
        QCOMPARE(m_grid->indexAt(rectOf(row).center()).row(), row);
    }
}

void TestThumbnailGrid::scrollToShowsWholeCard_data()
{
    addColumns<int, int>({"row", "height"});
    QTest::newRow("first") << 0 << 500;
    QTest::newRow("half hidden at the top") << 40 << 500;
    QTest::newRow("below") << 80 << 500;
    QTest::newRow("last") << 999 << 500;
    QTest::newRow("viewport lower than a card") << 500 << 60;
}

void TestThumbnailGrid::scrollToShowsWholeCard()
{
    QFETCH(int, row);
    QFETCH(int, height);
    show(1000);
    m_grid->resize(m_grid->width(), height);
    m_grid->verticalScrollBar()->setValue(1380);
    m_grid->scrollTo(m_model->index(row, 0));
    const QRect card = m_grid->visualRect(m_model->index(row, 0));
    QVERIFY(card.top() >= 0);
    QVERIFY(card.bottom() < height || card.top() <= Spacing);
    const int value = m_grid->verticalScrollBar()->value();
    m_grid->scrollTo(m_model->index(row, 0));
    QCOMPARE(m_grid->verticalScrollBar()->value(), value);
}

void TestThumbnailGrid::bandScrollsAtTheEdge()
{
    show(1000);
    QSignalSpy several(m_grid.data(), &ThumbnailGrid::signalMutilSelectEvent);
    const QPoint below(centre(1).x(), m_grid->viewport()->height() + 200);
    QTest::mousePress(m_grid->viewport(), Qt::LeftButton, {}, centre(0));
    move(below, Qt::LeftButton);
    QTRY_VERIFY(m_grid->verticalScrollBar()->value() > 2 * (Card.height() + Spacing));
    move(m_grid->viewport()->rect().center(), Qt::LeftButton);
    const int rest = m_grid->verticalScrollBar()->value();
    QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, {},
                        m_grid->viewport()->rect().center());
    QCOMPARE(m_grid->verticalScrollBar()->value(), rest);
    QCOMPARE(several.count(), 1);
    QCOMPARE(selected().first(), 0);
    QVERIFY(selected().contains(8));
    QVERIFY(!selected().contains(11));
}

void TestThumbnailGrid::severalByKeyAreAnnounced()
{
    show(12);
    m_grid->setCurrentIndex(m_model->index(0, 0));
    QSignalSpy several(m_grid.data(), &ThumbnailGrid::signalMutilSelectEvent);
    QTest::keyClick(m_grid.data(), Qt::Key_Right);
    QCOMPARE(several.count(), 0);
    QTest::keyClick(m_grid.data(), Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(several.count(), 1);
    QTest::keyClick(m_grid.data(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(several.count(), 1);
}

void TestThumbnailGrid::repaintsOnlyWhatChanged_data()
{
    addColumns<int, int, int>({"first", "last", "painted"});
    QTest::newRow("one card") << 5 << 5 << 1;
    QTest::newRow("off screen") << 500 << 600 << 0;
    QTest::newRow("all rows") << 0 << 999 << 16;
    QTest::newRow("from sight to beyond") << 14 << 999 << 2;
}

void TestThumbnailGrid::repaintsOnlyWhatChanged()
{
    QFETCH(int, first);
    QFETCH(int, last);
    QFETCH(int, painted);
    show(1000);
    QCOMPARE(m_grid->visibleRows(), qMakePair(0, 15));
    // a system that has just shown a window soon asks for all of it again
    int quiet = 0;
    QTRY_VERIFY((quiet = std::exchange(m_delegate->painted, 0) > 0 ? 0 : quiet + 1) > 2);
    emit m_model->dataChanged(m_model->index(first, 0), m_model->index(last, 0));
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate->painted, painted);

    m_delegate->painted = 0;
    m_grid->repaintMatching(PlainListModel::IdRole, first);
    QCoreApplication::processEvents();
    QCOMPARE(m_delegate->painted, first < 16 ? 1 : 0);
}

void TestThumbnailGrid::hoverFollowsPointerAndContent()
{
    show(1000);
    const auto hovered = [this] {
        m_delegate->states.clear();
        m_grid->viewport()->repaint();
        QVector<int> rows;
        for (auto it = m_delegate->states.cbegin(); it != m_delegate->states.cend(); ++it)
            if (it.value() & QStyle::State_MouseOver)
                rows.append(it.key());
        return rows;
    };
    const QPoint pointer = centre(1);
    move(pointer, Qt::NoButton);
    QCOMPARE(hovered(), QVector<int>({1}));
    m_grid->verticalScrollBar()->setValue(Card.height() + Spacing);
    QCOMPARE(hovered(), QVector<int>({5}));
    m_model->insert(0, 1);
    QTRY_COMPARE(hovered(), QVector<int>({5}));
    m_delegate->events.clear();
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_grid->viewport(), &leave);
    QCOMPARE(hovered(), QVector<int>());
    QCOMPARE(m_delegate->events, (QVector<QPair<QEvent::Type, int>>{{QEvent::Leave, 5}}));
}

void TestThumbnailGrid::survives_data()
{
    addColumns<int, QSize, QSize, int>({"rows", "size", "card", "spacing"});
    QTest::newRow("no rows") << 0 << QSize(600, 400) << Card << 8;
    QTest::newRow("no width") << 50 << QSize(0, 400) << Card << 8;
    QTest::newRow("no height") << 50 << QSize(600, 0) << Card << 8;
    QTest::newRow("null card") << 50 << QSize(600, 400) << QSize(0, 0) << 0;
    QTest::newRow("invalid card") << 50 << QSize(600, 400) << QSize() << 8;
    QTest::newRow("negative spacing") << 50 << QSize(600, 400) << QSize(10, 10) << -10;
    QTest::newRow("card beyond the viewport") << 50 << QSize(60, 40) << QSize(3000, 3000) << 8;
    QTest::newRow("one long column") << 16000000 << QSize(200, 400) << QSize(150, 500) << 8;
}

void TestThumbnailGrid::survives()
{
    QFETCH(int, rows);
    QFETCH(QSize, size);
    QFETCH(QSize, card);
    QFETCH(int, spacing);
    NotingDelegate delegate(card);
    m_grid->setItemDelegate(&delegate);
    m_grid->setSpacing(spacing);
    m_grid->show();
    m_model->reset(rows);
    m_grid->resize(size);
    QCoreApplication::processEvents();
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_End, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_Home})
        QTest::keyClick(m_grid.data(), key, Qt::ShiftModifier);
    drag({1, 1}, {300, 300});
    QTest::mouseDClick(m_grid->viewport(), Qt::LeftButton, {}, {20, 20});
    m_grid->selectAll();
    m_grid->scrollTo(m_model->index(rows - 1, 0));
    m_grid->repaintRow(rows);
    m_grid->viewport()->repaint();
    QVERIFY(m_grid->visibleRows().second < qMax(1, rows));
    m_grid->setModel(nullptr);
    QTest::keyClick(m_grid.data(), Qt::Key_End);
    drag({1, 1}, {300, 300});
    QCOMPARE(m_grid->indexAt({20, 20}), QModelIndex());
    QCOMPARE(m_grid->visibleRows(), qMakePair(0, -1));
    m_grid->setItemDelegate(m_delegate.data());
}

void TestThumbnailGrid::resetWhilePressed()
{
    show(12);
    QObject context;
    connect(m_grid.data(), &QAbstractItemView::pressed, &context, [this] { m_model->reset(2); });
    QSignalSpy clicked(m_grid.data(), &QAbstractItemView::clicked);
    const QPoint point = centre(9);
    QTest::mousePress(m_grid->viewport(), Qt::LeftButton, {}, point);
    QTest::mouseRelease(m_grid->viewport(), Qt::LeftButton, {}, point);
    QCOMPARE(clicked.count(), 0);
    QVERIFY(!m_grid->selectionModel()->hasSelection());
}

QTEST_MAIN(TestThumbnailGrid)
#include "tst_thumbnailgrid.moc"
