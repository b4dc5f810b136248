#include "common/zvlangmanager.h"
#include "support/datarow.h"
#include "zvlang.h"

#include <QCoreApplication>
#include <QDate>
#include <QTest>

#include <algorithm>
#include <cstring>
#include <functional>
#include <limits>

using Call = std::function<QString(ZVLangManager *)>;
Q_DECLARE_METATYPE(Call)

namespace {

/// What reached the library, and how it is to answer.
struct Library
{
    QByteArray function;
    QByteArray request;
    QByteArray product;
    QByteArray logPath;
    QByteArray answer = "answer";
    QByteArray error;
    int level = 0;
    bool buffersWereZero = false;
} s_library;

bool isZero(const char *buffer, int size)
{
    return std::all_of(buffer, buffer + size, [](char byte) { return byte == 0; });
}

int reply(const char *function, const char *request, char *answer, char *error)
{
    s_library.function = function;
    s_library.request = request;
    s_library.buffersWereZero = isZero(error, LangErrorSize)
        && (!answer || isZero(answer, LangAnswerSize));
    if (answer)
        std::strcpy(answer, s_library.answer.constData());
    std::strcpy(error, s_library.error.constData());
    return s_library.error.isEmpty() ? 1 : 0;
}

} // namespace

int Lang_Init(int level, const char *request, const char *product, const char *logPath, char *error)
{
    s_library.level = level;
    s_library.product = product;
    s_library.logPath = logPath;
    return reply("Lang_Init", request, nullptr, error);
}
int Lang_Exit(char *error)
{
    return reply("Lang_Exit", "", nullptr, error);
}
int Lang_GetDateStr(const char *request, char *answer, char *error)
{
    return reply("Lang_GetDateStr", request, answer, error);
}
int Lang_GetDateTimeStr(const char *request, char *answer, char *error)
{
    return reply("Lang_GetDateTimeStr", request, answer, error);
}
int Lang_GetNumberStr(const char *request, char *answer, char *error)
{
    return reply("Lang_GetNumberStr", request, answer, error);
}
int Lang_GetMoneyStr(const char *request, char *answer, char *error)
{
    return reply("Lang_GetMoneyStr", request, answer, error);
}
int Lang_GetStorageStr(const char *request, char *answer, char *error)
{
    return reply("Lang_GetStorageStr", request, answer, error);
}

class TestZVLangManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sendsRequests_data();
    void sendsRequests();
    void languages_data();
    void languages();
    void failures_data();
    void failures();
    void cleanup() { s_library = Library(); }
};

void TestZVLangManager::init()
{
    ZVLangManager *manager = ZVLangManager::instance();
    QCOMPARE(qApp->property("ZVLangManager").value<void *>(), static_cast<void *>(manager));

    // by name, as a host calls it that shares no code with us
    bool done = false;
    QVERIFY(QMetaObject::invokeMethod(
        manager, "init", Q_RETURN_ARG(bool, done), Q_ARG(QString, QStringLiteral("4\"2")),
        Q_ARG(QString, QStringLiteral("d\\1")), Q_ARG(QString, QStringLiteral("wé")),
        Q_ARG(QString, QStringLiteral("1.0\n")), Q_ARG(QString, QStringLiteral("ar-ar"))));
    QVERIFY(done);
    QCOMPARE(s_library.level, 1);
    QCOMPARE(s_library.product, QByteArray("quarvo"));
    QCOMPARE(s_library.request,
             QByteArray("{\"os\":\"windows\",\"wsid\":\"w\xc3\xa9\",\"did\":\"d\\\\1\",\"pname\":"
                        "\"quarvo\",\"pver\":\"1.0\\n\",\"pid\":\"4\\\"2\",\"plang\":\"ar-ae\"}"));
    const QString log = QCoreApplication::applicationDirPath() + QStringLiteral("/log/zvlang_")
        + QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(".log");
    QCOMPARE(QString::fromUtf8(s_library.logPath), log);
    QVERIFY(s_library.buffersWereZero);
}

