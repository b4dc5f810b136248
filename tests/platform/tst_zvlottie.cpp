#include "support/datarow.h"
#include "support/eventcounter.h"
#include "support/writefile.h"
#include "zvlottie.h"

#include <QElapsedTimer>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

using Tarn::ZVLottie;

namespace {

constexpr int Side = 142;
const QColor Needle(255, 0, 0);
const QColor Disc(0, 0, 255);

QImage pictureOf(QWidget &widget, const QColor &page = Qt::white)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(page);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

} // namespace

class TestZVLottie : public QObject
{
    Q_OBJECT

private slots:
    void sources_data();
    void sources();
    void draws_data();
    void draws();
    void costsNothing_data()
    {
        addRows<QString>("state",
                         {{"playing is what the others are told from", "playing"},
                          {"paused", "paused"},
                          {"hidden", "hidden"},
                          {"minimised", "minimised"},
                          {"in a hidden parent", "parent hidden"}});
    }
    void costsNothing();
    void repaintsNoMoreThanItsFrames();
    void stopsOnTheLastFrame();
    void resumesWhereItPaused();
    void failedSourceEmptiesThePicture();
    void isDestroyedWhileRendering();
    void hugeSizesAreBounded();
    void scanningLeavesThePageThrough();

private:
    std::unique_ptr<ZVLottie> made();
    const QString m_animation = QFINDTESTDATA("data/pulse.json");
};

std::unique_ptr<ZVLottie> TestZVLottie::made()
{
    auto lottie = std::make_unique<ZVLottie>(m_animation);
    lottie->resize(Side, Side);
    lottie->setisLoop(true);
    lottie->show();
    return lottie;
}

void TestZVLottie::sources_data()
{
    addColumns<QByteArray, bool>({"content", "loads"});

    QFile file(m_animation);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    QTest::newRow("animation") << whole << true;
    QTest::newRow("lines end as on Windows") << QByteArray(whole).replace("\n", "\r\n") << true;
    QTest::newRow("an editor's mark in front") << "\xef\xbb\xbf" + whole << true;
    QTest::newRow("empty file") << QByteArray() << false;
    QTest::newRow("cut off") << whole.left(whole.size() / 2) << false;
    QTest::newRow("other JSON") << QByteArray("{\"name\": \"value\"}") << false;
    QTest::newRow("JSON, not an object") << QByteArray("[1, 2, 3]") << false;
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << false;
    QTest::newRow("no frames") << QByteArray(whole).replace("\"op\": 100", "\"op\": 0") << false;
    QTest::newRow("no frame rate") << QByteArray(whole).replace("\"fr\": 50", "\"fr\": 0") << false;
}

void TestZVLottie::sources()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, loads);

    QTemporaryDir dir;
    const QString deep = dir.filePath(QString(150, 'd') + QLatin1Char('/') + QString(150, 'e'));
    const QString path = deep + QStringLiteral("/Über 動画.json");
    QVERIFY(writeFile(path, content));

    ZVLottie lottie{QString()};
    QCOMPARE(lottie.setSource(path), loads);
    QCOMPARE(lottie.setSource(QDir::toNativeSeparators(path)), loads);
    QCOMPARE(lottie.setSource(dir.path()), false);
    QCOMPARE(lottie.setSource(dir.filePath(QStringLiteral("missing.json"))), false);
    QVERIFY(!lottie.isPlaying());
}

void TestZVLottie::draws_data()
{
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QSize>("animation");
    QTest::addColumn<QPoint>("needle"); // in the first frame it points up
    QTest::addColumn<QPoint>("disc");
    QTest::addColumn<QPoint>("outside");

    QTest::newRow("fills the widget")
        << QSize(284, 284) << QSize() << QPoint(142, 80) << QPoint(142, 200) << QPoint(5, 5);
    QTest::newRow("wide widget, own proportions")
        << QSize(400, 200) << QSize() << QPoint(200, 60) << QPoint(200, 150) << QPoint(110, 100);
    addRow("smaller animation, centred", QSize(200, 200), QSize(100, 100), QPoint(100, 75),
           QPoint(100, 125), QPoint(100, 40));
}

void TestZVLottie::draws()
{
    QFETCH(QSize, widget);
    QFETCH(QSize, animation);
    QFETCH(QPoint, needle);
    QFETCH(QPoint, disc);
    QFETCH(QPoint, outside);

    ZVLottie lottie(m_animation);
    lottie.resize(widget);
    if (!animation.isEmpty())
        lottie.setAnimationSize(animation);
    lottie.show();
    QTRY_COMPARE(pictureOf(lottie).pixelColor(disc), Disc);
    QCOMPARE(pictureOf(lottie).pixelColor(needle), Needle);
    QCOMPARE(pictureOf(lottie).pixelColor(outside), QColor(Qt::white));
}

