#include "common/qssloader.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

namespace {

const char *const s_files[] = {"sdcardcontentdatawidget",
                               "headerview",
                               "itemdetailview",
                               "datainfoitem",
                               "chipinfoitem",
                               "rightmenudialog",
                               "rightmenuframe",
                               "previewframe",
                               "searchhintframe",
                               "aisearchhintframe",
                               "searchdialog"};

void setTheme(int theme)
{
    qApp->setProperty("ThemeType", theme);
}

QString sheet(const char *name)
{
    return QSSLoader::loadStyleSheet(QStringLiteral("SDCardScanContentPlugin"),
                                     {QLatin1String(name) + QLatin1String(".qss")});
}

QStringList &warnings()
{
    static QStringList texts;
    return texts;
}

void collectWarnings(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type >= QtWarningMsg)
        warnings().append(text);
}

double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF())
        + 0.0722 * part(colour.blueF());
}

double contrast(const QColor &text, const QColor &page)
{
    const double alpha = text.alphaF();
    const auto over = [alpha](double top, double bottom) {
        return top * alpha + bottom * (1 - alpha);
    };
    const QColor seen = QColor::fromRgbF(over(text.redF(), page.redF()),
                                         over(text.greenF(), page.greenF()),
                                         over(text.blueF(), page.blueF()));
    const double a = luminance(seen) + 0.05;
    const double b = luminance(page) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

} // namespace

class TestStylesheets : public QObject
{
    Q_OBJECT

private slots:
    void isUnderstood_data();
    void isUnderstood();
    void themesHaveTheSameRules_data();
    void themesHaveTheSameRules();
    void gridGivesItsPageToThePainters_data();
    void gridGivesItsPageToThePainters();
    void pageTextsAreReadable_data();
    void pageTextsAreReadable();
};

void TestStylesheets::isUnderstood_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QByteArray>("name");
    for (const char *name : s_files) {
        QTest::addRow("%s, light", name) << 0 << QByteArray(name);
        QTest::addRow("%s, dark", name) << 1 << QByteArray(name);
    }
}

void TestStylesheets::isUnderstood()
{
    QFETCH(int, theme);
    QFETCH(QByteArray, name);

    setTheme(theme);
    const QString text = sheet(name.constData());
    QVERIFY(!text.isEmpty());
    QVERIFY2(!text.contains(QLatin1Char('@')), "a colour was not replaced");

    warnings().clear();
    const QtMessageHandler before = qInstallMessageHandler(collectWarnings);
    QWidget widget;
    widget.setStyleSheet(text);
    widget.ensurePolished();
    qInstallMessageHandler(before);
    QVERIFY2(warnings().isEmpty(), qPrintable(warnings().join(QLatin1Char('\n'))));

    static const QRegularExpression image(QStringLiteral("url\\(([^)]*)\\)"));
    for (auto it = image.globalMatch(text); it.hasNext();) {
        const QString path = it.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
    }
}

void TestStylesheets::themesHaveTheSameRules_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : s_files)
        QTest::newRow(name) << QByteArray(name);
}

void TestStylesheets::themesHaveTheSameRules()
{
    QFETCH(QByteArray, name);

    setTheme(0);
    const QString light = sheet(name.constData());
    setTheme(1);
    const QString dark = sheet(name.constData());
    QVERIFY(light != dark);

    const auto rules = [](QString text) {
        return text.remove(QRegularExpression(QStringLiteral("rgba\\([^)]*\\)|/Dark")));
    };
    QCOMPARE(rules(light), rules(dark));
}

void TestStylesheets::gridGivesItsPageToThePainters_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<bool>("bright");
    QTest::newRow("light") << 0 << true;
    QTest::newRow("dark") << 1 << false;
}

// Cells are cleared with the base colour of the palette, which has to be the page of the theme.
void TestStylesheets::gridGivesItsPageToThePainters()
{
    QFETCH(int, theme);
    QFETCH(bool, bright);

    setTheme(theme);
    QWidget page;
    QListView grid(&page);
    grid.setObjectName(QStringLiteral("listView"));
    page.setStyleSheet(sheet("sdcardcontentdatawidget"));
    grid.ensurePolished();
    const QColor base = grid.palette().color(QPalette::Base);
    QCOMPARE(base.alpha(), 255);
    QCOMPARE(base.lightness() > 127, bright);
}

void TestStylesheets::pageTextsAreReadable_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"scantitlelabel", "scansubtitlelabel", "selectAlllabel",
                             "labNoDataTitle", "labNoDataText", "labLoadingTitle", "labLoadingText",
                             "labNoFilterTitle", "labNoFilterText"}) {
        QTest::addRow("%s, light", name) << 0 << QByteArray(name);
        QTest::addRow("%s, dark", name) << 1 << QByteArray(name);
    }
}

void TestStylesheets::pageTextsAreReadable()
{
    QFETCH(int, theme);
    QFETCH(QByteArray, name);

    setTheme(theme);
    QWidget page;
    QWidget ground(&page);
    ground.setObjectName(QStringLiteral("nodatapage"));
    QLabel label(&ground);
    label.setObjectName(QLatin1String(name));
    page.setStyleSheet(sheet("sdcardcontentdatawidget"));
    ground.ensurePolished();
    label.ensurePolished();

    const QColor text = label.palette().color(QPalette::WindowText);
    const double reached = contrast(text, ground.palette().color(QPalette::Window));
    QVERIFY2(reached >= 4.5, qPrintable(QString::number(reached)));
}

QTEST_MAIN(TestStylesheets)
#include "tst_stylesheets.moc"
