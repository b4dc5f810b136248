#include "support/datarow.h"
#include "support/pixels.h"
#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <memory>

/// A page that is on the screen while the language changes must end up as one that was opened in
/// that language: texts, dates, sizes, fonts, directions, and whatever was kept of the old ones. So
/// must one whose theme changes, even while nobody sees it.
class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pages_data();
    void pages();
    void themes_data();
    void themes();

private:
    QImage picture();

    std::unique_ptr<Stage> m_stage;
};

namespace {

constexpr int SettleMs = 100; // layouts take several rounds

/// The mouse is somewhere else when the items have changed sides.
void leave(QAbstractItemView *items)
{
    QEvent event(QEvent::Leave);
    if (items)
        QApplication::sendEvent(items->viewport(), &event);
}

} // namespace

void TestLanguageSwitch::initTestCase()
{
    // high enough for every row that the pages click: nothing scrolls later on
    m_stage = std::make_unique<Stage>(QSize(900, 840));
    QVERIFY(m_stage->load());
}

QImage TestLanguageSwitch::picture()
{
    Stage::settle(SettleMs);
    leave(m_stage->items());
    return m_stage->picture(1);
}

void TestLanguageSwitch::pages_data()
{
    addColumns<QString, QString, QString>({"page", "from", "to"});

    const QStringList names = Pages::names();
    for (const QString &page : names) {
        // what moves, goes away when anything happens or hangs at the mouse cannot be compared
        static const QStringList s_fleeting{"scanning", "how-to-find", "text-menu",
                                            "tooltip",  "grid-band",   "list-band"};
        if (s_fleeting.contains(page))
            continue;
        const QByteArray name = page.toLatin1();
        QTest::addRow("%s to German", name.constData()) << page << "English"
                                                        << "German";
        if (page == QLatin1String("menu"))
            continue; // it stays at the mouse when the items change sides
        QTest::addRow("%s to Arabic", name.constData()) << page << "Japanese"
                                                        << "Arab";
        QTest::addRow("%s to Japanese", name.constData()) << page << "Arab"
                                                          << "Japanese";
    }
}

void TestLanguageSwitch::pages()
{
    QFETCH(QString, page);
    QFETCH(QString, from);
    QFETCH(QString, to);

    m_stage->setLanguage(to);
    Pages::prepare(page, *m_stage);
    const QImage opened = picture();
    m_stage->setLanguage(from);
    Pages::prepare(page, *m_stage);
    QVERIFY(picture() != opened);
    m_stage->setLanguage(to);
    const QImage switched = picture();

    QCOMPARE(switched.size(), opened.size());
    QCOMPARE(difference(switched, opened), QRect());
}

void TestLanguageSwitch::themes_data()
{
    addColumns<QString, bool>({"page", "seen"});
    for (const char *page : {"grid", "grid-search", "list-pane", "list-kinds", "search-hint"}) {
        QTest::addRow("%s, in sight", page) << QString::fromLatin1(page) << true;
        QTest::addRow("%s, out of sight", page) << QString::fromLatin1(page) << false;
    }
}

void TestLanguageSwitch::themes()
{
    QFETCH(QString, page);
    QFETCH(bool, seen);

    m_stage->setLanguage(QStringLiteral("English"));
    m_stage->setTheme(QStringLiteral("dark"));
    Pages::prepare(page, *m_stage);
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus();
    const QImage opened = picture();
    m_stage->setTheme(QStringLiteral("light"));
    Pages::prepare(page, *m_stage);
    QVERIFY(picture() != opened);
    m_stage->window().setVisible(seen);
    m_stage->view()->updateTheme(DarkTheme);
    m_stage->window().show();
    const QImage atOnce = m_stage->picture(1);
    Stage::settle(SettleMs);
    if (QWidget *focused = QApplication::focusWidget())
        focused->clearFocus(); // a window that is shown again gives it to somebody
    const QImage switched = picture();
    m_stage->setTheme(QStringLiteral("light"));

    QCOMPARE(difference(switched, opened), QRect());
    QCOMPARE(difference(atOnce, opened), QRect());
}

QTEST_MAIN(TestLanguageSwitch)
#include "tst_languageswitch.moc"
