#pragma once

#include <QCache>
#include <QString>

/// Sizes and times as rows show them, remembered: the language service is slow beside painting.
/// "--" stands for what is not known.
class RowTexts
{
public:
    RowTexts();

    /// All is written anew from now on.
    void setDirty() { m_dirty = true; }
    QString size(qint64 bytes);
    QString time(qint64 timestamp);

private:
    using Cache = QCache<qint64, QString>;

    QString remembered(Cache &cache, qint64 value, QString (*format)(qint64));

    Cache m_sizes;
    Cache m_times;
    bool m_dirty = false;
};
