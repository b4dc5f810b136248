#include "content/sdcardcontentdatawidget.h"
#include "platform/item/filtercondition.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

namespace {

/// A content area and what a host may have for it.
struct Scene
{
    explicit Scene(int side)
        : widget(side)
    {
        full.addFiles(3);
        unknown.addFiles(3);
        unknown.root.itemCount = -1;
    }
    void show(RecordTree &tree) { widget.updateData(&tree.root, QString()); }

    RecordTree empty, full, unknown;
    FilterCondition filter;
    SDCardContentDataWidget widget;
};

using Step = void (*)(Scene &);
const Step Start = [](Scene &s) { s.widget.setScanState(1); };
const Step Finish = [](Scene &s) { s.widget.setScanState(4); };
const Step Stop = [](Scene &s) { s.widget.setScanState(5); };
const Step Empty = [](Scene &s) { s.show(s.empty); };
const Step Full = [](Scene &s) { s.show(s.full); };
const Step Unknown = [](Scene &s) { s.show(s.unknown); };
const Step Load = [](Scene &s) { s.widget.showLoadingPage(true); };
const Step Reset = [](Scene &s) { s.widget.reset(); };
const Step SearchMode = [](Scene &s) { s.widget.setSearchMode(true); };
const Step Filter = [](Scene &s) {
    s.filter.minSize = 1;
    s.widget.setFilterCondition(&s.filter);
};
const Step Describe = [](Scene &s) {
    s.filter.aiSearch = true;
    s.widget.setFilterCondition(&s.filter);
};

} // namespace

Q_DECLARE_METATYPE(QVector<Step>)

class TestPages : public QObject
{
    Q_OBJECT

private slots:
    void page_data();
    void page();
    void hintPagesAreMadeOnce();
    void missingAnimationLeavesAUsablePage();
};

void TestPages::page_data()
{
    addColumns<int, QVector<Step>, QString>({"side", "steps", "expected"});

    const auto row = [](const char *name, int side, const QVector<Step> &steps, const char *page) {
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
    QFETCH(QVector<Step>, steps);
    QFETCH(QString, expected);

    Scene scene(side);
    for (const Step step : qAsConst(steps))
        step(scene);
    const auto *stack = scene.widget.findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QCOMPARE(stack->currentWidget()->objectName(), expected);
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
