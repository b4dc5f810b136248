#include "common/commonfunction.h"
#include "common/fontmanager.h"
#include "common/thememanager.h"
#include "platform/system/system.h"
#include "popups/aisearchhintframe.h"
#include "popups/searchdialog.h"
#include "popups/searchhintframe.h"
#include "support/datarow.h"
#include "support/eventcounter.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QTranslator>

#include <functional>
#include <memory>

namespace {

/// Every text becomes as long as a wordy language makes it.
class LongTexts : public QTranslator
{
public:
    LongTexts() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *key, const char *, int) const override
    {
        if (qstrcmp(context, "QuarvoTRS") != 0)
            return {};
        const QLatin1String name(key);
        if (name == QLatin1String("missing_original_filenames"))
            return text(7) + QStringLiteral(" <a href=\"#\">Wiederherstellung</a>");
        if (name.endsWith(QLatin1String("title")) || name.endsWith(QLatin1String("result"))
            || name.startsWith(QLatin1String("how_to")))
            return text(4);
        return text(name == QLatin1String("got_it") ? 1 : 7);
    }

private:
    static QString text(int words)
    {
        return QStringLiteral("Wiederherstellung ").repeated(words).trimmed();
    }
};

void setLanguage(const char *name)
{
    FontManager::instance()->setLanguage(QString::fromLatin1(name));
}

/// All labels of \a page that are shown lie inside of it, have room for their texts and do not
/// overlap.
void checkLabels(const QWidget *page)
{
    QVector<QRect> taken;
    const auto labels = page->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->isVisibleTo(page))
            continue;
        const QRect place(label->mapTo(page, QPoint()), label->size());
        const QByteArray name = label->objectName().toLatin1();
        QVERIFY2(page->rect().contains(place), name.constData());
        if (label->wordWrap())
            QVERIFY2(label->heightForWidth(label->width()) <= label->height(), name.constData());
        for (const QRect &other : qAsConst(taken))
            QVERIFY2(!other.intersects(place), name.constData());
        taken.append(place);
    }
    QVERIFY(taken.size() >= 4);
}

/// Shows \a page with all that follows from it: the focus comes after the first layout.
void showSettled(QWidget *page)
{
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page));
    QCoreApplication::processEvents();
}

std::unique_ptr<QFrame> makeFrame(bool described)
{
    if (described)
        return std::make_unique<AISearchHintFrame>();
    return std::make_unique<SearchHintFrame>();
}

QImage pictureOf(const QWidget *page)
{
    return page->findChild<QLabel *>(QStringLiteral("labelImage"))
        ->pixmap(Qt::ReturnByValue)
        .toImage();
}

/// Follows the link of \a page, by mouse or key, and runs \a look on the dialog that it opens.
void followLink(QWidget *page, const std::function<void(SearchDialog *)> &look, bool byKey = false)
{
    bool opened = false;
    QTimer::singleShot(0, page, [&] {
        const QPointer<SearchDialog> dialog = qobject_cast<SearchDialog *>(
            QApplication::activeModalWidget());
        QVERIFY(dialog);
        opened = true;
        look(dialog);
        if (dialog) // a failed check must not leave it open
            dialog->reject();
    });
    auto *tip = page->findChild<QLabel *>(QStringLiteral("labelTip1"));
    if (byKey)
        QTest::keyClick(tip, Qt::Key_Return);
    else
        emit tip->linkActivated({});
    QVERIFY(opened);
}

} // namespace

class TestSearchHints : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void pagesFit_data();
    void pagesFit();
    void columnStandsInTheMiddle();
    void tipsAreNumberedOnce();
    void imageName_data();
    void imageName();
    void imageFollowsTheme();
    void missingPicturesLeaveTheTexts();
    void dialogFitsTheScreen_data();
    void dialogFitsTheScreen();
    void linkOpensTheDialogOverAMask();
    void linkWorksByKeyboard();
    void keysClose_data()
    {
        addRows<int>("key",
                     {{"Escape", int(Qt::Key_Escape)},
                      {"Return", int(Qt::Key_Return)},
                      {"Enter", int(Qt::Key_Enter)},
                      {"Space", int(Qt::Key_Space)}});
    }
    void keysClose();
    void focusIsShownToTheKeyboard();
    void mouseMovesTheDialog();
    void windowMayGoWhileTheDialogIsOpen();
};

void TestSearchHints::initTestCase()
{
    System::registerFontSubstitutes();
}

void TestSearchHints::init()
{
    ThemeManager::instance()->setThemeType(LightTheme);
    setLanguage("English");
}

