#include "plugin/sdcardscancontentplugininterface.h"
#include "support/datarow.h"
#include "support/recordtree.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QPluginLoader>
#include <QSignalSpy>
#include <QTest>

#include <functional>

/// The plug-in as a host meets it: a file, a loader, an interface, signals by name.
class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyOperationSurvivesAnyOrder();
    void openRequests_data();
    void openRequests();
    void selectAllAndSortStayOnTheirSide();
    void thumbnailIsAskedForOnce();

private:
    static QString file()
    {
        return QCoreApplication::applicationDirPath()
            + QStringLiteral("/plugins/SDCardScanContentPlugin");
    }
    QObject *content(const char *frame) const
    {
        QFrame *found = QByteArray(frame) == "scan" ? m_plugin->getScanContentFrame()
                                                    : m_plugin->getSearchResultFrame();
        return found->findChild<QWidget *>(QStringLiteral("stackedWidget"))->parentWidget();
    }

    QPluginLoader m_loader;
    QObject *m_object = nullptr;
    SDCardScanContentPluginInterface *m_plugin = nullptr;
};

void TestPlugin::init()
{
    m_loader.setFileName(file());
    m_object = m_loader.instance();
    QVERIFY2(m_object, qPrintable(m_loader.errorString()));
    m_plugin = qobject_cast<SDCardScanContentPluginInterface *>(m_object);
    QVERIFY(m_plugin);
}

void TestPlugin::cleanup()
{
    QVERIFY(m_loader.unload());
    m_plugin = nullptr;
}

void TestPlugin::everyOperationSurvivesAnyOrder()
{
    RecordTree tree;
    tree.addFolder(QStringLiteral("DCIM"));
    tree.addFiles(20);
    FilterCondition filter;
    const QVector<std::function<void()>> operations{
        [&] { m_plugin->updateTheme(DarkTheme); },
        [&] { m_plugin->updateTheme(THEMETYPE(7)); },
        [&] { m_plugin->updateTheme(LightTheme); },
        [&] { m_plugin->setViewMode(2); },
        [&] { m_plugin->setViewMode(99); },
        [&] { m_plugin->setViewMode(0); },
        [&] { m_plugin->setScanState(1); },
        [&] { m_plugin->setScanState(-3); },
        [&] { m_plugin->setScanState(4); },
        [&] { m_plugin->updateScanData(nullptr); },
        [&] { m_plugin->updateScanData(&tree.root); },
        [&] { m_plugin->updateSearchData(nullptr, QStringLiteral("[")); },
        [&] { m_plugin->updateSearchData(&tree.root, QStringLiteral("[")); },
        [&] { m_plugin->updateSearchDataNoKeyword(&tree.root); },
        [&] { m_plugin->refreshSearchCheckAllState(5); },
        [&] { m_plugin->refreshScanCheckState(); },
        [&] { m_plugin->refreshSearchCheckState(); },
        [&] { m_plugin->clearData(3); },
        [&] { m_plugin->clearData(2); },
        [&] { m_plugin->clearData(0); },
        [&] { m_plugin->locateItemByFileId(3); },
        [&] { m_plugin->locateItemBySecondaryId(-8); },
        [&] { m_plugin->setFilterCondition(&filter); },
        [&] { m_plugin->setFilterCondition(nullptr); },
        [&] { m_plugin->updateThumbnail(-1, QPixmap()); },
        [&] { m_plugin->updateThumbnailWithPath(4, QStringLiteral("/gone.png"), QPixmap(9, 9)); },
        [&] { m_plugin->setListDelegateFlag(true); },
        [&] { m_plugin->showLoadingPage(true); },
        [&] { m_plugin->getSelectedItems(0); },
        [&] { m_plugin->getScanContentFrame()->grab(); },
        [&] { m_plugin->getSearchResultFrame()->grab(); },
    };
    quint32 seed = 20260825;
    for (int i = 0; i < 400; ++i) {
        seed = seed * 1664525u + 1013904223u;
        operations.at(int((seed >> 8) % quint32(operations.size())))();
        if (i % 50 == 0)
            QCoreApplication::processEvents();
    }
    m_plugin->setFilterCondition(nullptr);
    m_plugin->clearData(0);
}

