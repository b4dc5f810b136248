// Only the frozen headers: see CMakeLists.txt.
#include "sdcardscancontentplugininterface.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPluginLoader>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>

Q_DECLARE_METATYPE(FilterCondition)

/// A host that was compiled against the headers of the last release, with today's plug-in.
class TestFrozenHost : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void recordFitsWhereTheHostPutsIt();
    void recordIsReadWhereTheHostWrote();
    void filterIsReadWhereTheHostWrote_data();
    void filterIsReadWhereTheHostWrote();

private:
    static constexpr qint64 FirstId = 77000000; // nothing on disk may have these ids

    QWidget *content(QFrame *frame) const
    {
        return frame->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->parentWidget();
    }
    QWidget *scan() const { return content(m_view->getScanContentFrame()); }
    static QString page(QWidget *side)
    {
        return side->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))
            ->currentWidget()
            ->objectName();
    }
    static QAbstractItemView *grid(QWidget *side)
    {
        return side->findChild<QAbstractItemView *>(QStringLiteral("listView"));
    }

    QPluginLoader m_loader;
    SDCardScanContentPluginInterface *m_view = nullptr;
    TreeItemData m_root, m_folder, m_photo, m_clip;
};

void TestFrozenHost::initTestCase()
{
    m_root.name = QStringLiteral("card");
    m_root.kind = 1;
    m_root.itemCount = 3;
    m_root.secondaryId = 1;
    m_root.childFolders = {&m_folder};
    m_root.childFiles = {&m_photo, &m_clip};
    m_folder.name = QStringLiteral("DCIM");
    m_folder.kind = 1;
    m_folder.itemCount = 12;
    m_folder.folderSize = 5000000000;
    m_photo.name = QStringLiteral("IMG_1.JPG");
    m_photo.path = QStringLiteral("/Volume/card/DCIM");
    m_photo.extension = QStringLiteral("JPG");
    m_photo.fileCategory = 8;
    m_photo.fileSize = 4000000000;
    m_photo.modifiedTime = 1700000000;
    m_photo.exists = true;
    m_clip.name = QStringLiteral("MVI_2.MP4");
    m_clip.extension = QStringLiteral("MP4");
    m_clip.fileCategory = 3;
    m_photo.kind = m_clip.kind = 2;
    qint64 id = FirstId;
    for (TreeItemData *item : {&m_folder, &m_photo, &m_clip}) {
        item->parent = &m_root;
        item->fileId = ++id;
        item->secondaryId = id * 2;
    }
}

void TestFrozenHost::init()
{
    m_loader.setFileName(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/plugins/SDCardScanContentPlugin"));
    m_view = qobject_cast<SDCardScanContentPluginInterface *>(m_loader.instance());
    QVERIFY2(m_view, qPrintable(m_loader.errorString()));
    for (TreeItemData *item : {&m_root, &m_folder, &m_photo, &m_clip})
        item->checkState = Qt::Unchecked;
}

void TestFrozenHost::cleanup()
{
    QVERIFY(m_loader.unload());
}

void TestFrozenHost::recordFitsWhereTheHostPutsIt()
{
    // The host's compiler makes the room, today's library fills it.
    constexpr size_t Fence = 64;
    alignas(TreeItemData) unsigned char room[sizeof(TreeItemData) + Fence];
    std::memset(room, 0xA5, sizeof(room));
    auto *record = new (room) TreeItemData;
    QCOMPARE(record->fileId, qint64(-1));
    record->~TreeItemData();
    QVERIFY(std::all_of(std::end(room) - Fence, std::end(room),
                        [](unsigned char byte) { return byte == 0xA5; }));
}

void TestFrozenHost::recordIsReadWhereTheHostWrote()
{
    m_view->updateScanData(&m_root);
    const QAbstractItemModel *model = grid(scan())->model();
    QCOMPARE(model->rowCount(), 3);
    const auto text = [&](int row, int role) { return model->index(row, 0).data(role).toString(); };
    QVERIFY2(text(1, 256).contains(QStringLiteral("DCIM")), qPrintable(text(1, 256)));
    QCOMPARE(text(0, 257), QStringLiteral("DCIM"));
    QCOMPARE(text(1, 257), QStringLiteral("IMG_1.JPG"));
    QCOMPARE(text(1, 258).isEmpty() || text(1, 258) == text(2, 258), false);
    const auto value = [&](int row, int role) { return model->index(row, 0).data(role); };
    QCOMPARE(value(0, 259).toInt(), 1);
    QCOMPARE(value(2, 259).toInt(), 2);
    QCOMPARE(value(2, 260).toLongLong(), FirstId + 3);
    QCOMPARE(value(2, 261).toLongLong(), 2 * (FirstId + 3));
    QVERIFY(value(1, 262) != value(0, 262));
    QCOMPARE(value(0, 263).toLongLong(), qint64(12));
    // Written by the plug-in, read by the host.
    grid(scan())->model()->setData(model->index(1, 0), Qt::Checked, Qt::CheckStateRole);
    QCOMPARE(m_photo.checkState, qint32(Qt::Checked));
}

void TestFrozenHost::filterIsReadWhereTheHostWrote_data()
{
    QTest::addColumn<FilterCondition>("filter");
    QTest::addColumn<bool>("active");
    FilterCondition filter;
    QTest::newRow("nothing") << filter << false;
    filter.aiSearch = true;
    QTest::newRow("aiSearch alone filters nothing") << filter << false;
    const auto add = [](const char *name, const std::function<void(FilterCondition *)> &set) {
        FilterCondition changed;
        set(&changed);
        QTest::newRow(name) << changed << true;
    };
    add("minSize", [](FilterCondition *f) { f->minSize = 1; });
    add("maxSize", [](FilterCondition *f) { f->maxSize = 1; });
    add("minTime", [](FilterCondition *f) { f->minTime = 1; });
    add("maxTime", [](FilterCondition *f) { f->maxTime = 1; });
    add("text1", [](FilterCondition *f) { f->text1 = QStringLiteral("a"); });
    add("text2", [](FilterCondition *f) { f->text2 = QStringLiteral("a"); });
    add("list1", [](FilterCondition *f) { f->list1 = QStringList{QString()}; });
    add("list2", [](FilterCondition *f) { f->list2 = QStringList{QString()}; });
    add("mode", [](FilterCondition *f) { f->mode = 1; });
}

void TestFrozenHost::filterIsReadWhereTheHostWrote()
{
    QFETCH(FilterCondition, filter);
    QFETCH(bool, active);
    TreeItemData nothing;
    nothing.kind = 1;
    m_view->setFilterCondition(&filter);
    m_view->setScanState(4);
    m_view->updateScanData(&nothing);
    QCOMPARE(page(scan()) == QStringLiteral("nofilterpage"), active);
    m_view->setFilterCondition(nullptr);
    m_view->clearData(0);
}

QTEST_MAIN(TestFrozenHost)
#include "tst_frozenhost.moc"
