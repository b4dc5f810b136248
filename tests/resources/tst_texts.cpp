#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

namespace {

const char *const s_folders[] = {"common",    "model",  "thumbnails", "popups",
                                 "delegates", "detail", "content",    "plugin"};

/// Keys that the code chooses from tables or puts together.
const char *const s_keysOfTables[] = {"iso_speed",
                                      "camera_brand",
                                      "model",
                                      "white_balance",
                                      "exposure_time",
                                      "focal_length",
                                      "software",
                                      "frame_rate",
                                      "bit_rate",
                                      "f_number",
                                      "filter_bar_widget_existing_files",
                                      "filter_bar_widget_delete_files",
                                      "name",
                                      "size",
                                      "type",
                                      "date_modified",
                                      "path",
                                      "recoverability_high",
                                      "recoverability_medium",
                                      "recoverability_assessing",
                                      "ai_tags_landscape",
                                      "ai_tags_beach",
                                      "ai_tags_cityscape",
                                      "ai_tags_hotel",
                                      "ai_tags_aerial",
                                      "ai_tags_children",
                                      "ai_tags_pet",
                                      "ai_tags_birthday",
                                      "ai_tags_dinner",
                                      "ai_tags_performance",
                                      "ai_tags_exhibition",
                                      "ai_tags_sports",
                                      "ai_tags_graduation",
                                      "ai_tags_wedding_dress",
                                      "ai_tags_bouquet",
                                      "ai_tags_food",
                                      "ai_tags_meeting_room",
                                      "ai_tags_presentation",
                                      "ai_tags_whiteboard",
                                      "ai_tags_product",
                                      "ai_tags_selfie",
                                      "ai_tags_group_photo",
                                      "ai_tags_id_photo",
                                      "ai_tags_paper_document",
                                      "ai_tags_identity_document",
                                      "ai_tags_chat_screenshot"};

/// Every key that the code asks for, with the file that does.
QMap<QString, QString> keysOfTheCode()
{
    static const QRegularExpression use(
        QStringLiteral("(?:\"QuarvoTRS\",\\s*|translatedKey\\(\\s*)\"([^\"]+)\""));
    QMap<QString, QString> keys;
    for (const char *folder : s_folders) {
        QDirIterator files(QLatin1String(SOURCE_FOLDER "/") + QLatin1String(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QString code = QString::fromUtf8(file.readAll());
            for (auto it = use.globalMatch(code); it.hasNext();)
                keys.insert(it.next().captured(1), file.fileName());
        }
    }
    return keys;
}

} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyKeyHasAText_data();
    void everyKeyHasAText();
    void hintHasItsLink();

private:
    QTranslator m_english;
};

void TestTexts::initTestCase()
{
    QVERIFY(m_english.load(QCoreApplication::applicationDirPath()
                           + QLatin1String("/translations/quarvo_en.qm")));
}

void TestTexts::everyKeyHasAText_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("file");

    QMap<QString, QString> keys = keysOfTheCode();
    QVERIFY(!keys.isEmpty());
    for (const char *key : s_keysOfTables)
        keys.insert(QLatin1String(key), QStringLiteral("from a table"));
    for (auto it = keys.begin(); it != keys.end(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
}

void TestTexts::everyKeyHasAText()
{
    QFETCH(QString, key);
    QFETCH(QString, file);

    const QString text = m_english.translate("QuarvoTRS", qPrintable(key));
    QVERIFY2(!text.trimmed().isEmpty(), qPrintable(file));
    QVERIFY2(text != key, qPrintable(file));
    QCOMPARE(text, text.trimmed());
}

// The first hint of a search that finds nothing opens a dialog through its link.
void TestTexts::hintHasItsLink()
{
    const QString text = m_english.translate("QuarvoTRS", "missing_original_filenames");
    QVERIFY(text.contains(QLatin1String("<a href=\"#\"")));
    QVERIFY(text.contains(QLatin1String("</a>")));
}

QTEST_MAIN(TestTexts)
#include "tst_texts.moc"
