#include "host/app/languages.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTest>
#include <QWidget>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QStringList texts; // one, or one a plural form
    bool isFinished = true;
};

QString keyOf(const Message &message)
{
    return message.context + QLatin1String(": ") + message.source;
}

QMap<QString, Message> readCatalogue(const QString &path)
{
    QMap<QString, Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    Message message;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::EndElement
            && xml.name() == QLatin1String("message"))
            messages.insert(keyOf(message), message);
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            message = Message();
            message.context = context;
        } else if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (!text.trimmed().isEmpty() && message.texts.isEmpty())
                message.texts.append(text);
        }
    }
    return messages;
}

/// "%1", "%2", "%L1": what a translation must not lose. "%Ln" may be: one form may say "one file".
QStringList placesIn(const QString &text)
{
    static const QRegularExpression s_place(QStringLiteral("%L?\\d"));
    QSet<QString> places;
    for (auto it = s_place.globalMatch(text); it.hasNext();)
        places.insert(it.next().captured());
    QStringList sorted = places.values();
    sorted.sort();
    return sorted;
}

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
    void cataloguesAreComplete_data();
    void cataloguesAreComplete();
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

void TestLanguages::cataloguesAreComplete_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QStringLiteral(CATALOGUE_FOLDER));
    const QStringList files = folder.entryList({QStringLiteral("quarvo-host_*.ts")});
    QVERIFY(files.contains(QStringLiteral("quarvo-host_en.ts")));
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void TestLanguages::cataloguesAreComplete()
{
    QFETCH(QString, file);
    const auto wanted = readCatalogue(QStringLiteral(CATALOGUE_FOLDER "/quarvo-host_en.ts"));
    const auto messages = readCatalogue(file);
    QVERIFY(wanted.size() > 100);
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        QVERIFY2(messages.contains(it.key()), qPrintable(it.key()));
        const Message &message = messages[it.key()];
        QVERIFY2(message.isFinished && !message.texts.isEmpty(), qPrintable(it.key()));
        QVERIFY2(placesIn(message.texts.first()) == placesIn(message.source), qPrintable(it.key()));
    }
    const QString code = QFileInfo(file).baseName().section(QLatin1Char('_'), 1);
    QVERIFY2(Languages::find(code), "a language that nobody can choose");
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
