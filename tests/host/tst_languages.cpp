#include "host/app/languages.h"
#include "support/datarow.h"

#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <QTest>
#include <QWidget>

namespace {

/// Counts how often it has to say everything anew.
class Reader : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void spellings_data();
    void spellings();
    void aSwitchIsToldOnce();
};

void TestLanguages::spellings_data()
{
    addColumns<QString, QString>({"spelling", "name"});
    addRow("as it stands", "Chinese Simplified", "Chinese Simplified");
    addRow("small letters and a hyphen", "chinese-simplified", "Chinese Simplified");
    addRow("in one word", "ChineseSimplified", "Chinese Simplified");
    addRow("underscore, spaces around", " CHINESE_traditional ", "Chinese Traditional");
    addRow("code", "de", "German");
    addRow("code with a land", "zh_CN", "Chinese Simplified");
    addRow("locale", "ZH-tw", "Chinese Traditional");
    addRow("its own name", QString::fromUtf8("日本語"), "Japanese");
    addRow("its own name in capitals", QString::fromUtf8("FRANÇAIS"), "French");
    addRow("its own name, accent apart", QString::fromUtf8("Franc\u0327ais"), "French");
    addRow("right to left", QString::fromUtf8("العربية"), "Arab");
    addRow("as people call it", "dutch", "Netherland");
    addRow("Hindi", "hi-in", "Hindi");
    addRow("unknown", "Klingon", "");
    addRow("only a part", "Chinese", "");
    addRow("a land of ours, a language of none", "xx-de", "");
    addRow("nothing", "", "");
    addRow("nothing but marks", " -_", "");
}

void TestLanguages::spellings()
{
    QFETCH(QString, spelling);
    QFETCH(QString, name);
    const Language *language = Languages::find(spelling);
    QCOMPARE(language ? QString::fromLatin1(language->name) : QString(), name);
}

void TestLanguages::aSwitchIsToldOnce()
{
    Reader reader;
    reader.show();
    Languages::apply(*Languages::find(QStringLiteral("English")));
    QTRY_COMPARE(reader.changes, 1);
    QCOMPARE(QCoreApplication::translate("Texts", "%Ln file(s)", nullptr, 1), QString("1 file"));
    QCOMPARE(QCoreApplication::translate("Texts", "%Ln file(s)", nullptr, 2000),
             QString("2,000 files"));
    Languages::apply(*Languages::find(QStringLiteral("ar")));
    QTRY_COMPARE(reader.changes, 2);
    QVERIFY(reader.isRightToLeft());
    QCOMPARE(QLocale().language(), QLocale::Arabic);
    Languages::apply(*Languages::find(QStringLiteral("de")));
    QTRY_COMPARE(reader.changes, 3);
    QVERIFY(!reader.isRightToLeft());
    QCOMPARE(QLocale().toString(1234567), QString("1.234.567"));
    QCOMPARE(QString::fromLatin1(Languages::current()->code), QString("de"));
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
