#include "langrequest.h"

#include <QJsonDocument>
#include <QJsonParseError>
#include <QVariant>

#include <cmath>
#include <limits>

namespace {

QString quoted(const char *field)
{
    return QLatin1Char('"') + QLatin1String(field) + QLatin1Char('"');
}

} // namespace

LangRequest::LangRequest(const char *text)
{
    if (!text) {
        fail(QStringLiteral("the request is null"));
        return;
    }
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(text), &fault);
    if (fault.error != QJsonParseError::NoError)
        fail(QStringLiteral("the request is not JSON: %1 at byte %2")
                 .arg(fault.errorString())
                 .arg(fault.offset));
    else if (!document.isObject())
        fail(QStringLiteral("the request is not a JSON object"));
    else
        m_fields = document.object();
}

void LangRequest::fail(const QString &message)
{
    if (m_error.isEmpty())
        m_error = message;
}

QJsonValue LangRequest::value(const char *field)
{
    const QJsonValue found = m_fields.value(QLatin1String(field));
    if (found.isUndefined())
        fail(QStringLiteral("the request has no field %1").arg(quoted(field)));
    return found;
}

QString LangRequest::text(const char *field)
{
    const QJsonValue found = value(field);
    if (!found.isString())
        fail(QStringLiteral("field %1 is not a text").arg(quoted(field)));
    return found.toString();
}

double LangRequest::number(const char *field)
{
    const QJsonValue found = value(field);
    if (!found.isDouble())
        fail(QStringLiteral("field %1 is not a number").arg(quoted(field)));
    return found.toDouble();
}

qint64 LangRequest::wholeNumber(const char *field)
{
    constexpr double Bound = 9223372036854775808.0; // 2^63, the first that does not fit

    const double approximate = number(field);
    if (!isValid())
        return 0;
    // a double cannot hold every 64-bit number; the variant has all digits of the text
    const QVariant exact = m_fields.value(QLatin1String(field)).toVariant();
    if (exact.userType() == QMetaType::LongLong)
        return exact.toLongLong();
    if (std::trunc(approximate) != approximate)
        fail(QStringLiteral("field %1 is not a whole number").arg(quoted(field)));
    else if (approximate >= Bound || approximate < -Bound)
        fail(QStringLiteral("field %1 is too large").arg(quoted(field)));
    return isValid() ? qint64(approximate) : 0;
}

qint64 LangRequest::wholeNumber(const char *field, qint64 smallest, qint64 largest)
{
    const qint64 found = wholeNumber(field);
    if (isValid() && (found < smallest || found > largest))
        fail(QStringLiteral("field %1 is %2, outside %3 to %4")
                 .arg(quoted(field))
                 .arg(found)
                 .arg(smallest)
                 .arg(largest));
    return isValid() ? found : 0;
}

QLocale LangRequest::locale()
{
    bool known = true;
    const QString lang = text("lang");
    const QLocale found = localeOf(lang, &known);
    if (!known && isValid())
        m_unknownLanguage = lang;
    return found;
}

QLocale LangRequest::localeOf(const QString &lang, bool *known)
{
    const QLocale found(lang);
    *known = found.language() != QLocale::C;
    return *known ? found : QLocale(QLocale::English, QLocale::UnitedStates);
}
