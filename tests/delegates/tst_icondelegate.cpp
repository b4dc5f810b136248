#include "delegates/icondelegate.h"

#include "cardfixture.h"
#include "common/scanviewmanager.h"
#include "common/translation.h"
#include "platform/system/system.h"
#include "support/datarow.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QScopeGuard>
#include <QSignalSpy>
#include <QtTest>

#include <future>

Q_DECLARE_METATYPE(Qt::MouseButton)
Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

namespace {

constexpr QPoint OnBox(16, 16);
constexpr QPoint OnPreview(75, 43);
constexpr QPoint OnName(75, 90);
constexpr QPoint OnLabel(75, 112);
constexpr QPoint Outside(151, 16);

void listen(IconDelegate *delegate, QStringList *said)
{
    CardFixture::listen(delegate, said);
    QObject::connect(delegate, &IconDelegate::signalClickListViewItem, delegate,
                     [said] { said->append("preview"); });
    QObject::connect(delegate, &IconDelegate::signalSetCursor, delegate,
                     [said](const QCursor &cursor) {
                         said->append(cursor.shape() == Qt::PointingHandCursor ? "hand" : "arrow");
                     });
}

} // namespace

class TestIconDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { System::registerFontSubstitutes(); }
    void cleanupTestCase() { ScanPluginPreviewManager::instance()->stop(); }

    void answersMouse_data();
    void answersMouse();
    void togglesCheck_data();
    void togglesCheck();
    void marksSurviveOnlyExtendingPresses();
    void marksFollowTheirCards();
    void marksMayHaveGaps();

    void firstCardOfFreshGridIsCurrent();
    void currentCardSurvivesReset();
    void currentCardGoesWithItsRecord();

    void tipsAreThrottled();
    void throttleWaits_data();
    void throttleWaits();

    void deadRecordUnderTheMouse();
    void recordDiesWhileItIsPainted();
    void asksForThumbnailOnlyWithoutOne();
    void invalidIndexIsLogged();
    void plainPainting();
    void elidedTextOffTheGuiThread();
};

void TestIconDelegate::answersMouse_data()
{
    addColumns<int, QEvent::Type, QPoint, Qt::MouseButton, Qt::KeyboardModifiers, QStringList,
               bool>({"kind", "type", "pos", "button", "modifiers", "said", "taken"});

    const auto row = [](const char *name, int kind, QEvent::Type type, const QPoint &pos,
                        Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                        const QStringList &said, bool taken = false) {
        QTest::newRow(name) << kind << type << pos << button << modifiers << said << taken;
    };
    const int file = CardFixture::File;
    const int folder = CardFixture::Folder;
    const auto press = QEvent::MouseButtonPress;
    const auto twice = QEvent::MouseButtonDblClick;
    const auto none = Qt::KeyboardModifiers();

    row("box", file, press, OnBox, Qt::LeftButton, none, {"check 2"});
    row("box, middle button", file, press, OnBox, Qt::MiddleButton, none, {"check 2"});
    row("box, right button", file, press, OnBox, Qt::RightButton, none, {"right"});
    row("box, with Shift", file, press, OnBox, Qt::LeftButton, Qt::ShiftModifier, {"check 2"});
    row("preview of a file", file, press, OnPreview, Qt::LeftButton, none, {"preview"});
    row("a folder has no preview", folder, press, OnPreview, Qt::LeftButton, none, {"multi"});
    row("elsewhere", file, press, OnName, Qt::LeftButton, none, {"multi"});
    row("elsewhere with Ctrl", file, press, OnName, Qt::LeftButton, Qt::ControlModifier, {"multi"});
    row("right on a file", file, press, OnName, Qt::RightButton, none, {"right"});
    row("right on a folder", folder, press, OnName, Qt::RightButton, none, {});
    row("outside", file, press, Outside, Qt::LeftButton, none, {});
    row("double", file, twice, OnName, Qt::LeftButton, none, {"double"}, true);
    row("double on the box", folder, twice, OnBox, Qt::LeftButton, none, {"double"}, true);
    row("double with the right button", file, twice, OnName, Qt::RightButton, none, {});
    row("double outside", file, twice, Outside, Qt::LeftButton, none, {});
    row("release", file, QEvent::MouseButtonRelease, OnBox, Qt::LeftButton, none, {});
    row("move over the preview", file, QEvent::MouseMove, OnPreview, Qt::NoButton, none,
        {"hand", "tip a.txt"});
    row("move elsewhere", file, QEvent::MouseMove, OnName, Qt::NoButton, none,
        {"arrow", "tip a.txt"});
    row("move outside", file, QEvent::MouseMove, Outside, Qt::NoButton, none, {"arrow"});
    row("move over a folder", folder, QEvent::MouseMove, OnPreview, Qt::NoButton, none, {});
    row("leave", folder, QEvent::Leave, {}, Qt::NoButton, none, {"arrow"});
}

