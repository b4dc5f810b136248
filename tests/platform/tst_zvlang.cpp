#include "langbuffer.h"
#include "support/datarow.h"
#include "zvlang.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cstring>
#include <thread>
#include <vector>

namespace {

using LangFunction = int (*)(const char *, char *, char *);

struct Outcome
{
    int result = -1;
    QString answer;
    QString error;
};

Outcome call(LangFunction function, const QByteArray &request)
{
    QByteArray answer(LangAnswerSize, 'x');
    QByteArray error(LangErrorSize, 'x');
    Outcome outcome;
    outcome.result = function(request.isNull() ? nullptr : request.constData(), answer.data(),
                              error.data());
    outcome.answer = QString::fromUtf8(answer.constData());
    outcome.error = QString::fromUtf8(error.constData());
    return outcome;
}

QByteArray withLang(const char *lang, const QByteArray &fields)
{
    return QByteArray("{\"lang\":\"") + lang + "\"," + fields + '}';
}

const char CompleteInit[] = "{\"os\":\"windows\",\"wsid\":\"\",\"did\":\"\",\"pname\":\"quarvo\","
                            "\"pver\":\"1\",\"pid\":\"2\",\"plang\":\"%1\"}";

QByteArray initRequest(const char *lang)
{
    return QByteArray(CompleteInit).replace("%1", lang);
}

} // namespace

Q_DECLARE_METATYPE(LangFunction)

class TestZVLang : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void texts_data();
    void texts();
    void refusals_data();
    void refusals();
    void unknownLanguageIsEnglish_data()
    {
        addRows<QByteArray>("lang",
                            {{"nobody's", QByteArray("qq_QQ")},
                             {"none", QByteArray("")},
                             {"none, as Qt names it", QByteArray("C")},
                             {"not a code", QByteArray("../../etc/passwd")}});
    }
    void unknownLanguageIsEnglish();
    void longTextsAreCutBetweenCharacters_data();
    void longTextsAreCutBetweenCharacters();
    void nullBuffersAreLeftAlone();
    void logs();
    void unwritableLogFailsNothing();
    void initRefusesIncompleteRequests();
    void answersFromManyThreads();
};

void TestZVLang::initTestCase()
{
    qputenv("TZ", "UTC");
}

