#include "common/highdpipixmapsbutton.h"
#include "support/datarow.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

using Button = HighDpiPixmapsButton;
using Step = void (*)(Button *);
using Steps = QVector<Step>;

template <QEvent::Type Type>
void send(Button *button)
{
    QEvent event(Type);
    QCoreApplication::sendEvent(button, &event);
}

const Step Enter = send<QEvent::Enter>;
const Step Leave = send<QEvent::Leave>;
const Step PressLeft = [](Button *button) { QTest::mousePress(button, Qt::LeftButton); };
const Step ReleaseLeft = [](Button *button) { QTest::mouseRelease(button, Qt::LeftButton); };
const Step PressRight = [](Button *button) { QTest::mousePress(button, Qt::RightButton); };
const Step ReleaseRight = [](Button *button) { QTest::mouseRelease(button, Qt::RightButton); };
const Step Space = [](Button *button) { QTest::keyClick(button, Qt::Key_Space); };
const Step Off = [](Button *button) { button->setEnabledState(false); };
const Step On = [](Button *button) { button->setEnabledState(true); };
const Step NotClickable = [](Button *button) { button->setClickable(false); };
const Step Reset = [](Button *button) { button->resetState(); };
const Step ShowHover = [](Button *button) { button->showHoverState(); };

const HighDpiPixmapsButton::Images s_names{QStringLiteral("n"), QStringLiteral("h"),
                                           QStringLiteral("p"), QStringLiteral("d")};

} // namespace

Q_DECLARE_METATYPE(Steps)

class TestHighDpiPixmapsButton : public QObject
{
    Q_OBJECT

private slots:
    void states_data();
    void states();
    void paintsThePictureOverAllOfIt();
    void missingPictureIsLoggedOnce();
    void mayBeDeletedByItsReceiver();
};

void TestHighDpiPixmapsButton::states_data()
{
    addColumns<Steps, QString, int, int, Qt::CursorShape>(
        {"steps", "image", "clicks", "hovers", "cursor"});

    const auto row = [](const char *name, const Steps &steps, const char *image, int clicks,
                        int hovers, Qt::CursorShape cursor) {
        QTest::newRow(name) << steps << QString::fromLatin1(image) << clicks << hovers << cursor;
    };
    const auto Arrow = Qt::ArrowCursor;
    const auto Hand = Qt::PointingHandCursor;
    row("as made", {}, "n", 0, 0, Arrow);
    row("mouse over", {Enter}, "h", 0, 1, Hand);
    row("mouse gone", {Enter, Leave}, "n", 0, 2, Arrow);
    row("held down", {Enter, PressLeft}, "p", 0, 1, Hand);
    row("clicked: latched", {Enter, PressLeft, ReleaseLeft}, "p", 1, 1, Hand);
    row("latched ignores hovering", {Enter, PressLeft, ReleaseLeft, Leave, Enter, Leave}, "p", 1, 1,
        Hand);
    row("reset ends the latch", {Enter, PressLeft, ReleaseLeft, Reset}, "n", 1, 1, Arrow);
    row("hovers again after a reset", {Enter, PressLeft, ReleaseLeft, Reset, Enter}, "h", 1, 2,
        Hand);
    row("shown hovering ends the latch", {Enter, PressLeft, ReleaseLeft, ShowHover, Leave}, "n", 1,
        2, Arrow);
    row("right button stays as pressed", {Enter, PressRight, ReleaseRight}, "p", 0, 1, Hand);
    row("right button does not latch", {Enter, PressRight, ReleaseRight, Leave}, "n", 0, 2, Arrow);
    row("keyboard clicks", {Space}, "p", 1, 0, Arrow);
    row("disabled", {Off}, "d", 0, 0, Arrow);
    row("disabled is deaf", {Off, Enter, PressLeft, ReleaseLeft, Space, Leave}, "d", 0, 0, Arrow);
    row("enabled again", {Off, On, Enter}, "h", 0, 1, Hand);
    row("not clickable", {NotClickable, Enter, PressLeft, ReleaseLeft, Space}, "h", 0, 1, Hand);
}

void TestHighDpiPixmapsButton::states()
{
    QFETCH(Steps, steps);
    QFETCH(Qt::CursorShape, cursor);
    HighDpiPixmapsButton button(QStringLiteral(":/none"), s_names);
    QSignalSpy clicks(&button, &HighDpiPixmapsButton::buttonClicked);
    QSignalSpy hovers(&button, &HighDpiPixmapsButton::buttonHovered);

    for (const Step step : qAsConst(steps))
        step(&button);

    QTEST(button.currentImage(), "image");
    QTEST(clicks.count(), "clicks");
    QTEST(hovers.count(), "hovers");
    QCOMPARE(button.cursor().shape(), cursor);
}

void TestHighDpiPixmapsButton::paintsThePictureOverAllOfIt()
{
    QTemporaryDir folder;
    const QColor colours[] = {Qt::red, Qt::green};
    const QString names[] = {s_names.normal, s_names.hover};
    for (int i = 0; i < 2; ++i) {
        QImage picture(10, 10, QImage::Format_ARGB32);
        picture.fill(colours[i]);
        QVERIFY(picture.save(folder.filePath(names[i] + QStringLiteral(".png"))));
    }
    HighDpiPixmapsButton button(folder.path(), s_names);
    button.resize(33, 21);
    for (const Step step : {Leave, Enter}) {
        step(&button);
        const QImage shown = button.grab().toImage();
        for (const QPoint &corner : {QPoint(0, 0), QPoint(32, 20)})
            QCOMPARE(shown.pixelColor(corner), colours[step == Enter]);
    }
}

void TestHighDpiPixmapsButton::missingPictureIsLoggedOnce()
{
    static QStringList log;
    HighDpiPixmapsButton button(QStringLiteral(":/none"), s_names);
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { log.append(line); });
    button.grab();
    button.grab();
    qInstallMessageHandler(before);
    QCOMPARE(log, {QStringLiteral("HighDpiPixmapsButton: no picture \":/none/n.png\"")});
}

void TestHighDpiPixmapsButton::mayBeDeletedByItsReceiver()
{
    const QPointer<HighDpiPixmapsButton> button = new HighDpiPixmapsButton(QStringLiteral(":/none"),
                                                                           s_names);
    connect(button, &HighDpiPixmapsButton::buttonClicked, this, [button] { delete button; });
    button->click();
    QVERIFY(!button);
}

QTEST_MAIN(TestHighDpiPixmapsButton)
#include "tst_highdpipixmapsbutton.moc"
