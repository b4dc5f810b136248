#include "common/commonfunction.h"
#include "common/thememanager.h"
#include "platform/system/system.h"
#include "popups/menuplacement.h"
#include "popups/previewframe.h"
#include "popups/rightmenudialog.h"
#include "popups/rightmenuframe.h"
#include "support/datarow.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTranslator>
#include <QWindow>

#include <functional>

using State = RightMenuFrame::FrameState;
using Choice = std::function<void(RightMenuDialog *)>;
Q_DECLARE_METATYPE(Choice)
Q_DECLARE_METATYPE(QList<Qt::Key>)

namespace {

constexpr QPoint Somewhere(300, 200);

/// Knows the menu's two texts only.
class Words : public QTranslator
{
public:
    Words(const QString &preview, const QString &recover)
        : m_preview(preview)
        , m_recover(recover)
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *key, const char *, int) const override
    {
        return qstrcmp(key, "preview") == 0 ? m_preview
            : qstrcmp(key, "recover") == 0  ? m_recover
                                            : QString();
    }

private:
    QString m_preview;
    QString m_recover;
};

QString textOf(const RightMenuFrame *entry)
{
    return entry->textLabel()->text();
}

QImage iconOf(const QWidget *entry)
{
    return entry->findChild<QLabel *>("lblIcon")->pixmap(Qt::ReturnByValue).toImage();
}

/// A click as it comes from the window system.
void clickOnScreen(const RightMenuFrame *entry)
{
    QWindow *window = entry->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {},
                      entry->mapTo(entry->window(), entry->rect().center()));
}

void press(RightMenuDialog *menu, Qt::Key key)
{
    QTest::keyPress(menu->windowHandle(), key); // without release: it may take the window away
}

} // namespace

class TestRightMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void iconsByStateAndTheme_data();
    void iconsByStateAndTheme();
    void strangeEntryHasNoIcon();
    void stateIsWrittenForTheStylesheet();
    void widthsFollowTheTexts_data();
    void widthsFollowTheTexts();
    void opensExactlyAtThePoint_data();
    void opensExactlyAtThePoint();
    void placementForKeyboard_data();
    void placementForKeyboard();
    void keyboardMenuStaysOnTheScreen();
    void mirrorsRightToLeft();
    void chooses_data();
    void chooses();
    void keysMoveTheHighlight_data();
    void keysMoveTheHighlight();
    void onlyOneEntryIsHighlighted();
    void closesWithoutChoice_data();
    void closesWithoutChoice();
    void mayBeDeletedByItsReceiver_data();
    void mayBeDeletedByItsReceiver();
    void indexMayDie();
    void readersHearIt();
    void previewButton();
};

void TestRightMenu::initTestCase()
{
    System::registerFontSubstitutes();
}

void TestRightMenu::init()
{
    ThemeManager::instance()->setThemeType(LightTheme);
}

void TestRightMenu::iconsByStateAndTheme_data()
{
    addColumns<QString, int, int, QString>({"name", "theme", "state", "picture"});
    const auto rows = [](const char *name, int theme, const char *base) {
        for (int state : {0, 1, 2, 7}) {
            const bool lit = state == 1 || state == 2;
            QTest::addRow("%s theme %d state %d", name, theme, state)
                << QString(name) << theme << state << QString(base) + (lit ? "hover" : "normal");
        }
    };
    rows("Preview", 0, ":/Images/icon20_previewMenu_");
    rows("Preview", 1, ":/Images/Dark/icon20_preview2_");
    rows("Recover", 0, ":/Images/icon20_recoverMenu_");
    rows("Recover", 1, ":/Images/Dark/icon20_recoverMenu_");
}

void TestRightMenu::iconsByStateAndTheme()
{
    QFETCH(QString, name);
    QFETCH(int, theme);
    QFETCH(int, state);
    QFETCH(QString, picture);
    RightMenuFrame entry(nullptr);
    entry.setObjectName(name);
    ThemeManager::instance()->setThemeType(THEMETYPE(theme));
    entry.updateState(State(state), true);
    const QImage expected = CommonFunction::highDpiPixmap(picture).toImage();
    QVERIFY(!expected.isNull());
    QCOMPARE(iconOf(&entry), expected);
}

void TestRightMenu::strangeEntryHasNoIcon()
{
    RightMenuFrame entry(nullptr);
    entry.setObjectName("Share");
    entry.updateState(State::Hover, true);
    QVERIFY(iconOf(&entry).isNull());
}

