#include "common/smallpng.h"
#include "support/pngparts.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>

namespace {

enum Pattern { Soft, Noise, Flat };

QImage picture(const QSize &size, QImage::Format format, Pattern pattern)
{
    QImage image(size, QImage::Format_ARGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = pattern == Noise ? random.generate()
                : pattern == Flat      ? qRgba(10, 200, 30, 128)
                                  : qRgba(x * 2 % 256, (x + y) % 256, y * 3 % 256, 255 - x % 256);
        }
    }
    return image.convertToFormat(format);
}

QByteArray pngOf(const QImage &image)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    writer.write(image);
    return buffer.data();
}

/// A file whose rows are filtered as \a filters say in turn, filled with noise that means
/// something else under each filter.
QByteArray filtered(const QSize &size, int colourType, int channels, const QByteArray &filters)
{
    QByteArray rows;
    QRandomGenerator random(3);
    for (int y = 0; y < size.height(); ++y) {
        rows.append(filters.at(y % filters.size()));
        for (int i = 0; i < size.width() * channels; ++i)
            rows.append(char(random.generate()));
    }
    const QByteArray packed = qCompress(rows).mid(4);
    const int half = packed.size() / 2;
    using namespace PngParts;
    return header(size, colourType) + chunk("tEXt", "a\0b") + chunk("IDAT", packed.left(half))
        + chunk("IDAT", packed.mid(half)) + chunk("IEND", {});
}

QImage stock(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return QImageReader(&buffer, "png").read();
}

} // namespace

class tst_SmallPng : public QObject
{
    Q_OBJECT

private slots:
    void samePixelsAsTheGeneralReader_data();
    void samePixelsAsTheGeneralReader();
    void leavesTheRestAlone_data();
    void leavesTheRestAlone();
    void survivesDamage();
};

void tst_SmallPng::samePixelsAsTheGeneralReader_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QPair<const char *, QImage::Format> formats[] = {{"colour", QImage::Format_RGB32},
                                                           {"alpha", QImage::Format_ARGB32},
                                                           {"grey", QImage::Format_Grayscale8}};
    for (const auto &format : formats) {
        for (const Pattern pattern : {Soft, Noise, Flat}) {
            QTest::addRow("%s %d", format.first, pattern)
                << pngOf(picture({150, 113}, format.second, pattern));
        }
        QTest::addRow("one pixel, %s", format.first) << pngOf(picture({1, 1}, format.second, Soft));
    }
    const QPair<int, int> types[] = {{0, 1}, {2, 3}, {4, 2}, {6, 4}};
    for (const auto &type : types) {
        for (int filter = 0; filter < 5; ++filter)
            QTest::addRow("type %d, filter %d", type.first, filter)
                << filtered({37, 29}, type.first, type.second, QByteArray(1, char(filter)));
        QTest::addRow("type %d, all filters", type.first)
            << filtered({64, 50}, type.first, type.second, QByteArray("\4\1\2\3\0\4\4\3\2", 9));
    }
}

void tst_SmallPng::samePixelsAsTheGeneralReader()
{
    QFETCH(QByteArray, bytes);
    const QImage image = SmallPng::read(bytes);
    QVERIFY(!image.isNull());
    const QImage expected = stock(bytes);
    QCOMPARE(image.format(), expected.format());
    QCOMPARE(image, expected);
}

void tst_SmallPng::leavesTheRestAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = pngOf(picture({40, 30}, QImage::Format_RGB32, Soft));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("signature only") << good.left(8);
    QTest::newRow("header only") << good.left(33);
    QTest::newRow("cut off") << good.left(good.size() - 40);
    QTest::newRow("palette") << pngOf(picture({40, 30}, QImage::Format_Indexed8, Flat));
    QTest::newRow("one bit") << pngOf(picture({40, 30}, QImage::Format_Mono, Soft));
    QTest::newRow("sixteen bits") << pngOf(picture({40, 30}, QImage::Format_RGBA64, Soft));
    QTest::newRow("unknown filter") << filtered({4, 4}, 2, 3, QByteArray(1, '\5'));
    QTest::newRow("one colour is transparent")
        << good.left(33) + PngParts::chunk("tRNS", QByteArray(6, '\0')) + good.mid(33);
    QByteArray wrongSize = good;
    wrongSize[19] = char(wrongSize.at(19) + 1);
    QTest::newRow("header does not fit its checksum") << wrongSize;
    QTest::newRow("fewer rows than it says")
        << QByteArray(filtered({40, 30}, 2, 3, QByteArray(1, '\0')))
               .replace(0, 33, filtered({40, 90}, 2, 3, QByteArray(1, '\0')).left(33));
}

void tst_SmallPng::leavesTheRestAlone()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(SmallPng::read(bytes).isNull());
}

void tst_SmallPng::survivesDamage()
{
    // the unpacking says of each one that it is broken
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QByteArray good = pngOf(picture({60, 45}, QImage::Format_ARGB32, Soft));
    QRandomGenerator random(11);
    for (int i = 0; i < 500; ++i) {
        QByteArray bad = good;
        for (int hits = 1 + i % 3; hits > 0; --hits)
            bad[int(random.bounded(bad.size()))] = char(random.generate());
        const QImage image = SmallPng::read(bad);
        QVERIFY(image.isNull() || image.size() == QSize(60, 45));
    }
    QLoggingCategory::setFilterRules(QString());
}

QTEST_GUILESS_MAIN(tst_SmallPng)
#include "tst_smallpng.moc"
