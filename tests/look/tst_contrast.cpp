#include "look/contrast.h"
#include "look/seenwidgets.h"
#include "support/datarow.h"
#include "tools/screenshots/pages.h"
#include "tools/screenshots/stage.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include <memory>

namespace {

constexpr QSize Window(900, 620);
constexpr qreal Scale = 3; // at one pixel a unit a thin letter never reaches its colour
constexpr double TextContrast = 4.5;
constexpr double MarkContrast = 3;
constexpr double ReadableVeil = 1.5; // changes by less than this
constexpr double VisibleBand = 1.8;

// Of cards and rows, as their painters place them.
constexpr int BoxInset = 8;
constexpr int BoxSide = 16;
constexpr int NameStrip = 42;
constexpr int SortMarkRoom = 22;
constexpr int HeaderFontPixels = 12;

} // namespace

/// Reads the contrast of texts and marks off the rendered pages, whatever chose their colours.
class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void texts_data();
    void texts();
    void headerTexts_data() { themes(); }
    void headerTexts();
    void checkBoxes_data();
    void checkBoxes();
    void marks_data() { themes(); }
    void marks();
    void scrollBars_data() { themes(); }
    void scrollBars();
    void focus_data();
    void focus();
    void selection_data();
    void selection();
    void rubberBand_data() { selection_data(); }
    void rubberBand();

private:
    static void themes();
    void prepare(const QString &page);
    QRect inWindow(const QWidget *widget, const QRect &rect) const;
    QRect cell(int row, int column = 0) const;
    QHeaderView *header() const;
    QRect headerSection(int section) const;
    void verifyTexts(const QImage &picture);

    std::unique_ptr<Stage> m_stage;
    int m_texts = 0;
};

void TestContrast::initTestCase()
{
    m_stage = std::make_unique<Stage>(Window);
    QVERIFY(m_stage->load());
    m_stage->setLanguage(QStringLiteral("English"));
}

void TestContrast::cleanup()
{
    m_stage->setOnDialog({});
    m_stage->window().resize(Window);
}

void TestContrast::themes()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"light", "dark"})
        QTest::newRow(theme) << QString::fromLatin1(theme);
}

void TestContrast::prepare(const QString &page)
{
    QFETCH(QString, theme);
    m_stage->setTheme(theme);
    Pages::prepare(page, *m_stage);
}

QRect TestContrast::inWindow(const QWidget *widget, const QRect &rect) const
{
    return rect.translated(widget->mapTo(&m_stage->window(), QPoint()));
}

QRect TestContrast::cell(int row, int column) const
{
    const QAbstractItemView *view = m_stage->items();
    return inWindow(view->viewport(), view->visualRect(view->model()->index(row, column)));
}

QHeaderView *TestContrast::header() const
{
    return qobject_cast<QTableView *>(m_stage->items())->horizontalHeader();
}

QRect TestContrast::headerSection(int section) const
{
    const QRect rect(header()->sectionViewportPosition(section), 0, header()->sectionSize(section),
                     header()->height() - 1);
    return inWindow(header()->viewport(), rect);
}

// Texts ----------------------------------------------------------------------------------------

void TestContrast::texts_data()
{
    addColumns<QString, QString>({"page", "theme"});
    const QStringList pages = Pages::names();
    for (const QString &page : pages) {
        for (const char *theme : {"light", "dark"})
            QTest::addRow("%s, %s", qPrintable(page), theme) << page << QString::fromLatin1(theme);
    }
}

