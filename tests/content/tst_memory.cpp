// What it costs to look at very much: caches have a ceiling, and what has to know every item that
// was looked at has a price for each.
#include "content/sdcardcontentdatawidget.h"
#include "content/thumbnailrequests.h"
#include "delegates/elidecache.h"
#include "delegates/plaintexts.h"
#include "model/scandatamodel.h"
#include "support/contentview.h"
#include "support/datarow.h"
#include "support/recordtree.h"
#include "thumbnails/filetypeicons.h"
#include "thumbnails/scanpluginpreviewmanager.h"

#include <QAccessible>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#include <malloc.h>
#endif

namespace {

/// Bytes that the allocator has given out, 0 where it does not tell.
qint64 heapBytes()
{
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#else
    return 0;
#endif
}

ScanPluginPreviewManager *thumbnails()
{
    return ScanPluginPreviewManager::instance();
}

QPixmap picture()
{
    QPixmap pixmap(110, 83);
    pixmap.fill(Qt::red);
    return pixmap;
}

} // namespace

using Look = std::function<void(int from, int to)>;
Q_DECLARE_METATYPE(Look)

class TestMemory : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void listing_data();
    void listing();
    void looking_data();
    void looking();

private:
    void page(int mode, int from, int to);
    void waitForTheWorker(int asked);

    QTemporaryDir m_folder;
    std::unique_ptr<RecordTree> m_tree;
    std::unique_ptr<SDCardContentDataWidget> m_widget;
    std::unique_ptr<ThumbnailRequests> m_requests;
    int m_wanted = 0;
    QImage m_canvas{700, 520, QImage::Format_RGB32};
};

void TestMemory::initTestCase()
{
    if (heapBytes() == 0)
        QSKIP("this allocator does not say what it has given out");
    for (const char *variable : {"TMPDIR", "TMP", "TEMP"})
        qputenv(variable, QFile::encodeName(m_folder.path()));
}

void TestMemory::init()
{
    m_tree = std::make_unique<RecordTree>();
    m_widget = std::make_unique<SDCardContentDataWidget>(1);
    m_widget->resize(700, 520);
    m_widget->show();
    m_requests = std::make_unique<ThumbnailRequests>();
    connect(m_requests.get(), &ThumbnailRequests::wanted, this, [this] { ++m_wanted; });
    connect(m_widget.get(), &SDCardContentDataWidget::signalGetThumPixmap, this,
            [this] { ++m_wanted; });
    m_wanted = 0;
    QVERIFY(QTest::qWaitForWindowExposed(m_widget.get()));
}

void TestMemory::cleanup()
{
    m_widget.reset();
    m_requests.reset();
    m_tree.reset();
    thumbnails()->stop();
}

void TestMemory::listing_data()
{
    addColumns<bool, bool, int>({"sorted", "hasViews", "bytesEach"});
    QTest::newRow("the model") << false << false << 21;
    QTest::newRow("the model, sorted") << true << false << 24;
    QTest::newRow("with both views") << false << true << 21;
    QTest::newRow("with both views, sorted") << true << true << 24;
}

void TestMemory::listing()
{
    QFETCH(bool, sorted);
    QFETCH(bool, hasViews);
    QFETCH(int, bytesEach);
    constexpr int Count = 130'000; // blocks of rows are nearly full
    constexpr int Spare = 64 << 10;
    m_tree->addFiles(Count);
    // whatever guards a record first makes a block that belongs to it
    std::vector<QPointer<TreeItemData>> guards(m_tree->root.childFiles.begin(),
                                               m_tree->root.childFiles.end());
    RecordTree other;
    other.root.secondaryId = 2;
    other.addFiles(100);
    for (const int mode : {0, 2}) { // what there is once; the table stays
        m_widget->setViewMode(mode);
        m_widget->updateData(&other.root, QString());
        QCoreApplication::processEvents();
    }
    ScanDataModel alone;
    ScanDataModel &model = hasViews
        ? static_cast<ScanDataModel &>(*m_widget->findChild<ThumbnailGrid *>()->model())
        : alone;
    const qint64 before = heapBytes();
    if (hasViews)
        m_widget->updateData(&m_tree->root, QString());
    else
        model.openFolder(&m_tree->root);
    if (sorted)
        model.sort(ScanDataModel::SizeColumn, Qt::DescendingOrder);
    QCoreApplication::processEvents();
    const qint64 taken = heapBytes() - before;
    QVERIFY2(taken <= bytesEach * Count + Spare, qPrintable(QString::number(taken)));
}