void TestRightMenu::stateIsWrittenForTheStylesheet()
{
    RightMenuFrame entry(nullptr);
    QCOMPARE(entry.property("state").toString(), QString("normal"));
    QStringList seen;
    connect(&entry, &RightMenuFrame::buttonClicked, &entry,
            [&] { seen += entry.property("state").toString(); });
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&entry, &enter);
    seen += entry.property("state").toString();
    QTest::mouseRelease(&entry, Qt::LeftButton);
    seen += entry.property("state").toString();
    QCOMPARE(seen, QStringList({"hover", "selected", "normal"}));
}

void TestRightMenu::widthsFollowTheTexts_data()
{
    addColumns<QString, QString>({"preview", "recover"});
    addRow("one letter each", "P", "R");
    addRow("long preview", "Vorschau der ausgewählten Datei", "Los");
    addRow("long recover", "Voir", "Récupérer les fichiers sélectionnés");
    addRow("markup and ampersand", "<b>Look & see</b> at the picture, please", "&Go");
    addRow("empty", "", "");
}

void TestRightMenu::widthsFollowTheTexts()
{
    QFETCH(QString, preview);
    QFETCH(QString, recover);
    RightMenuDialog menu;
    const Words words(preview, recover);
    menu.doChangLanguage();

    const auto needed = [&](const RightMenuFrame *entry, const QString &text) {
        return std::max(140, QFontMetrics(entry->textLabel()->font()).horizontalAdvance(text) + 52);
    };
    const int width = std::max(needed(menu.previewEntry(), preview),
                               needed(menu.recoverEntry(), recover));
    if (!preview.isEmpty())
        QCOMPARE(textOf(menu.previewEntry()), preview);
    menu.showPoint(Somewhere, {});
    menu.show();
    for (const RightMenuFrame *entry : {menu.previewEntry(), menu.recoverEntry()}) {
        QCOMPARE(entry->size(), QSize(width, 36));
        QCOMPARE(entry->textLabel()->geometry(), QRect(40, 0, width - 40, 36));
    }
    QCOMPARE(menu.size(), QSize(width + 30, 88 + 60));
    const auto *shadow = menu.findChild<QLabel *>("labelDropShadow");
    QCOMPARE(shadow->geometry(), menu.rect());
    const QPixmap picture = shadow->pixmap(Qt::ReturnByValue);
    QCOMPARE(picture.size() / picture.devicePixelRatio(), menu.size());
}

void TestRightMenu::opensExactlyAtThePoint_data()
{
    QTest::addColumn<QPoint>("point");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTest::newRow("middle") << screen.center();
    QTest::newRow("top left, shadow beyond the edge") << screen.topLeft();
    QTest::newRow("bottom right, not moved in") << screen.bottomRight();
    QTest::newRow("beyond every screen") << screen.bottomRight() + QPoint(9000, 9000);
}

void TestRightMenu::opensExactlyAtThePoint()
{
    QFETCH(QPoint, point);
    RightMenuDialog menu;
    menu.showPoint(point, {});
    const auto *frame = menu.findChild<QFrame *>("frame");
    QCOMPARE(menu.geometry().topLeft() + frame->pos(), point);
    QCOMPARE(frame->geometry(), QRect(15, 35, menu.width() - 30, 88));
}

void TestRightMenu::placementForKeyboard_data()
{
    addColumns<QPoint, bool, QPoint>({"anchor", "mirrored", "corner"});
    // a body of 140 x 88 on a screen from (100, 50) to (900, 650)
    QTest::newRow("free") << QPoint(300, 200) << false << QPoint(300, 200);
    QTest::newRow("just fits") << QPoint(760, 562) << false << QPoint(760, 562);
    QTest::newRow("turns left") << QPoint(761, 200) << false << QPoint(621, 200);
    QTest::newRow("turns up") << QPoint(300, 563) << false << QPoint(300, 475);
    QTest::newRow("corner") << QPoint(899, 649) << false << QPoint(759, 561);
    QTest::newRow("beyond the edges") << QPoint(2000, 2000) << false << QPoint(760, 562);
    QTest::newRow("before the edges") << QPoint(-50, -50) << false << QPoint(100, 50);
    QTest::newRow("mirrored") << QPoint(300, 200) << true << QPoint(160, 200);
    QTest::newRow("mirrored, turns right") << QPoint(239, 200) << true << QPoint(239, 200);
}

void TestRightMenu::placementForKeyboard()
{
    QFETCH(QPoint, anchor);
    QFETCH(bool, mirrored);
    QFETCH(QPoint, corner);
    QCOMPARE(menuCorner(anchor, {140, 88}, {100, 50, 800, 600},
                        mirrored ? Qt::RightToLeft : Qt::LeftToRight),
             corner);
}

