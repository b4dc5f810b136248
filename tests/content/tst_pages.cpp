#include "content/pagechoice.h"
#include "content/sdcardcontentdatawidget.h"
#include "platform/item/filtercondition.h"
#include "support/recordtree.h"

#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

namespace {

enum Step { Start, Finish, Stop, Empty, Full, Unknown, Load, Reset, SearchMode, Filter, Describe };

} // namespace

Q_DECLARE_METATYPE(FilterCondition)
Q_DECLARE_METATYPE(QVector<int>)

class TestPages : public QObject
{
    Q_OBJECT

private slots:
    void page_data();
    void page();
    void filterActivity_data();
    void filterActivity();
    void hintPagesAreMadeOnce();
    void nullRootChangesNothing();
    void missingAnimationLeavesAUsablePage();
};

void TestPages::page_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QVector<int>>("steps");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, int side, const QVector<int> &steps, const char *page) {
        QTest::newRow(name) << side << steps << QString::fromLatin1(page);
    };
    row("scan side begins", 1, {}, "scanningpage");
    row("search side begins", 2, {}, "scandatapage");
    row("started", 1, {Start}, "scanningpage");
    row("nothing yet", 1, {Start, Empty}, "scanningpage");
    row("items arrive", 1, {Start, Empty, Full}, "scandatapage");
    row("finished without a root", 1, {Start, Finish}, "nodatapage");
    row("finished without items", 1, {Start, Empty, Finish}, "nodatapage");
    row("finished, filter hides all", 1, {Filter, Start, Empty, Finish}, "nofilterpage");
    row("finished, filter of a search", 1, {Filter, SearchMode, Start, Finish}, "nodatapage");
    row("finished with items", 1, {Start, Full, Finish}, "scandatapage");
    row("emptied after the end", 1, {Start, Full, Finish, Empty}, "nodatapage");
    row("filtered after the end", 1, {Filter, Start, Full, Finish, Empty}, "nofilterpage");
    row("filled after the end", 1, {Start, Finish, Full}, "scandatapage");
    row("items that never were shown", 1, {Start, Full, Start, Finish}, "nodatapage");
    row("stopped animation", 1, {Start, Stop}, "scanningpage");
    row("unknown count with children", 1, {Start, Unknown}, "scandatapage");
    row("loading too early", 1, {Start, Load}, "scanningpage");
    row("loading", 1, {Start, Full, Finish, Load}, "loadingpage");
    row("loading of a search", 1, {SearchMode, Start, Full, Finish, Load}, "scandatapage");
    row("reset", 1, {Start, Empty, Finish, Reset}, "scandatapage");
    row("search with items", 2, {Full}, "scandatapage");
    row("search without", 2, {Empty}, "SearchHintFrame");
    row("filtered search without", 2, {Filter, Empty}, "SearchHintFrame");
    row("described search without", 2, {Describe, Empty}, "AISearchHintFrame");
    row("by name, then described", 2, {Empty, Describe, Empty}, "AISearchHintFrame");
    row("found after all", 2, {Empty, Full}, "scandatapage");
    row("hint page after the end", 2, {Empty, Finish}, "SearchHintFrame");
    row("no hint on the scan side", 1, {Describe, Start, Finish, Empty}, "nodatapage");
}

void TestPages::page()
{
    QFETCH(int, side);
    QFETCH(QVector<int>, steps);
    QFETCH(QString, expected);

    RecordTree empty;
    RecordTree full;
    full.addFiles(3);
    RecordTree unknown;
    unknown.addFiles(3);
    unknown.root.itemCount = -1;
    FilterCondition filter;

    SDCardContentDataWidget widget(side);
    for (int step : qAsConst(steps)) {
        switch (step) {
        case Start:
            widget.setScanState(1);
            break;
        case Finish:
            widget.setScanState(4);
            break;
        case Stop:
            widget.setScanState(5);
            break;
        case Empty:
            widget.updateData(&empty.root, QString());
            break;
        case Full:
            widget.updateData(&full.root, QString());
            break;
        case Unknown:
            widget.updateData(&unknown.root, QString());
            break;
        case Load:
            widget.showLoadingPage(true);
            break;
        case Reset:
            widget.reset();
            break;
        case SearchMode:
            widget.setSearchMode(true);
            break;
        case Filter:
            filter.minSize = 1;
            widget.setFilterCondition(&filter);
            break;
        case Describe:
            filter.aiSearch = true;
            widget.setFilterCondition(&filter);
            break;
        }
    }
    const auto *stack = widget.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QCOMPARE(stack->currentWidget()->objectName(), expected);
}

void TestPages::filterActivity_data()
{
    QTest::addColumn<FilterCondition>("filter");
    QTest::addColumn<bool>("active");

    FilterCondition filter;
    QTest::newRow("as made") << filter << false;
    filter.aiSearch = true;
    QTest::newRow("an AI search is no filter") << filter << false;
    filter = {};
    filter.maxSize = 0;
    QTest::newRow("zero is a bound") << filter << true;
    filter = {};
    filter.minTime = -2;
    QTest::newRow("only all ones is unset") << filter << true;
    filter = {};
    filter.text2 = QStringLiteral("x");
    QTest::newRow("second text") << filter << true;
    filter = {};
    filter.list1 = QStringList{QString()};
    QTest::newRow("a list of one empty text") << filter << true;
    filter = {};
    filter.mode = 0;
    QTest::newRow("mode") << filter << true;
}

void TestPages::filterActivity()
{
    QFETCH(FilterCondition, filter);
    QFETCH(bool, active);
    QCOMPARE(PageChoice::isFilterActive(&filter), active);
    QVERIFY(!PageChoice::isFilterActive(nullptr));
}

void TestPages::hintPagesAreMadeOnce()
{
    RecordTree empty;
    FilterCondition filter;
    SDCardContentDataWidget widget(2);
    widget.setFilterCondition(&filter);
    const auto *stack = widget.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    const int before = stack->count();
    for (bool described : {false, true, false, true}) {
        filter.aiSearch = described;
        widget.updateData(&empty.root, QStringLiteral("x"));
    }
    QCOMPARE(stack->count(), before + 2);
}

void TestPages::nullRootChangesNothing()
{
    RecordTree tree;
    tree.addFiles(2);
    SDCardContentDataWidget widget(1);
    widget.updateData(&tree.root, QString());
    QSignalSpy current(&widget, &SDCardContentDataWidget::signalCurrentItemChanged);
    widget.updateData(nullptr, QStringLiteral("word"));
    QCOMPARE(current.count(), 0);
    QCOMPARE(widget.findChild<QStackedWidget *>()->currentWidget()->objectName(),
             QStringLiteral("scandatapage"));
}

void TestPages::missingAnimationLeavesAUsablePage()
{
    qputenv("ALLUSERSPROFILE", "/nowhere");
    SDCardContentDataWidget widget(1);
    widget.show();
    widget.setScanState(1);
    widget.setScanState(5);
    widget.setScanState(4);
    QCOMPARE(widget.findChild<QStackedWidget *>()->currentWidget()->objectName(),
             QStringLiteral("nodatapage"));
}

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
