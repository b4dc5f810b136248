#include "picturefiles.h"
#include "support/datarow.h"

#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

const QString s_light = QStringLiteral(":/Images/");
const QString s_dark = QStringLiteral(":/Images/Dark/");

const char *const s_fileKinds[] = {"Default", "Audio",    "Video",      "CameraVideo", "Document",
                                   "Word",    "Excel",    "PowerPoint", "PDF",         "Text",
                                   "Email",   "Database", "Photo",      "Raw",         "Web",
                                   "Archive", "Folder"};

using PictureFiles::load;

/// Mean difference of two pictures of one size on white, 0 to 255, without their colours: not
/// everybody sees them.
double difference(const QImage &left, const QImage &right)
{
    const auto greyOnWhite = [](QRgb pixel) {
        return 255 + (qGray(pixel) - 255) * qAlpha(pixel) / 255;
    };
    double sum = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int x = 0; x < left.width(); ++x)
            sum += std::abs(greyOnWhite(left.pixel(x, y)) - greyOnWhite(right.pixel(x, y)));
    return sum / (left.width() * left.height());
}

struct Content
{
    int visible = 0;
    bool oneColor = true;
};

Content contentOf(const QImage &image)
{
    Content content;
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            content.visible += qAlpha(pixel) > 8;
            content.oneColor = content.oneColor && pixel == first;
        }
    }
    return content;
}

constexpr int LargestOnGrid = 32;
constexpr int ShortestEdge = 4; // pixels at 1x; the top of a circle is shorter

