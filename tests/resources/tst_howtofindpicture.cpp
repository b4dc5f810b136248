#include "picturefiles.h"

#include <QSet>
#include <QTest>

namespace {

const char *const s_languages[] = {"AR", "DE", "EN", "ES", "FR",  "ID", "IND", "IT",
                                   "JP", "KO", "NL", "PT", "RUS", "SE", "TCH", "THA"};

QImage pictureIn(const QString &language, bool dark)
{
    return PictureFiles::load((dark ? QStringLiteral(":/Images/Dark/unsourcefiles/")
                                    : QStringLiteral(":/Images/unsourcefiles/"))
                                  + QLatin1String("image_SDCardUnsourcedFiles_Win-") + language,
                              2);
}

/// The window is drawn in units of two pixels and turned round for Arabic.
bool isOneColor(const QImage &picture, const QRect &units, bool mirrored)
{
    QRect area(units.topLeft() * 2, units.size() * 2);
    if (mirrored)
        area.moveLeft(picture.width() - area.right() - 1);
    const QRgb first = picture.pixel(area.topLeft());
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (picture.pixel(x, y) != first)
                return false;
    return true;
}

} // namespace

/// The captions of the drawn window: each is there and ends before its place does.
class TestHowToFindPicture : public QObject
{
    Q_OBJECT

private slots:
    void captionsFit_data();
    void captionsFit();
    void everyLanguageHasItsOwn();
};

void TestHowToFindPicture::captionsFit_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QRect>("place"); // where every caption leaves ink
    QTest::addColumn<QRect>("end");   // where none may

    struct Caption
    {
        const char *name;
        QRect place, end;
    };
    static const Caption captions[] = {
        {"card", {40, 8, 30, 24}, {240, 8, 8, 24}},
        {"search", {288, 10, 30, 20}, {474, 10, 8, 20}},
        {"all files", {44, 46, 20, 26}, {204, 46, 8, 26}},
        {"deleted files", {44, 73, 20, 26}, {204, 73, 8, 26}},
        {"files without names", {44, 106, 20, 20}, {188, 106, 6, 20}},
        {"kinds", {62, 144, 16, 88}, {186, 144, 8, 88}},
        {"select all", {252, 48, 12, 20}, {440, 48, 16, 20}},
        {"preview", {400, 164, 30, 16}, {361, 164, 4, 16}},
        {"recover", {650, 256, 40, 20}, {612, 256, 3, 20}},
    };
    for (const char *language : s_languages)
        for (const Caption &caption : captions)
            QTest::addRow("%s, %s", language, caption.name)
                << QString::fromLatin1(language) << caption.place << caption.end;
}

void TestHowToFindPicture::captionsFit()
{
    QFETCH(QString, language);
    QFETCH(QRect, place);
    QFETCH(QRect, end);

    const bool mirrored = language == QLatin1String("AR");
    for (bool dark : {false, true}) {
        const QImage picture = pictureIn(language, dark);
        QVERIFY(!picture.isNull());
        QVERIFY2(!isOneColor(picture, place, mirrored), "nothing is written");
        QVERIFY2(isOneColor(picture, end, mirrored), "too long");
    }
}

void TestHowToFindPicture::everyLanguageHasItsOwn()
{
    QSet<QByteArray> seen;
    for (const char *language : s_languages) {
        const QImage picture = pictureIn(QLatin1String(language), false);
        const QByteArray pixels(reinterpret_cast<const char *>(picture.constBits()),
                                int(picture.sizeInBytes()));
        QVERIFY2(!seen.contains(pixels), language);
        seen.insert(pixels);
    }
}

QTEST_MAIN(TestHowToFindPicture)
#include "tst_howtofindpicture.moc"