void TestZVLang::texts_data()
{
    addColumns<LangFunction, QByteArray, QString>({"function", "request", "text"});

    const auto storage = [](const char *name, const char *lang, const char *bytes,
                            const char *precision, const char *text) {
        addRow(name, LangFunction(Lang_GetStorageStr),
               withLang(lang, QByteArray("\"bytes\":") + bytes + ",\"precision\":" + precision),
               QString::fromUtf8(text));
    };
    storage("nothing", "en_US", "0", "2", "0 bytes");
    storage("one byte", "en_US", "1", "2", "1 byte");
    storage("last of the bytes", "en_US", "1023", "2", "1,023 bytes");
    storage("first kilobyte", "en_US", "1024", "2", "1.00 KB");
    storage("precision 0", "en_US", "1536", "0", "2 KB");
    storage("never 1024.00 KB", "en_US", "1048575", "2", "1.00 MB");
    storage("1023.99 KB is none", "en_US", "1048565", "2", "1,023.99 KB");
    storage("exact megabyte", "en_US", "1048576", "2", "1.00 MB");
    storage("terabyte", "en_US", "1099511627776", "1", "1.0 TB");
    storage("largest", "en_US", "9223372036854775807", "2", "8.00 EB");
    storage("smallest", "en_US", "-9223372036854775808", "2", "-8.00 EB");
    storage("negative", "en_US", "-1536", "1", "-1.5 KB");
    storage("German", "de_DE", "1536", "2", "1,50 KB");
    storage("French", "fr_FR", "1536", "2", "1,50 Ko");
    storage("Russian", "ru_RU", "5", "2", "5 Б");
    storage("Chinese", "zh_CN", "1536", "2", "1.50 KB");
    storage("Arabic kilobytes", "ar_AE", "1536", "2", "١٫٥٠ كيلوبايت");
    storage("Arabic megabytes", "ar_AE", "1048576", "0", "١ ميغابايت");
    storage("Arabic exabytes", "ar_AE", "9223372036854775807", "0", "٨ إكسابايت");
    storage("one German byte", "de_DE", "1", "2", "1 Byte");
    storage("Thai bytes", "th_TH", "12", "2", "12 ไบต์");
    storage("Portuguese thousands", "pt_PT", "1048565", "2", "1\u00a0023,99 KB");

    const auto row = [](const char *name, LangFunction function, const QByteArray &request,
                        const char *text) {
        addRow(name, function, request, QString::fromUtf8(text));
    };
    const QByteArray march = "\"timestamp\":1709305440"; // 2024-03-01 15:04:00
    row("date", Lang_GetDateStr, withLang("en_US", march), "3/1/2024");
    row("German date", Lang_GetDateStr, withLang("de_DE", march), "01.03.2024");
    row("Swedish date", Lang_GetDateStr, withLang("sv_SE", march), "2024-03-01");
    row("Korean date", Lang_GetDateStr, withLang("ko_KR", march), "2024. 3. 1.");
    row("Chinese date", Lang_GetDateStr, withLang("zh_CN", march), "2024/3/1");
    row("Thai date", Lang_GetDateStr, withLang("th_TH", march), "1/3/2024");
    row("Hindi date", Lang_GetDateStr, withLang("hi_IN", march), "1/3/2024");
    row("Portuguese date", Lang_GetDateStr, withLang("pt_PT", march), "01/03/2024");
    row("Dutch date", Lang_GetDateStr, withLang("nl_NL", march), "01-03-2024");
    row("Indonesian time", Lang_GetDateTimeStr, withLang("id_ID", march), "01/03/2024 15.04");
    row("Taiwanese time", Lang_GetDateTimeStr, withLang("zh_TW", march), "2024/3/1 下午3:04");
    row("date and time", Lang_GetDateTimeStr, withLang("en_US", march), "3/1/2024 3:04 PM");
    row("German date and time", Lang_GetDateTimeStr, withLang("de_DE", march), "01.03.2024 15:04");
    row("before the epoch", Lang_GetDateStr, withLang("en_US", "\"timestamp\":-1"), "12/31/1969");
    row("last year", Lang_GetDateStr, withLang("de_DE", "\"timestamp\":253402300799"),
        "31.12.9999");
    row("first year", Lang_GetDateStr, withLang("sv_SE", "\"timestamp\":-62135596800"),
        "0001-01-01");
    row("whole number as a fraction", Lang_GetDateStr, withLang("de_DE", "\"timestamp\":1e9"),
        "09.09.2001");

    row("number", Lang_GetNumberStr, withLang("en_US", "\"number\":1234567.5"), "1,234,567.5");
    row("whole number", Lang_GetNumberStr, withLang("de_DE", "\"number\":-1234567"), "-1.234.567");
    row("no false digits", Lang_GetNumberStr, withLang("en_US", "\"number\":0.30000000000000004"),
        "0.3");
    row("money", Lang_GetMoneyStr, withLang("en_US", "\"money\":1234.5"), "$1,234.50");
    row("money without decimals", Lang_GetMoneyStr, withLang("ja_JP", "\"money\":1234"), "￥1,234");
}

void TestZVLang::texts()
{
    QFETCH(LangFunction, function);
    QFETCH(QByteArray, request);
    QFETCH(QString, text);

    const Outcome outcome = call(function, request);
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.answer, text);
    QVERIFY(outcome.result != 0);
}

