#include "common/dropshadowmanager.h"
#include "support/datarow.h"

#include <QImage>
#include <QPixmap>
#include <QTest>
#include <QtMath>

class TestDropShadow : public QObject
{
    Q_OBJECT

private slots:
    void endsSoftly_data();
    void endsSoftly();
    void keepsTheFillInside();
    void odd_data();
    void odd();

private:
    static QImage shadow(const QSize &size, qreal ratio, int radius = DropShadowManager::BodyRadius)
    {
        QPixmap pixmap;
        DropShadowManager(ratio, radius).paint(&pixmap, QRect(QPoint(), size), 80, 60);
        return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    }
};

void TestDropShadow::endsSoftly_data()
{
    addColumns<QSize, qreal, int>({"size", "ratio", "radius"});
    for (qreal ratio : {1.0, 1.5, 2.0, 3.0})
        QTest::addRow("menu at %g", ratio) << QSize(170, 148) << ratio << 8;
    QTest::newRow("odd sides") << QSize(217, 149) << 1.0 << 8;
    QTest::newRow("body of its corners") << QSize(46, 76) << 2.0 << 8;
    QTest::newRow("round button") << QSize(70, 100) << 2.0 << 20;
}

void TestDropShadow::endsSoftly()
{
    QFETCH(QSize, size);
    QFETCH(qreal, ratio);
    QFETCH(int, radius);
    const QImage image = shadow(size, ratio, radius);
    QCOMPARE(image.devicePixelRatio(), ratio);
    QVERIFY(image.width() >= size.width() * ratio && image.height() >= size.height() * ratio);

    for (int x = 0; x < image.width(); ++x) {
        QVERIFY(qAlpha(image.pixel(x, 0)) <= 1);
        QVERIFY(qAlpha(image.pixel(x, image.height() - 1)) <= 1);
    }
    for (int y = 0; y < image.height(); ++y) {
        QVERIFY(qAlpha(image.pixel(0, y)) <= 1);
        QVERIFY(qAlpha(image.pixel(image.width() - 1, y)) <= 1);
    }
    // towards the body it only gets darker, and in steps that no eye sees
    const QRect body = QRect(QPoint(), size).marginsRemoved(DropShadowManager::Reach);
    const int hardStep = qCeil(10 / ratio);
    const auto climbs = [&](QPoint at, const QPoint &step, int count) {
        int before = 0;
        for (int i = 0; i < count; ++i, at += step) {
            const int alpha = qAlpha(image.pixel(at));
            if (alpha < before || alpha - before > hardStep)
                return false;
            before = alpha;
        }
        return before > 0;
    };
    const QPoint middle(image.width() / 2, image.height() / 2);
    QVERIFY(climbs({middle.x(), 0}, {0, 1}, int(body.top() * ratio)));
    QVERIFY(climbs({0, middle.y()}, {1, 0}, int(body.left() * ratio)));
    QVERIFY(climbs({image.width() - 1, middle.y()}, {-1, 0}, int(body.left() * ratio)));
    const int below = size.height() - body.bottom() - 1;
    QVERIFY(climbs({middle.x(), image.height() - 1}, {0, -1}, int(below * ratio)));
}

void TestDropShadow::keepsTheFillInside()
{
    const QImage image = shadow({170, 148}, 2.0);
    const QRect body(QPoint(30, 70), QSize(280, 176));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!body.contains(x, y))
                QVERIFY2(qRed(image.pixel(x, y)) < 40 || qAlpha(image.pixel(x, y)) < 8,
                         qPrintable(QStringLiteral("light at %1, %2").arg(x).arg(y)));
        }
    }
    QCOMPARE(image.pixel(body.center()), qRgba(255, 255, 255, 255));
    QVERIFY(qAlpha(image.pixel(body.topLeft())) < 255); // behind the rounded corner
}

void TestDropShadow::odd_data()
{
    addColumns<QSize, qreal, bool>({"size", "ratio", "painted"});
    QTest::newRow("empty") << QSize(0, 148) << 1.0 << false;
    QTest::newRow("negative") << QSize(-5, -5) << 1.0 << false;
    QTest::newRow("smaller than its margins") << QSize(20, 20) << 2.0 << true;
    QTest::newRow("no ratio") << QSize(170, 148) << 0.0 << true;
}

void TestDropShadow::odd()
{
    QFETCH(QSize, size);
    QFETCH(qreal, ratio);
    QFETCH(bool, painted);
    QPixmap pixmap(3, 3);
    DropShadowManager(ratio).paint(&pixmap, QRect(QPoint(), size), 80, 60);
    QCOMPARE(!pixmap.isNull(), painted);
}

QTEST_MAIN(TestDropShadow)
#include "tst_dropshadow.moc"
