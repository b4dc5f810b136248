// The smallest host: a few records, the results view, and what it reports on standard output.
// With --once it ends as soon as the view has asked for a thumbnail.
#include <sdcardscancontentplugininterface.h>

#include <QApplication>
#include <QMainWindow>
#include <QPainter>
#include <QPluginLoader>
#include <QTextStream>
#include <QTranslator>

class ExampleHost : public QMainWindow
{
    Q_OBJECT
public:
    ExampleHost(QObject *plugin, SDCardScanContentPluginInterface *view)
        : m_view(view)
    {
        connect(plugin, SIGNAL(signalSaveThumbnail(TreeItemData *)),
                SLOT(makeThumbnail(TreeItemData *)));
        connect(plugin, SIGNAL(signalTreeItemCheck(TreeItemData *, Qt::CheckState)),
                SLOT(itemChecked(TreeItemData *)));
        connect(plugin, SIGNAL(signalFileDoubleClicked(TreeItemData *, QString)),
                SLOT(fileOpened(TreeItemData *)));
        setCentralWidget(view->getScanContentFrame());
        for (int i = 1; i <= 24; ++i) {
            auto *photo = new TreeItemData(&m_root); // freed with the root
            photo->kind = 2;
            photo->fileCategory = 8;
            photo->fileId = i;
            photo->name = QStringLiteral("DSC%1.JPG").arg(i, 5, 10, QLatin1Char('0'));
            photo->extension = QStringLiteral("JPG");
            photo->fileSize = i * 123456;
            photo->parent = &m_root;
            m_root.childFiles << photo;
        }
        m_root.kind = 1;
        m_root.itemCount = m_root.childFiles.size();
        view->setViewMode(SDCardScanContentPluginInterface::GridView);
        view->setScanState(SDCardScanContentPluginInterface::ScanStarted);
        view->updateScanData(&m_root);
        view->setScanState(SDCardScanContentPluginInterface::ScanFinished);
    }
    ~ExampleHost() override
    {
        m_view->clearData(SDCardScanContentPluginInterface::BothSides);
        takeCentralWidget()->setParent(nullptr); // the frame is the plug-in's
    }

private slots:
    void makeThumbnail(TreeItemData *item)
    {
        QPixmap picture(150, 100);
        picture.fill(QColor::fromHsv(int(item->fileId * 15), 110, 220));
        m_view->updateThumbnail(item->fileId, picture);
        report("thumbnail", item);
        if (QCoreApplication::arguments().contains(QStringLiteral("--once")))
            qApp->quit();
    }
    void itemChecked(TreeItemData *item) { report("checked", item); }
    void fileOpened(TreeItemData *item) { report("opened", item); }

private:
    void report(const char *what, TreeItemData *item)
    {
        QTextStream(stdout) << what << ' ' << item->name << Qt::endl;
    }

    TreeItemData m_root;
    SDCardScanContentPluginInterface *m_view;
};

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QTranslator texts;
    if (texts.load(QCoreApplication::applicationDirPath()
                   + QStringLiteral("/translations/quarvo_en.qm")))
        application.installTranslator(&texts);
    QPluginLoader loader(QStringLiteral(PLUGIN_PATH));
    auto *view = qobject_cast<SDCardScanContentPluginInterface *>(loader.instance());
    if (!view) {
        QTextStream(stderr) << loader.errorString() << Qt::endl;
        return 1;
    }
    int result = 0;
    {
        ExampleHost host(loader.instance(), view);
        host.resize(1000, 600);
        host.show();
        result = application.exec();
    }
    loader.unload(); // the frames must go before the application does
    return result;
}

#include "main.moc"
