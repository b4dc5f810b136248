#include "delegates/elidecache.h"

namespace {

// Shaping takes time in proportion to the text, and a damaged record may bear a name of any
// length: of more than this only head and tail can survive the cut.
constexpr int LongText = 1024;

} // namespace

QString ElideCache::elided(const QString &text, int width, const QFontMetrics &metrics)
{
    if (text.size() <= m_neverCut)
        return text;
    const QString shown = text.size() <= LongText
        ? text
        : text.left(LongText / 2) + text.right(LongText / 2);
    const QString key = shown + QLatin1Char('|') + QString::number(width);
    if (const QString *cached = m_cache.object(key))
        return *cached;

    const QString result = metrics.horizontalAdvance(shown) < width
        ? shown
        : metrics.elidedText(shown, m_mode, width);
    m_cache.insert(key, new QString(result), 1);
    return result;
}
