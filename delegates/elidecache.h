#pragma once

#include <QCache>
#include <QFontMetrics>
#include <QString>

/// Texts cut to a width, remembered by text and width. What is remembered belongs to one font:
/// clear() when it changes.
class ElideCache
{
public:
    static constexpr int ShortLength = 10;

    /// Texts of up to \a neverCut characters come back whole.
    explicit ElideCache(int neverCut = ShortLength, Qt::TextElideMode mode = Qt::ElideMiddle)
        : m_cache(MostEntries)
        , m_neverCut(neverCut)
        , m_mode(mode)
    {
    }

    void clear() { m_cache.clear(); }
    /// GUI thread.
    QString elided(const QString &text, int width, const QFontMetrics &metrics);
    static bool isShort(const QString &text) { return text.size() <= ShortLength; }

private:
    static constexpr int MostEntries = 1024;

    QCache<QString, QString> m_cache;
    int m_neverCut;
    Qt::TextElideMode m_mode;
};
