#include "zvlang.h"

#include "langbuffer.h"
#include "langlog.h"
#include "langrequest.h"
#include "langtexts.h"

#include <QDebug>

#include <exception>

namespace {

constexpr qint64 StartOfYear1 = -62135596800;
constexpr qint64 EndOfYear9999 = 253402300799;

/// Nothing that is thrown may reach a caller in C.
template <typename Work>
int withoutThrowing(Work &&work, char *error)
{
    try {
        return work();
    } catch (const std::exception &exception) {
        copyText(QString::fromLocal8Bit(exception.what()), error, LangErrorSize);
    } catch (...) {
        copyText(QStringLiteral("unknown exception"), error, LangErrorSize);
    }
    return 0;
}

/// Reads \a request, answers with the text that \a format makes of it, or says what is wrong.
template <typename Format>
int answerRequest(const char *function, const char *request, char *answer, char *error,
                  Format &&format)
{
    copyText({}, answer, LangAnswerSize);
    copyText({}, error, LangErrorSize);
    const auto work = [&] {
        LangRequest fields(request);
        const QString text = format(fields);
        const QString unknown = fields.unknownLanguage();
        if (!unknown.isEmpty())
            LangLog::instance().write(QStringLiteral("%1: unknown language \"%2\", English is used")
                                          .arg(QLatin1String(function), unknown));
        if (fields.isValid()) {
            copyText(text, answer, LangAnswerSize);
            return 1;
        }
        const QString message = QLatin1String(function) + QStringLiteral(": ") + fields.error();
        LangLog::instance().write(message);
        copyText(message, error, LangErrorSize);
        return 0;
    };
    return withoutThrowing(work, error);
}

} // namespace

int Lang_Init(int, const char *request, const char *product, const char *logPath, char *error)
{
    copyText({}, error, LangErrorSize);
    const auto work = [&] {
        LangRequest fields(request);
        for (const char *field : {"os", "wsid", "did", "pname", "pver", "pid"})
            fields.text(field);
        const QString lang = fields.text("plang");
        if (!fields.isValid()) {
            copyText(QStringLiteral("Lang_Init: ") + fields.error(), error, LangErrorSize);
            return 0;
        }
        LangLog &log = LangLog::instance();
        const QString path = QString::fromUtf8(logPath);
        if (!log.open(path))
            qWarning() << "Lang_Init: the log of" << QString::fromUtf8(product)
                       << "cannot be written to" << path;
        bool known = true;
        LangRequest::localeOf(lang, &known);
        if (!known)
            log.write(
                QStringLiteral("Lang_Init: unknown language \"%1\", English is used").arg(lang));
        return 1;
    };
    return withoutThrowing(work, error);
}

int Lang_Exit(char *error)
{
    copyText({}, error, LangErrorSize);
    const auto work = [&] {
        if (!LangLog::instance().isOpen()) {
            copyText(QStringLiteral("Lang_Exit: the library is not initialised"), error,
                     LangErrorSize);
            return 0;
        }
        LangLog::instance().close();
        return 1;
    };
    return withoutThrowing(work, error);
}

int Lang_GetDateStr(const char *request, char *answer, char *error)
{
    return answerRequest("Lang_GetDateStr", request, answer, error, [](LangRequest &fields) {
        const QLocale locale = fields.locale();
        return LangTexts::date(locale,
                               fields.wholeNumber("timestamp", StartOfYear1, EndOfYear9999));
    });
}

int Lang_GetDateTimeStr(const char *request, char *answer, char *error)
{
    return answerRequest("Lang_GetDateTimeStr", request, answer, error, [](LangRequest &fields) {
        const QLocale locale = fields.locale();
        return LangTexts::dateTime(locale,
                                   fields.wholeNumber("timestamp", StartOfYear1, EndOfYear9999));
    });
}

int Lang_GetNumberStr(const char *request, char *answer, char *error)
{
    return answerRequest("Lang_GetNumberStr", request, answer, error, [](LangRequest &fields) {
        const QLocale locale = fields.locale();
        return LangTexts::number(locale, fields.number("number"));
    });
}

int Lang_GetMoneyStr(const char *request, char *answer, char *error)
{
    return answerRequest("Lang_GetMoneyStr", request, answer, error, [](LangRequest &fields) {
        const QLocale locale = fields.locale();
        return LangTexts::money(locale, fields.number("money"));
    });
}

int Lang_GetStorageStr(const char *request, char *answer, char *error)
{
    return answerRequest("Lang_GetStorageStr", request, answer, error, [](LangRequest &fields) {
        const QLocale locale = fields.locale();
        const qint64 bytes = fields.wholeNumber("bytes");
        const auto precision = int(fields.wholeNumber("precision", 0, LangLargestPrecision));
        return LangTexts::storage(locale, bytes, precision);
    });
}
