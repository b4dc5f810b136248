#include <QFile>
#include <QImage>
#include <QTest>

#include <cmath>

namespace {

const QString s_light = QStringLiteral(":/Images/");
const QString s_dark = QStringLiteral(":/Images/Dark/");

const char *const s_fileKinds[] = {"Default", "Audio",    "Video",      "CameraVideo", "Document",
                                   "Word",    "Excel",    "PowerPoint", "PDF",         "Text",
                                   "Email",   "Database", "Photo",      "Raw",         "Web",
                                   "Archive", "Folder"};

/// As the picture of the how-to-find dialog is called in each.
const char *const s_languages[] = {"AR", "DE", "EN", "ES", "FR",  "ID", "IND", "IT",
                                   "JP", "KO", "NL", "PT", "RUS", "SE", "TCH", "THA"};

QImage loaded(const QString &base, int scale)
{
    const QString path = base + (scale == 2 ? QStringLiteral("@2x.png") : QStringLiteral(".png"));
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

int visiblePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 8;
    return count;
}

/// Mean difference of two pictures of one size on white, 0 to 255.
double difference(const QImage &left, const QImage &right)
{
    double sum = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const auto onWhite = [](QRgb pixel, int channel) {
                return 255 + (channel - 255) * qAlpha(pixel) / 255;
            };
            const QRgb a = left.pixel(x, y);
            const QRgb b = right.pixel(x, y);
            sum += std::abs(onWhite(a, qRed(a)) - onWhite(b, qRed(b)))
                + std::abs(onWhite(a, qGreen(a)) - onWhite(b, qGreen(b)))
                + std::abs(onWhite(a, qBlue(a)) - onWhite(b, qBlue(b)));
        }
    }
    return sum / (3.0 * left.width() * left.height());
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private slots:
    void exists_data();
    void exists();
    void themesDiffer_data();
    void themesDiffer();
    void cardsStretch_data();
    void cardsStretch();
    void veilsLetTheCardThrough_data();
    void veilsLetTheCardThrough();
    void checkBoxStatesAreToldApart_data();
    void checkBoxStatesAreToldApart();
    void fileKindsAreToldApart_data();
    void fileKindsAreToldApart();
};

void TestPictures::exists_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QSize>("size");

    const auto add = [](const QString &base, int width, int height) {
        QTest::newRow(qPrintable(base)) << base << QSize(width, height);
    };
    for (const QString &folder : {s_light, s_dark}) {
        for (const char *state : {"normal", "hover", "press"})
            add(folder + QLatin1String("icon_sdcardthum_") + QLatin1String(state), 150, 124);
        add(folder + QLatin1String("thumbmask_preview"), 146, 82);
        add(folder + QLatin1String("icon40_preview_normal"), 40, 40);
        add(folder + QLatin1String("icon40_play_normal"), 40, 40);
        for (const char *name :
             {"icon16_check_normal", "icon16_half_check", "icon16_uncheck_normal",
              "icon16_uncheck_disable", "icon_check_hover", "icon_sort_default", "icon_sort_ascend",
              "icon_sort_descend"})
            add(folder + QLatin1String(name), 16, 16);
    }
    for (const char *name :
         {"icon20_previewMenu_normal", "icon20_previewMenu_hover", "icon20_recoverMenu_normal",
          "icon20_recoverMenu_hover", "Dark/icon20_preview2_normal", "Dark/icon20_preview2_hover",
          "Dark/icon20_recoverMenu_normal", "Dark/icon20_recoverMenu_hover", "icon20_repair"})
        add(s_light + QLatin1String(name), 20, 20);
    add(s_light + QLatin1String("icon16_recycleBin"), 16, 16);
    add(s_light + QLatin1String("icon_recoverability_assessing"), 6, 6);
    add(s_light + QLatin1String("icon32/icon32_play_normal"), 32, 32);
    for (const char *state : {"normal", "hover", "pressed"})
        add(s_light + QLatin1String("icon24_location-") + QLatin1String(state), 24, 24);
    for (const char *name :
         {"image200_No_scan_white", "image200_Loading_white", "image200_NoFilter_white"})
        add(s_light + QLatin1String(name), 200, 200);
    // asked for without the slash that every other picture has
    add(QStringLiteral(":Images/image200_No scan_white"), 200, 200);
    add(QStringLiteral(":Images/image142_Search"), 142, 142);
    for (const QString &folder : {QStringLiteral(":Images/"), QStringLiteral(":Images/Dark/")})
        for (const char *language : s_languages)
            add(folder + QLatin1String("unsourcefiles/image_SDCardUnsourcedFiles_Win-")
                    + QLatin1String(language),
                744, 288);
    for (const char *kind : s_fileKinds) {
        add(s_light + QLatin1String("icon32/icon32_File_") + QLatin1String(kind), 32, 32);
        add(s_light + QLatin1String("icon64_File_") + QLatin1String(kind), 64, 64);
        add(s_light + QLatin1String("icon140_File_") + QLatin1String(kind), 140, 140);
    }
    add(s_light + QLatin1String("icon168_File_Folder"), 168, 168);
    add(QStringLiteral(":/Resources/icon80_folder"), 80, 80);
    add(QStringLiteral(":/Resources/icon80_local disk-normal"), 80, 80);
}

