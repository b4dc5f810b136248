#include "support/datarow.h"
#include "thumbnails/highdpipixmapsmanager.h"

#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>
#include <QtConcurrent>

using SpriteSheets::Layout;
using SpriteSheets::Sheet;
using Means = HighDpiPixmapsManager::Means;

namespace {

Means s_means;
QAtomicInt s_looks;

Means means()
{
    s_looks.ref();
    return s_means;
}

QStringList &keptLog()
{
    static QStringList log;
    return log;
}

void keepLog(QtMsgType, const QMessageLogContext &, const QString &line)
{
    keptLog().append(line);
}

QColor colourOf(int frame)
{
    return QColor(10 + frame * 7, 200 - frame * 5, frame * 11 % 256);
}

/// A sheet whose frames are told apart by their colour, with a white top left pixel each.
QString writeSheet(const QString &base, int side, int frames, int perRow)
{
    QImage sheet(perRow * side, (frames + perRow - 1) / perRow * side, QImage::Format_ARGB32);
    sheet.fill(Qt::black);
    QPainter painter(&sheet);
    for (int i = 0; i < frames; ++i) {
        const QRect frame(i % perRow * side, i / perRow * side, side, side);
        painter.fillRect(frame, colourOf(i));
        painter.fillRect(QRect(frame.topLeft(), QSize(1, 1)), Qt::white);
    }
    painter.end();
    return sheet.save(base + QStringLiteral(".png")) ? base : QString();
}

} // namespace

class TestHighDpiPixmapsManager : public QObject
{
    Q_OBJECT

private slots:
    void cutsEachFrameFromItsPlace_data();
    void cutsEachFrameFromItsPlace();
    void brokenSheetIsLogged_data()
    {
        addRows<int>("framesThere", {{"no file", 0}, {"a row is missing", 8}});
    }
    void brokenSheetIsLogged();
    void skips_data();
    void skips();
    void framesOfEverySheet_data();
    void framesOfEverySheet();
    void waitsForTheFirstPaint();
    void cutOnAPoolThreadWhileItIsAskedFor();
    void pixmapAtTheScreensScale();
};

void TestHighDpiPixmapsManager::cutsEachFrameFromItsPlace_data()
{
    addColumns<int, int>({"frames", "perRow"});
    QTest::newRow("one row") << 5 << 5;
    QTest::newRow("last row short") << 11 << 4;
    QTest::newRow("last row of one") << 9 << 4;
    QTest::newRow("one column") << 3 << 1;
}

void TestHighDpiPixmapsManager::cutsEachFrameFromItsPlace()
{
    QFETCH(int, frames);
    QFETCH(int, perRow);
    constexpr int Side = 6;
    QTemporaryDir folder;
    const QByteArray base =
        writeSheet(folder.filePath(QStringLiteral("sheet")), Side, frames, perRow).toUtf8();

    const QVector<QImage> cut = SpriteSheets::cut({base.constData(), Side, frames, perRow});
    QCOMPARE(cut.size(), frames);
    for (int i = 0; i < frames; ++i) {
        QCOMPARE(cut.at(i).size(), QSize(Side, Side));
        QCOMPARE(cut.at(i).pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(cut.at(i).pixelColor(1, 0), colourOf(i));
        QCOMPARE(cut.at(i).pixelColor(Side - 1, Side - 1), colourOf(i));
    }
}

void TestHighDpiPixmapsManager::brokenSheetIsLogged()
{
    QFETCH(int, framesThere);
    QTemporaryDir folder;
    const QString base = folder.filePath(QStringLiteral("sheet"));
    if (framesThere > 0)
        QVERIFY(!writeSheet(base, 6, framesThere, 4).isEmpty());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("SpriteSheets: missing or too small"));
    QVERIFY(SpriteSheets::cut({base.toUtf8().constData(), 6, 9, 4}).isEmpty());
}

void TestHighDpiPixmapsManager::skips_data()
{
    constexpr quint64 Gibibyte = 1073741824;
    addColumns<quint64, bool, bool>({"memory", "forbidden", "skipped"});
    QTest::newRow("exactly the least") << Gibibyte << false << true;
    QTest::newRow("a byte more") << Gibibyte + 1 << false << false;
    QTest::newRow("unknown") << quint64(0) << false << true;
    QTest::newRow("the licence forbids") << 8 * Gibibyte << true << true;
}

