#include "langtexts.h"

#include <QDateTime>

#include <cmath>

namespace {

/// The unit as the locale spells it, read off a text that Qt makes with it.
QString unitName(const QLocale &locale, int power)
{
    if (locale.language() == QLocale::Arabic) {
        // Qt knows only some of them: a list of files would mix two scripts
        static const QString s_arabic[] = {
            QStringLiteral("بايت"),     QStringLiteral("كيلوبايت"), QStringLiteral("ميغابايت"),
            QStringLiteral("غيغابايت"), QStringLiteral("تيرابايت"), QStringLiteral("بيتابايت"),
            QStringLiteral("إكسابايت"),
        };
        return s_arabic[power];
    }
    const QString sample = locale.formattedDataSize(qint64(1) << (10 * power), 0,
                                                    QLocale::DataSizeTraditionalFormat);
    return sample.section(QLatin1Char(' '), 1);
}

QString byteUnit(const QLocale &locale, qint64 bytes)
{
    if (locale.language() == QLocale::Russian)
        return QStringLiteral("\u0411"); // the full word has three plurals
    const QString unit = unitName(locale, 0);
    const bool isSingular = bytes == 1 || bytes == -1;
    return isSingular && unit.endsWith(QLatin1Char('s')) ? unit.chopped(1) : unit;
}

QString largeUnit(const QLocale &locale, int power)
{
    QString unit = unitName(locale, power);
    unit[0] = unit.at(0).toUpper(); // file managers write KB, the metric system kB
    return unit;
}

QString dateOf(const QLocale &locale, const QDate &date)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return locale.toString(date, format);
}

} // namespace

QString LangTexts::date(const QLocale &locale, qint64 seconds)
{
    return dateOf(locale, QDateTime::fromSecsSinceEpoch(seconds).date());
}

QString LangTexts::dateTime(const QLocale &locale, qint64 seconds)
{
    const QDateTime local = QDateTime::fromSecsSinceEpoch(seconds);
    return dateOf(locale, local.date()) + QLatin1Char(' ')
        + locale.toString(local.time(), QLocale::ShortFormat);
}

QString LangTexts::number(const QLocale &locale, double number)
{
    constexpr int SignificantDigits = 15; // all that a double is sure of
    return locale.toString(number, 'g', SignificantDigits);
}

QString LangTexts::money(const QLocale &locale, double amount)
{
    return locale.toCurrencyString(amount);
}

QString LangTexts::storage(const QLocale &locale, qint64 bytes, int precision)
{
    constexpr double Step = 1024.0;
    constexpr int LargestPower = 6;

    // what would be rounded up to 1024 belongs to the next unit
    const double roundsUp = Step - 0.5 * std::pow(10.0, -precision);
    double amount = double(bytes);
    int power = 0;
    while (power < LargestPower && std::abs(amount) >= (power == 0 ? Step : roundsUp)) {
        amount /= Step;
        ++power;
    }
    if (power == 0)
        return locale.toString(bytes) + QLatin1Char(' ') + byteUnit(locale, bytes);
    return locale.toString(amount, 'f', precision) + QLatin1Char(' ') + largeUnit(locale, power);
}
