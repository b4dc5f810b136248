#pragma once

#include <QCache>
#include <QFontMetrics>
#include <QString>

/// Names cut in the middle, remembered by text and width.
class ElideCache
{
public:
    ElideCache() { m_cache.setMaxCost(MostEntries); }

    /// GUI thread. Names of a few characters are never cut.
    QString elided(const QString &text, int width, const QFontMetrics &metrics);
    static bool isShort(const QString &text) { return text.size() <= ShortLength; }

private:
    static constexpr int MostEntries = 1024;
    static constexpr int ShortLength = 10;

    QCache<QString, QString> m_cache;
};
