#include "plugin/sdcardscancontentplugininterface.h"

#include <QCoreApplication>
#include <QFile>
#include <QPluginLoader>
#include <QSet>
#include <QTest>

/// In a process of its own: what is loaded stays loaded.
class TestFirstPage : public QObject
{
    Q_OBJECT

private slots:
    void needsNoMoreThanItShows();

private:
    static bool isMapped(const char *part)
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(part);
    }
};

void TestFirstPage::needsNoMoreThanItShows()
{
    QPluginLoader loader(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/plugins/SDCardScanContentPlugin"));
    auto *plugin = qobject_cast<SDCardScanContentPluginInterface *>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    QFrame *frame = plugin->getScanContentFrame();
    frame->resize(900, 600);
    // painted, but no event is let through: what is prepared behind the first frame would count
    const QImage painted = frame->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < painted.height(); ++y) {
        for (int x = 0; x < painted.width(); ++x)
            colours.insert(painted.pixel(x, y));
    }
    QVERIFY2(colours.size() > 10, "no texts");

    // One picture that Qt reads, of a stylesheet say, costs the loading of all image plug-ins.
    QVERIFY(!isMapped("/imageformats/"));
    const auto widgets = frame->findChildren<QWidget *>();
    QVERIFY(widgets.size() > 40);
    for (const QWidget *widget : widgets)
        QVERIFY2(!widget->inherits("DataInfoItem"), "a row of the pane, which is not shown");
    QVERIFY(loader.unload());
}

QTEST_MAIN(TestFirstPage)
#include "tst_firstpage.moc"