void TestIconDelegate::answersMouse()
{
    QFETCH(int, kind);
    QFETCH(QEvent::Type, type);
    QFETCH(QPoint, pos);
    QFETCH(Qt::MouseButton, button);
    QFETCH(Qt::KeyboardModifiers, modifiers);

    for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        CardFixture cards;
        const TreeItemData *item = cards.add(QStringLiteral("a.txt"), kind);
        IconDelegate delegate;
        QStringList said;
        listen(&delegate, &said);
        QStyleOptionViewItem option = cards.option();
        option.direction = direction;
        const int x = direction == Qt::LeftToRight ? pos.x() : option.rect.right() - pos.x();
        QMouseEvent mouse(type, QPoint(x, pos.y()), button, button, modifiers);
        QEvent leave(QEvent::Leave);
        QEvent *event = type == QEvent::Leave ? &leave : &mouse;
        const bool taken = delegate.editorEvent(event, &cards.model, option, cards.indexOf(item));
        QTEST(said, "said");
        QTEST(taken, "taken");
    }
}

void TestIconDelegate::togglesCheck_data()
{
    addColumns<int, int, bool, int, int>(
        {"kind", "count", "emptyFolderCheckable", "before", "after"});

    QTest::newRow("check") << 2 << 0 << false << 0 << 2;
    QTest::newRow("uncheck") << 2 << 0 << false << 2 << 0;
    QTest::newRow("partial becomes checked") << 1 << 5 << false << 1 << 2;
    QTest::newRow("folder") << 1 << 1 << false << 0 << 2;
    QTest::newRow("empty folder") << 1 << 0 << false << 0 << 0;
    QTest::newRow("unknown count") << 1 << -1 << false << 0 << 0;
    QTest::newRow("folder-like without items") << 0 << 0 << false << 2 << 2;
    QTest::newRow("empty folder, allowed") << 1 << 0 << true << 0 << 2;
    QTest::newRow("unknown count, allowed") << 1 << -1 << true << 2 << 0;
    QTest::newRow("unknown kind") << 7 << 5 << true << 0 << 0;
}

void TestIconDelegate::togglesCheck()
{
    QFETCH(int, kind);
    QFETCH(int, count);
    QFETCH(bool, emptyFolderCheckable);
    QFETCH(int, before);
    QFETCH(int, after);

    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a"), kind);
    item->itemCount = count;
    item->checkState = before;
    IconDelegate delegate;
    delegate.setEmptyFolderCheckable(emptyFolderCheckable);
    const QSignalSpy multi(&delegate, &IconDelegate::signalMutilSelectEvent);
    int written = -1;
    connect(&delegate, &IconDelegate::signalCheckStateChange, this,
            [&] { written = item->checkState; }); // the record is written before anyone hears

    cards.send(&delegate, cards.indexOf(item), QEvent::MouseButtonPress, OnBox);
    QCOMPARE(item->checkState, after);
    QCOMPARE(written, before == after ? -1 : after);
    QCOMPARE(delegate.pressedIndex().isValid(), before != after);
    QVERIFY(multi.isEmpty());
}

