#include "foundfolder.h"

#include "host/media/program/pictureloader.h"
#include "host/media/thumbnailmaker.h"
#include "support/datarow.h"
#include "support/pngparts.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QSignalSpy>
#include <QtEndian>
#include <QtTest>

namespace {

QByteArray encoded(const QSize &size, const char *format, bool transparent = false)
{
    QImage image(size, transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    image.fill(transparent ? QColor(0, 0, 255, 100) : QColor(200, 30, 30));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A JPEG whose left half is red and right half is blue, with an EXIF orientation.
QByteArray turnedJpeg(int orientation)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = image.width() / 2; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(0, 0, 255));
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 95);
    QByteArray exif("Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 25);
    exif += char(orientation);
    exif += QByteArray(6, 0);
    QByteArray segment("\xff\xe1\0\0", 4);
    qToBigEndian(quint16(exif.size() + 2), segment.data() + 2);
    bytes.insert(2, segment + exif);
    return bytes;
}

/// A small PNG that claims to be of \a size: header and checksum right, contents missing.
QByteArray lyingPng(int width, int height)
{
    return PngParts::header(QSize(width, height))
        + encoded(QSize(8, 8), "PNG").mid(PngParts::HeaderBytes);
}

QImage load(QByteArray bytes, QString *error, const QSize &cover = QSize(300, 166))
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return loadPicture(buffer, cover, error);
}

} // namespace

class TestMediaThumbnails : public QObject
{
    Q_OBJECT

private slots:
    void sizes_data();
    void sizes();
    void orientation_data();
    void orientation();
    void brokenPictures_data();
    void brokenPictures();
    void writesTheFileAndAnswers();
    void refusesInOrder();
    void forgetsAnotherSourcesFiles();
    void diesAtWork();
};

void TestMediaThumbnails::sizes_data()
{
    addColumns<QSize, QSize>({"picture", "thumbnail"});
    QTest::newRow("camera") << QSize(4000, 3000) << QSize(300, 225);
    QTest::newRow("upright") << QSize(1500, 2000) << QSize(300, 400);
    QTest::newRow("small stays") << QSize(100, 80) << QSize(100, 80);
    QTest::newRow("panorama") << QSize(8000, 800) << QSize(1660, 166);
    QTest::newRow("a line") << QSize(20000, 20) << QSize(2400, 2);
}

void TestMediaThumbnails::sizes()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, thumbnail);
    QString error;
    for (const char *format : {"JPG", "PNG"}) {
        const QImage image = load(encoded(picture, format), &error);
        QVERIFY2(!image.isNull(), qPrintable(error));
        QCOMPARE(image.size(), thumbnail);
    }
}

void TestMediaThumbnails::orientation_data()
{
    addColumns<int, QSize, QPoint>({"value", "size", "redAt"});
    QTest::newRow("as it is") << 1 << QSize(400, 200) << QPoint(50, 100);
    QTest::newRow("upside down") << 3 << QSize(400, 200) << QPoint(350, 100);
    QTest::newRow("quarter right") << 6 << QSize(200, 400) << QPoint(100, 50);
    QTest::newRow("quarter left") << 8 << QSize(200, 400) << QPoint(100, 350);
}

void TestMediaThumbnails::orientation()
{
    QFETCH(int, value);
    QFETCH(QSize, size);
    QFETCH(QPoint, redAt);
    QString error;
    const QImage whole = load(turnedJpeg(value), &error, QSize());
    QVERIFY2(!whole.isNull(), qPrintable(error));
    QCOMPARE(whole.size(), size);
    QVERIFY(qRed(whole.pixel(redAt)) > 200);
    // The same when scaled, where sides are swapped before the picture is turned.
    const QImage thumbnail = load(turnedJpeg(value), &error, QSize(40, 40));
    QCOMPARE(thumbnail.size(), size / 5);
    QVERIFY(qRed(thumbnail.pixel(redAt / 5)) > 200);
}

void TestMediaThumbnails::brokenPictures_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("hello, I am no picture");
    QTest::newRow("only a header") << encoded(QSize(800, 600), "PNG").left(40);
    QTest::newRow("cut JPEG header") << encoded(QSize(800, 600), "JPG").left(100);
    QTest::newRow("3.6 gigapixels") << lyingPng(60000, 60000);
    QTest::newRow("just too large") << lyingPng(200001, 1000);
    QTest::newRow("the largest number") << lyingPng(0x7fffffff, 0x7fffffff);
    QTest::newRow("200 megapixels of nothing") << lyingPng(20000, 10000);
    QTest::newRow("vectors") << QByteArray(
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QByteArray gif("GIF89a\xff\xff\xff\xff\x80\0\0\0\0\0\xff\xff\xff", 19);
    gif += QByteArray(",\0\0\0\0\xff\xff\xff\xff\0\x02", 11) + QByteArray("\x02\x44\x01\0;", 5);
    QTest::newRow("GIF of 65535 by 65535") << gif;
}