int distance(QRgb left, QRgb right)
{
    const QRgb a = qPremultiply(left);
    const QRgb b = qPremultiply(right);
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

/// How far a level edge goes along which pixels show neither of the colours that it parts.
int longestBlurredRun(const QImage &coarse, const QImage &fine)
{
    constexpr int Seen = 48;
    constexpr int Same = 12;
    int longest = 0;
    for (int y = 0; y < coarse.height(); ++y) {
        int run = 0;
        for (int x = 0; x < coarse.width(); ++x) {
            const QRgb upper = fine.pixel(2 * x, 2 * y);
            const QRgb lower = fine.pixel(2 * x, 2 * y + 1);
            const QRgb shown = coarse.pixel(x, y);
            const bool blurred = distance(upper, lower) > Seen && distance(upper, shown) > Same
                && distance(lower, shown) > Same
                && distance(upper, fine.pixel(2 * x + 1, 2 * y)) < Same
                && distance(lower, fine.pixel(2 * x + 1, 2 * y + 1)) < Same;
            const bool goesOn = run > 0 && distance(upper, fine.pixel(2 * x - 1, 2 * y)) < Same
                && distance(lower, fine.pixel(2 * x - 1, 2 * y + 1)) < Same;
            run = !blurred ? 0 : goesOn ? run + 1 : 1;
            longest = std::max(longest, run);
        }
    }
    return longest;
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void isWhole_data();
    void isWhole();
    void smallEdgesAreSharp_data();
    void smallEdgesAreSharp();
    void cardsStretch_data();
    void cardsStretch();
    void checkBoxStatesAreToldApart_data()
    {
        addRows<QString>("folder", {{"light", s_light}, {"dark", s_dark}});
    }
    void checkBoxStatesAreToldApart();
    void fileKindsAreToldApart_data()
    {
        addRows<QString>("prefix",
                         {{"32", s_light + QLatin1String("icon32/icon32_File_")},
                          {"64", s_light + QLatin1String("icon64_File_")},
                          {"140", s_light + QLatin1String("icon140_File_")}});
    }
    void fileKindsAreToldApart();
};

void TestPictures::isWhole_data()
{
    QTest::addColumn<QString>("base");
    const QStringList bases = PictureFiles::bases();
    QVERIFY(bases.size() > 100);
    for (const QString &base : bases)
        QTest::newRow(qPrintable(base)) << base;
}

void TestPictures::isWhole()
{
    QFETCH(QString, base);

    const QSize size = PictureFiles::size(base);
    QVERIFY2(size.isValid(), "picturefiles.h does not say how large it has to be");
    const int scales = PictureFiles::sheetOf(base) ? 1 : 2;
    for (int scale = 1; scale <= scales; ++scale) {
        const QImage image = load(base, scale);
        QCOMPARE(image.size(), size * scale);
        const Content content = contentOf(image);
        QVERIFY2(content.visible * 12 > image.width() * image.height(), "next to nothing in it");
        // only a veil is one colour all over
        QCOMPARE(content.oneColor, base.contains(QLatin1String("thumbmask_")));
    }
}

void TestPictures::smallEdgesAreSharp_data()
{
    QTest::addColumn<QString>("base");
    const QStringList bases = PictureFiles::bases();
    for (const QString &base : bases)
        if (!PictureFiles::sheetOf(base) && PictureFiles::size(base).width() <= LargestOnGrid)
            QTest::newRow(qPrintable(base)) << base;
}

// An edge between two pixels is blurred at 1x and sharp at 2x: all along it the two halves of the
// same pixel differ there.
void TestPictures::smallEdgesAreSharp()
{
    QFETCH(QString, base);

    const QImage coarse = load(base, 1);
    const QImage fine = load(base, 2);
    const QTransform turn = QTransform().rotate(90);
    QVERIFY2(longestBlurredRun(coarse, fine) < ShortestEdge, "a level edge");
    QVERIFY2(longestBlurredRun(coarse.transformed(turn), fine.transformed(turn)) < ShortestEdge,
             "an upright edge");
}

void TestPictures::cardsStretch_data()
{
    QTest::addColumn<QString>("base");
    for (const QString &folder : {s_light, s_dark})
        for (const char *state : {"normal", "hover", "press"}) {
            const QString base = folder + QLatin1String("icon_sdcardthum_") + QLatin1String(state);
            QTest::newRow(qPrintable(base)) << base;
        }
}

// A card is wider than its picture: what stands between the columns of four pixels is stretched
// and must be the same from side to side. What lies over the card lets it through.
void TestPictures::cardsStretch()
{
    QFETCH(QString, base);
    constexpr int Column = 4;

    for (int scale : {1, 2}) {
        const QImage image = load(base, scale);
        const int left = Column * scale;
        for (int y = 0; y < image.height(); ++y)
            for (int x = left; x < image.width() - left; ++x)
                QCOMPARE(image.pixel(x, y), image.pixel(left, y));
        const int middle = qAlpha(image.pixel(image.rect().center()));
        QVERIFY(middle > 0);
        QCOMPARE(middle < 128, !base.endsWith(QLatin1String("_normal")));
    }
}

void TestPictures::checkBoxStatesAreToldApart()
{
    QFETCH(QString, folder);

    QVector<QImage> states;
    for (const char *name : {"icon16_check_normal", "icon16_half_check", "icon16_uncheck_normal",
                             "icon16_uncheck_disable", "icon_check_hover"})
        states.append(load(folder + QLatin1String(name), 1));
    for (int i = 0; i < states.size(); ++i)
        for (int j = i + 1; j < states.size(); ++j)
            QVERIFY2(difference(states.at(i), states.at(j)) > 4,
                     qPrintable(QStringLiteral("states %1 and %2").arg(i).arg(j)));
}

void TestPictures::fileKindsAreToldApart()
{
    QFETCH(QString, prefix);

    QVector<QImage> kinds;
    for (const char *kind : s_fileKinds)
        kinds.append(load(prefix + QLatin1String(kind), 1));
    for (int i = 0; i < kinds.size(); ++i)
        for (int j = i + 1; j < kinds.size(); ++j)
            QVERIFY2(difference(kinds.at(i), kinds.at(j)) > 12,
                     qPrintable(QStringLiteral("%1 and %2 look alike (%3)")
                                    .arg(QLatin1String(s_fileKinds[i]))
                                    .arg(QLatin1String(s_fileKinds[j]))
                                    .arg(difference(kinds.at(i), kinds.at(j)))));
}

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
