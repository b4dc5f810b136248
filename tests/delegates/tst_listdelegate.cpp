#include "delegates/listdelegate.h"

#include "cardfixture.h"
#include "common/zvlangmanager.h"
#include "content/scantableview.h"
#include "platform/system/system.h"
#include "support/datarow.h"
#include "support/pixels.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

constexpr int Width = 200;
constexpr QRect CellRect(40, 88, Width, RowLayout::RowHeight);
constexpr int Name = ScanDataModel::NameColumn;
constexpr int Size = ScanDataModel::SizeColumn;
constexpr int Type = ScanDataModel::TypeColumn;
constexpr int Date = ScanDataModel::DateColumn;
constexpr int Path = ScanDataModel::PathColumn;

constexpr QPoint InCheckArea(10, 10); // from the top left of the cell
constexpr QPoint OnIcon(45, 22);
constexpr QPoint OnText(100, 22);
constexpr QPoint OnImage(Width - 12, 22);

/// Records under a delegate, and hands to paint and poke single cells.
struct Rows : CardFixture
{
    TreeItemData *addItem(int kind = File, const QString &path = QStringLiteral("/DCIM"))
    {
        TreeItemData *item = add(QStringLiteral("a.txt"), kind);
        item->path = path;
        item->volumeRoot = path.isEmpty() ? QString() : QStringLiteral("E:");
        item->extension = QStringLiteral("txt");
        return item;
    }
    QModelIndex cell(const TreeItemData *item, int column)
    {
        return model.index(model.rowOfFileId(item->fileId), column);
    }
    static QStyleOptionViewItem cellOption(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        QStyleOptionViewItem option;
        option.rect = CellRect;
        option.direction = direction;
        option.state = QStyle::State_Enabled;
        return option;
    }
    bool poke(QEvent::Type type, const QModelIndex &index, const QPoint &pos,
              Qt::MouseButton button = Qt::LeftButton,
              Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        QMouseEvent event(type, pos, button, button, {});
        return delegate.editorEvent(&event, &model, cellOption(direction), index);
    }
    QImage image(const QModelIndex &index)
    {
        QImage result(CellRect.size(), QImage::Format_RGB32);
        result.fill(Qt::white);
        QPainter painter(&result);
        painter.translate(-CellRect.topLeft());
        delegate.paint(&painter, cellOption(), index);
        return result;
    }

    ListDelegate delegate;
};

/// The same in a table on the screen.
struct Table : Rows
{
    Table()
    {
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        delegate.setTableView(&view);
        view.verticalHeader()->setDefaultSectionSize(RowLayout::RowHeight);
        view.setStyleSheet(
            QStringLiteral("QTableView { selection-background-color: transparent; }"));
        view.resize(700, 400);
    }
    void show()
    {
        view.show();
        view.clearFocus();
        view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        QVERIFY(QTest::qWaitForWindowExposed(&view));
    }
    void moveTo(const QPoint &pos)
    {
        QMouseEvent event(QEvent::MouseMove, pos, view.viewport()->mapToGlobal(pos), Qt::NoButton,
                          Qt::NoButton, {});
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
    QPoint on(const QModelIndex &index, const QPoint &offset)
    {
        return view.visualRect(index).topLeft() + offset;
    }
    QImage shot(const QRegion &region)
    {
        QImage result(view.viewport()->size(), QImage::Format_RGB32);
        result.fill(Qt::white);
        view.viewport()->render(&result, region.boundingRect().topLeft(), region, {});
        return result;
    }
    QImage shotOf(const QModelIndex &index)
    {
        return shot(view.viewport()->rect()).copy(view.visualRect(index));
    }

    ScanTableView view;
};

void listen(ListDelegate *delegate, QStringList *said)
{
    const auto note = [said](const char *what) {
        return [said, what] { said->append(QLatin1String(what)); };
    };
    CardFixture::listen(delegate, said);
    QObject::connect(delegate, &ListDelegate::signalClickListViewItem, delegate, note("click"));
    QObject::connect(delegate, &ListDelegate::signalPreviewClicked, delegate, note("preview"));
    QObject::connect(delegate, &ListDelegate::signalPathClicked, delegate, note("path"));
}

} // namespace

