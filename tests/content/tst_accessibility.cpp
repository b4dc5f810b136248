#include "content/sdcardcontentdatawidget.h"
#include "model/headerview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "support/assistivetechnology.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/plainlistmodel.h"
#include "support/recordtree.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using Content = SDCardContentDataWidget;

namespace {

struct Heard
{
    QAccessible::Event type;
    QString name;
};
QVector<Heard> &heardSoFar()
{
    static QVector<Heard> heard;
    return heard;
}

void listen(QAccessibleEvent *event)
{
    QAccessibleInterface *source = event->accessibleInterface();
    heardSoFar().append({event->type(), source ? source->text(QAccessible::Name) : QString()});
}

QStringList heardOf(QAccessible::Event type)
{
    QStringList names;
    for (const Heard &heard : qAsConst(heardSoFar())) {
        if (heard.type == type)
            names << heard.name;
    }
    return names;
}

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void walk(QAccessibleInterface *from, const std::function<void(QAccessibleInterface *)> &visit)
{
    visit(from);
    for (int i = 0; i < from->childCount(); ++i) {
        QAccessibleInterface *child = from->child(i);
        QVERIFY(child && child->isValid());
        QCOMPARE(from->indexOfChild(child), i);
        if (!child->state().invisible)
            walk(child, visit);
    }
}

bool needsName(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::CheckBox:
    case QAccessible::ColumnHeader:
    case QAccessible::ListItem:
    case QAccessible::Row:
    case QAccessible::Cell:
    case QAccessible::List:
    case QAccessible::Table:
    case QAccessible::ScrollBar:
    case QAccessible::Link:
        return true;
    default:
        return false;
    }
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void everythingHasAName_data();
    void everythingHasAName();
    void itemsTellWhatTheyAre_data();
    void itemsTellWhatTheyAre();
    void cellsStandUnderTheirHeaders();
    void actionsDoWhatHandsDo_data() { bothModes(); }
    void actionsDoWhatHandsDo();
    void changesAreHeard_data() { bothModes(); }
    void changesAreHeard();
    void growthIsNotHeard_data() { bothModes(); }
    void growthIsNotHeard();
    void millionRowsCostNothing();
    void selectAllTellsItsState();
    void headerSectionsTellTheSort();

private:
    static void bothModes() { addRows<int>("mode", {{"grid", 0}, {"list with pane", 1}}); }
    QAbstractItemView *view() const { return viewOf(*m_widget, m_mode); }
    /// The interface of a row of the view in use.
    QAccessibleInterface *item(int row) const
    {
        return interfaceOf(view())->child(row + (m_mode == 0 ? 0 : 1));
    }
    void show(int mode)
    {
        m_mode = mode;
        m_widget->setViewMode(mode);
        m_widget->updateData(&m_tree->root, QString());
        m_widget->setScanState(4);
        m_widget->resize(900, 600);
        m_widget->show();
        QVERIFY(QTest::qWaitForWindowActive(m_widget.data()));
    }

    QScopedPointer<RecordTree> m_tree;
    QScopedPointer<Content> m_widget;
    int m_mode = 0;
};

void TestAccessibility::initTestCase()
{
    qRegisterMetaType<Qt::CheckState>("Qt::CheckState");
    qRegisterMetaType<HeaderViewSortType>("HeaderViewSortType");
    AssistiveTechnology::start();
    QAccessible::installUpdateHandler(listen);
}

void TestAccessibility::init()
{
    m_widget.reset(new Content(1));
    m_tree.reset(new RecordTree);
    heardSoFar().clear();
}

void TestAccessibility::everythingHasAName_data()
{
    addColumns<int, int, int>({"mode", "headers", "rows"});
    QTest::newRow("grid") << 0 << 0 << 0;
    QTest::newRow("list with pane") << 1 << 4 << 41;
    QTest::newRow("list") << 2 << 5 << 41;
}