void TestZVLang::refusals_data()
{
    addColumns<LangFunction, QByteArray, QString>({"function", "request", "says"});

    const auto row = [](const char *name, LangFunction function, const QByteArray &request,
                        const char *says) { QTest::newRow(name) << function << request << says; };
    row("null", Lang_GetDateStr, QByteArray(), "null");
    row("empty", Lang_GetDateStr, QByteArray(""), "not JSON");
    row("cut off", Lang_GetDateStr, "{\"lang\":\"en_US\"", "not JSON");
    row("list", Lang_GetDateStr, "[]", "not a JSON object");
    row("bad UTF-8", Lang_GetDateStr, "{\"lang\":\"\xff\xfe\"}", "not JSON");
    row("no lang", Lang_GetDateStr, "{\"timestamp\":1}", "no field \"lang\"");
    row("lang is a number", Lang_GetNumberStr, "{\"lang\":1,\"number\":1}",
        "\"lang\" is not a text");
    row("no timestamp", Lang_GetDateTimeStr, "{\"lang\":\"en_US\"}", "no field \"timestamp\"");
    row("timestamp is a text", Lang_GetDateStr, withLang("en_US", "\"timestamp\":\"1\""),
        "\"timestamp\" is not a number");
    row("half a second", Lang_GetDateStr, withLang("en_US", "\"timestamp\":1.5"),
        "not a whole number");
    row("milliseconds", Lang_GetDateStr, withLang("en_US", "\"timestamp\":1700000000000"),
        "outside");
    row("beyond 64 bits", Lang_GetDateStr, withLang("en_US", "\"timestamp\":1e300"), "too large");
    row("year 0", Lang_GetDateStr, withLang("en_US", "\"timestamp\":-62135596801"), "outside");
    row("null number", Lang_GetNumberStr, withLang("en_US", "\"number\":null"),
        "\"number\" is not a number");
    row("no precision", Lang_GetStorageStr, withLang("en_US", "\"bytes\":1"),
        "no field \"precision\"");
    row("negative precision", Lang_GetStorageStr, withLang("en_US", "\"bytes\":1,\"precision\":-1"),
        "\"precision\" is -1");
    row("huge precision", Lang_GetStorageStr, withLang("en_US", "\"bytes\":1,\"precision\":100"),
        "\"precision\" is 100");
}

void TestZVLang::refusals()
{
    QFETCH(LangFunction, function);
    QFETCH(QByteArray, request);
    QFETCH(QString, says);

    const Outcome outcome = call(function, request);
    QCOMPARE(outcome.result, 0);
    QCOMPARE(outcome.answer, QString());
    QVERIFY2(outcome.error.contains(says), qPrintable(outcome.error));
}

