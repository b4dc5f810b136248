#include "support/datarow.h"
#include "thumbnailfixture.h"
#include "thumbnails/hostfiles.h"
#include "thumbnails/packedpicture.h"
#include "thumbnails/thumbnailstore.h"

#include <QRandomGenerator>
#include <QTest>

#include <memory>
#include <vector>

namespace {

using Source = ThumbnailStore::Source;

enum Colours { Grey, Few, Many };

QImage picture(Colours colours, QImage::Format format, uint seed = 1, QSize size = {110, 83})
{
    QImage image(size, QImage::Format_ARGB32);
    QRandomGenerator random(seed);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const uint value = random.generate();
            image.setPixel(x, y,
                           colours == Grey      ? qRgb(value & 255, value & 255, value & 255)
                               : colours == Few ? 0xFF000000 | (value & 0x00E0C0E0)
                                                : value);
        }
    }
    return image.convertToFormat(format);
}

ThumbnailStore::Limits small()
{
    ThumbnailStore::Limits limits;
    limits.total = 1'000'000;
    limits.ready = 200'000;
    limits.fewReady = 4;
    limits.mostReady = 400'000;
    limits.packing = 200'000;
    limits.onlyCopies = 500'000;
    return limits;
}

} // namespace

class tst_ThumbnailStore : public QObject
{
    Q_OBJECT

private slots:
    void packedShowsTheSamePixels_data();
    void packedShowsTheSamePixels();
    void leastShownGoesFirst();
    void largeOnesKeepTheLimitsToo();
    void onlyCopiesStayLonger();
    void isPackedByTheSide();
    void sweepTakesTheDead();
    void randomWalk();
    void hostFiles_data()
    {
        addRows<QString>("path",
                         {{"id first", "C:/Temp/jpg/123_thumbnail.png"},
                          {"longer number", "C:/Temp/jpg/1234.png"},
                          {"another name", "C:/Temp/123/photo 123.png"},
                          {"no folder", "123"},
                          {"other letters", QString::fromUtf8("/tmp/фото/123_Ä.png")},
                          {"odd sign", QStringLiteral("/tmp/\x01/123.png")}});
    }
    void hostFiles();
};

void tst_ThumbnailStore::packedShowsTheSamePixels_data()
{
    addColumns<QImage, QImage::Format>({"original", "packed"});
    QTest::newRow("photo") << picture(Many, QImage::Format_RGB32) << QImage::Format_RGB888;
    QTest::newRow("grey") << picture(Grey, QImage::Format_RGB32) << QImage::Format_Grayscale8;
    QTest::newRow("few colours") << picture(Few, QImage::Format_RGB32) << QImage::Format_Indexed8;
    QTest::newRow("opaque after all")
        << picture(Few, QImage::Format_ARGB32_Premultiplied) << QImage::Format_Indexed8;
    QTest::newRow("transparent") << picture(Many, QImage::Format_ARGB32_Premultiplied)
                                 << QImage::Format_ARGB32_Premultiplied;
    QTest::newRow("undefined fourth byte") << [] {
        QImage image = picture(Many, QImage::Format_ARGB32);
        image.reinterpretAsFormat(QImage::Format_RGB32);
        return image;
    }() << QImage::Format_RGB888;
}

void tst_ThumbnailStore::packedShowsTheSamePixels()
{
    QFETCH(QImage, original);
    QFETCH(QImage::Format, packed);
    original.setDevicePixelRatio(2);
    const QImage small = packedPicture(original);
    QCOMPARE(small.format(), packed);
    QVERIFY(small.sizeInBytes() <= original.sizeInBytes());
    const QPixmap shown = QPixmap::fromImage(small);
    QCOMPARE(shown.devicePixelRatio(), 2.0);
    const QImage::Format common = QImage::Format_ARGB32_Premultiplied;
    QCOMPARE(shown.toImage().convertToFormat(common), original.convertToFormat(common));
}

void tst_ThumbnailStore::leastShownGoesFirst()
{
    ThumbnailStore store(small());
    for (int i = 0; i < 100; ++i) {
        store.insert(i, QPixmap::fromImage(picture(Many, QImage::Format_RGB32, uint(i))),
                     Source::File, nullptr);
        QVERIFY(store.bytes() <= small().total);
        QVERIFY(store.contains(0) && !store.picture(0).isNull()); // shown again and again
    }
    QVERIFY(!store.contains(1) && store.contains(99) && store.contains(80));
    // packed and unpacked, some of them several times
    for (int round = 0; round < 2; ++round) {
        for (const int id : {0, 80, 85, 90, 99}) {
            QCOMPARE(store.picture(id).toImage(), picture(Many, QImage::Format_RGB32, uint(id)));
        }
    }
    store.clear();
    QCOMPARE(store.bytes(), 0);
    QVERIFY(store.picture(99).isNull());
}