void TestAccessibility::everythingHasAName()
{
    QFETCH(int, mode);
    QFETCH(int, headers);
    QFETCH(int, rows);
    m_tree->addFiles(40);
    m_tree->root.childFiles.first()->aiScenes = QStringList{"pet", "food"};
    m_tree->root.childFiles.first()->path = QStringLiteral("\\DCIM");
    show(mode);
    constexpr int LowHeight = 260;
    const int height = m_widget->height();
    QHash<int, int> counts;
    const auto look = [&](QAccessibleInterface *each) {
        ++counts[each->role()];
        if (needsName(each->role()) && !dynamic_cast<ScanTableHeader *>(each->object()))
            QVERIFY2(!each->text(QAccessible::Name).isEmpty(),
                     each->object() ? qPrintable(each->object()->objectName()
                                                 + each->object()->metaObject()->className())
                                    : "no object");
    };
    m_widget->resize(m_widget->width(), LowHeight); // everything that scrolls has to
    QCoreApplication::processEvents();
    walk(interfaceOf(m_widget.data()), look);
    m_widget->resize(m_widget->width(), height);
    QCoreApplication::processEvents();
    counts.clear();
    walk(interfaceOf(m_widget.data()), look);
    QCOMPARE(counts.value(QAccessible::ColumnHeader), headers);
    QCOMPARE(counts.value(QAccessible::Row), rows);
    QCOMPARE(counts.value(QAccessible::Cell), mode == 0 ? 0 : 40 * headers);
    QCOMPARE(counts.value(QAccessible::ListItem), mode == 0 ? 40 : 0);
    QCOMPARE(counts.value(QAccessible::CheckBox), 1);
    QCOMPARE(counts.value(QAccessible::Link), mode == 1 ? 1 : 0);
}

void TestAccessibility::itemsTellWhatTheyAre_data()
{
    addColumns<int, int, int, qint64, bool, QString, QString>(
        {"kind", "category", "check", "count", "finished", "value", "description"});
    // Without a catalogue keys stand for their texts.
    const QString high = QStringLiteral(", recoverability_label: recoverability_high, 2 of 3");
    addRow("checked photo, scan over", 2, 8, 2, qint64(0), true, "Checked",
           "Photo, 2.00 KB, recoverability_label: recoverability_medium, 2 of 3");
    addRow("video, scan running", 2, 3, 0, qint64(0), false, "Not checked",
           "Video, 2.00 KB, recoverability_label: recoverability_assessing, 2 of 3");
    addRow("unknown kind", 2, 0, 0, qint64(0), true, "Not checked", "JPG file, 2.00 KB" + high);
    addRow("partly checked folder", 1, 0, 1, qint64(1234), true, "Partly checked",
           "folder, items: 1,234, 2 of 3");
    addRow("empty folder takes no check", 1, 0, 0, qint64(0), true, "", "folder, items: 0, 2 of 3");
}

void TestAccessibility::itemsTellWhatTheyAre()
{
    QFETCH(int, kind);
    QFETCH(int, category);
    QFETCH(int, check);
    QFETCH(qint64, count);
    QFETCH(bool, finished);
    QFETCH(QString, value);
    QFETCH(QString, description);
    m_tree->addFile(QStringLiteral("a.jpg"));
    TreeItemData *record = m_tree->addFile(QStringLiteral("b.jpg"));
    m_tree->addFile(QStringLiteral("c.jpg"));
    record->kind = kind;
    record->fileCategory = category;
    record->checkState = check;
    record->itemCount = count;
    record->fileSize = 2048;
    for (int mode : {0, 1, 2}) {
        show(mode);
        m_widget->setScanFinished(finished);
        QAccessibleInterface *told = item(1);
        QCOMPARE(told->text(QAccessible::Name), QStringLiteral("b.jpg"));
        QCOMPARE(told->text(QAccessible::Value), value);
        QCOMPARE(told->text(QAccessible::Description), description);
        const QAccessible::State state = told->state();
        QCOMPARE(bool(state.checkable), !value.isEmpty());
        QCOMPARE(bool(state.checked), check == Qt::Checked);
        QCOMPARE(bool(state.checkStateMixed), check == Qt::PartiallyChecked);
    }
}