void TestMediaThumbnails::brokenPictures()
{
    QFETCH(QByteArray, bytes);
    QString error;
    QVERIFY(load(bytes, &error).isNull());
    QVERIFY(!error.isEmpty());
}

void TestMediaThumbnails::writesTheFileAndAnswers()
{
    const FoundFolder folder({{QStringLiteral("a.JPG"), encoded(QSize(400, 300), "JPG")},
                              {QStringLiteral("b.png"), encoded(QSize(400, 300), "PNG", true)}});
    const auto &items = folder.items;
    QStringList paths;
    {
        ThumbnailMaker maker;
        maker.setSource(folder.source);
        QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
        QSignalSpy settled(&maker, &ThumbnailMaker::settled);
        maker.request(items.at(0), QStringLiteral("JPG"));
        maker.request(items.at(0), QStringLiteral("JPG"));
        maker.request(items.at(1), QStringLiteral("png"));
        QVERIFY(settled.wait(10000));
        QCOMPARE(ready.size(), 2);
        QCOMPARE(settled.size(), 1);
        const QString root = QDir::tempPath() + QStringLiteral("/Zenvoor_Quarvo/");
        const QHash<qint64, QString> expected{
            {items.at(0).id, root + QStringLiteral("JPG/%1_thumbnail.jpg").arg(items.at(0).id)},
            {items.at(1).id, root + QStringLiteral("png/%1_thumbnail.png").arg(items.at(1).id)}};
        for (const auto &call : qAsConst(ready)) {
            const QString path = call.at(1).toString();
            QCOMPARE(path, expected.value(call.at(0).toLongLong()));
            QCOMPARE(QImageReader(path).size(), QSize(300, 225));
            QCOMPARE(call.at(2).value<QImage>().size(), QSize(300, 225));
            paths << path;
        }
        QCOMPARE(maker.made(), 2);
    }
    for (const QString &path : qAsConst(paths))
        QVERIFY(!QFileInfo::exists(path)); // nothing of ours stays behind
}

void TestMediaThumbnails::refusesInOrder()
{
    const FoundFolder folder({{QStringLiteral("a.jpg"), QByteArray()},
                              {QStringLiteral("b.jpg"), lyingPng(60000, 60000)},
                              {QStringLiteral("c.mp4"), "video"}});
    const auto &items = folder.items;
    ThumbnailMaker maker;
    maker.setSource(folder.source);
    QSignalSpy failed(&maker, &ThumbnailMaker::thumbnailFailed);
    QSignalSpy settled(&maker, &ThumbnailMaker::settled);
    for (const FoundItem &item : items)
        maker.request(item, QFileInfo(item.name).suffix());
    QCOMPARE(failed.size(), 0); // never from within the request
    QVERIFY(settled.wait(10000));
    QCOMPARE(failed.size(), 3);
    QCOMPARE(maker.made(), 0);
}

void TestMediaThumbnails::forgetsAnotherSourcesFiles()
{
    const FoundFolder folder({{QStringLiteral("a.jpg"), encoded(QSize(4000, 3000), "JPG")}});
    const auto &items = folder.items;
    ThumbnailMaker maker;
    maker.setSource(folder.source);
    QSignalSpy ready(&maker, &ThumbnailMaker::thumbnailReady);
    QSignalSpy settled(&maker, &ThumbnailMaker::settled);
    maker.request(items.first(), QStringLiteral("jpg"));
    QVERIFY(settled.wait(10000));
    const QString path = ready.first().at(1).toString();
    QVERIFY(QFileInfo::exists(path));
    maker.request(items.first(), QStringLiteral("jpg")); // at work while the source changes
    maker.setSource(folder.source);
    QVERIFY(!QFileInfo::exists(path) || maker.pending() == 0);
    QCOMPARE(maker.pending(), 0);
    maker.request(items.first(), QStringLiteral("jpg"));
    QVERIFY(settled.wait(10000));
    QCOMPARE(ready.size(), 2); // the answer to the request before was not for this source
}

void TestMediaThumbnails::diesAtWork()
{
    const FoundFolder folder({{QStringLiteral("a.jpg"), encoded(QSize(4000, 3000), "JPG")}});
    const auto &items = folder.items;
    for (int i = 0; i < 5; ++i) {
        ThumbnailMaker maker;
        maker.setSource(folder.source);
        maker.request(items.first(), QStringLiteral("jpg"));
    }
    const QString root = QDir::tempPath() + QStringLiteral("/Zenvoor_Quarvo/jpg");
    QVERIFY(
        !QDir(root).entryList().contains(QStringLiteral("%1_thumbnail.jpg").arg(items.first().id)));
}

QTEST_GUILESS_MAIN(TestMediaThumbnails)
#include "tst_media_thumbnails.moc"