void TestIconDelegate::marksSurviveOnlyExtendingPresses()
{
    CardFixture cards;
    const TreeItemData *a = cards.add(QStringLiteral("a"));
    const TreeItemData *b = cards.add(QStringLiteral("b"));
    IconDelegate delegate;
    const QModelIndexList both{cards.indexOf(a), cards.indexOf(b)};
    delegate.setMarkedIndexes(both);
    for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier}) {
        cards.send(&delegate, both[0], QEvent::MouseButtonPress, OnName, Qt::LeftButton, modifier);
        QCOMPARE(delegate.markedIndexes(), both);
    }
    int leftWhenTold = -1;
    connect(&delegate, &IconDelegate::signalMutilSelectEvent, this,
            [&] { leftWhenTold = delegate.markedIndexes().size(); });
    cards.send(&delegate, both[0], QEvent::MouseButtonPress, OnName);
    QCOMPARE(leftWhenTold, 0);
}

void TestIconDelegate::marksFollowTheirCards()
{
    CardFixture cards;
    const TreeItemData *b = cards.add(QStringLiteral("b"));
    const TreeItemData *a = cards.add(QStringLiteral("a"));
    IconDelegate delegate;
    delegate.setMarkedIndexes({cards.indexOf(b)});
    delegate.setPressedIndex(cards.indexOf(b));
    const QImage selected = cards.paint(delegate, cards.indexOf(b));

    cards.model.sort(ScanDataModel::NameColumn);
    QCOMPARE(cards.indexOf(b).row(), 1);
    QCOMPARE(delegate.markedIndexes(), QModelIndexList{cards.indexOf(b)});
    QCOMPARE(cards.paint(delegate, cards.indexOf(b)), selected);
    const QImage other = cards.paint(delegate, cards.indexOf(a));
    QCOMPARE(cards.paint(delegate, cards.indexOf(a), QStyle::State_Selected) == other, false);
    cards.model.clear();
    QVERIFY(delegate.markedIndexes().isEmpty());
}

void TestIconDelegate::marksMayHaveGaps()
{
    CardFixture cards;
    for (int i = 0; i < 6; ++i)
        cards.add(QString::number(i));
    const auto index = [&](int row) { return cards.model.index(row, 0); };
    IconDelegate delegate;
    delegate.setMarkedIndexes({index(4), {}, index(0), index(5), index(1)});
    QCOMPARE(delegate.markedIndexes(), (QModelIndexList{index(0), index(1), index(4), index(5)}));
    delegate.setMarkedIndexes({index(2)}); // replaces the list
    QCOMPARE(delegate.markedIndexes(), QModelIndexList{index(2)});
}

void TestIconDelegate::firstCardOfFreshGridIsCurrent()
{
    CardFixture cards;
    const TreeItemData *a = cards.add(QStringLiteral("a"));
    const TreeItemData *b = cards.add(QStringLiteral("b"));
    const IconDelegate delegate;
    const QImage first = cards.paint(delegate, cards.indexOf(a));
    const QImage second = cards.paint(delegate, cards.indexOf(b));
    QCOMPARE(delegate.pressedIndex(), cards.indexOf(a));
    QCOMPARE(cards.paint(delegate, cards.indexOf(a), QStyle::State_Selected), first);
    QVERIFY(cards.paint(delegate, cards.indexOf(b), QStyle::State_Selected) != second);
    QVERIFY(cards.paint(delegate, cards.indexOf(a)) != first); // the selected card took over
}