void TestHighDpiPixmapsManager::skips()
{
    QFETCH(quint64, memory);
    QFETCH(bool, forbidden);
    QFETCH(bool, skipped);
    s_means = {memory, forbidden};
    keptLog().clear();
    HighDpiPixmapsManager manager(&means);
    const QtMessageHandler before = qInstallMessageHandler(&keepLog);
    manager.startAnalysisPixmapItemList();
    qInstallMessageHandler(before);

    QCOMPARE(keptLog().constFirst(), QStringLiteral("startAnalysisPixmapItemList start"));
    QCOMPARE(keptLog().constLast(), QStringLiteral("startAnalysisPixmapItemList end"));
    QCOMPARE(manager.frames(Sheet::Searching).isEmpty(), skipped);
}

void TestHighDpiPixmapsManager::framesOfEverySheet_data()
{
    addColumns<int, int, int>({"sheet", "frames", "side"});
    QTest::newRow("disk") << int(Sheet::LoadDisk) << 24 << 224;
    QTest::newRow("backing") << int(Sheet::Backing) << 24 << 224;
    QTest::newRow("progress") << int(Sheet::ScanProgress) << 75 << 112;
    QTest::newRow("no data") << int(Sheet::ScanNoData) << 138 << 284;
    QTest::newRow("loading") << int(Sheet::Loading) << 90 << 240;
    QTest::newRow("searching") << int(Sheet::Searching) << 41 << 64;
    QTest::newRow("repair") << int(Sheet::RepairProgress) << 60 << 284;
}

// Every frame shows something and none reaches into its neighbour: the outermost pixels are free.
void TestHighDpiPixmapsManager::framesOfEverySheet()
{
    QFETCH(int, sheet);
    QFETCH(int, side);
    const QVector<QImage> cut = SpriteSheets::cut(SpriteSheets::layout(Sheet(sheet)));
    QTEST(cut.size(), "frames");
    int still = 0;
    for (int i = 0; i < cut.size(); ++i) {
        const QImage frame = cut.at(i).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(frame.size(), QSize(side, side));
        int visible = 0;
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                visible += qAlpha(frame.pixel(x, y)) > 64;
        QVERIFY2(visible * 25 > side * side, qPrintable(QStringLiteral("frame %1").arg(i)));
        for (int at = 0; at < side; ++at)
            for (const QPoint &edge :
                 {QPoint(at, 0), QPoint(at, side - 1), QPoint(0, at), QPoint(side - 1, at)})
                QCOMPARE(qAlpha(frame.pixel(edge)), 0);
        still += i > 0 && cut.at(i) == cut.at(i - 1);
    }
    QVERIFY2(still * 2 < cut.size(), "it hardly moves");
}

void TestHighDpiPixmapsManager::waitsForTheFirstPaint()
{
    s_means = {quint64(1) << 40, false};
    s_looks = 0;
    HighDpiPixmapsManager manager(&means);
    auto *early = new QWidget; // goes before it is ever shown
    QWidget window;
    QWidget later;
    for (QWidget *each : {early, &window, &later})
        manager.preloadAfterFirstPaint(each);
    delete early;
    QCoreApplication::processEvents();
    QCOMPARE(s_looks.loadAcquire(), 0);
    window.show();
    QTRY_COMPARE(manager.frames(Sheet::RepairProgress).size(), 60);
    later.show();
    QVERIFY(QTest::qWaitForWindowExposed(&later));
    manager.preloadAfterFirstPaint(&window);
    window.repaint();
    QCoreApplication::processEvents();
    QThreadPool::globalInstance()->waitForDone();
    QCOMPARE(s_looks.loadAcquire(), 1);
}

void TestHighDpiPixmapsManager::cutOnAPoolThreadWhileItIsAskedFor()
{
    s_means = {quint64(1) << 40, false};
    HighDpiPixmapsManager manager(&means);
    QVERIFY(manager.frames(Sheet::Searching).isEmpty());
    QFuture<void> cutting = QtConcurrent::run(&manager,
                                              &HighDpiPixmapsManager::startAnalysisPixmapItemList);
    QTRY_COMPARE(manager.frames(Sheet::RepairProgress).size(), 60);
    cutting.waitForFinished();
    const QVector<QPixmap> frames = manager.frames(Sheet::Searching);
    QCOMPARE(frames.size(), 41);
    // made once, then shared
    QCOMPARE(manager.frames(Sheet::Searching).constFirst().cacheKey(),
             frames.constFirst().cacheKey());
}

void TestHighDpiPixmapsManager::pixmapAtTheScreensScale()
{
    QLabel label;
    QPixmap pixmap(60, 30);
    pixmap.fill(Qt::red);
    HighDpiPixmapsManager manager;
    manager.setLabelPixmap(&label, pixmap, 1.5);
    QCOMPARE(label.sizeHint(), QSize(40, 20));
    manager.setLabelPixmap(nullptr, pixmap, 1.5);
}

QTEST_MAIN(TestHighDpiPixmapsManager)
#include "tst_highdpipixmapsmanager.moc"
