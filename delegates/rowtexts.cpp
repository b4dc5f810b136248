#include "delegates/rowtexts.h"

#include "model/itemtext.h"

namespace {

constexpr int MostTexts = 1024;

} // namespace

RowTexts::RowTexts()
    : m_sizes(MostTexts)
    , m_times(MostTexts)
{
}

QString RowTexts::size(qint64 bytes)
{
    return remembered(m_sizes, bytes, [](qint64 value) { return ItemText::size(value); });
}

QString RowTexts::time(qint64 timestamp)
{
    return remembered(m_times, timestamp, [](qint64 value) { return ItemText::modified(value); });
}

QString RowTexts::remembered(Cache &cache, qint64 value, QString (*format)(qint64))
{
    const QString unknown = QStringLiteral("--");
    if (value == 0)
        return unknown;
    if (m_dirty) {
        m_sizes.clear();
        m_times.clear();
        m_dirty = false;
    }
    if (const QString *known = cache.object(value))
        return *known;
    QString text = format(value);
    if (text.isEmpty()) // a time that no calendar reaches
        text = unknown;
    cache.insert(value, new QString(text), 1);
    return text;
}
