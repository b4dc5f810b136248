#pragma once

#include <QLocale>
#include <QString>

/// How dates, sizes and numbers are written in a language. Pure functions, for any thread.
namespace LangTexts {

/// The locale's short form with a year of four digits, in local time.
QString date(const QLocale &locale, qint64 seconds);
QString dateTime(const QLocale &locale, qint64 seconds);
/// Grouped, with as many decimals as the number has.
QString number(const QLocale &locale, double number);
/// In the currency of the locale's country.
QString money(const QLocale &locale, double amount);
/// Steps of 1024 from bytes to exabytes; bytes have no decimals.
QString storage(const QLocale &locale, qint64 bytes, int precision);

} // namespace LangTexts
