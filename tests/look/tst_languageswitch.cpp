#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>

#include <memory>

/// A page that is on the screen while the language changes must end up as one that was opened in
/// that language: texts, dates, sizes, fonts, directions, and whatever was kept of the old ones.
class TestLanguageSwitch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pages_data();
    void pages();

private:
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

/// What is around all pixels that differ.
QRect difference(const QImage &one, const QImage &other)
{
    QRect around;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                around |= QRect(x, y, 1, 1);
        }
    }
    return around;
}

} // namespace

void TestLanguageSwitch::initTestCase()
{
    // high enough for every row that the pages click: nothing scrolls later on
    m_stage = std::make_unique<Stage>(QSize(900, 840));
    QVERIFY(m_stage->load());
}

void TestLanguageSwitch::pages_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");

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

    const auto picture = [this] {
        Stage::settle(SettleMs);
        leave(m_stage->items());
        return m_stage->picture(1);
    };
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

QTEST_MAIN(TestLanguageSwitch)
#include "tst_languageswitch.moc"