void TestPictures::exists()
{
    QFETCH(QString, base);
    QFETCH(QSize, size);

    for (int scale : {1, 2}) {
        const QImage image = loaded(base, scale);
        QCOMPARE(image.size(), size * scale);
        const int visible = visiblePixels(image);
        QVERIFY2(visible * 12 > image.width() * image.height(),
                 qPrintable(QStringLiteral("%1 visible pixels at %2x").arg(visible).arg(scale)));
    }
}

void TestPictures::themesDiffer_data()
{
    QTest::addColumn<QString>("lightName");
    QTest::addColumn<QString>("darkName");

    for (const char *name :
         {"icon_sdcardthum_normal", "icon16_uncheck_normal", "icon16_uncheck_disable",
          "icon_sort_default", "icon20_recoverMenu_normal"})
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(name);
    QTest::newRow("preview entry")
        << QStringLiteral("icon20_previewMenu_normal") << QStringLiteral("icon20_preview2_normal");
}

void TestPictures::themesDiffer()
{
    QFETCH(QString, lightName);
    QFETCH(QString, darkName);

    QVERIFY(loaded(s_light + lightName, 1) != loaded(s_dark + darkName, 1));
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
// and must be the same from side to side.
void TestPictures::cardsStretch()
{
    QFETCH(QString, base);
    constexpr int Column = 4;

    for (int scale : {1, 2}) {
        const QImage image = loaded(base, scale);
        const int left = Column * scale;
        for (int y = 0; y < image.height(); ++y)
            for (int x = left; x < image.width() - left; ++x)
                QCOMPARE(image.pixel(x, y), image.pixel(left, y));
    }
}

void TestPictures::veilsLetTheCardThrough_data()
{
    QTest::addColumn<QString>("base");
    for (const QString &folder : {s_light, s_dark})
        for (const char *state : {"hover", "press"}) {
            const QString base = folder + QLatin1String("icon_sdcardthum_") + QLatin1String(state);
            QTest::newRow(qPrintable(base)) << base;
        }
}

void TestPictures::veilsLetTheCardThrough()
{
    QFETCH(QString, base);

    const QImage veil = loaded(base, 1);
    const int middle = qAlpha(veil.pixel(veil.rect().center()));
    QVERIFY(middle > 0);
    QVERIFY(middle < 128);
}

void TestPictures::checkBoxStatesAreToldApart_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("light") << s_light;
    QTest::newRow("dark") << s_dark;
}

void TestPictures::checkBoxStatesAreToldApart()
{
    QFETCH(QString, folder);

    QVector<QImage> states;
    for (const char *name : {"icon16_check_normal", "icon16_half_check", "icon16_uncheck_normal",
                             "icon16_uncheck_disable", "icon_check_hover"})
        states.append(loaded(folder + QLatin1String(name), 1));
    for (int i = 0; i < states.size(); ++i)
        for (int j = i + 1; j < states.size(); ++j)
            QVERIFY2(difference(states.at(i), states.at(j)) > 4,
                     qPrintable(QStringLiteral("states %1 and %2").arg(i).arg(j)));
}

void TestPictures::fileKindsAreToldApart_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::newRow("32") << s_light + QLatin1String("icon32/icon32_File_");
    QTest::newRow("64") << s_light + QLatin1String("icon64_File_");
    QTest::newRow("140") << s_light + QLatin1String("icon140_File_");
}

void TestPictures::fileKindsAreToldApart()
{
    QFETCH(QString, prefix);

    QVector<QImage> kinds;
    for (const char *kind : s_fileKinds)
        kinds.append(loaded(prefix + QLatin1String(kind), 1));
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
