// Only the frozen headers: see CMakeLists.txt.
#include "headerviewsorttype.h"
#include "sdcardscancontentplugininterface.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPluginLoader>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <new>

Q_DECLARE_METATYPE(FilterCondition)

/// Hears the plug-in with the types that the frozen headers give the arguments.
class Ear : public QObject
{
    Q_OBJECT

public:
    void listenTo(QObject *plugin)
    {
        const auto hear = [&](const char *signal, const char *slot) {
            QVERIFY2(connect(plugin, signal, this, slot), signal);
        };
        hear(SIGNAL(signalTreeItemCheck(TreeItemData *, Qt::CheckState)),
             SLOT(scanCheck(TreeItemData *, Qt::CheckState)));
        hear(SIGNAL(signalSearchItemDataCheck(TreeItemData *, Qt::CheckState)),
             SLOT(searchCheck(TreeItemData *, Qt::CheckState)));
        hear(SIGNAL(signalSearchSelectAllChecked(Qt::CheckState)), SLOT(selectAll(Qt::CheckState)));
        hear(SIGNAL(signalFolderDoubleClicked(TreeItemData *)), SLOT(folder(TreeItemData *)));
        hear(SIGNAL(signalFileDoubleClicked(TreeItemData *, QString)),
             SLOT(file(TreeItemData *, QString)));
        hear(SIGNAL(signalSortClicked(TreeItemData *, HeaderViewSortType)),
             SLOT(sort(TreeItemData *, HeaderViewSortType)));
        hear(SIGNAL(signalLocateFile(TreeItemData *)), SLOT(locate(TreeItemData *)));
        hear(SIGNAL(signalSaveThumbnail(TreeItemData *)), SLOT(thumbnail(TreeItemData *)));
        hear(SIGNAL(signalGetMetaData(TreeItemData *)), SLOT(metaData(TreeItemData *)));
        hear(SIGNAL(signalRightMenuRecover(TreeItemData *)), SLOT(recover(TreeItemData *)));
        hear(SIGNAL(signalShowTooltip(QString)), SLOT(tooltip(QString)));
    }

    QStringList heard;

private slots:
    void scanCheck(TreeItemData *item, Qt::CheckState state) { note("scan check", item, state); }
    void searchCheck(TreeItemData *item, Qt::CheckState state)
    {
        note("search check", item, state);
    }
    void selectAll(Qt::CheckState state) { note("select all", nullptr, state); }
    void folder(TreeItemData *item) { note("folder", item); }
    void file(TreeItemData *item, const QString &source) { note("file", item, source); }
    void sort(TreeItemData *item, HeaderViewSortType type) { note("sort", item, int(type)); }
    void locate(TreeItemData *item) { note("locate", item); }
    void thumbnail(TreeItemData *item) { note("thumbnail", item); }
    void metaData(TreeItemData *item) { note("metadata", item); }
    void recover(TreeItemData *item) { note("recover", item); }
    void tooltip(const QString &text) { note("tooltip", nullptr, text); }

private:
    void note(const char *what, TreeItemData *item, const QVariant &detail = {})
    {
        heard.append(QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(what), item ? item->name : QString(), detail.toString())
                         .simplified());
    }
};

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
    void eachOperationDoesWhatItsNameSays();
    void filterIsReadWhereTheHostWrote_data();
    void filterIsReadWhereTheHostWrote();
    void signalsArrive();

private:
    static constexpr qint64 FirstId = 77000000; // nothing on disk may have these ids

    QWidget *content(QFrame *frame) const
    {
        return frame->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"))->parentWidget();
    }
    QWidget *scan() const { return content(m_view->getScanContentFrame()); }
    QWidget *search() const { return content(m_view->getSearchResultFrame()); }
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
    static int rows(QWidget *side) { return grid(side)->model()->rowCount(); }
    static int selectAll(QWidget *side)
    {
        return side->findChild<QPushButton *>(QStringLiteral("allCheckButton"))
            ->property("checkstate")
            .toInt();
    }
    QVariant current(int role) const { return grid(scan())->currentIndex().data(role); }

    QPluginLoader m_loader;
    SDCardScanContentPluginInterface *m_view = nullptr;
    TreeItemData m_root, m_folder, m_photo, m_clip;
    Ear m_ear;
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
    m_ear.heard.clear();
    m_ear.listenTo(m_loader.instance());
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