void tst_ThumbnailStore::largeOnesKeepTheLimitsToo()
{
    ThumbnailStore store(small());
    const QPixmap large = QPixmap::fromImage(picture(Many, QImage::Format_RGB32, 1, {500, 400}));
    for (int i = 0; i < 10; ++i)
        store.insert(i, large, Source::File, nullptr);
    QCOMPARE(store.picture(9).cacheKey(), large.cacheKey()); // the last one always shows
    QVERIFY(store.bytes() <= 800'000 + small().total);
    QVERIFY(store.count() < 4);
}

void tst_ThumbnailStore::onlyCopiesStayLonger()
{
    ThumbnailStore store(small());
    const QPixmap pixmap = QPixmap::fromImage(picture(Many, QImage::Format_RGB32));
    for (int i = 0; i < 10; ++i)
        store.insert(i, pixmap, Source::OnlyCopy, nullptr);
    for (int i = 100; i < 300; ++i)
        store.insert(i, pixmap, Source::File, nullptr);
    for (int i = 0; i < 10; ++i)
        QVERIFY(store.contains(i));
    for (int i = 10; i < 100; ++i)
        store.insert(i, pixmap, Source::OnlyCopy, nullptr);
    QVERIFY(!store.contains(0)); // but not without end
    QVERIFY(store.bytes() <= small().total + small().onlyCopies);
}

void tst_ThumbnailStore::isPackedByTheSide()
{
    ThumbnailStore::Limits limits = small();
    limits.packing = limits.total;
    ThumbnailStore store(limits);
    const QImage grey = picture(Grey, QImage::Format_RGB32);
    for (int i = 0; i < 20; ++i) {
        store.insert(i, QPixmap::fromImage(grey.copy()), Source::File, nullptr);
        QCOMPARE(store.image(0), grey); // whichever form it is in
        QCOMPARE(store.info(0).size, QSizeF(grey.size()));
    }
    // nothing has to be asked for to have it done
    QTRY_VERIFY(store.bytes() < limits.ready + 20 * grey.sizeInBytes() / 3);
    store.clear();
    QCOMPARE(store.bytes(), 0);
}

void tst_ThumbnailStore::sweepTakesTheDead()
{
    ThumbnailStore store(small());
    const QPixmap pixmap = QPixmap::fromImage(picture(Grey, QImage::Format_RGB32));
    auto dying = std::make_unique<Photo>(1);
    Photo alive(2);
    store.insert(1, pixmap, Source::OnlyCopy, dying.get());
    store.insert(2, pixmap, Source::File, &alive);
    store.insert(3, pixmap, Source::File, nullptr);
    store.insert(4, pixmap, Source::File, dying.get());
    store.insert(5, pixmap, Source::File, dying.get());
    dying.reset();
    store.adopt(5, &alive);
    store.startSweep();
    store.remove(3);
    int steps = 1;
    while (store.sweep(1))
        ++steps;
    QCOMPARE(steps, 5);
    QVERIFY(!store.contains(1) && store.contains(2) && !store.contains(4) && store.contains(5));
}

void tst_ThumbnailStore::randomWalk()
{
    ThumbnailStore store(small());
    QRandomGenerator random(9);
    std::vector<QPixmap> pixmaps;
    for (int i = 0; i < 12; ++i)
        pixmaps.push_back(QPixmap::fromImage(
            picture(Colours(i % 3), i % 4 ? QImage::Format_RGB32 : QImage::Format_ARGB32, uint(i),
                    {40 + i * 9, 30 + i * 5})));
    for (int step = 0; step < 20000; ++step) {
        const qint64 id = random.bounded(200);
        const QPixmap &pixmap = pixmaps[size_t(id % 12)];
        switch (random.bounded(8)) {
        case 0:
        case 1:
            store.insert(id, pixmap, id % 5 ? Source::File : Source::OnlyCopy, nullptr);
            break;
        case 2:
            store.remove(id);
            break;
        default:
            QCOMPARE(store.picture(id).isNull(), !store.contains(id));
        }
        QVERIFY(store.bytes() <= small().total + small().onlyCopies);
        if (step % 500 == 0 && store.contains(id))
            QCOMPARE(store.picture(id).toImage().convertToFormat(QImage::Format_ARGB32),
                     pixmap.toImage().convertToFormat(QImage::Format_ARGB32));
    }
    for (qint64 id = 0; id < 200; ++id)
        store.remove(id);
    QCOMPARE(store.bytes(), 0); // nothing was counted twice or forgotten
}

void tst_ThumbnailStore::hostFiles()
{
    QFETCH(QString, path);
    HostFiles files;
    files.remember(123, {path, QSize(3, 4), 2});
    files.remember(77, {"C:/Temp/jpg/77_thumbnail.png", QSize(), 1});
    QCOMPARE(files.file(123).path, path);
    QCOMPARE(files.file(123).size, QSize(3, 4));
    QCOMPARE(files.file(77).path, QStringLiteral("C:/Temp/jpg/77_thumbnail.png"));
    files.forget(123);
    QVERIFY(files.file(123).path.isEmpty());
}

QTEST_MAIN(tst_ThumbnailStore)
#include "tst_thumbnailstore.moc"