void TestContrast::verifyTexts(const QImage &picture)
{
    const auto found = SeenWidgets::all(&m_stage->window());
    for (const SeenWidget &seen : found) {
        const auto *label = qobject_cast<QLabel *>(seen.widget);
        const auto *button = qobject_cast<QPushButton *>(seen.widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        if (text.isEmpty() || !seen.widget->isEnabled()
            || seen.widget->visibleRegion().boundingRect() != seen.widget->rect())
            continue;
        constexpr int Border = 3;
        const QRect area = seen.rect.adjusted(Border, Border, -Border, -Border);
        const double contrast = Contrast::reached(picture, area, Contrast::ground(picture, area));
        ++m_texts;
        QVERIFY2(contrast >= TextContrast,
                 qPrintable(QStringLiteral("%1 '%2' %3").arg(seen.path, text).arg(contrast)));
    }
}

void TestContrast::texts()
{
    QFETCH(QString, page);

    m_texts = 0;
    m_stage->setOnDialog([this] { verifyTexts(m_stage->picture(Scale)); });
    prepare(page);
    verifyTexts(m_stage->picture(Scale));
    QVERIFY(m_texts > 0 || page == QLatin1String("list-search"));
}

void TestContrast::headerTexts()
{
    prepare(QStringLiteral("list-search"));
    const QImage picture = m_stage->picture(Scale);
    for (int section = 0; section < header()->count(); ++section) {
        const int from = section == 0 ? BoxInset + BoxSide + 2 : 0;
        const QRect area = headerSection(section).adjusted(from, 4, 0, -4);
        const double contrast = Contrast::reached(picture, area, Contrast::ground(picture, area));
        QVERIFY2(contrast >= TextContrast, qPrintable(QString::number(contrast)));
    }
}

// Marks ----------------------------------------------------------------------------------------

void TestContrast::checkBoxes_data()
{
    addColumns<QString, QString, QVector<int>>({"page", "theme", "rows"});
    for (const char *theme : {"light", "dark"}) {
        const QString name = QString::fromLatin1(theme);
        QTest::addRow("cards, %s", theme)
            << QStringLiteral("grid") << name << QVector<int>{0, 1, 2, 7};
        QTest::addRow("cards of folders, %s", theme)
            << QStringLiteral("grid-kinds") << name << QVector<int>{0, 1, 2};
        QTest::addRow("rows, %s", theme)
            << QStringLiteral("list-pane") << name << QVector<int>{0, 1, 3};
    }
}

void TestContrast::checkBoxes()
{
    QFETCH(QString, page);
    QFETCH(QVector<int>, rows);

    prepare(page);
    const QImage picture = m_stage->picture(1);
    const bool list = qobject_cast<QTableView *>(m_stage->items());
    for (const int row : rows) {
        const QRect area = cell(row);
        const int y = list ? area.top() + (area.height() - BoxSide) / 2 : area.top() + BoxInset;
        const QRect box(area.left() + BoxInset, y, BoxSide, BoxSide);
        const QRgb around = Contrast::ground(picture, box.adjusted(-2, -2, 2, 2), box);
        const double contrast = Contrast::reached(picture, box, around);
        QVERIFY2(contrast >= MarkContrast,
                 qPrintable(QStringLiteral("row %1: %2").arg(row).arg(contrast)));
    }
}

void TestContrast::marks()
{
    prepare(QStringLiteral("grid"));
    QImage picture = m_stage->picture(1);
    const auto verify = [&](const QString &what, const QRect &area) {
        const double contrast = Contrast::reached(picture, area, Contrast::ground(picture, area));
        QVERIFY2(contrast >= MarkContrast,
                 qPrintable(QStringLiteral("%1: %2").arg(what).arg(contrast)));
    };
    const auto buttons = m_stage->window().findChildren<QPushButton *>();
    int found = 0;
    for (const QPushButton *button : buttons) {
        if (!button->isVisible() || !button->property("state").isValid())
            continue;
        const QRect rect = inWindow(button, button->rect());
        verify(button->text(),
               QRect(rect.right() - SortMarkRoom + 3, rect.top() + 3, SortMarkRoom - 4,
                     rect.height() - 6));
        ++found;
    }
    QCOMPARE(found, 4);

    prepare(QStringLiteral("list-pane"));
    picture = m_stage->picture(1);
    for (int section = 1; section < 4; ++section) {
        const QRect rect = headerSection(section);
        QFont font(QStringLiteral("Segoe UI"));
        font.setPixelSize(HeaderFontPixels);
        const int text = QFontMetrics(font).horizontalAdvance(
            header()->model()->headerData(section, Qt::Horizontal).toString());
        verify(QString::number(section), rect.adjusted(8 + text + 2, 4, -2, -4));
    }
    prepare(QStringLiteral("menu"));
    picture = m_stage->picture(1);
    const auto widgets = SeenWidgets::all(&m_stage->window());
    for (const SeenWidget &seen : widgets) {
        if (seen.widget->objectName() == QLatin1String("lblIcon"))
            verify(seen.path, seen.rect);
    }
}

void TestContrast::scrollBars()
{
    for (const char *page : {"grid", "list-pane"}) {
        prepare(QString::fromLatin1(page));
        const QImage picture = m_stage->picture(Scale);
        const auto bars = m_stage->window().findChildren<QScrollBar *>();
        int found = 0;
        for (const QScrollBar *bar : bars) {
            if (!bar->isVisible() || bar->width() == 0)
                continue;
            const QRect rect = inWindow(bar, bar->rect());
            const QRect last(rect.left(), rect.bottom() - 3, rect.width(), 3); // below the handle
            const double contrast = Contrast::reached(picture, rect,
                                                      Contrast::ground(picture, last));
            QVERIFY2(contrast >= MarkContrast,
                     qPrintable(QStringLiteral("%1: %2").arg(bar->objectName()).arg(contrast)));
            ++found;
        }
        QVERIFY(found > 0);
    }
}

void TestContrast::focus_data()
{
    addColumns<QString, QString, QString>({"page", "name", "theme"});
    for (const char *theme : {"light", "dark"}) {
        for (const char *name : {"allCheckButton", "nameButton"})
            QTest::addRow("%s, %s", name, theme)
                << QStringLiteral("grid") << QString::fromLatin1(name)
                << QString::fromLatin1(theme);
        QTest::addRow("openButton, %s", theme)
            << QStringLiteral("list-pane") << QStringLiteral("openButton")
            << QString::fromLatin1(theme);
    }
}

void TestContrast::focus()
{
    QFETCH(QString, page);
    QFETCH(QString, name);

    prepare(page);
    m_stage->window().activateWindow();
    m_stage->items()->setFocus();
    QWidget *button = nullptr;
    const auto candidates = m_stage->window().findChildren<QWidget *>(name);
    for (QWidget *candidate : candidates) {
        if (candidate->isVisible())
            button = candidate;
    }
    QVERIFY(button);
    const QImage before = m_stage->picture(Scale);
    button->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(button->hasFocus());
    const QImage after = m_stage->picture(Scale);
    const double contrast = Contrast::change(before, after, inWindow(button, button->rect()));
    QVERIFY2(contrast >= MarkContrast, qPrintable(QString::number(contrast)));
}

void TestContrast::selection_data()
{
    addColumns<QString, QString>({"page", "theme"});
    for (const char *theme : {"light", "dark"}) {
        for (const char *page : {"grid", "list-kinds"})
            QTest::addRow("%s, %s", page, theme)
                << QString::fromLatin1(page) << QString::fromLatin1(theme);
    }
}

void TestContrast::selection()
{
    QFETCH(QString, page);

    prepare(page);
    m_stage->click(2);
    const QImage selected = m_stage->picture(Scale);
    m_stage->click(3);
    const QImage plain = m_stage->picture(Scale);
    QRect area = cell(2).adjusted(0, 0, 0, -NameStrip); // not where the mouse changes something
    if (qobject_cast<QTableView *>(m_stage->items()))
        area = QRect(cell(2).right() - 40, cell(2).top(), 40, cell(2).height());
    const double contrast = Contrast::change(plain, selected, area);
    QVERIFY2(contrast >= MarkContrast, qPrintable(QString::number(contrast)));
}

/// What the band covers stays as readable as it was, and the band is seen.
void TestContrast::rubberBand()
{
    QFETCH(QString, page);

    prepare(page);
    const QRect band = inWindow(m_stage->items()->viewport(), m_stage->drawBand(1, 3));
    const QImage shown = m_stage->picture(Scale);
    m_stage->releaseBand();
    const QImage gone = m_stage->picture(Scale);
    const QRect inside = band.adjusted(2, 2, -2, -2);

    QVERIFY(Contrast::change(gone, shown, band.adjusted(-1, -1, 1, 1)) > VisibleBand);
    QVERIFY(Contrast::change(gone, shown, inside) < ReadableVeil);
}

QTEST_MAIN(TestContrast)
#include "tst_contrast.moc"