void TestAccessibility::cellsStandUnderTheirHeaders()
{
    m_tree->addFiles(3);
    show(1);
    QAccessibleTableInterface *table = interfaceOf(view())->tableInterface();
    QCOMPARE(table->rowCount(), 3);
    QCOMPARE(table->columnCount(), 4);
    for (int column = 0; column < 4; ++column) {
        QAccessibleInterface *cell = table->cellAt(2, column);
        QCOMPARE(cell->tableCellInterface()->columnIndex(), column);
        const auto headers = cell->tableCellInterface()->columnHeaderCells();
        QCOMPARE(headers.size(), 1);
        QCOMPARE(headers.first()->text(QAccessible::Name), table->columnDescription(column));
        QCOMPARE(headers.first()->rect().left(), cell->rect().left());
        const QPoint middle = cell->rect().center();
        QCOMPARE(item(2)->childAt(middle.x(), middle.y()), cell);
        QCOMPARE(interfaceOf(view())->childAt(middle.x(), middle.y()), item(2));
    }
    QVERIFY(!table->cellAt(3, 0) && !table->cellAt(0, 4) && !table->cellAt(-1, -1));
    table->selectRow(1);
    QCOMPARE(table->selectedRows(), QList<int>{1});
    QCOMPARE(table->selectedCells().size(), 4);
}

void TestAccessibility::actionsDoWhatHandsDo()
{
    QFETCH(int, mode);
    m_tree->addFolder(QStringLiteral("empty"));
    m_tree->addFiles(5);
    show(mode);
    QSignalSpy checked(m_widget.data(), &Content::signalItemDataCheck);
    QSignalSpy opened(m_widget.data(), &Content::signalDoubleClicked);
    const auto act = [&](int row, const QString &action) {
        item(row)->actionInterface()->doAction(action);
    };
    act(3, QAccessibleActionInterface::toggleAction());
    QCOMPARE(checked.size(), 1);
    QCOMPARE(m_tree->root.childFiles.at(2)->checkState, int(Qt::Checked));
    act(3, QAccessibleActionInterface::toggleAction());
    QCOMPARE(m_tree->root.childFiles.at(2)->checkState, int(Qt::Unchecked));
    act(0, QAccessibleActionInterface::toggleAction());
    QCOMPARE(checked.size(), 2); // an empty folder has nothing to recover
    act(2, QAccessibleActionInterface::pressAction());
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first().first().value<TreeItemData *>(), m_tree->root.childFiles.at(1));
    act(4, QAccessibleActionInterface::setFocusAction());
    QCOMPARE(view()->currentIndex().row(), 4);
    QVERIFY(view()->hasFocus());
    QCOMPARE(interfaceOf(view())->focusChild(), item(4));
    // What is held while its record dies does nothing, and nothing breaks.
    QAccessibleInterface *held = item(2);
    m_tree->kill(m_tree->root.childFiles.at(1));
    held->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(held->text(QAccessible::Name).isEmpty());
    QVERIFY(held->state().invalid);
    QCOMPARE(opened.size(), 1);
}

void TestAccessibility::changesAreHeard()
{
    QFETCH(int, mode);
    m_tree->addFiles(30);
    show(mode);
    view()->setFocus();
    const QString third = m_tree->root.childFiles.at(2)->name;
    item(2);
    heardSoFar().clear();
    view()->setCurrentIndex(view()->model()->index(2, 0));
    QCOMPARE(heardOf(QAccessible::Focus), QStringList{third});
    heardSoFar().clear();
    QTest::keyClick(view(), Qt::Key_Space);
    QVERIFY(heardOf(QAccessible::StateChanged).contains(third));
    heardSoFar().clear();
    m_tree->root.childFiles.at(2)->checkState = Qt::Unchecked;
    m_widget->refreshCheckState();
    QCOMPARE(heardOf(QAccessible::StateChanged).count(third), 1);
    heardSoFar().clear();
    m_widget->refreshCheckState();
    QVERIFY(heardOf(QAccessible::StateChanged).isEmpty());
}

void TestAccessibility::growthIsNotHeard()
{
    QFETCH(int, mode);
    m_tree->addFiles(30);
    show(mode);
    view()->setFocus();
    view()->setCurrentIndex(view()->model()->index(4, 0));
    QAccessibleInterface *held = item(4);
    heardSoFar().clear();
    for (int i = 0; i < 5; ++i) {
        m_tree->addFiles(10);
        m_widget->updateData(&m_tree->root, QString());
    }
    QCOMPARE(heardOf(QAccessible::Focus), QStringList());
    QVERIFY(held->isValid());
    QCOMPARE(item(4), held);
    RecordTree other;
    other.root.secondaryId = 2;
    other.addFiles(10, QStringLiteral("other%1.jpg"));
    m_widget->updateData(&other.root, QString());
    QCOMPARE(item(4)->text(QAccessible::Name), other.root.childFiles.at(4)->name);
    QVERIFY(!item(20));
    m_widget->reset();
    QCOMPARE(interfaceOf(view())->childCount(), mode == 0 ? 0 : 1);
}