void TestIconDelegate::currentCardSurvivesReset()
{
    CardFixture cards;
    const TreeItemData *a = cards.add(QStringLiteral("a"));
    const TreeItemData *b = cards.add(QStringLiteral("b"));
    IconDelegate delegate;
    delegate.setPressedIndex(cards.indexOf(b));
    const QImage current = cards.paint(delegate, cards.indexOf(b));

    cards.add(QStringLiteral("folder"), CardFixture::Folder); // first: all rows move
    QCOMPARE(cards.indexOf(b).row(), 2);
    cards.paint(delegate, cards.indexOf(a));
    QVERIFY(delegate.pressedIndex() != cards.indexOf(a));
    QCOMPARE(cards.paint(delegate, cards.indexOf(b)), current);
    QCOMPARE(delegate.pressedIndex(), cards.indexOf(b));

    delegate.setPressedIndex({}); // another folder is shown
    cards.paint(delegate, cards.indexOf(a));
    QCOMPARE(delegate.pressedIndex(), cards.indexOf(a));
}

void TestIconDelegate::currentCardGoesWithItsRecord()
{
    CardFixture cards;
    const TreeItemData *a = cards.add(QStringLiteral("a"));
    TreeItemData *b = cards.add(QStringLiteral("b"));
    IconDelegate delegate;
    delegate.setPressedIndex(cards.indexOf(b));
    cards.destroy(b);
    cards.model.openFolder(&cards.root);
    cards.paint(delegate, cards.indexOf(a));
    QCOMPARE(delegate.pressedIndex(), cards.indexOf(a));
}

void TestIconDelegate::tipsAreThrottled()
{
    CardFixture cards;
    const TreeItemData *a = cards.add(QStringLiteral("a.txt"));
    const TreeItemData *b = cards.add(QStringLiteral("b.txt"));
    IconDelegate delegate;
    QStringList said;
    connect(&delegate, &IconDelegate::signalShowTooltip, this,
            [&](const QString &tip) { said.append(tip); });
    const auto moveTo = [&](const TreeItemData *item, const QPoint &pos) {
        cards.send(&delegate, cards.indexOf(item), QEvent::MouseMove, pos, Qt::NoButton);
    };
    const QString label = translatedKey("recoverability_label") + QString::fromUtf8(" · ")
        + translatedKey("recoverability_high");

    moveTo(a, OnLabel);
    QCOMPARE(said, QStringList{label});
    moveTo(a, OnName);
    moveTo(a, OnLabel); // neither tip is due again
    moveTo(a, OnName);
    QCOMPARE(said, (QStringList{label, "a.txt"}));
    cards.model.openFolder(&cards.root); // results stream in
    moveTo(a, OnName);
    QCOMPARE(said.size(), 2);
    moveTo(b, OnName);
    moveTo(b, OnLabel);
    QCOMPARE(said, (QStringList{label, "a.txt", "b.txt", label}));
}

void TestIconDelegate::throttleWaits_data()
{
    addColumns<bool, qint64, bool>({"sameIndex", "elapsedMs", "allowed"});
    QTest::newRow("same, at once") << true << Q_INT64_C(0) << false;
    QTest::newRow("same, at the pause's end") << true << Q_INT64_C(1000) << false;
    QTest::newRow("same, after the pause") << true << Q_INT64_C(1001) << true;
    QTest::newRow("other, at once") << false << Q_INT64_C(0) << true;
}

void TestIconDelegate::throttleWaits()
{
    QFETCH(bool, sameIndex);
    QFETCH(qint64, elapsedMs);
    CardFixture cards;
    const QModelIndex a = cards.indexOf(cards.add(QStringLiteral("a")));
    TooltipThrottle throttle(1000);
    QVERIFY(throttle.allows(a, 0));
    throttle.shown(a);
    QTEST(throttle.allows(sameIndex ? a : a.siblingAtColumn(1), elapsedMs), "allowed");
}