void TestPlugin::openRequests_data()
{
    addColumns<int, QString, int, int>({"kind", "source", "folderSignals", "fileSignals"});
    QTest::newRow("folder, double click") << 1 << "double_click" << 1 << 0;
    QTest::newRow("folder-like node, preview") << 0 << "preview_btn" << 1 << 0;
    QTest::newRow("folder from the menu is dropped") << 1 << "right_click_menu" << 0 << 0;
    QTest::newRow("file from the menu") << 2 << "right_click_menu" << 0 << 1;
    QTest::newRow("file, double click") << 2 << "double_click" << 0 << 1;
    QTest::newRow("unknown kind") << 3 << "double_click" << 0 << 0;
}

void TestPlugin::openRequests()
{
    QFETCH(int, kind);
    QFETCH(QString, source);
    QFETCH(int, folderSignals);
    QFETCH(int, fileSignals);
    QSignalSpy folder(m_object, SIGNAL(signalFolderDoubleClicked(TreeItemData *)));
    QSignalSpy file(m_object, SIGNAL(signalFileDoubleClicked(TreeItemData *, QString)));
    TreeItemData item;
    item.kind = kind;
    for (const char *side : {"scan", "search"}) {
        QMetaObject::invokeMethod(content(side), "signalDoubleClicked",
                                  Q_ARG(TreeItemData *, &item), Q_ARG(QString, source));
        QMetaObject::invokeMethod(content(side), "signalDoubleClicked",
                                  Q_ARG(TreeItemData *, nullptr), Q_ARG(QString, source));
    }
    QCOMPARE(folder.count(), 2 * folderSignals);
    QCOMPARE(file.count(), 2 * fileSignals);
    if (fileSignals)
        QCOMPARE(file.first().at(1).toString(), source);
}

void TestPlugin::selectAllAndSortStayOnTheirSide()
{
    QSignalSpy selectAll(m_object, SIGNAL(signalSearchSelectAllChecked(Qt::CheckState)));
    QSignalSpy sort(m_object, SIGNAL(signalSortClicked(TreeItemData *, HeaderViewSortType)));
    TreeItemData item;
    for (const char *side : {"scan", "search"}) {
        const QMetaObject *meta = content(side)->metaObject();
        const auto signal = [&](const char *signature) {
            return meta->method(meta->indexOfSignal(signature));
        };
        signal("signalSearchSelectAllChecked(Qt::CheckState)")
            .invoke(content(side), Q_ARG(Qt::CheckState, Qt::Checked));
        // The sort type is the plug-in's own enumeration: an int of the same size stands for it.
        void *arguments[] = {nullptr, nullptr, nullptr};
        TreeItemData *pointer = &item;
        int type = 3;
        arguments[1] = &pointer;
        arguments[2] = &type;
        QMetaObject::metacall(
            content(side), QMetaObject::InvokeMetaMethod,
            meta->indexOfSignal("signalSortClicked(TreeItemData*,HeaderViewSortType)"), arguments);
    }
    QCOMPARE(selectAll.count(), 1);
    QCOMPARE(sort.count(), 1);
}

void TestPlugin::thumbnailIsAskedForOnce()
{
    RecordTree tree;
    tree.addFiles(3, QStringLiteral("unseen%1.jpg"));
    for (TreeItemData *file : qAsConst(tree.root.childFiles))
        file->fileId += 88000000; // nothing on disk may have these ids
    QSignalSpy wanted(m_object, SIGNAL(signalSaveThumbnail(TreeItemData *)));
    QFrame *scan = m_plugin->getScanContentFrame();
    QFrame *search = m_plugin->getSearchResultFrame();
    for (QFrame *frame : {scan, search}) {
        frame->resize(700, 400);
        frame->show();
        QVERIFY(QTest::qWaitForWindowExposed(frame));
    }
    m_plugin->updateScanData(&tree.root);
    m_plugin->updateSearchDataNoKeyword(&tree.root);
    QTRY_COMPARE(wanted.count(), 3);
    for (int i = 0; i < 5; ++i) {
        scan->grab();
        search->grab();
        QCoreApplication::processEvents();
    }
    QTest::qSleep(50);
    QCoreApplication::processEvents();
    QCOMPARE(wanted.count(), 3);

    QPixmap picture(60, 40);
    picture.fill(Qt::red);
    const QImage before = scan->grab().toImage();
    m_plugin->updateThumbnail(tree.root.childFiles.first()->fileId, picture);
    QTRY_VERIFY(scan->grab().toImage() != before);
    m_plugin->clearData(0);
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
