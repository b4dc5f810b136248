#include "zvlottie.h"

#include <QCoreApplication>
#include <QImage>
#include <QTest>

using Tarn::ZVLottie;

namespace {

constexpr int Side = 284;

QImage pictureOf(QWidget &widget, const QColor &page)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(page);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

} // namespace

class TestScanningAnimation : public QObject
{
    Q_OBJECT

private slots:
    void plays();
    void leavesThePageThrough();
};

void TestScanningAnimation::plays()
{
    ZVLottie lottie({});
    QVERIFY(lottie.setSource(QCoreApplication::applicationDirPath()
                             + QLatin1String("/LottieFiles/Scanning/data.json")));
    lottie.resize(Side, Side);
    lottie.setAnimationSize({Side, Side});
    lottie.setisLoop(true);
    lottie.setTimeInterval(20.0);
    lottie.show();

    QImage blank(Side, Side, QImage::Format_RGB32);
    blank.fill(Qt::white);
    QTRY_VERIFY(pictureOf(lottie, Qt::white) != blank);
    const QImage first = pictureOf(lottie, Qt::white);
    lottie.setPlay(true);
    QTRY_VERIFY(pictureOf(lottie, Qt::white) != first);
}

void TestScanningAnimation::leavesThePageThrough()
{
    ZVLottie lottie({});
    QVERIFY(lottie.setSource(QCoreApplication::applicationDirPath()
                             + QLatin1String("/LottieFiles/Scanning/data.json")));
    lottie.resize(Side, Side);
    lottie.setAnimationSize({Side, Side});
    lottie.show();

    const QColor page(30, 33, 45);
    const QPoint middle(Side / 2, Side / 2);
    QTRY_VERIFY(pictureOf(lottie, page).pixelColor(middle) != page);
    const QImage picture = pictureOf(lottie, page);
    QCOMPARE(picture.pixelColor(1, 1), page);
    QCOMPARE(picture.pixelColor(Side - 2, Side - 2), page);
}

QTEST_MAIN(TestScanningAnimation)
#include "tst_scanninganimation.moc"
