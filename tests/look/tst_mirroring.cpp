#include "look/seenwidgets.h"
#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QHeaderView>
#include <QMap>
#include <QSet>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <memory>

namespace {

constexpr QSize Window(1100, 720);
constexpr QSize Small(760, 520);

QRect reflected(const QRect &rect, int width)
{
    return {width - rect.x() - rect.width(), rect.y(), rect.width(), rect.height()};
}

QPoint reflected(const QPoint &point, int width)
{
    return {width - 1 - point.x(), point.y()};
}

/// What is centred in an odd width cannot be reflected to the pixel.
bool sameBut(const QRect &left, const QRect &right, int slack)
{
    return qAbs(left.x() - right.x()) <= slack && left.y() == right.y()
        && qAbs(left.width() - right.width()) <= slack && left.height() == right.height();
}

QString shown(const QRect &rect)
{
    return QStringLiteral("(%1 %2 %3 %4)")
        .arg(rect.x())
        .arg(rect.y())
        .arg(rect.width())
        .arg(rect.height());
}

} // namespace

/// What stands left in English stands right in Arabic, is painted there and is clicked there. The
/// texts stay English, so that nothing but the direction differs.
class TestMirroring : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void widgets_data();
    void widgets();
    void cells_data();
    void cells();
    void clicks_data();
    void clicks();
    void headerClicks();

private:
    void prepare(const QString &page, Qt::LayoutDirection direction);
    QMap<QString, QRect> seen();
    QStringList effectsAlong(QWidget *target, int from, int to, int y, bool mirrored);
    QString effectOf(QWidget *target, const QPoint &place);
    static void compare(const QStringList &leftToRight, const QStringList &rightToLeft);

    std::unique_ptr<Stage> m_stage;
};

void TestMirroring::initTestCase()
{
    m_stage = std::make_unique<Stage>(Window);
    QVERIFY(m_stage->load());
    m_stage->setLanguage(QStringLiteral("English"));
}

void TestMirroring::cleanup()
{
    m_stage->setOnDialog({});
    m_stage->window().resize(Window);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void TestMirroring::prepare(const QString &page, Qt::LayoutDirection direction)
{
    m_stage->tidyUp();
    QApplication::setLayoutDirection(direction);
    Pages::prepare(page, *m_stage);
}

QMap<QString, QRect> TestMirroring::seen()
{
    QMap<QString, QRect> rects;
    const auto found = SeenWidgets::all(&m_stage->window());
    for (const SeenWidget &widget : found)
        rects.insert(widget.path, widget.rect);
    return rects;
}

void TestMirroring::widgets_data()
{
    QTest::addColumn<QString>("page");
    const QStringList pages = Pages::names();
    for (const QString &page : pages) {
        // these open at the mouse, which has no direction
        static const QStringList atMouse{QStringLiteral("menu"), QStringLiteral("text-menu"),
                                         QStringLiteral("tooltip")};
        if (!atMouse.contains(page))
            QTest::newRow(qPrintable(page)) << page;
    }
}

void TestMirroring::widgets()
{
    QFETCH(QString, page);

    m_stage->window().resize(Small); // the cards' own scroll bar is there too
    QMap<QString, QRect> rects;
    m_stage->setOnDialog([&] { rects = seen(); });
    prepare(page, Qt::LeftToRight);
    const QMap<QString, QRect> leftToRight = rects.isEmpty() ? seen() : rects;
    rects.clear();
    prepare(page, Qt::RightToLeft);
    const QMap<QString, QRect> rightToLeft = rects.isEmpty() ? seen() : rects;

    QStringList faults;
    const int width = m_stage->window().width();
    for (auto it = leftToRight.cbegin(); it != leftToRight.cend(); ++it) {
        const QRect wanted = reflected(it.value(), width);
        const QRect got = rightToLeft.value(it.key());
        if (!sameBut(wanted, got, 1))
            faults.append(it.key() + QStringLiteral(": ") + shown(got) + QStringLiteral(", not ")
                          + shown(wanted));
    }
    QCOMPARE(rightToLeft.keys(), leftToRight.keys());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestMirroring::cells_data()
{
    QTest::addColumn<QString>("page");
    for (const char *page : {"grid", "grid-kinds", "list-pane", "list-search"})
        QTest::newRow(page) << QString::fromLatin1(page);
}

void TestMirroring::cells()
{
    QFETCH(QString, page);

    const auto rects = [this] {
        QVector<QRect> found;
        const QAbstractItemView *view = m_stage->items();
        const auto *table = qobject_cast<const QTableView *>(view);
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < (table ? view->model()->columnCount() : 1); ++column) {
                if (!table || !table->isColumnHidden(column))
                    found.append(view->visualRect(view->model()->index(row, column)));
            }
        }
        return found;
    };
    prepare(page, Qt::LeftToRight);
    const QVector<QRect> leftToRight = rects();
    prepare(page, Qt::RightToLeft);
    const QVector<QRect> rightToLeft = rects();
    const int width = m_stage->items()->viewport()->width();
    QCOMPARE(rightToLeft.size(), leftToRight.size());
    for (int i = 0; i < leftToRight.size(); ++i)
        QCOMPARE(rightToLeft.at(i), reflected(leftToRight.at(i), width));
}

