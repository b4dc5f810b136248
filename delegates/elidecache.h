#pragma once

#include <QCache>
#include <QString>

class PlainTexts;

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
    /// In the font of \a texts, which is going to draw it, in \a script. GUI thread.
    QString elided(const QString &text, int width, PlainTexts *texts,
                   Qt::LayoutDirection script = Qt::LeftToRight);
    static bool isShort(const QString &text) { return text.size() <= ShortLength; }

private:
    static constexpr int MostEntries = 1024;

    struct Key
    {
        QString text;
        int width;

        friend bool operator==(const Key &a, const Key &b)
        {
            return a.width == b.width && a.text == b.text;
        }
        friend uint qHash(const Key &key, uint seed = 0)
        {
            return ::qHash(key.text, seed) ^ uint(key.width);
        }
    };

    QCache<Key, QString> m_cache;
    int m_neverCut;
    Qt::TextElideMode m_mode;
};
