#include "common/qssloader.h"
#include "support/datarow.h"

#include <QCoreApplication>
#include <QFile>
#include <QListView>
#include <QRegularExpression>
#include <QTest>

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
};

void TestStylesheets::isUnderstood_data()
{
    addColumns<int, QByteArray>({"theme", "name"});
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
    addColumns<int, bool>({"theme", "bright"});
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

QTEST_MAIN(TestStylesheets)
#include "tst_stylesheets.moc"
