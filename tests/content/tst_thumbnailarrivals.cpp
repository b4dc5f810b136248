// What the arrival of thumbnails repaints, and what becomes of them when the items go.
#include "content/sdcardcontentdatawidget.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/eventcounter.h"
#include "support/recordtree.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int Many = 3000;

QPixmap red()
{
    QPixmap pixmap(110, 83);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

class TestThumbnailArrivals : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void onlyVisibleRowsRepaint_data();
    void onlyVisibleRowsRepaint();
    void picturesLeaveWithTheirTree();

private:
    static ScanPluginPreviewManager *cache() { return ScanPluginPreviewManager::instance(); }

    QTemporaryDir m_folder;
    std::unique_ptr<RecordTree> tree;
    std::unique_ptr<SDCardContentDataWidget> widget;
};

void TestThumbnailArrivals::initTestCase()
{
    for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
        qputenv(variable, QFile::encodeName(m_folder.path()));
}

void TestThumbnailArrivals::init()
{
    tree = std::make_unique<RecordTree>();
    tree->addFiles(Many);
    widget = std::make_unique<SDCardContentDataWidget>(1);
    widget->resize(700, 500);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    widget->updateData(&tree->root, QString());
}

void TestThumbnailArrivals::cleanup()
{
    widget.reset();
    tree.reset();
    cache()->stop();
}

void TestThumbnailArrivals::onlyVisibleRowsRepaint_data()
{
    addColumns<int, bool>({"mode", "scrolled"});
    QTest::newRow("grid") << 0 << false;
    QTest::newRow("grid, scrolled") << 0 << true;
    QTest::newRow("list") << 2 << false;
    QTest::newRow("list, scrolled") << 2 << true;
}

void TestThumbnailArrivals::onlyVisibleRowsRepaint()
{
    QFETCH(int, mode);
    QFETCH(bool, scrolled);
    widget->setViewMode(mode);
    QAbstractItemView *view = viewOf(*widget, mode);
    if (scrolled)
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / 2);
    EventCounter watcher(view->viewport(), QEvent::Paint);
    view->viewport()->update();
    QTRY_VERIFY(!watcher.painted.isEmpty());
    QCoreApplication::processEvents();
    watcher.painted = QRegion();

    const QRect seen = view->viewport()->rect();
    QVector<int> visible;
    for (int row = 0; row < Many; ++row) {
        if (view->visualRect(view->model()->index(row, 0)).intersects(seen))
            visible.append(row);
        else if (row % 3 == 0)
            cache()->storeThumbnail(tree->root.childFiles.at(row)->fileId, red());
    }
    QVERIFY(!visible.isEmpty() && visible.size() < 100);
    QCoreApplication::processEvents();
    QVERIFY(watcher.painted.isEmpty());

    const int row = visible.at(visible.size() / 2);
    cache()->storeThumbnail(tree->root.childFiles.at(row)->fileId, red());
    QTRY_VERIFY(!watcher.painted.isEmpty());
    QRect cells = view->visualRect(view->model()->index(row, 0));
    if (mode != 0)
        cells = QRect(0, cells.top(), seen.width(), cells.height());
    QVERIFY(cells.adjusted(-1, -1, 1, 1).contains(watcher.painted.boundingRect()));
    QVERIFY(watcher.painted.boundingRect().contains(cells.center()));
}

void TestThumbnailArrivals::picturesLeaveWithTheirTree()
{
    QSignalSpy asked(widget.get(), &SDCardContentDataWidget::signalGetThumPixmap);
    connect(widget.get(), &SDCardContentDataWidget::signalGetThumPixmap, cache(),
            [](TreeItemData *item) { cache()->storeThumbnail(item->fileId, red()); });
    QTRY_VERIFY(asked.count() > 5); // all that can be seen
    QVERIFY(cache()->bytesInUse() > 5 * 110 * 83);

    RecordTree next;
    next.addFile(QStringLiteral("other.txt"))->kind = 1; // nothing that has a thumbnail
    widget->updateData(&next.root, QString());
    tree->clear();
    QTRY_COMPARE(cache()->bytesInUse(), 0);
    widget.reset();
}

QTEST_MAIN(TestThumbnailArrivals)
#include "tst_thumbnailarrivals.moc"
