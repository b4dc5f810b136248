#include "support/catalogue.h"
#include "support/datarow.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>

namespace {

constexpr int UpdateMs = 60000;

struct Translated
{
    const char *code, *language;
    int plurals;
    QVector<QChar::Script> scripts; // the one that every text must have comes first
};

const QVector<Translated> &translated()
{
    const QVector<QChar::Script> latin{QChar::Script_Latin};
    const QVector<QChar::Script> chinese{QChar::Script_Han};
    static const QVector<Translated> languages{
        {"ar", "ar_AE", 6, {QChar::Script_Arabic}},
        {"de", "de_DE", 2, latin},
        {"es", "es_ES", 2, latin},
        {"fr", "fr_FR", 2, latin},
        {"hi", "hi_IN", 2, {QChar::Script_Devanagari}},
        {"id", "id_ID", 1, latin},
        {"it", "it_IT", 2, latin},
        {"ja", "ja_JP", 1, {QChar::Script_Han, QChar::Script_Hiragana, QChar::Script_Katakana}},
        {"ko", "ko_KR", 1, {QChar::Script_Hangul}},
        {"nl", "nl_NL", 2, latin},
        {"pt", "pt_PT", 2, latin},
        {"ru", "ru_RU", 3, {QChar::Script_Cyrillic}},
        {"sv", "sv_SE", 2, latin},
        {"th", "th_TH", 1, {QChar::Script_Thai}},
        {"zh_CN", "zh_CN", 1, chinese},
        {"zh_TW", "zh_TW", 1, chinese},
    };
    return languages;
}

/// Words that are the same in English and in these languages.
const QMap<QString, QString> &sharedWords()
{
    static const QMap<QString, QString> words{
        {"Archive", "de fr"},
        {"Archives", "fr"},
        {"Audio", "de es fr id it nl"},
        {"Bouquet", "fr it"},
        {"Bytes", "de"},
        {"Database", "it nl"},
        {"Databases", "nl"},
        {"Date", "fr"},
        {"Document", "fr nl"},
        {"Documents", "fr"},
        {"E-mail", "fr it nl pt"},
        {"Email", "id it"},
        {"File", "id it"},
        {"Folder", "id"},
        {"%Ln file", "id it"},
        {"%Ln folder", "id"},
        {"Hotel", "de es id it nl pt"},
        {"Name", "de"},
        {"OK", "ja"},
        {"Photo", "fr"},
        {"Photos", "fr"},
        {"Presentation", "sv"},
        {"Product", "nl"},
        {"Selfie", "de fr it nl pt sv"},
        {"Software", "de es it nl pt"},
        {"Status", "de id nl sv"},
        {"Type", "fr nl"},
        {"Video", "de id it nl sv"},
        {"Videos", "de"},
        {"Volume %1", "de id nl"},
        {"Volume %1 (%2)", "de id nl"},
        {"Whiteboard", "de nl"},
    };
    return words;
}

bool isShared(const QString &text, const QString &code)
{
    return sharedWords().value(text).split(QLatin1Char(' ')).contains(code);
}

QStringList found(const QRegularExpression &pattern, const QString &text)
{
    QStringList pieces;
    for (auto it = pattern.globalMatch(text); it.hasNext();)
        pieces.append(it.next().captured());
    return pieces;
}

/// What the program fills in or takes apart, in an order that a translation may change.
QStringList machinery(const QString &text)
{
    static const QRegularExpression s_pieces(
        QStringLiteral("%L?[1-9]|<[^>]*>|^\\d\\. |&|\\n|\u2026$"));
    QStringList pieces = found(s_pieces, text);
    std::sort(pieces.begin(), pieces.end());
    return pieces;
}

QString words(QString text)
{
    static const QRegularExpression s_machinery(QStringLiteral("%L?[1-9n]|<[^>]*>|\\b[KMGT]B\\b"));
    return text.remove(s_machinery);
}

bool hasLetters(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

QString pathOf(const QString &stem, const char *code)
{
    return QLatin1String(SOURCE_FOLDER "/") + stem + QLatin1Char('_') + QLatin1String(code)
        + QLatin1String(".ts");
}

const char *const s_stems[] = {"resources/translations/quarvo",
                               "host/resources/translations/quarvo-host"};

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void languages_data();
    void languages();
    void characters_data();
    void characters();
    void plurals_data();
    void plurals();
    void wordsOfQt_data();
    void wordsOfQt();
    void keysOfTheCodeHaveTexts();
    void cataloguesKnowTheSources_data();
    void cataloguesKnowTheSources();

private:
    static QString fault(const CatalogueText &text, const CatalogueText &english,
                         const Translated &language);
};

void TestTranslations::languages_data()
{
    addColumns<QString, int>({"stem", "language"});

    for (const char *stem : s_stems) {
        for (int i = 0; i < translated().size(); ++i) {
            const QString name = QString::fromLatin1(stem).section(QLatin1Char('/'), -1);
            QTest::addRow("%s_%s", qPrintable(name), translated().at(i).code)
                << QString::fromLatin1(stem) << i;
        }
    }
}

/// Empty when \a text may be shown where English shows \a english.
QString TestTranslations::fault(const CatalogueText &text, const CatalogueText &english,
                                const Translated &language)
{
    const int plurals = english.forms.size() > 1 ? language.plurals : 1;
    if (!text.isFinished || text.forms.size() != plurals)
        return QStringLiteral("unfinished");
    const QString &original = english.forms.constLast();
    const QString code = QLatin1String(language.code);
    for (const QString &form : text.forms) {
        if (form.isEmpty() || (form != form.trimmed() && original == original.trimmed()))
            return QStringLiteral("empty, or blanks around it");
        if (machinery(form) != machinery(original))
            return QStringLiteral("not the same places, tags, numbers or dots: ") + form;
        if (english.forms.contains(form) && hasLetters(words(form)) && !isShared(form, code))
            return QStringLiteral("still English: ") + form;
    }
    // singular forms may say it in words
    if (english.forms.size() > 1 && !text.forms.constLast().contains(QLatin1String("%Ln")))
        return QStringLiteral("no place for the number");
    return {};
}

void TestTranslations::languages()
{
    QFETCH(QString, stem);
    QFETCH(int, language);
    const Translated &wanted = translated().at(language);

    const Catalogue english = Catalogue::read(pathOf(stem, "en"));
    const Catalogue catalogue = Catalogue::read(pathOf(stem, wanted.code));
    QVERIFY2(english.error.isEmpty() && catalogue.error.isEmpty(), qPrintable(catalogue.error));
    QVERIFY(!english.texts.isEmpty());
    QCOMPARE(catalogue.language, QString::fromLatin1(wanted.language));

    QStringList faults;
    for (auto it = english.texts.begin(); it != english.texts.end(); ++it) {
        const auto text = catalogue.texts.find(it.key());
        const QString said = text == catalogue.texts.end() ? QStringLiteral("missing")
                                                           : fault(*text, *it, wanted);
        if (!said.isEmpty())
            faults.append(it.key() + QLatin1String(" - ") + said);
    }
    for (auto it = catalogue.texts.begin(); it != catalogue.texts.end(); ++it) {
        if (!english.texts.contains(it.key()))
            faults.append(it.key() + QLatin1String(" - not in English"));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));

