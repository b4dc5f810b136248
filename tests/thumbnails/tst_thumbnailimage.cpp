#include "thumbnails/thumbnailimage.h"

#include "support/datarow.h"
#include "support/pngparts.h"
#include "support/writefile.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <thread>

namespace {

/// Left half red, right half blue.
QImage twoColours(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::fill(line + size.width() / 2, line + size.width(), qRgb(0, 0, 255));
    }
    return image;
}

bool isRed(QRgb pixel)
{
    return qRed(pixel) > 200 && qBlue(pixel) < 50;
}

bool isBlue(QRgb pixel)
{
    return qBlue(pixel) > 200 && qRed(pixel) < 50;
}

} // namespace

class tst_ThumbnailImage : public QObject
{
    Q_OBJECT

private slots:
    void targetSize_data();
    void targetSize();
    void load_data();
    void load();
    void refuses_data()
    {
        addRows<QByteArray>("bytes",
                            {{"nothing in it", QByteArray()},
                             {"not a picture", QByteArray(5000, 'x')},
                             {"beginning of a picture", PngParts::header(QSize(100, 100))},
                             {"monster", PngParts::header(QSize(40000, 40000))}});
    }
    void refuses();
    void turnsUpright();
    void endsWithItsThread_data();
    void endsWithItsThread();

private:
    QString write(const QString &name, const QByteArray &bytes)
    {
        return writeFile(m_folder.filePath(name), bytes) ? m_folder.filePath(name) : QString();
    }

    QTemporaryDir m_folder;
};

void tst_ThumbnailImage::targetSize_data()
{
    addColumns<QSize, QSize>({"size", "expected"});
    QTest::newRow("landscape") << QSize(400, 300) << QSize(110, 83);
    QTest::newRow("upright") << QSize(300, 400) << QSize(146, 194);
    QTest::newRow("square") << QSize(200, 200) << QSize(146, 146);
    QTest::newRow("small ones grow") << QSize(3, 2) << QSize(124, 83);
    QTest::newRow("one pixel") << QSize(1, 1) << QSize(146, 146);
    QTest::newRow("strip") << QSize(100000, 1) << QSize(4096, 83);
    QTest::newRow("upright strip") << QSize(1, 2000000000) << QSize(146, 4096);
    QTest::newRow("nothing") << QSize(0, 20) << QSize();
}

void tst_ThumbnailImage::targetSize()
{
    QFETCH(QSize, size);
    QTEST(ThumbnailImage::targetSize(size), "expected");
}

void tst_ThumbnailImage::load_data()
{
    addColumns<QByteArray, QSize>({"format", "size"});
    for (const char *format : {"png", "jpg", "bmp"}) {
        QTest::addRow("small %s", format) << QByteArray(format) << QSize(300, 225);
        QTest::addRow("large %s", format) << QByteArray(format) << QSize(1333, 2001);
    }
}

void tst_ThumbnailImage::load()
{
    QFETCH(QByteArray, format);
    QFETCH(QSize, size);
    const QString path = m_folder.filePath(QStringLiteral("picture.png")); // whatever it holds
    QVERIFY(twoColours(size).save(path, format.constData(), 95));
    const QImage image = ThumbnailImage::load(path);
    QCOMPARE(image.size(), ThumbnailImage::targetSize(size));
    const int middle = image.width() / 2;
    for (const int y : {0, image.height() / 2, image.height() - 1}) {
        QVERIFY(isRed(image.pixel(0, y)) && isRed(image.pixel(middle - 3, y)));
        QVERIFY(isBlue(image.pixel(middle + 3, y)) && isBlue(image.pixel(image.width() - 1, y)));
    }
}

void tst_ThumbnailImage::refuses()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(ThumbnailImage::load(write(QStringLiteral("bad.png"), bytes)).isNull());
    QVERIFY(ThumbnailImage::load(m_folder.filePath(QStringLiteral("none.png"))).isNull());
}

void tst_ThumbnailImage::turnsUpright()
{
    const QString plain = m_folder.filePath(QStringLiteral("plain.jpg"));
    QVERIFY(twoColours(QSize(400, 300)).save(plain, "jpg", 95));
    QFile file(plain);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArray bytes = file.readAll();
    // an Exif block behind the first marker that says: turn by 90 degrees, clockwise
    static const char exif[] = "\xFF\xE1\x00\x22"
                               "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
                               "\0\0\0\0";
    bytes.insert(2, QByteArray(exif, sizeof exif - 1));
    const QImage image = ThumbnailImage::load(write(QStringLiteral("turned.jpg"), bytes));
    QCOMPARE(image.size(), QSize(146, 194));
    QVERIFY(isRed(image.pixel(70, 5)));
    QVERIFY(isBlue(image.pixel(70, 190)));
}

void tst_ThumbnailImage::endsWithItsThread_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"png", "jpg", "bmp", "tiff"}) // the last one would be mapped
        QTest::newRow(format) << QByteArray(format);
}

void tst_ThumbnailImage::endsWithItsThread()
{
    QFETCH(QByteArray, format);
    const QString path = m_folder.filePath(QStringLiteral("unwanted.png"));
    if (!twoColours(QSize(300, 200)).save(path, format.constData()))
        QSKIP("this Qt does not know the format");
    QVERIFY(!ThumbnailImage::load(path).isNull());
    QImage image;
    std::thread([&] {
        QThread::currentThread()->requestInterruption();
        image = ThumbnailImage::load(path);
    }).join();
    QVERIFY(image.isNull());
}

QTEST_GUILESS_MAIN(tst_ThumbnailImage)
#include "tst_thumbnailimage.moc"
