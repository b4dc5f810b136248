#include "foundfolder.h"
#include "host/app/contentplugin.h"
#include "host/app/fileopener.h"
#include "host/app/languages.h"
#include "host/app/session.h"
#include "host/ui/bottombar.h"
#include "host/ui/bulkmenu.h"
#include "host/ui/mainwindow.h"
#include "host/ui/messagebanner.h"
#include "support/catalogue.h"
#include "support/writefile.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int Files = 60;
constexpr int Photos = 20;

QStringList textsOf(const QWidget &window)
{
    QStringList texts;
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        texts << widget->toolTip() << widget->accessibleName();
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts << label->text();
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts << button->text();
        if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            texts << edit->placeholderText();
        if (const auto *tree = qobject_cast<const QTreeWidget *>(widget)) {
            for (int i = 0; i < tree->topLevelItemCount(); ++i)
                texts << tree->topLevelItem(i)->text(0);
        }
    }
    const auto actions = window.findChildren<QAction *>();
    for (const QAction *action : actions)
        texts << action->text();
    for (QString &text : texts)
        text.remove(QStringLiteral(" ▾"));
    return texts;
}

} // namespace

/// The window as a user has it, with the plug-in in it.
class TestHostWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void noTextStaysBehind_data();
    void noTextStaysBehind();
    void oneKeyTakesAMistakeBack();
    void manySelectedItemsAreOneStep();
    void bulkMenuByKeyboard();
    void searchesAreCheckedAsAWhole();
    void aTargetOnTheCardIsRefused();
    void nothingStaysOfAnOpeningCutShort();

private:
    QString card() const { return m_folder.filePath(QStringLiteral("card")); }
    int checked() const { return m_session->tree().checkedFiles(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : m_window.get(),
                        key, modifiers);
    }
    MessageBanner *toast() const
    {
        return m_window->findChild<MessageBanner *>(QStringLiteral("toast"));
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ContentPlugin> m_plugin;
    std::unique_ptr<Session> m_session;
    std::unique_ptr<MainWindow> m_window;
};

void TestHostWindow::initTestCase()
{
    QVERIFY(m_folder.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    for (int i = 0; i < Files; ++i) {
        const QString name = QStringLiteral("/DCIM/file %1.%2").arg(i);
        QVERIFY(writeFile(card() + name.arg(i < Photos ? "jpg" : "txt"), "x"));
    }
}

void TestHostWindow::init()
{
    m_plugin = std::make_unique<ContentPlugin>();
    QString error;
    QVERIFY2(m_plugin->load(QString(), &error), qPrintable(error));
    m_session = std::make_unique<Session>(*m_plugin);
    m_window = std::make_unique<MainWindow>(*m_plugin, *m_session);
    Languages::apply(*Languages::find(QStringLiteral("English")));
    m_window->resize(1200, 700);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QSignalSpy finished(m_session.get(), &Session::scanFinished);
    m_window->openSource(card());
    QVERIFY(finished.wait());
    QCOMPARE(m_session->tree().allFiles()->itemCount, Files);
}

void TestHostWindow::cleanup()
{
    m_window.reset();
    m_session.reset();
    m_plugin.reset();
}

void TestHostWindow::noTextStaysBehind_data()
{
    QTest::addColumn<QString>("code");
    for (const Language &language : Languages::all()) {
        if (qstrcmp(language.code, "en") != 0)
            QTest::newRow(language.name) << QString::fromLatin1(language.code);
    }
}

void TestHostWindow::noTextStaysBehind()
{
    QFETCH(QString, code);
    m_session->changeChecks(Session::Bulk::CheckPhotos); // with an offer to undo
    QTRY_VERIFY(toast()->isVisible());
    QTRY_VERIFY(textsOf(*m_window).contains(QStringLiteral("All files")));

    QSet<QString> stale; // what another language says otherwise
    for (const QString &name : {QStringLiteral("host/resources/translations/quarvo-host"),
                                QStringLiteral("resources/translations/quarvo")}) {
        const QString file = QStringLiteral(SOURCE_FOLDER "/%1_%2.ts").arg(name);
        const auto english = Catalogue::read(file.arg(QStringLiteral("en"))).texts;
        const auto other = Catalogue::read(file.arg(code)).texts;
        QVERIFY(!english.isEmpty() && !other.isEmpty());
        for (auto it = english.begin(); it != english.end(); ++it) {
            if (other.value(it.key()).forms.value(0) != it->forms.value(0))
                stale.insert(it->forms.value(0));
        }
        for (const CatalogueText &text : other)
            stale.remove(text.forms.value(0));
    }
    Languages::apply(*Languages::find(code));
    QTRY_VERIFY(!textsOf(*m_window).contains(QStringLiteral("Search by name")));
    const QStringList texts = textsOf(*m_window);
    for (const QString &text : texts) {
        QVERIFY2(text.isEmpty() || !stale.contains(text), qPrintable(text));
        for (const char *word : {" files", "checked", "free at", "folders"})
            QVERIFY2(!text.contains(QLatin1String(word)), qPrintable(text));
    }
    QCOMPARE(m_window->layoutDirection(), QLocale().textDirection());
}

void TestHostWindow::oneKeyTakesAMistakeBack()
{
    auto *selectAll = (*m_plugin)->getScanContentFrame()->findChild<QAbstractButton *>(
        QStringLiteral("allCheckButton"));
    QVERIFY(selectAll);
    QTest::mouseClick(selectAll, Qt::LeftButton);
    QTRY_COMPARE(checked(), Files);
    QTRY_VERIFY(toast()->isVisible());
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(checked(), 0);
    QTRY_COMPARE(selectAll->property("checkstate").toInt(), int(Qt::Unchecked));
    press(Qt::Key_Y, Qt::ControlModifier);
    QTRY_COMPARE(checked(), Files);
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(checked(), Files);
    auto *undo = toast()->findChild<QAbstractButton *>(QStringLiteral("bannerAction"));
    QTest::mouseClick(undo, Qt::LeftButton);
    QTRY_COMPARE(checked(), 0);
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(checked(), 0); // nothing is left to undo
}

void TestHostWindow::manySelectedItemsAreOneStep()
{
    auto *view = (*m_plugin)->getScanContentFrame()->findChild<QListView *>(
        QStringLiteral("listView"));
    QVERIFY(view);
    view->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Space);
    QTRY_COMPARE(checked(), Files);
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(checked(), 0);
    QVERIFY(!m_session->tree().canUndo());
}

