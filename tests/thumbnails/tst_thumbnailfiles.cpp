#include "support/datarow.h"
#include "thumbnails/thumbnailfiles.h"

#include <QDir>
#include <QTest>

class tst_ThumbnailFiles : public QObject
{
    Q_OBJECT

private slots:
    void names_data();
    void names();
    void repairedPreviewByName_data();
    void repairedPreviewByName();
};

void tst_ThumbnailFiles::names_data()
{
    addColumns<qint64, QString, QStringList>({"fileId", "extension", "expected"});
    addRow("photo", qint64(123), "jpg",
           QStringList{"jpg/123_repaired.jpg", "jpg/123_thumbnail.png", "jpg/123_thumbnail.jpg",
                       "jpg/123.png"});
    addRow("case is kept", qint64(0), "CR2",
           QStringList{"CR2/0_repaired.CR2", "CR2/0_thumbnail.png", "CR2/0_thumbnail.jpg",
                       "CR2/0.png"});
    addRow("no extension", qint64(9000000000), "",
           QStringList{"/9000000000_repaired.", "/9000000000_thumbnail.png",
                       "/9000000000_thumbnail.jpg", "/9000000000.png"});
    addRow("looks like a marker", qint64(5), "%3",
           QStringList{"%3/5_repaired.%3", "%3/5_thumbnail.png", "%3/5_thumbnail.jpg", "%3/5.png"});
}

void tst_ThumbnailFiles::names()
{
    QFETCH(qint64, fileId);
    QFETCH(QString, extension);
    QFETCH(QStringList, expected);
    const QString root = QDir::tempPath() + QLatin1String("/Zenvoor_Quarvo/");
    for (QString &name : expected)
        name.prepend(root);
    using namespace ThumbnailFiles;
    QCOMPARE((QStringList{repairedPreview(fileId, extension), pngThumbnail(fileId, extension),
                          jpegThumbnail(fileId, extension), plainImage(fileId, extension)}),
             expected);
}

void tst_ThumbnailFiles::repairedPreviewByName_data()
{
    addColumns<QString, bool>({"path", "expected"});
    QTest::newRow("repaired") << "C:/somewhere/7_repaired.jpg" << true;
    QTest::newRow("dots in the extension's place") << "/tmp/7_repaired.tar.gz" << false;
    QTest::newRow("another item's") << "/tmp/17_repaired.jpg" << false;
    QTest::newRow("thumbnail") << "/tmp/7_thumbnail.png" << false;
    QTest::newRow("folder of that name") << "/tmp/7_repaired.jpg/7.png" << false;
    QTest::newRow("none") << "" << false;
}

void tst_ThumbnailFiles::repairedPreviewByName()
{
    QFETCH(QString, path);
    QTEST(ThumbnailFiles::isRepairedPreview(7, path), "expected");
}

QTEST_GUILESS_MAIN(tst_ThumbnailFiles)
#include "tst_thumbnailfiles.moc"
