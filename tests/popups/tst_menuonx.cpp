#include "popups/rightmenudialog.h"

#include <QApplication>
#include <QFrame>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QTest>

namespace {

const QColor s_behind(200, 40, 40);

/// An X server without a compositor; its number where it runs, else an empty text.
QString startServer(QProcess &server)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
    if (program.isEmpty())
        return {};
    server.start(program, {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
    constexpr int PatienceMs = 10000;
    if (!server.waitForReadyRead(PatienceMs))
        return {};
    return QString::fromLatin1(server.readLine()).trimmed();
}

} // namespace

class TestMenuOnX : public QObject
{
    Q_OBJECT

private slots:
    void bodyHasNoBlackMargins();
};

void TestMenuOnX::bodyHasNoBlackMargins()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs Xvfb");
    QWidget behind;
    behind.setPalette(s_behind);
    behind.setGeometry(0, 0, 640, 480);
    behind.show();
    QVERIFY(QTest::qWaitForWindowExposed(&behind));
    RightMenuDialog menu(&behind);
    menu.openByKeyboard({300, 200}, {});
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    const QRect whole = menu.geometry();
    const QRect body =
        menu.findChild<QFrame *>(QStringLiteral("frame"))->geometry().translated(whole.topLeft());
    const auto seen = [] { return QGuiApplication::primaryScreen()->grabWindow(0).toImage(); };
    QTRY_COMPARE(seen().pixelColor(body.center()).lightness() > 200, true);
    const QImage screen = seen();
    int dark = 0;
    for (int y = whole.top(); y <= whole.bottom(); ++y) {
        for (int x = whole.left(); x <= whole.right(); ++x) {
            const QColor color = screen.pixelColor(x, y);
            if (!body.contains(x, y))
                QCOMPARE(color, s_behind);
            const bool atCorner = qMin(x - body.left(), body.right() - x) < 10
                && qMin(y - body.top(), body.bottom() - y) < 10;
            dark += atCorner && color.lightness() < s_behind.lightness() - 20 ? 1 : 0;
        }
    }
    QCOMPARE(dark, 0);
}

int main(int argc, char **argv)
{
    QProcess server;
    const QString display = startServer(server);
    if (!display.isEmpty()) {
        qputenv("DISPLAY", ':' + display.toLatin1());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    int result = 0;
    {
        QApplication app(argc, argv);
        TestMenuOnX test;
        result = QTest::qExec(&test, argc, argv);
    }
    server.terminate();
    server.waitForFinished();
    return result;
}

#include "tst_menuonx.moc"
