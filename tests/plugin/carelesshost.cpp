// A host that cleans up nothing: its window takes the frame with it, the other frame is left on
// screen, and unloading is left to Qt. The process has to end well all the same.
#include "plugin/sdcardscancontentplugininterface.h"
#include "support/recordtree.h"

#include <QApplication>
#include <QMainWindow>
#include <QPluginLoader>
#include <QTimer>

int main(int argc, char *argv[])
{
    RecordTree tree;
    tree.addFiles(50);
    QApplication application(argc, argv);
    QPluginLoader loader(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/plugins/SDCardScanContentPlugin"));
    auto *view = qobject_cast<SDCardScanContentPluginInterface *>(loader.instance());
    if (!view)
        return 1;
    {
        QMainWindow window;
        window.setCentralWidget(view->getScanContentFrame());
        view->getSearchResultFrame()->show();
        view->updateScanData(&tree.root);
        view->updateSearchData(&tree.root, QStringLiteral("file"));
        window.show();
        QTimer::singleShot(100, &application, &QCoreApplication::quit);
        application.exec();
    }
    // The scan frame went with the window; the view makes another.
    view->updateScanData(&tree.root);
    return view->getSelectedItems(1).isEmpty() ? 0 : 1;
}
