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

/// Every key that the code asks for, outright or from a table, with the file that does.
QMap<QString, QString> keysOfTheCode()
{
    static const QRegularExpression use(
        QStringLiteral("(?|(?:\"QuarvoTRS\",\\s*|translatedKey\\(\\s*)\"([^\"]+)\""
                       "|\\{\"\\w+\", \"([a-z_]+)\"\\}"
                       "|\"((?:recoverability|filter_bar_widget)_\\w+)\")"));
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

    const QMap<QString, QString> keys = keysOfTheCode();
    QVERIFY(!keys.isEmpty());
    for (const char *key : {"ai_tags_beach", "iso_speed", "recoverability_assessing"})
        QVERIFY2(keys.contains(QLatin1String(key)), "the tables are written in another way now");
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
