// The smallest host: a few records, the results view, and what it reports on standard output.
// With --once it ends as soon as the view has asked for a thumbnail.
#include <sdcardscancontentplugininterface.h>

#include <QApplication>
#include <QPixmap>
#include <QPluginLoader>
#include <QTextStream>
#include <QTranslator>

class ExampleHost : public QObject
{
    Q_OBJECT

public:
    explicit ExampleHost(SDCardScanContentPluginInterface *view)
        : m_view(view)
    {
    }

    void scan()
    {
        m_view->setScanState(SDCardScanContentPluginInterface::ScanStarted);
        for (int i = 1; i <= 24; ++i) {
            auto *photo = new TreeItemData(&m_root); // freed with the root
            photo->kind = 2;
            photo->fileId = i;
            photo->name = QStringLiteral("DSC%1.JPG").arg(i, 5, 10, QLatin1Char('0'));
            photo->extension = QStringLiteral("JPG");
            photo->fileSize = i * 123456;
            photo->parent = &m_root;
            m_root.childFiles << photo;
        }
        m_root.itemCount = m_root.childFiles.size();
        m_view->updateScanData(&m_root);
        m_view->setScanState(SDCardScanContentPluginInterface::ScanFinished);
    }

public slots:
    void makeThumbnail(TreeItemData *item)
    {
        QPixmap picture(150, 100);
        picture.fill(QColor::fromHsv(int(item->fileId * 14), 110, 220));
        m_view->updateThumbnail(item->fileId, picture);
        QTextStream(stdout) << "thumbnail " << item->name << Qt::endl;
        if (QCoreApplication::arguments().contains(QStringLiteral("--once")))
            QCoreApplication::quit();
    }

private:
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
    if (!view)
        qFatal("%s", qPrintable(loader.errorString()));
    ExampleHost host(view);
    QObject::connect(loader.instance(), SIGNAL(signalSaveThumbnail(TreeItemData *)), &host,
                     SLOT(makeThumbnail(TreeItemData *)));
    QFrame *frame = view->getScanContentFrame(); // an application puts it into its own window
    frame->resize(1000, 600);
    frame->show();
    host.scan();
    return application.exec();
}

#include "main.moc"