void TestZVLottie::costsNothing()
{
    QFETCH(QString, state);

    QWidget window;
    window.resize(200, 200);
    auto *page = new QWidget(&window);
    page->resize(200, 200);
    auto *lottie = new ZVLottie(m_animation, page);
    lottie->resize(Side, Side);
    lottie->setisLoop(true);
    lottie->setPlay(true);
    window.show();
    QTRY_COMPARE(pictureOf(*lottie).pixelColor(Side / 2, Side * 2 / 3), Disc);

    if (state == QLatin1String("paused"))
        lottie->setPaused(true);
    else if (state == QLatin1String("hidden"))
        lottie->hide();
    else if (state == QLatin1String("minimised"))
        window.showMinimized();
    else if (state == QLatin1String("parent hidden"))
        page->hide();
    QCoreApplication::processEvents();

    EventCounter timers(lottie, QEvent::Timer);
    EventCounter paints(lottie, QEvent::Paint);
    if (state == QLatin1String("playing")) {
        QTRY_VERIFY(timers.count > 0 && paints.count > 2);
        return;
    }
    QTimer observation; // ten of the animation's frames
    observation.start(200);
    QVERIFY(QSignalSpy(&observation, &QTimer::timeout).wait());
    QCOMPARE(timers.count, 0);
    QVERIFY(paints.count <= 2);
}

void TestZVLottie::repaintsNoMoreThanItsFrames()
{
    const auto lottie = made();
    lottie->setTimeInterval(1); // far more often than the file has frames
    EventCounter paints(lottie.get(), QEvent::Paint);
    lottie->setPlay(true);
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(paints.count >= 20);
    const double framesShown = double(clock.elapsed()) * 50 / 1000;
    QVERIFY2(paints.count <= framesShown * 1.2 + 3, qPrintable(QString::number(paints.count)));
}

void TestZVLottie::stopsOnTheLastFrame()
{
    const auto lottie = made();
    lottie->setisLoop(false);
    lottie->setPlay(true);
    QVERIFY(lottie->isPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(!lottie->isPlaying(), 4000);
    // a whole turn: the needle is back where it began
    QTRY_COMPARE(pictureOf(*lottie).pixelColor(Side / 2, Side / 3), Needle);

    lottie->setPlay(true); // from the start again
    QVERIFY(lottie->isPlaying());
    QTRY_VERIFY(pictureOf(*lottie).pixelColor(Side / 2, Side / 3) != Needle);
}

void TestZVLottie::resumesWhereItPaused()
{
    const auto lottie = made();
    lottie->setPlay(true);
    QTRY_VERIFY_WITH_TIMEOUT(pictureOf(*lottie).pixelColor(Side * 2 / 3, Side / 2) == Needle, 4000);
    lottie->setPaused(true);
    QCoreApplication::processEvents();
    const QImage paused = pictureOf(*lottie);
    lottie->hide();
    lottie->show();
    lottie->setPlay(true);
    lottie->setPaused(true);
    QTRY_COMPARE(pictureOf(*lottie).pixelColor(Side * 2 / 3, Side / 2), Needle);
    QVERIFY(paused.pixelColor(Side / 2, Side / 4) == Disc);
}

void TestZVLottie::failedSourceEmptiesThePicture()
{
    const auto lottie = made();
    lottie->setPlay(true);
    QTRY_COMPARE(pictureOf(*lottie).pixelColor(Side / 2, Side * 2 / 3), Disc);
    QVERIFY(!lottie->setSource(QStringLiteral("missing.json")));
    QCOMPARE(pictureOf(*lottie).pixelColor(Side / 2, Side * 2 / 3), QColor(Qt::white));
    QVERIFY(lottie->setSource(m_animation));
    QTRY_COMPARE(pictureOf(*lottie).pixelColor(Side / 2, Side * 2 / 3), Disc);
}

void TestZVLottie::isDestroyedWhileRendering()
{
    for (int round = 0; round < 50; ++round) {
        const auto lottie = made();
        lottie->setPlay(true);
        lottie->setAnimationSize(QSize(400 + round, 400)); // what is being rendered is stale now
        if (round % 3 == 0)
            lottie->setSource(m_animation);
        QCoreApplication::processEvents();
    }
}

void TestZVLottie::hugeSizesAreBounded()
{
    const auto lottie = made();
    lottie->setAnimationSize(QSize(1000 * 1000, 1000 * 1000));
    EventCounter paints(lottie.get(), QEvent::Paint);
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(lottie->size(), QSize(Side, Side));
}

void TestZVLottie::scanningLeavesThePageThrough()
{
    ZVLottie lottie(QCoreApplication::applicationDirPath()
                    + QLatin1String("/LottieFiles/Scanning/data.json"));
    lottie.resize(Side, Side);
    lottie.show();
    const QColor page(30, 33, 45);
    QTRY_VERIFY(pictureOf(lottie, page).pixelColor(Side / 2, Side / 2) != page);
    const QImage picture = pictureOf(lottie, page);
    QCOMPARE(picture.pixelColor(1, 1), page);
    QCOMPARE(picture.pixelColor(Side - 2, Side - 2), page);
}

QTEST_MAIN(TestZVLottie)
#include "tst_zvlottie.moc"