void TestRightMenu::keyboardMenuStaysOnTheScreen()
{
    RightMenuDialog menu;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    menu.openByKeyboard(screen.bottomRight(), {});
    QVERIFY(menu.isVisible());
    const QRect body = menu.findChild<QFrame *>("frame")->geometry().translated(menu.pos());
    QVERIFY(screen.contains(body));
    QVERIFY(menu.previewEntry()->isHighlighted());
}

void TestRightMenu::mirrorsRightToLeft()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    RightMenuDialog menu(&parent);
    menu.openByKeyboard(Somewhere, {});
    const RightMenuFrame *entry = menu.recoverEntry();
    QCOMPARE(entry->findChild<QLabel *>("lblIcon")->geometry(), QRect(140 - 36, 8, 20, 20));
    QCOMPARE(entry->textLabel()->geometry(), QRect(0, 0, 100, 36));
}

void TestRightMenu::chooses_data()
{
    addColumns<Choice, int>({"choice", "action"});
    const auto row = [](const char *name, int action, const Choice &choice) {
        QTest::newRow(name) << choice << action;
    };
    row("click on preview", 1, [](RightMenuDialog *menu) { clickOnScreen(menu->previewEntry()); });
    row("click on recover", 2, [](RightMenuDialog *menu) { clickOnScreen(menu->recoverEntry()); });
    row("drag to recover", 2,
        [](RightMenuDialog *menu) { QTest::mouseRelease(menu->recoverEntry(), Qt::RightButton); });
    row("Enter on the first", 1, [](RightMenuDialog *menu) { press(menu, Qt::Key_Return); });
    row("Down, Enter", 2, [](RightMenuDialog *menu) {
        press(menu, Qt::Key_Down);
        press(menu, Qt::Key_Enter);
    });
    row("reader", 2, [](RightMenuDialog *menu) {
        QAccessibleInterface *entry = QAccessible::queryAccessibleInterface(menu->recoverEntry());
        entry->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    });
}

void TestRightMenu::chooses()
{
    QFETCH(Choice, choice);
    QFETCH(int, action);
    RightMenuDialog menu;
    QSignalSpy closes(&menu, &RightMenuDialog::signalsClose);
    menu.openByKeyboard(Somewhere, {});
    choice(&menu);
    QCOMPARE(closes.count(), 1);
    QCOMPARE(menu.selectedAction(), action);
    QVERIFY(menu.isVisible()); // closing is the owner's part
    menu.close();
    QCOMPARE(menu.selectedAction(), action);
}

void TestRightMenu::keysMoveTheHighlight_data()
{
    addColumns<QList<Qt::Key>, QString>({"keys", "entry"});
    QTest::newRow("down") << QList<Qt::Key>{Qt::Key_Down} << "Preview";
    QTest::newRow("up") << QList<Qt::Key>{Qt::Key_Up} << "Recover";
    addRow("wraps down", QList<Qt::Key>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, "Preview");
    QTest::newRow("wraps up") << QList<Qt::Key>{Qt::Key_Home, Qt::Key_Up} << "Recover";
    QTest::newRow("end") << QList<Qt::Key>{Qt::Key_End} << "Recover";
    QTest::newRow("tab") << QList<Qt::Key>{Qt::Key_Tab, Qt::Key_Tab} << "Recover";
    QTest::newRow("back tab") << QList<Qt::Key>{Qt::Key_Backtab} << "Recover";
    QTest::newRow("letters do nothing") << QList<Qt::Key>{Qt::Key_Down, Qt::Key_R} << "Preview";
}

void TestRightMenu::keysMoveTheHighlight()
{
    QFETCH(QList<Qt::Key>, keys);
    QFETCH(QString, entry);
    RightMenuDialog menu;
    QSignalSpy closes(&menu, &RightMenuDialog::signalsClose);
    menu.showPoint(Somewhere, {});
    menu.show();
    press(&menu, Qt::Key_Return); // nothing is highlighted, nothing is chosen
    for (Qt::Key key : keys)
        press(&menu, key);
    QVERIFY(closes.isEmpty());
    QStringList lit;
    for (const RightMenuFrame *each : {menu.previewEntry(), menu.recoverEntry()}) {
        if (each->isHighlighted())
            lit += each->objectName();
    }
    QCOMPARE(lit, QStringList(entry));
}