class TestListDelegate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { System::registerFontSubstitutes(); }
    void cleanupTestCase() { ScanPluginPreviewManager::instance()->stop(); }

    void answersMouse_data();
    void answersMouse();
    void locationLinks_data();
    void locationLinks();
    void checkRepaintsTheBox();
    void pressSurvivesReset();
    void tipsAreThrottled();
    void deadRecord_data();
    void deadRecord();

    void unknownValues_data();
    void unknownValues();
    void textsAreWrittenAnewOnRequest();
    void folderSuffix();
    void linkOnlyUnderTheMouse();
    void locationImageUnderTheMouse();
    void cursorTellsWhatIsClickable();
    void sortedColumnIsBold();
    void backgroundOfPartlyRepaintedRow_data();
    void backgroundOfPartlyRepaintedRow();
    void backgroundWithoutTheFirstColumn();
    void thumbnailIsAskedFor();
    void thumbnailIsSharpOnDenseScreens();
};

void TestListDelegate::answersMouse_data()
{
    addColumns<int, int, QEvent::Type, QPoint, Qt::MouseButton, QStringList, bool>(
        {"column", "kind", "type", "pos", "button", "said", "taken"});

    const auto row = [](const char *name, int column, int kind, QEvent::Type type,
                        const QPoint &pos, Qt::MouseButton button, const QStringList &said,
                        bool taken = false) {
        QTest::newRow(name) << column << kind << type << pos << button << said << taken;
    };
    const auto press = QEvent::MouseButtonPress;
    const auto twice = QEvent::MouseButtonDblClick;
    const auto move = QEvent::MouseMove;
    const int file = Rows::File;
    const int folder = Rows::Folder;
    const auto left = Qt::LeftButton;
    const auto right = Qt::RightButton;
    const QStringList click{"multi", "click"};

    row("check, name column", Name, file, press, InCheckArea, left, {"check 2"});
    row("check, size column", Size, file, press, InCheckArea, left, {"check 2"});
    row("check, type column", Type, file, press, InCheckArea, left, {"check 2"});
    row("check, time column", Date, file, press, InCheckArea, left, {"check 2"});
    row("check, middle button", Size, file, press, InCheckArea, Qt::MiddleButton, {"check 2"});
    row("check, folder", Size, folder, press, InCheckArea, left, {"check 2"});
    row("location before check", Path, file, press, InCheckArea, left, {"path"}, true);
    row("icon before check", Name, file, press, {33, 22}, left, {"preview"}, true);
    row("icon of a file", Name, file, press, OnIcon, left, {"preview"}, true);
    row("icon of a folder", Name, folder, press, OnIcon, left, click);
    row("name", Name, file, press, OnText, left, click);
    row("where the icon is, other column", Size, file, press, OnIcon, left, click);
    row("location image", Date, file, press, OnImage, left, {"path"}, true);
    row("beside the location image", Date, file, press, OnText, left, click);
    row("there, other column", Size, file, press, OnImage, left, click);
    row("right on a file", Name, file, press, OnIcon, right, {"right"});
    row("right on a location", Path, file, press, OnText, right, {"right"});
    row("right on a folder", Name, folder, press, OnText, right, {});
    row("outside", Size, file, press, {Width, 10}, left, {});
    row("double", Type, file, twice, OnText, left, {"double"}, true);
    row("double with the right button", Type, file, twice, OnText, right, {});
    row("double outside", Type, file, twice, {-1, 10}, left, {});
    row("release", Size, file, QEvent::MouseButtonRelease, InCheckArea, left, {});
    row("over a name", Name, file, move, OnText, Qt::NoButton, {"tip a.txt"});
    row("over a size", Size, file, move, OnText, Qt::NoButton, {});
    row("over a type", Type, file, move, OnText, Qt::NoButton, {"tip TXT"});
    row("over a time", Date, file, move, OnText, Qt::NoButton, {});
    row("over the location image", Date, file, move, OnImage, Qt::NoButton, {"tip view_in_path"});
    row("over a location", Path, file, move, OnText, Qt::NoButton, {"tip E:\\DCIM"});
    row("move outside", Path, file, move, {Width, 10}, Qt::NoButton, {});
}

