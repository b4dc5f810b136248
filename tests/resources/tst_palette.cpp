#include "look/contrast.h"
#include "support/datarow.h"

#include <QColor>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

namespace {

enum Theme { Light, Dark, ThemeCount };

struct Pair
{
    QColor of[ThemeCount];
};

QString textOf(const char *path)
{
    QFile file(QLatin1String(SOURCE_FOLDER "/") + QLatin1String(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// "#0D2C6E/10": the colour, at ten per cent.
QColor paletteColor(const QString &text)
{
    QColor color(text.section(QLatin1Char('/'), 0, 0));
    if (text.contains(QLatin1Char('/')))
        color.setAlphaF(text.section(QLatin1Char('/'), 1).toInt() / 100.0);
    return color;
}

/// "0, 0, 0, 178", as it stands in the code.
QColor codeColor(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() < 3)
        return {};
    return {parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt(),
            parts.size() > 3 ? parts.at(3).toInt() : 255};
}

QMap<QString, Pair> readPalette()
{
    static const QRegularExpression line(QStringLiteral("^([a-z]\\w*) +(#\\S+) +(#\\S+)"),
                                         QRegularExpression::MultilineOption);
    QMap<QString, Pair> palette;
    const QString text = textOf("resources/palette.txt");
    for (auto it = line.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        palette.insert(match.captured(1),
                       {{paletteColor(match.captured(2)), paletteColor(match.captured(3))}});
    }
    return palette;
}

QColor over(const QColor &top, const QColor &ground)
{
    const auto mix = [&](double above, double below) {
        return above * top.alphaF() + below * (1 - top.alphaF());
    };
    return QColor::fromRgbF(mix(top.redF(), ground.redF()), mix(top.greenF(), ground.greenF()),
                            mix(top.blueF(), ground.blueF()));
}

} // namespace

/// What the look book says about colours, held against the palette.
class TestPalette : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void contrastIsAsWritten_data();
    void contrastIsAsWritten();
    void everyTextAndMarkIsMeasured_data();
    void everyTextAndMarkIsMeasured();
    void fixedColorsAreThoseOfTheCode();

private:
    /// By its name, or a literal for each theme: "0, 0, 0, 178 / 255, 255, 255, 178".
    QColor colorNamed(const QString &name, int theme) const
    {
        const QStringList literal = name.split(QLatin1String(" / "));
        return literal.size() == ThemeCount ? codeColor(literal.at(theme))
                                            : m_palette.value(name).of[theme];
    }

    QMap<QString, Pair> m_palette;
    QString m_book;
};

void TestPalette::initTestCase()
{
    m_palette = readPalette();
    m_book = textOf("docs/look.md");
    QVERIFY(m_palette.contains(QStringLiteral("page")));
    QVERIFY(!m_book.isEmpty());
}

void TestPalette::contrastIsAsWritten_data()
{
    addColumns<QString, QString, QString, QString, double>(
        {"color", "ground", "light", "dark", "least"});

    static const QRegularExpression heading(QStringLiteral("^### .*?(?:at least ([\\d.]+))?$"));
    static const QRegularExpression row(
        QStringLiteral("^\\| `?([^|`]+)`? \\| `([^|`]+)` \\| ([\\d.]+) \\| ([\\d.]+) \\|"));
    double least = 0;
    const QStringList lines = m_book.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QRegularExpressionMatch title = heading.match(line);
        if (title.hasMatch())
            least = title.captured(1).toDouble();
        const QRegularExpressionMatch match = row.match(line);
        if (match.hasMatch())
            QTest::newRow(qPrintable(match.captured(1) + QLatin1String(" on ") + match.captured(2)))
                << match.captured(1) << match.captured(2) << match.captured(3) << match.captured(4)
                << least;
    }
}

void TestPalette::contrastIsAsWritten()
{
    QFETCH(QString, color);
    QFETCH(QString, ground);
    QFETCH(QString, light);
    QFETCH(QString, dark);
    QFETCH(double, least);

    const QStringList written{light, dark};
    for (int theme : {Light, Dark}) {
        QColor below = m_palette.value(QStringLiteral("page")).of[theme];
        const QStringList layers = ground.split(QLatin1Char('+'));
        for (const QString &layer : layers) {
            const QColor veil = colorNamed(layer, theme);
            QVERIFY2(veil.isValid(), qPrintable(layer));
            below = over(veil, below);
        }
        const QColor above = colorNamed(color, theme);
        QVERIFY2(above.isValid(), qPrintable(color));
        const double figure = Contrast::between(over(above, below), below);
        QCOMPARE(QString::number(figure, 'f', 1), written.at(theme));
        QVERIFY2(figure >= least, qPrintable(QString::number(figure)));
    }
}

void TestPalette::everyTextAndMarkIsMeasured_data()
{
    QTest::addColumn<QString>("name");
    static const QRegularExpression meaning(
        QStringLiteral("^(.*text.*|icon|icon_soft|box_edge|focus.*|scroll|scroll_over)$"));
    for (auto it = m_palette.cbegin(); it != m_palette.cend(); ++it)
        if (meaning.match(it.key()).hasMatch())
            QTest::newRow(qPrintable(it.key())) << it.key();
}

void TestPalette::everyTextAndMarkIsMeasured()
{
    QFETCH(QString, name);
    QVERIFY(m_book.contains(QLatin1Char('`') + name + QLatin1Char('`')));
}

void TestPalette::fixedColorsAreThoseOfTheCode()
{
    QString code;
    for (const char *file : {"delegates/itemcolors.cpp", "delegates/rowcolors.cpp",
                             "delegates/recoverabilitylabel.cpp"})
        code += textOf(file);
    static const QRegularExpression literal(QStringLiteral("\\d+, \\d+, \\d+(?:, \\d+)?"));
    const QString section = m_book.section(QLatin1String("### Fixed by the painters"), 1)
                                .section(QLatin1String("\n## "), 0, 0);
    int count = 0;
    for (auto it = literal.globalMatch(section); it.hasNext(); ++count) {
        const QString color = it.next().captured();
        QVERIFY2(code.contains(QLatin1Char('(') + color) || code.contains(QLatin1Char('{') + color),
                 qPrintable(color));
    }
    QVERIFY(count > 0);
}

QTEST_MAIN(TestPalette)
#include "tst_palette.moc"