void TestRightMenu::onlyOneEntryIsHighlighted()
{
    RightMenuDialog menu;
    menu.openByKeyboard(Somewhere, {});
    const RightMenuFrame *recover = menu.recoverEntry();
    // where the mouse rests it says nothing, only a move does
    const QPoint middle = recover->mapTo(&menu, recover->rect().center());
    QTest::mouseMove(menu.windowHandle(), middle);
    menu.openByKeyboard(Somewhere, {});
    QTest::mouseMove(menu.windowHandle(), middle);
    QVERIFY(menu.previewEntry()->isHighlighted());
    QTest::mouseMove(menu.windowHandle(), middle + QPoint(1, 0));
    QVERIFY(recover->isHighlighted());
    QVERIFY(!menu.previewEntry()->isHighlighted());
    menu.close();
    QVERIFY(!recover->isHighlighted());
}

void TestRightMenu::closesWithoutChoice_data()
{
    QTest::addColumn<Choice>("what");
    const auto row = [](const char *name, const Choice &what) { QTest::newRow(name) << what; };
    row("Escape", [](RightMenuDialog *menu) { press(menu, Qt::Key_Escape); });
    row("press outside", [](RightMenuDialog *menu) {
        QTest::mousePress(menu->windowHandle(), Qt::LeftButton, {}, QPoint(-40, -40));
    });
    row("press on the shadow", [](RightMenuDialog *menu) {
        QTest::mousePress(menu->windowHandle(), Qt::LeftButton, {}, QPoint(60, 10));
    });
}

void TestRightMenu::closesWithoutChoice()
{
    QFETCH(Choice, what);
    RightMenuDialog menu;
    menu.slotRecoverEntry();
    QSignalSpy closes(&menu, &RightMenuDialog::signalsClose);
    menu.openByKeyboard(Somewhere, {});
    what(&menu);
    QTRY_VERIFY(!menu.isVisible());
    QVERIFY(closes.isEmpty());
    QCOMPARE(menu.selectedAction(), 2);
    // and it is used again
    menu.openByKeyboard(Somewhere, {});
    press(&menu, Qt::Key_Return);
    QCOMPARE(closes.count(), 1);
}

void TestRightMenu::mayBeDeletedByItsReceiver_data()
{
    chooses_data();
}

void TestRightMenu::mayBeDeletedByItsReceiver()
{
    QFETCH(Choice, choice);
    QPointer<RightMenuDialog> menu = new RightMenuDialog;
    connect(menu.data(), &RightMenuDialog::signalsClose, this, [menu] { delete menu.data(); });
    menu->openByKeyboard(Somewhere, {});
    choice(menu);
    QVERIFY(menu.isNull());
    QCoreApplication::processEvents();
}

void TestRightMenu::indexMayDie()
{
    QStandardItemModel model(3, 1);
    RightMenuDialog menu;
    QVERIFY(!menu.index().isValid());
    menu.showPoint(Somewhere, model.index(2, 0));
    model.removeRow(0);
    QCOMPARE(menu.index(), model.index(1, 0)); // it moves with its row
    model.removeRow(1);
    QVERIFY(!menu.index().isValid());
    menu.slotPreviewItem();
    QCOMPARE(menu.selectedAction(), 1);
}

void TestRightMenu::readersHearIt()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("IMG_1.jpg"));
    RightMenuDialog menu;
    const Words words("Preview", "Recover");
    menu.doChangLanguage();
    menu.openByKeyboard(Somewhere, model.index(0, 0));

    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&menu);
    QCOMPARE(root->role(), QAccessible::PopupMenu);
    QCOMPARE(root->text(QAccessible::Name), QString("IMG_1.jpg"));
    QCOMPARE(root->childCount(), 2);
    for (int i = 0; i < root->childCount(); ++i) {
        QAccessibleInterface *entry = root->child(i);
        QCOMPARE(entry->role(), QAccessible::MenuItem);
        QCOMPARE(entry->text(QAccessible::Name), QString(i == 0 ? "Preview" : "Recover"));
        QCOMPARE(entry->parent(), root);
        QCOMPARE(root->indexOfChild(entry), i);
        QCOMPARE(bool(entry->state().focused), i == 0);
        QCOMPARE(entry->childCount(), 0);
    }
    QCOMPARE(root->focusChild(), root->child(0));
    QVERIFY(!root->child(2));
    QVERIFY(!root->child(-1));
}

void TestRightMenu::previewButton()
{
    PreviewFrame frame;
    QSignalSpy clicks(&frame, &PreviewFrame::signalPreviewClicked);
    auto *button = frame.findChild<QPushButton *>("btnPreview");
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(button, Qt::Key_Space);
    QCOMPARE(clicks.count(), 2);
    const Words words("Voir", "");
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&frame, &change);
    QCOMPARE(button->accessibleName(), QString("Voir"));
}

QTEST_MAIN(TestRightMenu)
#include "tst_rightmenu.moc"
