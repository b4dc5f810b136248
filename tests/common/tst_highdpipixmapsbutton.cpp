#include "common/highdpipixmapsbutton.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

enum Step {
    Enter,
    Leave,
    PressLeft,
    ReleaseLeft,
    PressRight,
    ReleaseRight,
    Space,
    Off,
    On,
    NotClickable,
    Reset,
    ShowHover
};
using Steps = QVector<int>;

const HighDpiPixmapsButton::Images s_names{QStringLiteral("n"), QStringLiteral("h"),
                                           QStringLiteral("p"), QStringLiteral("d")};

void perform(HighDpiPixmapsButton *button, int step)
{
    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    switch (step) {
    case Enter:
        QCoreApplication::sendEvent(button, &enter);
        break;
    case Leave:
        QCoreApplication::sendEvent(button, &leave);
        break;
    case PressLeft:
        QTest::mousePress(button, Qt::LeftButton);
        break;
    case ReleaseLeft:
        QTest::mouseRelease(button, Qt::LeftButton);
        break;
    case PressRight:
        QTest::mousePress(button, Qt::RightButton);
        break;
    case ReleaseRight:
        QTest::mouseRelease(button, Qt::RightButton);
        break;
    case Space:
        QTest::keyClick(button, Qt::Key_Space);
        break;
    case Off:
        button->setEnabledState(false);
        break;
    case On:
        button->setEnabledState(true);
        break;
    case NotClickable:
        button->setClickable(false);
        break;
    case Reset:
        button->resetState();
        break;
    case ShowHover:
        button->showHoverState();
        break;
    }
}

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
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QString>("image");
    QTest::addColumn<int>("clicks");
    QTest::addColumn<int>("hovers");
    QTest::addColumn<Qt::CursorShape>("cursor");

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

    for (int step : qAsConst(steps))
        perform(&button, step);

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
    for (int step : {Leave, Enter}) {
        perform(&button, step);
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
