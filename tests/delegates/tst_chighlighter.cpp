#include "delegates/chighlighter.h"
#include "support/datarow.h"

#include <QTextBlock>
#include <QTextBrowser>
#include <QTextLayout>
#include <QtTest>

#include <memory>

class TestHighlighter : public QObject
{
    Q_OBJECT

private slots:
    void marks_data();
    void marks();
    void coloursAsTold();
};

namespace {

/// The text with its marked stretches in brackets.
QString marked(const QString &text, const QString &keyword)
{
    QTextBrowser renderer;
    CHighLighter highlighter(&renderer);
    renderer.setPlainText(text);
    highlighter.setKeyword(keyword, Qt::yellow, Qt::red);
    highlighter.rehighlight();

    QVector<bool> on(text.size() + 1, false);
    const auto formats = renderer.document()->firstBlock().layout()->formats();
    for (const QTextLayout::FormatRange &range : formats) {
        for (int i = range.start; i < range.start + range.length; ++i)
            on[i] = range.format.background().style() == Qt::SolidPattern;
    }
    QString result;
    for (int i = 0; i <= text.size(); ++i) {
        const bool before = i > 0 && on[i - 1];
        if (on[i] != before)
            result += on[i] ? QLatin1Char('[') : QLatin1Char(']');
        if (i < text.size())
            result += text[i];
    }
    return result;
}

} // namespace

void TestHighlighter::marks_data()
{
    addColumns<QString, QString, QString>({"text", "keyword", "result"});

    addRow("every occurrence", "photo-photo.jpg", "photo", "[photo]-[photo].jpg");
    addRow("first match ignores case", "Photo photo", "photo", "[Photo] [photo]");
    addRow("the following ones do not", "photo Photo", "photo", "[photo] Photo");
    addRow("upper-case keyword", "photo", "PHOTO", "[photo]");
    addRow("keyword is a pattern", "abc", "a.c", "[abc]");
    addRow("a lone dot marks nothing", "a.b", ".", "a.b");
    addRow("a lone asterisk is literal", "2*3*4", "*", "2[*]3[*]4");
    addRow("words by themselves", "words of two", "two words", "[words] of [two]");
    addRow("words together", "two words", "two words", "[two words]");
    addRow("many spaces", "a b", "  b ", "a [b]");
    addRow("no valid pattern", "a(b[c", "(b[", "a(b[c");
    addRow("matches the empty string", "aab", "x*", "aab");
    addRow("empty keyword", "abc", "", "abc");
    addRow("empty text", "", "abc", "");
    // the lower-cased text is one character longer, and the match lies past the end
    addRow("lower case is longer", QStringLiteral("\u0130x"), "x", QStringLiteral("\u0130x"));
}

void TestHighlighter::marks()
{
    QFETCH(QString, text);
    QFETCH(QString, keyword);
    QTEST(marked(text, keyword), "result");
}

void TestHighlighter::coloursAsTold()
{
    QTextBrowser renderer;
    auto highlighter = std::make_unique<CHighLighter>(&renderer);
    renderer.setPlainText(QStringLiteral("abc"));
    const auto format = [&] {
        highlighter->rehighlight();
        return renderer.document()->firstBlock().layout()->formats().value(0).format;
    };

    highlighter->setKeyword(QStringLiteral("b"), Qt::yellow);
    QCOMPARE(format().background().color(), QColor(Qt::yellow));
    QVERIFY(!format().hasProperty(QTextFormat::ForegroundBrush));
    highlighter->setKeyword(QStringLiteral("b"), Qt::green, Qt::red);
    QCOMPARE(format().background().color(), QColor(Qt::green));
    QCOMPARE(format().foreground().color(), QColor(Qt::red));
    highlighter.reset(); // before the document, as its owner does
}

QTEST_MAIN(TestHighlighter)
#include "tst_chighlighter.moc"