void TestAccessibility::millionRowsCostNothing()
{
    constexpr int Rows = 1000000;
    PlainListModel model(Rows);
    ThumbnailGrid grid;
    ScanTableView table;
    for (QAbstractItemView *each :
         {static_cast<QAbstractItemView *>(&grid), static_cast<QAbstractItemView *>(&table)}) {
        each->setModel(&model);
        const int first = each == &grid ? 0 : 1;
        QAccessibleInterface *list = interfaceOf(each);
        QCOMPARE(list->childCount(), Rows + first);
        for (int row = 0; row < Rows; row += 499) // more than are kept
            QCOMPARE(list->indexOfChild(list->child(first + row)), first + row);
        QAccessibleInterface *last = list->child(first + Rows - 1);
        QCOMPARE(last->text(QAccessible::Name), QStringLiteral("item 999999"));
        QVERIFY(last->state().offscreen);
        const QRect seen = each->visualRect(model.index(1, 0));
        const QPoint middle = each->viewport()->mapToGlobal(seen.center());
        QCOMPARE(list->childAt(middle.x(), middle.y()), list->child(first + 1));
        each->selectAll();
        QVERIFY(last->state().selected);
        if (list->tableInterface()) {
            const auto cells = list->tableInterface()->selectedCells();
            QVERIFY(!cells.isEmpty() && cells.size() <= 1024);
            for (QAccessibleInterface *cell : cells)
                QVERIFY(cell->isValid());
        }
        last = list->child(first + Rows - 1);
        model.reset(10);
        QVERIFY(!last->isValid());
        QVERIFY(!list->child(first + 10));
        model.reset(Rows);
    }
}

void TestAccessibility::selectAllTellsItsState()
{
    m_tree->addFiles(3);
    show(0);
    auto *button = m_widget->findChild<QPushButton *>(QStringLiteral("allCheckButton"));
    QAccessibleInterface *box = interfaceOf(button);
    QCOMPARE(box->role(), QAccessible::CheckBox);
    m_widget->setCheckAllState(Qt::PartiallyChecked);
    QVERIFY(box->state().checkStateMixed && !box->state().checked);
    heardSoFar().clear();
    box->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(box->state().checked && !box->state().checkStateMixed);
    QVERIFY(heardOf(QAccessible::StateChanged).contains(box->text(QAccessible::Name)));
    QCOMPARE(m_tree->root.childFiles.at(1)->checkState, int(Qt::Checked));

    show(2);
    QAccessibleInterface *header = interfaceOf(m_widget->findChild<ScanTableHeader *>());
    QAccessibleInterface *inHeader = header->child(0);
    QCOMPARE(inHeader->role(), QAccessible::CheckBox);
    QVERIFY(inHeader->state().checked);
    inHeader->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(m_tree->root.childFiles.at(1)->checkState, int(Qt::Unchecked));
    QVERIFY(!inHeader->state().checked);
}

void TestAccessibility::headerSectionsTellTheSort()
{
    m_tree->addFiles(3);
    show(2);
    QSignalSpy sorted(m_widget.data(), &Content::signalSortClicked);
    QAccessibleInterface *header = interfaceOf(m_widget->findChild<ScanTableHeader *>());
    QAccessibleInterface *size = header->child(2);
    QCOMPARE(size->text(QAccessible::Name), QStringLiteral("size"));
    QVERIFY(size->text(QAccessible::Description).isEmpty());
    size->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(sorted.size(), 1);
    const QString ascending = size->text(QAccessible::Description);
    size->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!ascending.isEmpty() && size->text(QAccessible::Description) != ascending);
    QVERIFY(header->child(1)->text(QAccessible::Description).isEmpty());
    // the same in the bar above the grid
    auto *bar = m_widget->findChild<HeaderView *>();
    auto *button = bar->findChild<QPushButton *>(QStringLiteral("sizeButton"));
    QCOMPARE(interfaceOf(button)->text(QAccessible::Description),
             size->text(QAccessible::Description));
    // the location does not sort
    QVERIFY(header->child(5)->actionInterface()->actionNames().isEmpty());
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