void TestListDelegate::answersMouse()
{
    QFETCH(int, column);
    QFETCH(int, kind);
    QFETCH(QEvent::Type, type);
    QFETCH(QPoint, pos);
    QFETCH(Qt::MouseButton, button);

    for (auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        Rows rows;
        TreeItemData *item = rows.addItem(kind);
        QStringList said;
        listen(&rows.delegate, &said);
        const QPoint there = direction == Qt::LeftToRight
            ? CellRect.topLeft() + pos
            : CellRect.topRight() + QPoint(-pos.x(), pos.y());
        const bool taken = rows.poke(type, rows.cell(item, column), there, button, direction);
        QTEST(said, "said");
        QTEST(taken, "taken");
        QCOMPARE(item->checkState,
                 int(said == QStringList("check 2") ? Qt::Checked : Qt::Unchecked));
        QCOMPARE(rows.delegate.pressedIndex().isValid(), said.contains("click"));
    }
}

void TestListDelegate::locationLinks_data()
{
    addColumns<int, QString, bool, bool, bool, bool, bool>(
        {"kind", "path", "active", "suppressed", "placeholder", "imageLeads", "textLeads"});

    const QString path = QStringLiteral("/DCIM");
    QTest::newRow("located file") << 2 << path << true << false << false << true << true;
    QTest::newRow("not active") << 2 << path << false << false << false << false << false;
    QTest::newRow("image suppressed") << 2 << path << true << true << false << false << true;
    QTest::newRow("from nowhere") << 2 << QString() << true << false << false << false << false;
    QTest::newRow("folder") << 1 << path << true << false << false << true << true;
    QTest::newRow("folder, placeholder") << 1 << path << true << false << true << false << false;
}

void TestListDelegate::locationLinks()
{
    QFETCH(int, kind);
    QFETCH(QString, path);
    QFETCH(bool, active);
    QFETCH(bool, suppressed);
    QFETCH(bool, placeholder);

    Rows rows;
    const TreeItemData *item = rows.addItem(kind, path);
    rows.delegate.setPathColumnsActive(active);
    rows.delegate.setLocationIconSuppressed(suppressed);
    rows.delegate.setFoldersHavePlaceholder(placeholder);
    const QSignalSpy clicked(&rows.delegate, &ListDelegate::signalPathClicked);
    const auto press = [&](int column, const QPoint &pos) {
        const int before = clicked.size();
        rows.poke(QEvent::MouseButtonPress, rows.cell(item, column), CellRect.topLeft() + pos);
        return clicked.size() > before;
    };
    QTEST(press(Date, OnImage), "imageLeads");
    QTEST(press(Path, OnText), "textLeads");

    // what is painted is what reacts
    const QRect image = RowLayout(CellRect, Date).locationImage.translated(-CellRect.topLeft());
    QImage empty(image.size(), QImage::Format_RGB32);
    empty.fill(Qt::white);
    QTEST(rows.image(rows.cell(item, Date)).copy(image) != empty, "imageLeads");
}

void TestListDelegate::checkRepaintsTheBox()
{
    Rows rows;
    const TreeItemData *item = rows.addItem();
    const QSignalSpy changed(&rows.model, &ScanDataModel::dataChanged);
    QModelIndex told;
    connect(&rows.delegate, &ListDelegate::signalCheckStateChange, this,
            [&told](const QModelIndex &index) { told = index; });
    rows.poke(QEvent::MouseButtonPress, rows.cell(item, Date), CellRect.topLeft() + InCheckArea);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].toModelIndex(), rows.cell(item, Name));
    QCOMPARE(told, rows.cell(item, Date));
}

void TestListDelegate::pressSurvivesReset()
{
    Rows rows;
    const TreeItemData *item = rows.addItem();
    const auto reset = [&] { rows.model.clear(); };
    connect(&rows.delegate, &ListDelegate::signalMutilSelectEvent, this, reset);
    connect(&rows.delegate, &ListDelegate::signalCheckStateChange, this, reset);
    const QSignalSpy clicked(&rows.delegate, &ListDelegate::signalClickListViewItem);
    QVERIFY(!rows.poke(QEvent::MouseButtonPress, rows.cell(item, Size), CellRect.center()));
    QVERIFY(!rows.delegate.pressedIndex().isValid());
    QVERIFY(!clicked[0][0].toModelIndex().isValid());

    rows.model.openFolder(&rows.root);
    QVERIFY(!rows.poke(QEvent::MouseButtonPress, rows.cell(item, Size),
                       CellRect.topLeft() + InCheckArea));
    QCOMPARE(item->checkState, int(Qt::Checked));
}