void TestSearchHints::pagesFit_data()
{
    addColumns<bool, QSize, bool>({"described", "size", "picture"});
    for (bool described : {false, true}) {
        const char *name = described ? "described" : "by name";
        QTest::addRow("%s, as designed", name) << described << QSize(1077, 584) << true;
        QTest::addRow("%s, low", name) << described << QSize(440, described ? 360 : 330) << false;
        QTest::addRow("%s, narrow", name) << described << QSize(300, 720) << true;
        QTest::addRow("%s, 4K", name) << described << QSize(3840, 2160) << true;
    }
}

void TestSearchHints::pagesFit()
{
    QFETCH(bool, described);
    QFETCH(QSize, size);
    const LongTexts texts;
    const auto page = makeFrame(described);
    page->resize(size);
    showSettled(page.get());
    QTEST(page->findChild<QLabel *>(QStringLiteral("labelImage"))->isVisible(), "picture");
    EventCounter requests(page.get(), QEvent::LayoutRequest);
    QCoreApplication::processEvents();
    QCOMPARE(requests.count, 0); // it has come to rest
    checkLabels(page.get());
}

void TestSearchHints::columnStandsInTheMiddle()
{
    for (bool described : {false, true}) {
        const auto page = makeFrame(described);
        page->resize(2000, 1200);
        showSettled(page.get());
        const QRect column = page->layout()->contentsRect();
        QCOMPARE(column.width(), 468);
        QCOMPARE(column.center().x(), page->rect().center().x());
        const auto *tip = page->findChild<QLabel *>(QStringLiteral("labelTip2"));
        QCOMPARE(tip->x(), column.x());
        const int above = page->findChild<QLabel *>(QStringLiteral("labelImage"))->y();
        const int below = page->height()
            - page->findChild<QLabel *>(QStringLiteral("labelTip3"))->geometry().bottom();
        QVERIFY(qAbs(above - below) < 4);
    }
}

void TestSearchHints::tipsAreNumberedOnce()
{
    const auto textOf = [](const QFrame &page, const char *name) {
        return page.findChild<QLabel *>(QLatin1String(name))->text();
    };
    const AISearchHintFrame described;
    QCOMPARE(textOf(described, "labelTip2"), QStringLiteral("2. ai_search_empty_tip2"));
    const SearchHintFrame named;
    QCOMPARE(textOf(named, "labelTip2"), QStringLiteral("scandataview_search_hint_wait_scan"));
}

void TestSearchHints::imageName_data()
{
    addColumns<QString, QString>({"language", "suffix"});
    const auto row = [](const char *language, const char *suffix) {
        QTest::newRow(language) << QString::fromLatin1(language) << QString::fromLatin1(suffix);
    };
    row("Arab", "AR");
    row("Swiss German", "DE");
    row("Italiano", "IT");
    row("Portuguese (Brazil)", "PT");
    row("Russian", "RUS");
    row("Chinese Simplified", "TCH");
    row("ChineseTraditional", "TCH");
    row("Hindi", "IND");
    row("Indonesia", "ID");
    row("Thai", "THA");
    row("German or French", "DE"); // the earlier of two
    row("german", "EN");
    row("Klingon", "EN");
    row("", "EN");
}

void TestSearchHints::imageName()
{
    QFETCH(QString, language);
    QFETCH(QString, suffix);
    QCOMPARE(SearchDialog::imageName(language),
             QStringLiteral("image_SDCardUnsourcedFiles_Win-") + suffix);
}

void TestSearchHints::imageFollowsTheme()
{
    setLanguage("Japanese");
    SearchDialog dialog;
    const QString name = QStringLiteral("unsourcefiles/image_SDCardUnsourcedFiles_Win-JP");
    QCOMPARE(pictureOf(&dialog),
             CommonFunction::highDpiPixmap(QStringLiteral(":Images/") + name).toImage());
    ThemeManager::instance()->setThemeType(DarkTheme);
    dialog.updateTheme();
    QCOMPARE(pictureOf(&dialog),
             CommonFunction::highDpiPixmap(QStringLiteral(":Images/Dark/") + name).toImage());
}

