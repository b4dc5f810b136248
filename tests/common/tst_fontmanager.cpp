#include "common/fontmanager.h"
#include "platform/system/system.h"
#include "support/datarow.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QTest>
#include <QWidget>

class TestFontManager : public QObject
{
    Q_OBJECT

private slots:
    void families_data();
    void families();
    void weights_data();
    void weights();
    void semiboldIsBolder();
    void releaseLeavesNoPointerBehind();
};

void TestFontManager::families_data()
{
    addColumns<QString, QString, QString>({"language", "family", "semibold"});

    const QString segoe = QStringLiteral("Segoe UI");
    const QString semibold = QStringLiteral("Segoe UI Semibold");
    const auto row = [](const QString &language, const QString &family, const QString &bold) {
        QTest::newRow(qPrintable(language)) << language << family << bold;
    };
    row(QStringLiteral("English (United States)"), segoe, semibold);
    row(QStringLiteral("Netherland"), segoe, semibold);
    row(QStringLiteral("Japanese"), QStringLiteral("Yu Gothic UI"), QStringLiteral("Yu Gothic UI"));
    row(QStringLiteral("japanese"), segoe, semibold);
    row(QStringLiteral("Korean"), QStringLiteral("Malgun Gothic"), QStringLiteral("Malgun Gothic"));
    for (const char *name :
         {"Chinese Simplified", "ChineseSimplified", "Chinese Traditional", "ChineseTraditional"})
        row(QLatin1String(name), QStringLiteral("Microsoft JhengHei UI"),
            QStringLiteral("Microsoft JhengHei UI"));
    row(QStringLiteral("Chinese"), segoe, semibold);
    row(QStringLiteral("Japanese for English"), segoe, semibold); // the first group decides
    row(QStringLiteral("Hindi"), segoe, semibold);
    row(QString(), segoe, semibold);
}

void TestFontManager::families()
{
    QFETCH(QString, language);
    QFETCH(QString, family);
    QFETCH(QString, semibold);

    FontManager *manager = FontManager::instance();
    manager->setLanguage(QStringLiteral("Korean"));
    QVERIFY(QMetaObject::invokeMethod(manager, "setLanguage", Q_ARG(QString, language)));
    QCOMPARE(manager->family(), family);
    QCOMPARE(manager->language(), language);
    QCOMPARE(manager->getFont(14, 400).family(), family);
    QCOMPARE(manager->getFont(false).family(), family);
    QCOMPARE(manager->getFont(true).family(), semibold);
    QCOMPARE(FontManager::getFixedFont(14, 400).family(), QStringLiteral("Segoe UI"));
}

void TestFontManager::weights_data()
{
    addColumns<int, int>({"css", "weight"});

    QTest::newRow("normal") << 400 << int(QFont::Normal);
    QTest::newRow("semibold") << 600 << int(QFont::DemiBold);
    QTest::newRow("bold") << 700 << int(QFont::Bold);
    QTest::newRow("below all") << -1 << int(QFont::Thin);
    QTest::newRow("above all") << 5000 << int(QFont::Black);
}

void TestFontManager::weights()
{
    QFETCH(int, css);
    QFETCH(int, weight);

    QCOMPARE(FontManager::instance()->getFont(14, css).weight(), weight);
    QWidget widget;
    FontManager::instance()->setWidgetFont(&widget, 16, css);
    QCOMPARE(widget.font().weight(), weight);
    QCOMPARE(widget.font().pixelSize(), 16);
}

void TestFontManager::semiboldIsBolder()
{
    FontManager *manager = FontManager::instance();
    manager->setLanguage(QStringLiteral("English"));
    System::registerFontSubstitutes();
    if (QFontDatabase().styles(QFontInfo(manager->getFont(true)).family()).size() < 2)
        QSKIP("this machine has no bolder font");
    QFont normal = manager->getFont(false);
    QFont semibold = manager->getFont(true);
    normal.setPixelSize(40);
    semibold.setPixelSize(40);
    const QString text = QStringLiteral("Recoverability");
    QVERIFY(QFontMetrics(semibold).horizontalAdvance(text)
            > QFontMetrics(normal).horizontalAdvance(text));
}

void TestFontManager::releaseLeavesNoPointerBehind()
{
    FontManager::instance()->setLanguage(QStringLiteral("Korean"));
    FontManager::release();
    QVERIFY(!qApp->property("FontManager").value<void *>());
    FontManager::release();
    QCOMPARE(FontManager::instance()->family(), QStringLiteral("Segoe UI"));
    QCOMPARE(qApp->property("FontManager").value<void *>(),
             static_cast<void *>(FontManager::instance()));
}

QTEST_MAIN(TestFontManager)
#include "tst_fontmanager.moc"
