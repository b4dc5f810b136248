#include "host/tree/itemdescription.h"

#include "host/tree/itemkinds.h"
#include "host/tree/itemrecord.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

#include <limits>

namespace {

constexpr int LeastLetters = 3; // of the beginning of a kind's or a month's name
constexpr int Months = 12;
constexpr int FirstYear = 1970;
constexpr int LastYear = 2107; // the last that a card's file system can write

bool begins(const QString &name, const QString &word)
{
    return word.size() >= LeastLetters && name.startsWith(word, Qt::CaseInsensitive);
}

int monthCalled(const QString &word)
{
    for (const QLocale &locale : {QLocale(), QLocale::c()}) {
        for (int month = 1; month <= Months; ++month) {
            const QString name = locale.standaloneMonthName(month);
            // where months are numbered, the number and its sign are all there is
            if (begins(name, word) || name.compare(word, Qt::CaseInsensitive) == 0
                || begins(locale.monthName(month), word))
                return month;
        }
    }
    return 0;
}

QStringList joiningWords()
{
    return QCoreApplication::translate("ItemDescription", "a an and at from in of on the with",
                                       "Words of a search by description that say nothing alone")
               .split(QLatin1Char(' '))
        + QStringList{QStringLiteral("and"), QStringLiteral("from"), QStringLiteral("in"),
                      QStringLiteral("of"), QStringLiteral("the")};
}

/// \a text with "5 mb" as one word.
QStringList wordsOf(QString text)
{
    static const QRegularExpression number(QStringLiteral("([<>]?)\\s*(\\d+)\\s*([kmg]b)\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    text.replace(number, QStringLiteral(" \\1\\2\\3 "));
    static const QRegularExpression gap(QStringLiteral("[\\s,;]+"));
    return text.split(gap, Qt::SkipEmptyParts);
}

} // namespace

ItemDescription::ItemDescription(const QString &text)
{
    const QStringList joining = joiningWords();
    const QStringList words = wordsOf(text);
    for (const QString &word : words) {
        if (!joining.contains(word, Qt::CaseInsensitive))
            m_words.append(understood(word));
    }
}

ItemDescription::Word ItemDescription::understood(const QString &text)
{
    Word word;
    word.text = text;
    for (const ItemKind &kind : ItemKinds::All) {
        if (begins(ItemKinds::titleOf(kind.rootType), text)
            || begins(QLatin1String(kind.title), text))
            word.rootTypes.append(kind.rootType);
    }
    const int number = text.toInt();
    if (number >= FirstYear && number <= LastYear)
        word.year = number;
    word.month = monthCalled(text);

    static const QRegularExpression size(QStringLiteral("^([<>]?)(\\d{1,9})([kmg])b$"),
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = size.match(text);
    if (match.hasMatch()) {
        const QString unit = match.captured(3).toLower();
        const int shift = unit == QLatin1String("k") ? 10 : unit == QLatin1String("m") ? 20 : 30;
        const qint64 bytes = match.captured(2).toLongLong() << shift;
        const QString bound = match.captured(1);
        word.leastSize = bound.isEmpty() ? bytes / 2 : bound == QLatin1String(">") ? bytes + 1 : 0;
        word.largestSize = bound.isEmpty() ? bytes * 2
            : bound == QLatin1String("<")  ? bytes - 1
                                           : std::numeric_limits<qint64>::max();
    }
    return word;
}

bool ItemDescription::Word::fits(const ItemRecord &record) const
{
    if (record.name.contains(text, Qt::CaseInsensitive))
        return true;
    if (!rootTypes.isEmpty() && !record.isFolder()) {
        const int index = ItemKinds::indexOfCategory(record.fileCategory);
        if (rootTypes.contains(ItemKinds::All[std::size_t(index)].rootType))
            return true;
    }
    if ((year > 0 || month > 0) && record.modifiedTime > 0) {
        const QDate date = QDateTime::fromSecsSinceEpoch(record.modifiedTime).date();
        if (date.year() == year || date.month() == month)
            return true;
    }
    if (leastSize >= 0 && !record.isFolder() && record.fileSize >= leastSize
        && record.fileSize <= largestSize)
        return true;
    for (const QString &scene : record.aiScenes) {
        if (scene.contains(text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool ItemDescription::matches(const ItemRecord &record) const
{
    for (const Word &word : m_words) {
        if (!word.fits(record))
            return false;
    }
    return !m_words.isEmpty();
}