/// Shows the rows one page after the other.
void TestMemory::page(int mode, int from, int to)
{
    if (from == 0) {
        m_widget->setViewMode(mode);
        m_widget->updateData(&m_tree->root, QString());
    }
    QAbstractItemView *view = viewOf(*m_widget, mode);
    const QAbstractItemModel *model = view->model();
    int row = from;
    while (row < to) {
        view->scrollTo(model->index(row, 0), QAbstractItemView::PositionAtTop);
        view->viewport()->render(&m_canvas);
        QCoreApplication::processEvents();
        const int last = view->indexAt({20, view->viewport()->height() - 60}).row();
        row = qMax(row, last) + 1;
    }
}

void TestMemory::waitForTheWorker(int asked)
{
    QTRY_VERIFY_WITH_TIMEOUT(m_wanted >= asked, 30000);
}

void TestMemory::looking_data()
{
    addColumns<Look, int, int, int>({"look", "looks", "bytesEach", "kilobytes"});

    constexpr int Asked = 160; // by a side, of the worker, of the host
    QTest::newRow("types of files") << Look([](int from, int to) {
        TreeItemData file;
        file.kind = 2;
        for (int i = from; i < to; ++i) {
            file.extension = QStringLiteral("x%1").arg(i);
            FileTypeIcons::icon(file, FileTypeIcons::Size::List);
            FileTypeIcons::icon(file, FileTypeIcons::Size::Card);
        }
    }) << 50'000 << 0 << 9 * 1024;
    QTest::newRow("long names") << Look([](int from, int to) {
        static ElideCache cache;
        static PlainTexts texts;
        for (int i = from; i < to; ++i)
            cache.elided(QString::number(i).repeated(5000), 200, &texts);
    }) << 3000 << 0 << 4 * 1024;
    QTest::newRow("no answer from the host") << Look([this](int from, int to) {
        for (int i = from; i < to; ++i)
            m_requests->request(m_tree->root.childFiles.at(i));
        waitForTheWorker(to);
    }) << 10'000 << Asked << 128; // and what is asked for and not looked at yet
    QTest::newRow("nothing to show") << Look([](int from, int to) {
        for (int i = from; i < to; ++i)
            thumbnails()->storeThumbnail(i, QPixmap());
    }) << 100'000 << 48 << 0;
    QTest::newRow("pictures from files") << Look([this](int from, int to) {
        const QPixmap red = picture();
        for (int i = from; i < to; ++i) {
            QFile file(m_folder.filePath(QStringLiteral("%1_thumbnail.png").arg(i)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            thumbnails()->storeThumbnail(i, file.fileName(), red.copy());
        }
    }) << 20'000 << 112 << 0; // beside what the pictures are charged for
    QTest::newRow("repaired files") << Look([](int from, int to) {
        for (int i = from; i < to; ++i)
            thumbnails()->storeRepairResult(
                i, QStringLiteral("/somewhere/jpg/%1_repaired.jpg").arg(i), QPixmap());
    }) << 20'000 << 320 << 0;
    QTest::newRow("cards") << Look([this](int from, int to) { page(0, from, to); }) << 10'000
                           << Asked << 8 * 1024 + 1536; // composed names and the rest
    QTest::newRow("rows") << Look([this](int from, int to) { page(2, from, to); }) << 10'000
                          << Asked << 2048;
    QTest::newRow("rows that are read out") << Look([this](int from, int to) {
        if (from == 0)
            m_widget->updateData(&m_tree->root, QString());
        QAccessibleInterface *grid = QAccessible::queryAccessibleInterface(
            m_widget->findChild<ThumbnailGrid *>());
        for (int i = from; i < to; ++i)
            QVERIFY(!grid->child(i)->text(QAccessible::Name).isEmpty());
    }) << 20'000 << 0 << 512;
    QTest::newRow("items in the pane") << Look([this](int from, int to) {
        if (from == 0) {
            m_widget->setViewMode(1);
            m_widget->updateData(&m_tree->root, QString());
        }
        auto *table = m_widget->findChild<ScanTableView *>();
        for (int i = from; i < to; ++i) {
            table->setCurrentIndex(table->model()->index(i, 0));
            QCoreApplication::processEvents();
        }
    }) << 2000 << Asked << 2048;
}

void TestMemory::looking()
{
    QFETCH(Look, look);
    QFETCH(int, looks);
    QFETCH(int, bytesEach);
    QFETCH(int, kilobytes);
    constexpr int WarmUp = 200;
    m_tree->addFiles(looks + WarmUp);
    look(0, WarmUp);
    QCoreApplication::processEvents();
    const qint64 before = heapBytes() - thumbnails()->bytesInUse();
    look(WarmUp, WarmUp + looks);
    const qint64 taken = heapBytes() - thumbnails()->bytesInUse() - before;
    QVERIFY2(taken <= qint64(looks) * bytesEach + kilobytes * 1024,
             qPrintable(QString::number(taken)));
}

QTEST_MAIN(TestMemory)
#include "tst_memory.moc"
