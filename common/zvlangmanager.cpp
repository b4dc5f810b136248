#include "common/zvlangmanager.h"

#include "common/jsonrequest.h"
#include "zvlang.h"

#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QLocale>
#include <QPointer>
#include <QVariant>

namespace {

constexpr auto SharedPointerProperty = "ZVLangManager";
constexpr auto ProductName = "quarvo";

// no date in seconds is this far away, none in milliseconds this near
constexpr qint64 LargestSeconds = 9999999999;
constexpr qint64 SmallestSeconds = -9999999999;
constexpr qint64 MSecsPerSec = 1000;

/// Another module that has adopted the object may delete it.
QPointer<ZVLangManager> &sharedInstance()
{
    static QPointer<ZVLangManager> pointer;
    return pointer;
}

using LangFunction = int (*)(const char *request, char *answer, char *error);

/// What the library answered; a failure is logged under \a prefix.
QString ask(LangFunction function, const JsonRequest &request, const char *prefix)
{
    char answer[LangAnswerSize] = {};
    char error[LangErrorSize] = {};
    if (function(request.toJson().constData(), answer, error) == 0)
        qDebug().noquote() << prefix + QString::fromUtf8(error);
    return QString::fromUtf8(answer);
}

JsonRequest requestFor(const QString &lang)
{
    JsonRequest request;
    request.add("lang", QLocale(lang).name());
    return request;
}

} // namespace

ZVLangManager *ZVLangManager::instance()
{
    QPointer<ZVLangManager> &shared = sharedInstance();
    if (shared)
        return shared;
    QCoreApplication *app = QCoreApplication::instance();
    if (app)
        shared = static_cast<ZVLangManager *>(app->property(SharedPointerProperty).value<void *>());
    if (!shared) {
        shared = new ZVLangManager;
        if (app)
            app->setProperty(SharedPointerProperty,
                             QVariant::fromValue(static_cast<void *>(shared.data())));
    }
    return shared;
}

ZVLangManager::ZVLangManager(QObject *parent)
    : QObject(parent)
    , m_lang(QStringLiteral("en-us"))
{
}

bool ZVLangManager::init(const QString &pid, const QString &did, const QString &wsid,
                         const QString &pver, const QString &lang)
{
    m_lang = lang == QLatin1String("ar-ar") ? QStringLiteral("ar-ae") : lang;

    JsonRequest request;
    request.add("os", QStringLiteral("windows"));
    request.add("wsid", wsid);
    request.add("did", did);
    request.add("pname", QLatin1String(ProductName));
    request.add("pver", pver);
    request.add("pid", pid);
    request.add("plang", m_lang);

    const QString logPath = QCoreApplication::applicationDirPath() + QStringLiteral("/log/zvlang_")
        + QDate::currentDate().toString(Qt::ISODate) + QStringLiteral(".log");
    char error[LangErrorSize] = {};
    const int result = Lang_Init(1, request.toJson().constData(), ProductName,
                                 logPath.toUtf8().constData(), error);
    if (result == 0)
        qDebug().noquote() << "ZVLangManager::init() errMsg = " + QString::fromUtf8(error);
    return result != 0;
}

bool ZVLangManager::exit()
{
    char error[LangErrorSize] = {};
    const int result = Lang_Exit(error);
    if (result == 0)
        qDebug().noquote() << "ZVLangManager::exit() errMsg = " + QString::fromUtf8(error);
    return result != 0;
}

QString ZVLangManager::getDateStr(qint64 seconds) const
{
    JsonRequest request = requestFor(m_lang);
    request.add("timestamp", seconds);
    return ask(Lang_GetDateStr, request, "ZVLangManager::getDateStr() errMsg = ");
}

QString ZVLangManager::getDateTimeStr(qint64 timestamp) const
{
    const bool isMSecs = timestamp > LargestSeconds || timestamp < SmallestSeconds;
    JsonRequest request = requestFor(m_lang);
    request.add("timestamp", isMSecs ? timestamp / MSecsPerSec : timestamp);
    return ask(Lang_GetDateTimeStr, request, "ZVLangManager::getDateTimeStr() errMsg = ");
}

QString ZVLangManager::getNumberStr(double number) const
{
    JsonRequest request = requestFor(m_lang);
    request.add("number", number);
    return ask(Lang_GetNumberStr, request, "ZVLangManager::getNumberStr() errMsg = ");
}

QString ZVLangManager::getMoneyStr(double money) const
{
    JsonRequest request = requestFor(m_lang);
    request.add("money", money);
    return ask(Lang_GetMoneyStr, request, "ZVLangManager::getMoneyStr() errMsg = ");
}

QString ZVLangManager::getStorageStr(qint64 bytes, int precision) const
{
    JsonRequest request = requestFor(m_lang);
    request.add("bytes", bytes);
    request.add("precision", precision);
    return ask(Lang_GetStorageStr, request, "ZVLangManager::getStorageStr() errMsg = ");
}