    // and the program can load what the build made of it
    if (stem == QLatin1String(s_stems[1]) && !HOST_IS_BUILT)
        return;
    QTranslator translator;
    const QString compiled = QCoreApplication::applicationDirPath()
        + QLatin1String("/translations/") + stem.section(QLatin1Char('/'), -1) + QLatin1Char('_')
        + QLatin1String(wanted.code);
    QVERIFY2(translator.load(compiled), qPrintable(compiled));
}

void TestTranslations::characters_data()
{
    languages_data();
}

void TestTranslations::characters()
{
    QFETCH(QString, stem);
    QFETCH(int, language);
    const Translated &wanted = translated().at(language);
    // of words that every program needs, in the other way of writing
    const QString code = QLatin1String(wanted.code);
    const QString foreign = code == QLatin1String("zh_CN")
        ? QStringLiteral("檔資夾還顯關閉開選擇類戶壓縮錄軟體視頻覽無為與這個張")
        : code == QLatin1String("zh_TW")
        ? QStringLiteral("档资夹还显关闭开选择类户压缩录软体视频览无为与这个张")
              .remove(QStringLiteral("\u4f53"))
        : QString();

    const Catalogue catalogue = Catalogue::read(pathOf(stem, wanted.code));
    QStringList faults;
    for (auto it = catalogue.texts.begin(); it != catalogue.texts.end(); ++it) {
        for (const QString &form : it->forms) {
            const QString text = words(form);
            bool hasOwn = !hasLetters(text) || isShared(form, code);
            bool isClean = true;
            for (const QChar c : text) {
                hasOwn = hasOwn || wanted.scripts.contains(c.script());
                isClean = isClean && !foreign.contains(c)
                    && (c.script() <= QChar::Script_Common || c.script() == QChar::Script_Latin
                        || wanted.scripts.contains(c.script()));
            }
            if (!hasOwn || !isClean)
                faults.append(it.key() + QLatin1String(": ") + form);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestTranslations::plurals_data()
{
    addColumns<QString, int, QString>({"code", "number", "text"});

    const auto row = [](const char *code, int number, const char *text) {
        QTest::addRow("%s %d", code, number)
            << QString::fromLatin1(code) << number << QString::fromUtf8(text);
    };
    row("en", 1, "%Ln file");
    row("en", 0, "%Ln files");
    row("fr", 0, "%Ln fichier");
    row("fr", 2, "%Ln fichiers");
    row("ru", 1, "%Ln файл");
    row("ru", 3, "%Ln файла");
    row("ru", 11, "%Ln файлов");
    row("ru", 21, "%Ln файл");
    row("ru", 100, "%Ln файлов");
    row("ar", 0, "لا ملفات");
    row("ar", 1, "ملف واحد");
    row("ar", 2, "ملفان");
    row("ar", 7, "%Ln ملفات");
    row("ar", 76, "%Ln ملفًا");
    row("ar", 100, "%Ln ملف");
    row("ja", 1, "%Ln 個のファイル");
}

// Forms in a wrong order read well in Linguist and badly on the screen.
void TestTranslations::plurals()
{
    QFETCH(QString, code);
    QFETCH(int, number);
    QFETCH(QString, text);

    if (!HOST_IS_BUILT)
        QSKIP("the host is not part of this build");
    QTranslator translator;
    QVERIFY(
        translator.load(QStringLiteral("quarvo-host_") + code,
                        QCoreApplication::applicationDirPath() + QLatin1String("/translations")));
    QCOMPARE(translator.translate("Texts", "%Ln file(s)", nullptr, number), text);
}

void TestTranslations::wordsOfQt_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"hi", "id", "pt", "sv", "th"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

// The languages that Qt itself comes without.
void TestTranslations::wordsOfQt()
{
    QFETCH(QString, code);

    const Catalogue catalogue = Catalogue::read(
        pathOf(QStringLiteral("host/resources/translations/qtbase"), code.toLatin1().constData()));
    QVERIFY2(catalogue.error.isEmpty(), qPrintable(catalogue.error));
    for (auto it = catalogue.texts.begin(); it != catalogue.texts.end(); ++it) {
        const QString source = it.key().section(QLatin1Char('/'), 1);
        QCOMPARE(machinery(it->forms.value(0)), machinery(source));
    }
    if (!HOST_IS_BUILT)
        QSKIP("the host is not part of this build");
    QTranslator translator;
    QVERIFY(
        translator.load(QStringLiteral("qtbase_") + code,
                        QCoreApplication::applicationDirPath() + QLatin1String("/translations")));
    QVERIFY(!translator.translate("QLineEdit", "&Paste").isEmpty());
}

// Most keys travel in variables and tables, where lupdate does not see them.
void TestTranslations::keysOfTheCodeHaveTexts()
{
    static const QRegularExpression use(
        QStringLiteral("(?|(?:\"QuarvoTRS\",\\s*|translatedKey\\(\\s*)\"([^\"]+)\""
                       "|\\{\"\\w+\", \"([a-z_]+)\"\\}"
                       "|\"((?:recoverability|filter_bar_widget)_\\w+)\")"));
    const auto texts = Catalogue::read(pathOf(QLatin1String(s_stems[0]), "en")).texts;
    QSet<QString> keys;
    for (const char *folder :
         {"common", "model", "thumbnails", "popups", "delegates", "detail", "content", "plugin"}) {
        QDirIterator files(QLatin1String(SOURCE_FOLDER "/") + QLatin1String(folder),
                           {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString code = QString::fromUtf8(file.readAll());
            for (auto it = use.globalMatch(code); it.hasNext();) {
                const QString key = it.next().captured(1);
                keys.insert(key);
                QVERIFY2(texts.contains(QLatin1String("QuarvoTRS/") + key),
                         qPrintable(file.fileName() + QLatin1String(": ") + key));
            }
        }
    }
    for (const char *key : {"ai_tags_beach", "iso_speed", "recoverability_assessing"})
        QVERIFY2(keys.contains(QLatin1String(key)), "the tables are written in another way now");
    // the link by which the first hint opens a dialog
    const CatalogueText hint = texts[QStringLiteral("QuarvoTRS/missing_original_filenames")];
    QVERIFY(hint.forms.value(0).contains(QLatin1String("<a href=\"#\"")));
}

void TestTranslations::cataloguesKnowTheSources_data()
{
    addColumns<QString, QString>({"stem", "arguments"});
    QTest::newRow("plug-in") << QString::fromLatin1(s_stems[0]) << PLUGIN_ARGUMENTS;
    QTest::newRow("host") << QString::fromLatin1(s_stems[1]) << HOST_ARGUMENTS;
}

// A text that has been added or reworded in the sources is not in English any more.
void TestTranslations::cataloguesKnowTheSources()
{
    QFETCH(QString, stem);
    QFETCH(QString, arguments);

    const QString original = pathOf(stem, "en");
    QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("updated_en.ts"));
    QVERIFY(QFile::copy(original, copy));
    QProcess update;
    update.setWorkingDirectory(QLatin1String(SOURCE_FOLDER));
    if (QSysInfo::productType() == QLatin1String("windows")
        && !QStringLiteral(LUPDATE).endsWith(QLatin1String(".exe")))
        QSKIP("built for another system than the one that has lupdate");
    update.start(QStringLiteral(LUPDATE),
                 arguments.split(QLatin1Char(' ')) << QStringLiteral("-ts") << copy);
    QVERIFY2(update.waitForFinished(UpdateMs), qPrintable(update.errorString()));
    QCOMPARE(update.exitCode(), 0);

    const Catalogue before = Catalogue::read(original);
    const Catalogue after = Catalogue::read(copy);
    QVERIFY2(after.error.isEmpty(), qPrintable(after.error));
    const QSet<QString> old = QSet<QString>(before.texts.keyBegin(), before.texts.keyEnd());
    const QSet<QString> current = QSet<QString>(after.texts.keyBegin(), after.texts.keyEnd());
    const QStringList missing = (current - old).values();
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    const QStringList leftOver = (old - current).values();
    QVERIFY2(leftOver.isEmpty(), qPrintable(leftOver.join(QLatin1Char('\n'))));
    for (auto it = after.texts.begin(); it != after.texts.end(); ++it)
        QVERIFY2(it->isFinished && !it->forms.contains(QString()), qPrintable(it.key()));
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
