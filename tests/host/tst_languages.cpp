#include "host/app/languages.h"

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
    QTest::addColumn<QString>("spelling");
    QTest::addColumn<QString>("name");
    QTest::newRow("as it stands") << "Chinese Simplified"
                                  << "Chinese Simplified";
    QTest::newRow("small letters and a hyphen") << "chinese-simplified"
                                                << "Chinese Simplified";
    QTest::newRow("in one word") << "ChineseSimplified"
                                 << "Chinese Simplified";
    QTest::newRow("underscore, spaces around") << " CHINESE_traditional "
                                               << "Chinese Traditional";
    QTest::newRow("code") << "de"
                          << "German";
    QTest::newRow("code with a land") << "zh_CN"
                                      << "Chinese Simplified";
    QTest::newRow("locale") << "ZH-tw"
                            << "Chinese Traditional";
    QTest::newRow("its own name") << QString::fromUtf8("日本語") << "Japanese";
    QTest::newRow("its own name in capitals") << QString::fromUtf8("FRANÇAIS") << "French";
    QTest::newRow("its own name, accent apart") << QString::fromUtf8("Franc\u0327ais") << "French";
    QTest::newRow("right to left") << QString::fromUtf8("العربية") << "Arab";
    QTest::newRow("as people call it") << "dutch"
                                       << "Netherland";
    QTest::newRow("Hindi") << "hi-in"
                           << "Hindi";
    QTest::newRow("unknown") << "Klingon"
                             << "";
    QTest::newRow("only a part") << "Chinese"
                                 << "";
    QTest::newRow("a land of ours, a language of none") << "xx-de"
                                                        << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("nothing but marks") << " -_"
                                       << "";
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