void TestHostWindow::bulkMenuByKeyboard()
{
    QTimer keys;
    QList<Qt::Key> open{Qt::Key_Down, Qt::Key_Return};
    connect(&keys, &QTimer::timeout, this, [&open] {
        if (QWidget *menu = QApplication::activePopupWidget())
            QTest::keyClick(menu, open.takeFirst());
    });
    keys.start(20);
    press(Qt::Key_B, Qt::ControlModifier);
    QTRY_COMPARE(checked(), Photos);
    keys.stop();
    m_session->changeChecks(Session::Bulk::Invert);
    QCOMPARE(checked(), Files - Photos);
    m_session->changeChecks(Session::Bulk::UncheckAll);
    QCOMPARE(checked(), 0);
    QVERIFY(m_session->undoChecks());
    QVERIFY(m_session->undoChecks());
    QCOMPARE(checked(), Photos);
}

void TestHostWindow::searchesAreCheckedAsAWhole()
{
    m_window->search(QStringLiteral("file 1")); // 1 and 10 to 19
    QTRY_COMPARE(m_session->search().count(), 11);
    m_session->changeChecks(Session::Bulk::CheckShown);
    QTRY_COMPARE(checked(), 11);
    QTRY_VERIFY(m_session->tree().canUndo());
    press(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(checked(), 0);
    QCOMPARE(m_session->search().root()->checkState, int(Qt::Unchecked));
}

void TestHostWindow::aTargetOnTheCardIsRefused()
{
    m_session->changeChecks(Session::Bulk::CheckPhotos);
    QVector<FoundItem> items;
    m_session->takeChecked([&items](const QVector<FoundItem> &checked) { items = checked; });
    QCOMPARE(items.size(), Photos);
    QSignalSpy recovered(m_window.get(), &MainWindow::recovered);
    const QString target = card() + QStringLiteral("/out");
    m_window->recover(items, target);
    QCOMPARE(recovered.size(), 1);
    const auto report = recovered.first().first().value<RecoveryReport>();
    QCOMPARE(report.failed.size(), Photos);
    QVERIFY(!QFile::exists(target));
    auto *banner = m_window->findChild<MessageBanner *>(QStringLiteral("banner"));
    QTRY_VERIFY(banner->isVisible());
    const QString english = banner->accessibleName();
    QVERIFY2(english.contains(QDir::toNativeSeparators(target)), qPrintable(english));
    Languages::apply(*Languages::find(QStringLiteral("de")));
    QTRY_VERIFY(banner->accessibleName() != english);
    QVERIFY(banner->accessibleName().contains(QDir::toNativeSeparators(target)));
    Languages::apply(*Languages::find(QStringLiteral("ar"))); // where a path needs protection
    QTRY_VERIFY(banner->accessibleName().contains(QChar(0x2066) + QDir::toNativeSeparators(target)
                                                  + QChar(0x2069)));
}

void TestHostWindow::nothingStaysOfAnOpeningCutShort()
{
    const FoundFolder found({{QStringLiteral("a.txt"), QByteArray(100, 'x')}});
    const QString temporary = m_folder.filePath(QStringLiteral("temporary"));
    QVERIFY(QDir().mkpath(temporary));
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporary.toLocal8Bit());
    for (int i = 0; i < 10; ++i) {
        FileOpener opener;
        opener.open(found.source, found.items.first()); // and goes before it is done
    }
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QVERIFY(QDir(temporary).isEmpty());
}

QTEST_MAIN(TestHostWindow)
#include "tst_hostwindow.moc"