void TestZVLangManager::sendsRequests_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<QByteArray>("fields"); // after "lang"

    const auto row = [](const char *name, const char *function, const char *fields, Call call) {
        QTest::newRow(name) << call << QByteArray(function) << QByteArray(fields);
    };
    const auto dateTime = [&row](const char *name, qint64 given, const char *sent) {
        row(name, "Lang_GetDateTimeStr", sent,
            [given](ZVLangManager *manager) { return manager->getDateTimeStr(given); });
    };
    dateTime("seconds", 1700000000, "\"timestamp\":1700000000");
    dateTime("last of the seconds", 9999999999, "\"timestamp\":9999999999");
    dateTime("first of the milliseconds", 10000000000, "\"timestamp\":10000000");
    dateTime("milliseconds", 1700000000123, "\"timestamp\":1700000000");
    dateTime("last negative seconds", -9999999999, "\"timestamp\":-9999999999");
    dateTime("negative milliseconds, towards zero", -10000000999, "\"timestamp\":-10000000");
    row("date keeps milliseconds", "Lang_GetDateStr", "\"timestamp\":1700000000123",
        [](ZVLangManager *manager) { return manager->getDateStr(1700000000123); });
    row("largest size", "Lang_GetStorageStr", "\"bytes\":9223372036854775807,\"precision\":2",
        [](ZVLangManager *manager) {
            return manager->getStorageStr(std::numeric_limits<qint64>::max(), 2);
        });
    row("negative size", "Lang_GetStorageStr", "\"bytes\":-1,\"precision\":0",
        [](ZVLangManager *manager) { return manager->getStorageStr(-1, 0); });
    row("number", "Lang_GetNumberStr", "\"number\":0.1",
        [](ZVLangManager *manager) { return manager->getNumberStr(0.1); });
    row("money", "Lang_GetMoneyStr", "\"money\":-12.5",
        [](ZVLangManager *manager) { return manager->getMoneyStr(-12.5); });
    row("no number", "Lang_GetNumberStr", "\"number\":null",
        [](ZVLangManager *manager) { return manager->getNumberStr(qQNaN()); });
}

void TestZVLangManager::sendsRequests()
{
    QFETCH(Call, call);
    QFETCH(QByteArray, function);
    QFETCH(QByteArray, fields);

    ZVLangManager *manager = ZVLangManager::instance();
    manager->init({}, {}, {}, {}, QStringLiteral("en-us"));
    s_library.answer = "gr\xc3\xb6\xc3\x9f\x65r";
    QCOMPARE(call(manager), QStringLiteral("größer"));
    QCOMPARE(s_library.function, function);
    QCOMPARE(s_library.request, QByteArray("{\"lang\":\"en_US\"," + fields + '}'));
    QVERIFY(s_library.buffersWereZero);
}

void TestZVLangManager::languages_data()
{
    addColumns<QString, QString, QByteArray>({"code", "stored", "sent"});

    addRow("Arabic of no country", "ar-ar", "ar-ae", QByteArray("ar_AE"));
    addRow("German", "de-de", "de-de", QByteArray("de_DE"));
    addRow("Traditional Chinese", "zh-tw", "zh-tw", QByteArray("zh_TW"));
    addRow("nobody knows it", "qq-qq", "qq-qq", QByteArray("C"));
}

void TestZVLangManager::languages()
{
    QFETCH(QString, code);
    QFETCH(QString, stored);
    QFETCH(QByteArray, sent);

    ZVLangManager *manager = ZVLangManager::instance();
    manager->init({}, {}, {}, {}, code);
    QCOMPARE(manager->language(), stored);
    QVERIFY(s_library.request.endsWith("\"plang\":\"" + stored.toUtf8() + "\"}"));
    manager->getNumberStr(1);
    QCOMPARE(s_library.request, QByteArray("{\"lang\":\"" + sent + "\",\"number\":1}"));
}

void TestZVLangManager::failures_data()
{
    addColumns<QString, Call>({"operation", "call"});

    const auto row = [](const char *name, Call call) { QTest::newRow(name) << name << call; };
    using Manager = ZVLangManager;
    row("init", [](Manager *m) { return m->init({}, {}, {}, {}, "en-us") ? "true" : "left over"; });
    row("exit", [](Manager *m) { return m->exit() ? "true" : "left over"; });
    row("getDateStr", [](Manager *m) { return m->getDateStr(1); });
    row("getDateTimeStr", [](Manager *m) { return m->getDateTimeStr(1); });
    row("getNumberStr", [](Manager *m) { return m->getNumberStr(1); });
    row("getMoneyStr", [](Manager *m) { return m->getMoneyStr(1); });
    row("getStorageStr", [](Manager *m) { return m->getStorageStr(1, 2); });
}

void TestZVLangManager::failures()
{
    QFETCH(QString, operation);
    QFETCH(Call, call);

    s_library.error = "no such langu\xc3\xa2ge";
    s_library.answer = "left over";
    const QString line =
        QStringLiteral("ZVLangManager::%1() errMsg = no such languâge").arg(operation);
    QTest::ignoreMessage(QtDebugMsg, line.toUtf8().constData());
    QCOMPARE(call(ZVLangManager::instance()), QStringLiteral("left over"));
}

QTEST_GUILESS_MAIN(TestZVLangManager)
#include "tst_zvlangmanager.moc"
