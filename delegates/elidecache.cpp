#include "delegates/elidecache.h"

#include "delegates/plaintexts.h"

#include <QFontMetrics>

namespace {

// Shaping takes time in proportion to the text, and a damaged record may bear a name of any
// length: of more than this only head and tail can survive the cut.
constexpr int LongText = 1024;

} // namespace

QString ElideCache::elided(const QString &text, int width, PlainTexts *texts,
                           Qt::LayoutDirection script)
{
    if (text.size() <= m_neverCut)
        return text;
    const QString shown = text.size() <= LongText
        ? text
        : text.left(LongText / 2) + text.right(LongText / 2);
    const Key key{shown, width};
    if (const QString *cached = m_cache.object(key))
        return *cached;

    const QString result = texts->width(shown, script) < width
        ? shown
        : QFontMetrics(texts->font()).elidedText(shown, m_mode, width);
    m_cache.insert(key, new QString(result), 1);
    return result;
}