void TestListDelegate::tipsAreThrottled()
{
    Rows rows;
    const TreeItemData *first = rows.addItem();
    const TreeItemData *second = rows.addItem();
    const QSignalSpy tips(&rows.delegate, &ListDelegate::signalShowTooltip);
    const auto hover = [&](const TreeItemData *item, int column) {
        rows.poke(QEvent::MouseMove, rows.cell(item, column), CellRect.topLeft() + OnText,
                  Qt::NoButton);
    };
    hover(first, Name);
    hover(first, Name);
    hover(first, Size); // has none, and forgets nothing
    hover(first, Name);
    QCOMPARE(tips.size(), 1);
    hover(first, Type);
    QCOMPARE(tips.size(), 2);
    hover(second, Type);
    QCOMPARE(tips.size(), 3);
    hover(first, Type);
    QCOMPARE(tips.size(), 4);
}

void TestListDelegate::deadRecord_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < ScanDataModel::ColumnCount; ++column)
        QTest::addRow("column %d", column) << column;
}

void TestListDelegate::deadRecord()
{
    QFETCH(int, column);
    Rows rows;
    TreeItemData *item = rows.addItem();
    const QPersistentModelIndex cell = rows.cell(item, column);
    const QModelIndex stale = cell;
    rows.poke(QEvent::MouseMove, cell, CellRect.center(), Qt::NoButton);
    QStringList said;
    listen(&rows.delegate, &said);
    rows.destroy(item);

    for (const QModelIndex &index : {QModelIndex(cell), stale, QModelIndex()}) {
        for (auto type :
             {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
            QVERIFY(!rows.poke(type, index, CellRect.topLeft() + InCheckArea));
            QVERIFY(!rows.poke(type, index, CellRect.topLeft() + OnIcon, Qt::RightButton));
        }
        QImage empty(CellRect.size(), QImage::Format_RGB32);
        empty.fill(Qt::white);
        QCOMPARE(rows.image(index), empty);
    }
    QCOMPARE(said, QStringList());
}

void TestListDelegate::unknownValues_data()
{
    addColumns<qint64, bool, bool>({"value", "sizeKnown", "timeKnown"});

    QTest::newRow("0") << qint64(0) << false << false;
    QTest::newRow("negative") << qint64(-5) << false << false;
    QTest::newRow("least") << std::numeric_limits<qint64>::min() << false << false;
    QTest::newRow("1") << qint64(1) << true << true;
    QTest::newRow("more than any calendar") << std::numeric_limits<qint64>::max() << true << false;
}

void TestListDelegate::unknownValues()
{
    QFETCH(qint64, value);
    Rows rows;
    rows.delegate.setLocationIconSuppressed(true);
    TreeItemData *item = rows.addItem();
    const QImage noSize = rows.image(rows.cell(item, Size));
    const QImage noTime = rows.image(rows.cell(item, Date));
    item->extension.clear(); // its "--" is no rival, but says that something is there
    item->fileSize = value;
    item->modifiedTime = value;
    QTEST(rows.image(rows.cell(item, Size)) != noSize, "sizeKnown");
    QTEST(rows.image(rows.cell(item, Date)) != noTime, "timeKnown");
}

void TestListDelegate::textsAreWrittenAnewOnRequest()
{
    auto *language = ZVLangManager::instance();
    const auto speak = [&](const char *code) {
        language->init(QString(), QString(), QString(), QString(), QLatin1String(code));
    };
    speak("en-us");
    Rows rows;
    TreeItemData *item = rows.addItem();
    item->fileSize = 1234567;
    const QModelIndex cell = rows.cell(item, Size);
    const QImage english = rows.image(cell);
    speak("de-de"); // a decimal comma
    QCOMPARE(rows.image(cell), english);
    rows.delegate.setCachesDirty();
    QVERIFY(rows.image(cell) != english);
    speak("en-us");
}

void TestListDelegate::folderSuffix()
{
    Rows rows;
    TreeItemData *folder = rows.addItem(Rows::Folder);
    const QModelIndex cell = rows.cell(folder, Name);
    const auto inkedTo = [&] {
        const auto isInk = [](QRgb pixel) { return pixel != qRgb(255, 255, 255); };
        return around(rows.image(cell), isInk).right();
    };
    folder->itemCount = -1; // nobody knows
    const int bare = inkedTo();
    folder->itemCount = 3;
    const int counted = inkedTo();
    QVERIFY(counted > bare + 10);
    folder->itemCount = 300;
    QVERIFY(inkedTo() > counted);

    // a long name gives way to the count
    folder->name = QString(200, QLatin1Char('w'));
    const QRect name = RowLayout(CellRect, Name).name.translated(-CellRect.topLeft());
    const int right = inkedTo();
    QVERIFY(right <= name.right());
    QVERIFY(right > name.right() - 20);
    const QImage three = rows.image(cell);
    folder->itemCount = 999;
    QVERIFY(rows.image(cell) != three);
}

void TestListDelegate::linkOnlyUnderTheMouse()
{
    Table table;
    TreeItemData *item = table.addItem();
    table.addItem();
    table.show();
    const QModelIndex cell = table.cell(item, Path);
    const auto isLink = [&] {
        const auto isUnderline = [](QRgb pixel) { return pixel == qRgb(0, 145, 255); };
        return !around(table.shotOf(cell), isUnderline).isEmpty();
    };
    QVERIFY(!isLink());
    table.moveTo(table.on(cell, {20, 20}));
    QVERIFY(isLink());
    table.moveTo(table.on(table.cell(item, Date), {20, 20}));
    QVERIFY(!isLink());
    table.moveTo(table.on(table.model.index(1, Path), {20, 20}));
    QVERIFY(!isLink());
    table.moveTo(table.on(cell, {20, 20}));
    table.delegate.setPathColumnsActive(false);
    QVERIFY(!isLink());
}

void TestListDelegate::locationImageUnderTheMouse()
{
    Table table;
    TreeItemData *item = table.addItem();
    table.show();
    const QModelIndex cell = table.cell(item, Date);
    const RowLayout layout(table.view.visualRect(cell), Date);
    table.moveTo(layout.text.center());
    const QImage normal = table.shotOf(cell);
    table.moveTo(layout.locationImage.center());
    QVERIFY(table.shotOf(cell) != normal);
    table.moveTo(layout.text.center());
    QCOMPARE(table.shotOf(cell), normal);
}

void TestListDelegate::cursorTellsWhatIsClickable()
{
    Table table;
    TreeItemData *item = table.addItem();
    TreeItemData *lost = table.addItem(Rows::File, QString());
    TreeItemData *folder = table.addItem(Rows::Folder);
    table.show();
    const auto shapeAt = [&](const QPoint &pos) {
        table.moveTo(pos);
        return table.view.viewport()->cursor().shape();
    };
    const RowLayout time(table.view.visualRect(table.cell(item, Date)), Date);
    QCOMPARE(shapeAt(table.on(table.cell(item, Name), OnIcon)), Qt::PointingHandCursor);
    QCOMPARE(shapeAt(table.on(table.cell(item, Name), {75, 22})), Qt::ArrowCursor);
    QCOMPARE(shapeAt(time.locationImage.center()), Qt::PointingHandCursor);
    QCOMPARE(shapeAt(time.text.center()), Qt::ArrowCursor);
    QCOMPARE(shapeAt(table.on(table.cell(item, Path), {20, 20})), Qt::PointingHandCursor);
    QCOMPARE(shapeAt(table.on(table.cell(lost, Path), {20, 20})), Qt::ArrowCursor);
    QCOMPARE(shapeAt(table.on(table.cell(folder, Name), OnIcon)), Qt::ArrowCursor);

    QCOMPARE(shapeAt(table.on(table.cell(item, Name), OnIcon)), Qt::PointingHandCursor);
    QCOMPARE(shapeAt({20, table.view.viewport()->height() - 5}), Qt::ArrowCursor);
}

void TestListDelegate::sortedColumnIsBold()
{
    Table table;
    TreeItemData *item = table.addItem(Rows::Folder);
    table.show();
    for (int column = 0; column < ScanDataModel::ColumnCount; ++column) {
        item->folderSize = item->modifiedTime = 1700000000;
        const QImage plain = table.shotOf(table.cell(item, column));
        table.view.horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
        QVERIFY(table.shotOf(table.cell(item, column)) != plain);
        table.view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        QCOMPARE(table.shotOf(table.cell(item, column)), plain);
    }
}

void TestListDelegate::backgroundOfPartlyRepaintedRow_data()
{
    addColumns<QList<int>, Qt::LayoutDirection>({"columns", "direction"});

    QTest::newRow("one") << QList<int>{2} << Qt::LeftToRight;
    QTest::newRow("first and another") << QList<int>{0, 3} << Qt::LeftToRight;
    QTest::newRow("first and another, mirrored") << QList<int>{0, 3} << Qt::RightToLeft;
    QTest::newRow("neighbours") << QList<int>{0, 1} << Qt::LeftToRight;
    QTest::newRow("last, mirrored") << QList<int>{4} << Qt::RightToLeft;
}

void TestListDelegate::backgroundOfPartlyRepaintedRow()
{
    QFETCH(QList<int>, columns);
    QFETCH(Qt::LayoutDirection, direction);
    Table table;
    TreeItemData *item = table.addItem();
    table.addItem();
    table.view.setLayoutDirection(direction);
    table.show();
    table.moveTo(table.on(table.cell(item, Size), {20, 20}));
    const QImage whole = table.shot(table.view.viewport()->rect());
    QRegion region;
    for (int column : columns)
        region += table.view.visualRect(table.cell(item, column));
    const QImage part = table.shot(region);
    for (int column : columns) {
        const QRect rect = table.view.visualRect(table.cell(item, column))
            & table.view.viewport()->rect();
        QCOMPARE(part.copy(rect), whole.copy(rect));
    }
}

void TestListDelegate::backgroundWithoutTheFirstColumn()
{
    Table table;
    TreeItemData *item = table.addItem();
    table.view.resize(300, 200);
    table.view.setColumnWidth(Name, 200);
    table.show();
    table.view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table.view.horizontalScrollBar()->setValue(220);
    const QModelIndex cell = table.cell(item, Type);
    const auto background = [&] {
        const QRect rect = table.view.visualRect(cell);
        return table.shot(table.view.viewport()->rect()).pixel(rect.left() + 2, rect.center().y());
    };
    QCOMPARE(background(), qRgb(255, 255, 255));
    table.moveTo(table.on(cell, {20, 20}));
    QVERIFY(background() != qRgb(255, 255, 255));
}

void TestListDelegate::thumbnailIsAskedFor()
{
    Rows rows;
    TreeItemData *file = rows.addItem();
    TreeItemData *folder = rows.addItem(Rows::Folder);
    QVector<TreeItemData *> asked;
    rows.delegate.setThumbnailRequester([&](TreeItemData *item) {
        asked.append(item);
        if (asked.size() == 2)
            rows.destroy(item); // whoever is asked may end it
    });
    rows.image(rows.cell(folder, Name));
    rows.image(rows.cell(file, Size));
    QVERIFY(asked.isEmpty());
    rows.image(rows.cell(file, Name));
    QCOMPARE(asked, QVector<TreeItemData *>{file});
    ScanPluginPreviewManager::instance()->storeThumbnail(file->fileId, QPixmap(40, 40));
    rows.image(rows.cell(file, Name));
    QCOMPARE(asked.size(), 1);
    ScanPluginPreviewManager::instance()->storeThumbnail(file->fileId, QPixmap());
    rows.image(rows.cell(file, Name));
    QCOMPARE(asked.size(), 2);
}

void TestListDelegate::thumbnailIsSharpOnDenseScreens()
{
    Rows rows;
    TreeItemData *file = rows.addItem();
    QImage lines(128, 128, QImage::Format_RGB32);
    for (int x = 0; x < lines.width(); ++x) {
        for (int y = 0; y < lines.height(); ++y) // two of these are one pixel at scale 2
            lines.setPixel(x, y, x / 2 % 2 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
    ScanPluginPreviewManager::instance()->storeThumbnail(file->fileId, QPixmap::fromImage(lines));
    QImage image(CellRect.size() * 2, QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    painter.scale(2, 2);
    painter.translate(-CellRect.topLeft());
    rows.delegate.paint(&painter, Rows::cellOption(), rows.cell(file, Name));
    const QPoint middle = (RowLayout(CellRect, Name).icon.center() - CellRect.topLeft()) * 2;
    const int here = qGray(image.pixel(middle));
    const int next = qGray(image.pixel(middle + QPoint(1, 0)));
    QVERIFY2(qAbs(here - next) > 200, qPrintable(QStringLiteral("%1 %2").arg(here).arg(next)));
}

QTEST_MAIN(TestListDelegate)
#include "tst_listdelegate.moc"