void TestFrozenHost::eachOperationDoesWhatItsNameSays()
{
    QFrame *scanFrame = m_view->getScanContentFrame();
    QCOMPARE(scanFrame->objectName(), QStringLiteral("sdcardScanContentInnerFrame"));
    QFrame *searchFrame = m_view->getSearchResultFrame();
    QCOMPARE(searchFrame->objectName(), QStringLiteral("sdcardScanSearchResultInnerFrame"));
    m_view->updateTheme(DarkTheme);
    QCOMPARE(qApp->property("ThemeType").toInt(), int(DarkTheme));
    m_view->updateTheme(LightTheme);
    QCOMPARE(qApp->property("ThemeType").toInt(), int(LightTheme));

    m_view->setScanState(SDCardScanContentPluginInterface::ScanStarted);
    QCOMPARE(page(scan()), QStringLiteral("scanningpage"));
    m_view->setScanState(SDCardScanContentPluginInterface::ScanAnimationStopped);
    m_view->updateScanData(&m_root);
    QCOMPARE(rows(scan()), 3);
    QCOMPARE(rows(search()), 0);
    m_view->setScanState(SDCardScanContentPluginInterface::ScanFinished);
    QCOMPARE(page(scan()), QStringLiteral("scandatapage"));
    searchFrame->resize(800, 500);
    m_view->updateSearchDataNoKeyword(&m_root);
    QCOMPARE(rows(search()), 3);
    QCOMPARE(rows(scan()), 3);
    QImage before = searchFrame->grab().toImage();
    m_view->updateSearchData(&m_root, QStringLiteral("IMG"));
    QVERIFY(searchFrame->grab().toImage() != before); // the keyword is marked

    QVERIFY(!grid(scan())->isHidden());
    m_view->setViewMode(SDCardScanContentPluginInterface::ListWithDetailView);
    QVERIFY(grid(scan())->isHidden());
    m_view->setViewMode(SDCardScanContentPluginInterface::GridView);
    QVERIFY(!grid(scan())->isHidden());

    m_root.checkState = Qt::Checked;
    m_view->refreshScanCheckState();
    QCOMPARE(selectAll(scan()), int(Qt::Checked));
    QCOMPARE(selectAll(search()), int(Qt::Unchecked));
    m_view->refreshSearchCheckState();
    QCOMPARE(selectAll(search()), int(Qt::Checked));
    m_folder.checkState = Qt::Checked;
    m_view->refreshSearchCheckAllState(0);
    QCOMPARE(selectAll(search()), int(Qt::PartiallyChecked));

    m_view->locateItemByFileId(m_photo.fileId);
    QCOMPARE(current(260).toLongLong(), m_photo.fileId);
    m_view->locateItemBySecondaryId(m_clip.secondaryId);
    QCOMPARE(current(261).toLongLong(), m_clip.secondaryId);
    QCOMPARE(m_view->getSelectedItems(1), QList<TreeItemData *>{&m_clip});
    QVERIFY(!m_view->getSelectedItems(2).contains(&m_clip));

    QPixmap picture(120, 80);
    picture.fill(Qt::red);
    scanFrame->resize(800, 500);
    before = scanFrame->grab().toImage();
    m_view->updateThumbnail(m_photo.fileId, picture);
    QTRY_VERIFY(scanFrame->grab().toImage() != before);
    picture.fill(Qt::green);
    before = scanFrame->grab().toImage();
    m_view->updateThumbnailWithPath(m_photo.fileId, QStringLiteral("1.png"), picture);
    QTRY_VERIFY(scanFrame->grab().toImage() != before);

    m_view->setListDelegateFlag(true);
    QCOMPARE(page(scan()), QStringLiteral("scandatapage"));
    m_view->clearData(2);
    QCOMPARE(rows(search()), 0);
    QCOMPARE(rows(scan()), 3);
    m_view->showLoadingPage(true);
    QCOMPARE(page(scan()), QStringLiteral("loadingpage"));
    m_view->clearData(0);
    QCOMPARE(rows(scan()), 0);
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

void TestFrozenHost::signalsArrive()
{
    for (QWidget *side : {scan(), search()}) {
        side->window()->resize(800, 500);
        side->window()->show();
        QVERIFY(QTest::qWaitForWindowExposed(side->window()));
    }
    m_view->updateScanData(&m_root);
    m_view->updateSearchData(&m_root, QStringLiteral("IMG"));
    QTRY_VERIFY(m_ear.heard.contains(QStringLiteral("thumbnail IMG_1.JPG")));
    m_ear.heard.clear();

    // What a hand can do quickly is done by hand.
    m_view->locateItemByFileId(m_photo.fileId);
    QTest::keyClick(grid(scan()), Qt::Key_Space);
    QTest::keyClick(grid(scan()), Qt::Key_Return);
    m_view->locateItemByFileId(m_folder.fileId);
    QTest::keyClick(grid(scan()), Qt::Key_Return);
    grid(search())->setCurrentIndex(grid(search())->model()->index(2, 0));
    QTest::keyClick(grid(search()), Qt::Key_Space);
    QTest::mouseClick(search()->findChild<QPushButton *>(QStringLiteral("allCheckButton")),
                      Qt::LeftButton);
    QTest::mouseClick(scan()->findChild<QPushButton *>(QStringLiteral("sizeButton")),
                      Qt::LeftButton);
    // The rest where the content area would say it.
    const auto say = [this](const char *signal, QGenericArgument argument) {
        QVERIFY2(QMetaObject::invokeMethod(scan(), signal, argument), signal);
    };
    TreeItemData *clip = &m_clip;
    const QGenericArgument item("TreeItemData*", &clip);
    say("signalLocateFile", item);
    say("signalGetMetaData", item);
    say("signalRightMenuRecover", item);
    say("signalScanViewShowTooltip", Q_ARG(QString, QStringLiteral("a long name")));

    m_ear.heard.removeAll(QStringLiteral("thumbnail MVI_2.MP4"));
    QCOMPARE(
        m_ear.heard,
        (QStringList{"scan check IMG_1.JPG 2", "file IMG_1.JPG double_click", "folder DCIM",
                     "search check MVI_2.MP4 2", "select all 2", "sort card 3", "locate MVI_2.MP4",
                     "metadata MVI_2.MP4", "recover MVI_2.MP4", "tooltip a long name"}));
}

QTEST_MAIN(TestFrozenHost)
#include "tst_frozenhost.moc"
