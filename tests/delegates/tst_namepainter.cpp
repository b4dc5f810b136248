#include "common/fontmanager.h"
#include "delegates/elidecache.h"
#include "delegates/namepainter.h"
#include "platform/system/system.h"
#include "support/datarow.h"
#include "support/pixels.h"

#include <QImage>
#include <QPainter>
#include <QtTest>

class TestNamePainter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { System::registerFontSubstitutes(); }
    void plainNameIsOrdinaryText_data()
    {
        addRows<QString>("text",
                         {{"latin", "IMG_0001.JPG"},
                          {"a mark at its end", "100QUAR_"},
                          {"markup is text", "<b>x</b>&amp;"},
                          {"ampersand", "R&D.txt"},
                          {"arabic", QString::fromUtf8("صورة.jpg")},
                          {"japanese", QString::fromUtf8("写真.jpg")}});
    }
    void plainNameIsOrdinaryText();
    void keywordDoesNotMoveTheName_data();
    void keywordDoesNotMoveTheName();
    void markFollowsKeywordAndColours();
    void staysOnOneLineInItsRect_data()
    {
        addRows<QString>("keyword", {{"plain", QString()}, {"highlighted", QStringLiteral("W")}});
    }
    void staysOnOneLineInItsRect();
    void elides_data();
    void elides();
};

namespace {

constexpr QRect NameRect(8, 4, 134, 22);
constexpr QSize ImageSize(150, 30);

QImage blank()
{
    QImage image(ImageSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

QImage drawn(NamePainter &names, const QString &text,
             Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    names.draw(&painter, NameRect, text, Qt::AlignCenter);
    return image;
}

void setUp(NamePainter &names, THEMETYPE theme = LightTheme)
{
    names.setFont(FontManager::instance()->getFont(13, 400));
    names.setColors(ItemColors(theme));
}

QRect inked(const QImage &image)
{
    return around(image, [](QRgb pixel) { return pixel != qRgb(255, 255, 255); });
}

} // namespace

void TestNamePainter::plainNameIsOrdinaryText()
{
    QFETCH(QString, text);
    NamePainter names;
    setUp(names);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft, Qt::LeftToRight}) {
        QImage expected = blank();
        QPainter painter(&expected);
        painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        painter.setFont(names.font());
        painter.setPen(ItemColors().text);
        painter.drawText(NameRect, Qt::AlignCenter, text);
        painter.end();
        QCOMPARE(drawn(names, text, direction), expected);
        QCOMPARE(drawn(names, text, direction), expected); // and from what was kept
    }
}

void TestNamePainter::keywordDoesNotMoveTheName_data()
{
    plainNameIsOrdinaryText_data();
}

void TestNamePainter::keywordDoesNotMoveTheName()
{
    QFETCH(QString, text);
    NamePainter names;
    setUp(names);
    const QImage plain = drawn(names, text);
    names.setKeyword(QStringLiteral("elsewhere"));
    QCOMPARE(drawn(names, text), plain);
}

void TestNamePainter::markFollowsKeywordAndColours()
{
    NamePainter names;
    setUp(names);
    const QString text = QStringLiteral("holiday.jpg");
    const auto has = [&](const QColor &color) {
        const QImage image = drawn(names, text);
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, NameRect.center().y()) == color.rgb())
                return true;
        }
        return false;
    };
    const QColor light = ItemColors(LightTheme).highlightBackground;
    const QColor dark = ItemColors(DarkTheme).highlightBackground;

    names.setKeyword(QStringLiteral("day"));
    QVERIFY(has(light));
    names.setKeyword(QStringLiteral("night"));
    QVERIFY(!has(light));
    names.setKeyword(QStringLiteral("holi"));
    QVERIFY(has(light));
    names.setColors(ItemColors(DarkTheme));
    QVERIFY(!has(light));
    QVERIFY(has(dark));
    names.setKeyword(QString());
    QVERIFY(!has(dark));
}

void TestNamePainter::staysOnOneLineInItsRect()
{
    QFETCH(QString, keyword);
    NamePainter names;
    setUp(names);
    names.setKeyword(keyword);
    const QRect wide = inked(drawn(names, QString(60, QLatin1Char('W'))));
    QVERIFY(!wide.isEmpty());
    QVERIFY(NameRect.contains(wide));

    const QRect oneLine = inked(drawn(names, QStringLiteral("WW WW")));
    QCOMPARE(inked(drawn(names, QStringLiteral("WW\nWW"))), oneLine);
    QCOMPARE(inked(drawn(names, QStringLiteral("WW\u2029WW"))), oneLine);
}

void TestNamePainter::elides_data()
{
    addColumns<QString, int, bool>({"text", "width", "cut"});

    QTest::newRow("ten characters, no room") << QStringLiteral("WWWWWWWWWW") << 5 << false;
    QTest::newRow("eleven, no room") << QStringLiteral("WWWWWWWWWWW") << 50 << true;
    QTest::newRow("eleven, room enough") << QStringLiteral("iiiiiiiiiii") << 119 << false;
    QTest::newRow("no width at all") << QStringLiteral("WWWWWWWWWWW") << -7 << true;
    QTest::newRow("of any length") << QString(3000000, QLatin1Char('W')) << 119 << true;
}

void TestNamePainter::elides()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(bool, cut);
    const QFont font = FontManager::instance()->getFont(13, 400);
    const QFontMetrics metrics(font);
    PlainTexts texts;
    texts.setFont(font);
    ElideCache cache;
    const QString elided = cache.elided(text, width, &texts);
    QCOMPARE(elided != text, cut);
    if (cut)
        QVERIFY(metrics.horizontalAdvance(elided)
                <= qMax(width, metrics.horizontalAdvance(QChar(0x2026))));
    QCOMPARE(cache.elided(text, width, &texts), elided);
}

QTEST_MAIN(TestNamePainter)
#include "tst_namepainter.moc"