QString TestMirroring::effectOf(QWidget *target, const QPoint &place)
{
    static const char *const names[] = {
        SIGNAL(signalTreeItemCheck(TreeItemData *, Qt::CheckState)),
        SIGNAL(signalFileDoubleClicked(TreeItemData *, QString)),
        SIGNAL(signalLocateFile(TreeItemData *)),
        SIGNAL(signalSortClicked(TreeItemData *, HeaderViewSortType))};
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (const char *name : names)
        spies.push_back(std::make_unique<QSignalSpy>(m_stage->plugin(), name));
    QTest::mouseMove(target, place);
    const int shape = target->cursor().shape();
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, place);
    QString effect = QString::number(shape);
    for (const auto &spy : spies)
        effect += QLatin1Char(' ') + QString::number(spy->count());
    return effect;
}

/// What a click does, place by place on a line.
QStringList TestMirroring::effectsAlong(QWidget *target, int from, int to, int y, bool mirrored)
{
    QStringList effects;
    for (int x = from; x <= to; ++x) {
        const QPoint place(x, y);
        effects.append(effectOf(target, mirrored ? reflected(place, target->width()) : place));
    }
    return effects;
}

/// The same at every place, but that what is centred in an odd width may begin one beside.
void TestMirroring::compare(const QStringList &leftToRight, const QStringList &rightToLeft)
{
    QVERIFY(QSet<QString>(leftToRight.cbegin(), leftToRight.cend()).size()
            > 1); // something is there
    for (int i = 0; i < leftToRight.size(); ++i) {
        const QStringList near = leftToRight.mid(qMax(0, i - 1), 3);
        QVERIFY2(
            near.contains(rightToLeft.at(i)),
            qPrintable(
                QStringLiteral("%1: %2, not %3").arg(i).arg(rightToLeft.at(i), leftToRight.at(i))));
    }
}

void TestMirroring::clicks_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("y");
    QTest::newRow("card, through its box") << "grid" << 8 << 0 << 16;
    QTest::newRow("card, through its preview button") << "grid" << 8 << 0 << 44;
    QTest::newRow("card of a folder") << "grid-kinds" << 1 << 0 << 16;
    QTest::newRow("name") << "list-pane" << 4 << 0 << 22;
    QTest::newRow("size") << "list-pane" << 4 << 1 << 12;
    QTest::newRow("time with its image") << "list-links" << 4 << 3 << 22;
}

void TestMirroring::clicks()
{
    QFETCH(QString, page);
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, y);

    prepare(page, Qt::LeftToRight);
    const QAbstractItemView *view = m_stage->items();
    const QRect cell = view->visualRect(view->model()->index(row, column));
    const int end = qMin(cell.right(), cell.left() + 200);
    const QStringList leftToRight = effectsAlong(m_stage->items()->viewport(), cell.left(), end,
                                                 cell.top() + y, false);
    prepare(page, Qt::RightToLeft);
    compare(leftToRight,
            effectsAlong(m_stage->items()->viewport(), cell.left(), end, cell.top() + y, true));
}

void TestMirroring::headerClicks()
{
    const auto header = [this] {
        return qobject_cast<QTableView *>(m_stage->items())->horizontalHeader()->viewport();
    };
    prepare(QStringLiteral("list-pane"), Qt::LeftToRight);
    const int end = header()->width() - 1;
    const int y = header()->height() / 2;
    const QStringList leftToRight = effectsAlong(header(), 0, end, y, false);
    prepare(QStringLiteral("list-pane"), Qt::RightToLeft);
    compare(leftToRight, effectsAlong(header(), 0, end, y, true));
}

QTEST_MAIN(TestMirroring)
#include "tst_mirroring.moc"