void TestIconDelegate::deadRecordUnderTheMouse()
{
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a.txt"));
    cards.add(QStringLiteral("b.txt"));
    IconDelegate delegate;
    delegate.setEmptyFolderCheckable(true);
    const QModelIndex index = cards.indexOf(item);
    cards.send(&delegate, index, QEvent::MouseButtonPress, OnName);
    const QImage alive = cards.paint(delegate, index);
    cards.destroy(item);

    QStringList said;
    listen(&delegate, &said);
    for (const QPoint &pos : {OnBox, OnPreview, OnName, OnLabel}) {
        QVERIFY(!cards.send(&delegate, index, QEvent::MouseMove, pos, Qt::NoButton));
        QVERIFY(!cards.send(&delegate, index, QEvent::MouseButtonPress, pos));
        QVERIFY(!cards.send(&delegate, index, QEvent::MouseButtonDblClick, pos));
    }
    QCOMPARE(said, QStringList());
    const QImage dead = cards.paint(delegate, index);
    QCOMPARE(dead.pixel(2, 60), alive.pixel(2, 60)); // the bare card, still selected
    QVERIFY(dead != alive);
}

void TestIconDelegate::recordDiesWhileItIsPainted()
{
    CardFixture cards;
    TreeItemData *item = cards.add(QStringLiteral("a.txt"));
    const QModelIndex index = cards.indexOf(item);
    const IconDelegate delegate;
    connect(&delegate, &IconDelegate::signalGetThumItem, this,
            [&](TreeItemData *asked) { cards.destroy(asked); });
    const QImage image = cards.paint(delegate, index);
    QVERIFY(image != cards.paint(delegate, index));
}

void TestIconDelegate::asksForThumbnailOnlyWithoutOne()
{
    CardFixture cards;
    TreeItemData *file = cards.add(QStringLiteral("a.jpg"));
    TreeItemData *folder = cards.add(QStringLiteral("b"), CardFixture::Folder);
    const IconDelegate delegate;
    const QSignalSpy asked(&delegate, &IconDelegate::signalGetThumItem);
    cards.paint(delegate, cards.indexOf(folder));
    QCOMPARE(asked.size(), 0);
    cards.paint(delegate, cards.indexOf(file));
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked[0][0].value<TreeItemData *>(), file);
    QPixmap thumbnail(110, 83);
    thumbnail.fill(Qt::red);
    ScanPluginPreviewManager::instance()->storeThumbnail(file->fileId, thumbnail);
    cards.paint(delegate, cards.indexOf(file));
    QCOMPARE(asked.size(), 1);
}

void TestIconDelegate::invalidIndexIsLogged()
{
    const IconDelegate delegate;
    QTest::ignoreMessage(QtDebugMsg, "icon delegate model index invalid");
    const QImage image = CardFixture::paint(delegate, {});
    QCOMPARE(image.pixel(20, 20), QColor(Qt::magenta).rgb()); // nothing painted
    QVERIFY(!delegate.pressedIndex().isValid());
}

void TestIconDelegate::plainPainting()
{
    CardFixture cards;
    const QModelIndex index = cards.indexOf(cards.add(QStringLiteral("a.txt")));
    const IconDelegate delegate;
    const auto restore = qScopeGuard([] { ScanViewManager::instance()->plainPainting = false; });
    ScanViewManager::instance()->plainPainting = true;
    QCOMPARE(cards.paint(delegate, index), cards.paint(QStyledItemDelegate(), index));
}

void TestIconDelegate::elidedTextOffTheGuiThread()
{
    const IconDelegate delegate;
    const QString name(200, QLatin1Char('W'));
    QTest::ignoreMessage(QtDebugMsg, "icondelegate currentThread not mainthread");
    const auto elided = [&] { return delegate.getElidedText(name, 100); };
    QCOMPARE(std::async(std::launch::async, elided).get(), name);
    QVERIFY(elided() != name);
}

QTEST_MAIN(TestIconDelegate)
#include "tst_icondelegate.moc"
