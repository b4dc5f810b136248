#pragma once

#include <QRegExp>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QVector>

class QColor;
class QTextBrowser;

/// Marks the search keyword in item names. Keywords are regular expressions, taken as they stand:
/// "a.c" marks "abc" too, and one that is no valid pattern marks nothing.
class CHighLighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit CHighLighter(QTextBrowser *renderer);

    /// Takes effect at the next rehighlight().
    void setKeyword(const QString &keyword, const QColor &background);
    void setKeyword(const QString &keyword, const QColor &background, const QColor &foreground);

protected:
    void highlightBlock(const QString &text) override;

private:
    struct Rule
    {
        QRegExp pattern;
        QTextCharFormat format;
    };

    void setRules(const QString &keyword, const QTextCharFormat &format);

    QVector<Rule> m_rules;
};
