#include "delegates/chighlighter.h"

#include <QTextBrowser>

CHighLighter::CHighLighter(QTextBrowser *renderer)
    : QSyntaxHighlighter(renderer->document())
{
}

void CHighLighter::setKeyword(const QString &keyword, const QColor &background)
{
    QTextCharFormat format;
    format.setBackground(background);
    setRules(keyword, format);
}

void CHighLighter::setKeyword(const QString &keyword, const QColor &background,
                              const QColor &foreground)
{
    QTextCharFormat format;
    format.setBackground(background);
    format.setForeground(foreground);
    setRules(keyword, format);
}

void CHighLighter::setRules(const QString &keyword, const QTextCharFormat &format)
{
    const QLatin1Char space(' ');
    QStringList words;
    if (keyword != QLatin1String(".")) // alone it would mark every character
        words.append(keyword.toLower());
    if (keyword == QLatin1String("*"))
        words.append(QLatin1Char('\\') + keyword.toLower());
    if (keyword.contains(space))
        words.append(keyword.split(space, Qt::SkipEmptyParts));

    m_rules.clear();
    for (const QString &word : qAsConst(words))
        m_rules.append({QRegExp(word, Qt::CaseSensitive, QRegExp::RegExp), format});
}

void CHighLighter::highlightBlock(const QString &text)
{
    const QString lowered = text.toLower();
    for (const Rule &rule : qAsConst(m_rules)) {
        const QRegExp pattern(rule.pattern.pattern());
        // The first match ignores case, the following ones do not: "photo" marks both words of
        // "Photo photo", and only the first of "photo Photo".
        int index = pattern.indexIn(lowered);
        while (index >= 0) {
            const int length = pattern.matchedLength();
            if (length == 0)
                break;
            setFormat(index, length, rule.format);
            index = pattern.indexIn(text, index + length);
        }
    }
}