void TestZVLang::unknownLanguageIsEnglish()
{
    QFETCH(QByteArray, lang);

    const QLocale german(QLocale::German);
    QLocale::setDefault(german); // the program's own language is not the user's
    const Outcome outcome = call(Lang_GetNumberStr,
                                 withLang(lang.constData(), "\"number\":1234.5"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(outcome.answer, QStringLiteral("1,234.5"));
    QCOMPARE(outcome.result, 1);
}

void TestZVLang::longTextsAreCutBetweenCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept"); // of it in eight bytes

    addRow("fits", "1234567", "1234567");
    addRow("one too long", "12345678", "1234567");
    addRow("two bytes across the end", "123456é", "123456");
    addRow("two bytes before the end", "12345é", "12345é");
    addRow("three bytes across the end", "12345日", "12345");
    addRow("four bytes across the end", "1234😀", "1234");
    addRow("four bytes before the end", "123😀9", "123😀");
    addRow("nothing fits", "", "");
}

void TestZVLang::longTextsAreCutBetweenCharacters()
{
    QFETCH(QString, text);
    QFETCH(QString, kept);

    char buffer[9];
    std::memset(buffer, '#', sizeof(buffer));
    copyText(text, buffer, 8);
    QCOMPARE(QString::fromUtf8(buffer), kept);
    QCOMPARE(buffer[8], '#');
}

void TestZVLang::nullBuffersAreLeftAlone()
{
    QCOMPARE(Lang_GetNumberStr("{", nullptr, nullptr), 0);
    QVERIFY(Lang_GetNumberStr("{\"lang\":\"en\",\"number\":1}", nullptr, nullptr) != 0);
    QCOMPARE(Lang_Init(1, nullptr, nullptr, nullptr, nullptr), 0);
    QVERIFY(Lang_Init(1, initRequest("de-de").constData(), nullptr, nullptr, nullptr) != 0);
    QVERIFY(Lang_Exit(nullptr) != 0);
}

void TestZVLang::logs()
{
    char error[LangErrorSize];
    QCOMPARE(Lang_Exit(error), 0);
    QVERIFY(QByteArray(error).contains("not initialised"));

    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("new/Ordner ü/zvlang.log"));
    const auto init = [&] {
        return Lang_Init(1, initRequest("qq-qq").constData(), "quarvo", path.toUtf8().constData(),
                         error);
    };
    QCOMPARE(init(), 1);
    call(Lang_GetNumberStr, "{}");
    call(Lang_GetNumberStr, "{}"); // said already
    QCOMPARE(Lang_Exit(error), 1);
    call(Lang_GetNumberStr, "[]"); // after the end
    QCOMPARE(init(), 1);
    QCOMPARE(Lang_Exit(error), 1);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QCOMPARE(text.count(QLatin1String("started")), 2); // appended, not begun anew
    QCOMPARE(text.count(QLatin1String("stopped")), 2);
    QCOMPARE(text.count(QLatin1String("no field \"lang\"")), 1);
    QVERIFY(text.contains(QLatin1String("unknown language \"qq-qq\"")));
    QVERIFY(!text.contains(QLatin1String("not a JSON object")));
}

void TestZVLang::unwritableLogFailsNothing()
{
    const QTemporaryDir dir;
    QFile obstacle(dir.filePath(QStringLiteral("log")));
    QVERIFY(obstacle.open(QIODevice::WriteOnly)); // a file where the folder should be
    const QByteArray path = dir.filePath(QStringLiteral("log/zvlang.log")).toUtf8();
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("cannot be written to .*zvlang.log")));
    char error[LangErrorSize];
    QCOMPARE(Lang_Init(1, initRequest("en-us").constData(), "quarvo", path.constData(), error), 1);
    QCOMPARE(call(Lang_GetNumberStr, "{}").result, 0);
    QCOMPARE(Lang_Exit(error), 1);
}

void TestZVLang::initRefusesIncompleteRequests()
{
    char error[LangErrorSize];
    for (const char *field : {"os", "wsid", "did", "pname", "pver", "pid", "plang"}) {
        const QByteArray request = initRequest("en-us").replace(field, "other");
        QCOMPARE(Lang_Init(1, request.constData(), "quarvo", "", error), 0);
        QVERIFY2(QByteArray(error).contains(field), error);
    }
}

void TestZVLang::answersFromManyThreads()
{
    const QTemporaryDir dir;
    const QByteArray path = dir.filePath(QStringLiteral("zvlang.log")).toUtf8();
    char error[LangErrorSize];
    QCOMPARE(Lang_Init(1, initRequest("en-us").constData(), "quarvo", path.constData(), error), 1);

    std::atomic<int> wrong(0);
    const auto ask = [&wrong] {
        for (int number = 0; number < 500; ++number) {
            // a refusal goes to the log, which all threads share
            if (call(Lang_GetDateStr, "{\"n\":" + QByteArray::number(number) + '}').result != 0)
                ++wrong;
            const QByteArray bytes = QByteArray::number(number * 1024);
            const Outcome outcome = call(
                Lang_GetStorageStr, withLang("en_US", "\"bytes\":" + bytes + ",\"precision\":0"));
            const QString unit = number == 0 ? QStringLiteral(" bytes") : QStringLiteral(" KB");
            if (outcome.answer != QString::number(number) + unit)
                ++wrong;
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(ask);
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(Lang_Exit(error), 1);
}

QTEST_GUILESS_MAIN(TestZVLang)
#include "tst_zvlang.moc"