void TestSearchHints::missingPicturesLeaveTheTexts()
{
    const auto check = [](QWidget *page) {
        showSettled(page);
        QVERIFY(!page->findChild<QLabel *>(QStringLiteral("labelImage"))->isVisible());
        checkLabels(page);
    };
    Q_CLEANUP_RESOURCE(scanimages);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("missing picture .*image142_Search"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("missing picture .*image200_No scan"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("missing picture .*_Win-EN"));
    SearchHintFrame named;
    AISearchHintFrame described;
    SearchDialog dialog;
    check(&named);
    check(&described);
    check(&dialog);
    Q_INIT_RESOURCE(scanimages);
}

void TestSearchHints::dialogFitsTheScreen_data()
{
    addColumns<QSize, bool, int>({"available", "longTexts", "width"});
    QTest::newRow("large screen") << QSize(3840, 2160) << false << 800;
    QTest::newRow("large screen, long texts") << QSize(3840, 2160) << true << 800;
    QTest::newRow("small screen") << QSize(640, 480) << false << 640;
    QTest::newRow("small screen, long texts") << QSize(640, 480) << true << 640;
}

void TestSearchHints::dialogFitsTheScreen()
{
    QFETCH(QSize, available);
    QFETCH(bool, longTexts);
    const auto texts = longTexts ? std::make_unique<LongTexts>() : nullptr;
    SearchDialog dialog;
    dialog.fitInto(available);
    QTEST(dialog.width(), "width");
    QVERIFY(dialog.height() <= available.height());
    showSettled(&dialog);
    checkLabels(&dialog);
    const auto *button = dialog.findChild<QPushButton *>(QStringLiteral("btnGotIt"));
    QVERIFY(dialog.rect().contains(
        QRect(button->mapTo(&dialog, QPoint()), button->size()).adjusted(-8, 0, 8, 8)));
    const auto *title = dialog.findChild<QLabel *>(QStringLiteral("labelTitle"));
    const auto *close = dialog.findChild<QPushButton *>(QStringLiteral("btnClose"));
    QVERIFY(!close->geometry().intersects(title->geometry()));
}

void TestSearchHints::linkOpensTheDialogOverAMask()
{
    QWidget window;
    window.resize(700, 600);
    auto *page = new SearchHintFrame(&window);
    page->resize(window.size());
    window.show();
    const QPoint title = page->findChild<QLabel *>(QStringLiteral("labelTitle"))->pos();
    const auto mask = [&] { return window.findChild<QWidget *>(QStringLiteral("maskLayerID")); };
    for (int round = 0; round < 2; ++round) {
        const QColor before = window.grab().toImage().pixelColor(title);
        followLink(page, [&](SearchDialog *dialog) {
            QCOMPARE(dialog->parentWidget(), &window);
            QVERIFY(mask() && mask()->isVisible());
            QCOMPARE(mask()->geometry(), window.rect());
            const QImage dimmed = window.grab().toImage();
            QVERIFY(dimmed.pixelColor(title).lightness() < before.lightness());
            QVERIFY(dialog->screen()->availableGeometry().contains(dialog->geometry()));
            QTest::mouseClick(dialog->findChild<QPushButton *>(QStringLiteral("btnGotIt")),
                              Qt::LeftButton);
        });
        QVERIFY(!mask());
        QVERIFY(!window.findChild<SearchDialog *>());
    }
}

void TestSearchHints::linkWorksByKeyboard()
{
    const LongTexts texts;
    SearchHintFrame page;
    page.resize(800, 600);
    showSettled(&page);
    auto *tip = page.findChild<QLabel *>(QStringLiteral("labelTip1"));
    tip->clearFocus();
    const QImage without = page.grab().toImage();
    QTest::keyClick(&page, Qt::Key_Tab);
    QCOMPARE(page.focusWidget(), tip);
    QVERIFY(page.grab().toImage() != without); // the focus is seen
    followLink(
        &page, [](SearchDialog *) {}, true);
}

void TestSearchHints::keysClose()
{
    QFETCH(int, key);
    SearchDialog dialog;
    showSettled(&dialog);
    QVERIFY(dialog.focusWidget());
    QTest::keyClick(dialog.focusWidget(), Qt::Key(key));
    QVERIFY(!dialog.isVisible());
}

void TestSearchHints::focusIsShownToTheKeyboard()
{
    SearchDialog dialog;
    showSettled(&dialog);
    auto *button = dialog.findChild<QPushButton *>(QStringLiteral("btnGotIt"));
    QVERIFY(button->hasFocus());
    const QImage quiet = button->grab().toImage();
    QTest::keyClick(button, Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    QVERIFY(button->grab().toImage() != quiet);
}

void TestSearchHints::mouseMovesTheDialog()
{
    SearchDialog dialog;
    dialog.move(50, 60);
    dialog.show();
    const QPoint from = dialog.pos();
    auto *title = dialog.findChild<QLabel *>(QStringLiteral("labelTitle"));
    const QPoint hold(20, 10);
    QTest::mousePress(title, Qt::LeftButton, {}, hold);
    QMouseEvent move(QEvent::MouseMove, hold + QPoint(30, -20),
                     title->mapToGlobal(hold) + QPoint(30, -20), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(title, &move);
    QTest::mouseRelease(title, Qt::LeftButton, {}, hold);
    QCOMPARE(dialog.pos(), from + QPoint(30, -20));
}

void TestSearchHints::windowMayGoWhileTheDialogIsOpen()
{
    auto *window = new QWidget;
    auto *page = new SearchHintFrame(window);
    window->show();
    followLink(page, [&](SearchDialog *) { delete window; });
}

QTEST_MAIN(TestSearchHints)
#include "tst_searchhints.moc"
