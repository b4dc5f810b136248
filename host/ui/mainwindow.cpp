#include "host/ui/mainwindow.h"

#include "host/app/hostsettings.h"
#include "host/app/languages.h"
#include "host/scan/filecategory.h"
#include "host/ui/bottombar.h"
#include "host/ui/breadcrumbs.h"
#include "host/ui/bulkmenu.h"
#include "host/ui/filterbar.h"
#include "host/ui/pictureviewer.h"
#include "host/ui/recoveryflow.h"
#include "host/ui/sidepanel.h"
#include "host/ui/topbar.h"

#include <QApplication>
#include <QCursor>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolTip>

namespace {
constexpr QSize MinimumSize{640, 480};
constexpr QSize FirstSize{1280, 800};
constexpr int SidePanelFrom = 860; // below this width the results need the room
constexpr int BulkTextFrom = 1000;
enum Side { ScanPage, SearchPage };
} // namespace

MainWindow::MainWindow(ContentPlugin &plugin, Session &session)
    : m_plugin(plugin)
    , m_session(session)
    , m_topBar(new TopBar(this))
    , m_banner(new MessageBanner(MessageBanner::Bar, this))
    , m_toast(new MessageBanner(MessageBanner::Floating, this))
    , m_navBar(new QFrame(this))
    , m_crumbs(new Breadcrumbs(session.tree(), m_navBar))
    , m_filters(new FilterBar(m_navBar))
    , m_bulk(new BulkMenu(session, m_navBar))
    , m_side(new SidePanel(session.tree(), this))
    , m_sides(new QStackedWidget(this))
    , m_bottomBar(new BottomBar(this))
    , m_recovery(new RecoveryFlow(session, *m_banner, this))
{
    setMinimumSize(MinimumSize);
    resize(FirstSize);
    setWindowTitle(QCoreApplication::applicationName());
    buildLayout();
    connectBars();
    connectSession();
    addShortcuts();
    showTarget();
    setTheme(THEMETYPE(qApp->property("ThemeType").toInt()));
}

MainWindow::~MainWindow()
{
    // they go with the plug-in object
    m_plugin->getScanContentFrame()->setParent(nullptr);
    m_plugin->getSearchResultFrame()->setParent(nullptr);
}

void MainWindow::buildLayout()
{
    m_navBar->setObjectName(QStringLiteral("navBar"));
    auto *navigation = new QHBoxLayout(m_navBar);
    navigation->setContentsMargins(12, 6, 12, 6);
    navigation->setSpacing(8);
    navigation->addWidget(m_crumbs, 1);
    navigation->addWidget(m_filters);
    navigation->addWidget(m_bulk);

    m_sides->insertWidget(ScanPage, m_plugin->getScanContentFrame());
    m_sides->insertWidget(SearchPage, m_plugin->getSearchResultFrame());
    auto *results = new QVBoxLayout;
    results->setSpacing(0);
    results->addWidget(m_navBar);
    results->addWidget(m_banner);
    results->addWidget(m_sides, 1);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_side);
    middle->addLayout(results, 1);
    auto *whole = new QWidget(this);
    auto *column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_topBar);
    column->addLayout(middle, 1);
    column->addWidget(m_bottomBar);
    setCentralWidget(whole);
    m_sides->installEventFilter(this);
    whole->setFocusPolicy(Qt::ClickFocus);
    whole->setFocus(); // else the first button would begin with a focus frame
}

void MainWindow::connectBars()
{
    connect(m_topBar, &TopBar::openFolderRequested, this, &MainWindow::chooseFolder);
    connect(m_topBar, &TopBar::openImageRequested, this, &MainWindow::chooseImage);
    connect(m_topBar, &TopBar::rescanRequested, this, [this] { openSource(m_session.path()); });
    connect(m_topBar, &TopBar::stopRequested, &m_session, &Session::cancelScan);
    connect(m_topBar, &TopBar::keywordChanged, &m_session, &Session::setKeyword);
    connect(m_topBar, &TopBar::describedChanged, &m_session, &Session::setDescribed);
    connect(m_topBar, &TopBar::viewModePicked, &m_session, &Session::setViewMode);
    connect(m_topBar, &TopBar::themeToggled, this,
            [this] { setTheme(m_theme.isDark ? LightTheme : DarkTheme); });
    connect(m_topBar, &TopBar::languagePicked, this, &MainWindow::switchLanguage);
    connect(m_filters, &FilterBar::changed, this,
            [this] { m_session.setFilter(m_filters->condition()); });
    connect(m_bulk, &BulkMenu::picked, &m_session, &Session::changeChecks);
    connect(m_bulk, &BulkMenu::undoRequested, this, &MainWindow::undoChecks);
    connect(m_bulk, &BulkMenu::redoRequested, this, &MainWindow::redoChecks);
    connect(m_side, &SidePanel::picked, &m_session, &Session::show);
    connect(m_crumbs, &Breadcrumbs::picked, &m_session, &Session::show);
    connect(m_bottomBar, &BottomBar::stopRequested, &m_session, &Session::cancelScan);
    connect(m_bottomBar, &BottomBar::targetRequested, m_recovery, &RecoveryFlow::pickTarget);
    connect(m_bottomBar, &BottomBar::recoverRequested, this,
            [this] { m_session.takeChecked(recoverChosen()); });
    connect(m_recovery, &RecoveryFlow::roomChanged, this, &MainWindow::showTarget);
    connect(m_recovery, &RecoveryFlow::recovered, this, &MainWindow::recovered);
}

void MainWindow::connectSession()
{
    connect(&m_session, &Session::opened, m_banner, &QWidget::hide);
    connect(&m_session, &Session::opened, m_toast, &QWidget::hide);
    connect(&m_session, &Session::scanProgressed, this,
            [this] { m_bottomBar->setProgress(m_session.progress(), m_session.isScanning()); });
    connect(&m_session, &Session::scanFinished, this, &MainWindow::tellOutcome);
    connect(&m_session, &Session::treeGrew, m_side, &SidePanel::refresh);
    connect(&m_session, &Session::checksChanged, this, &MainWindow::refreshChecks);
    connect(&m_session, &Session::bulkChecked, this, &MainWindow::offerUndo);
    connect(&m_session, &Session::shownRootChanged, this, [this] {
        m_crumbs->follow(m_session.shownRoot());
        m_side->follow(m_session.shownRoot());
        refreshSide();
    });
    connect(&m_session, &Session::searchChanged, this, &MainWindow::refreshSide);
    connect(&m_session, &Session::fileActivated, this, &MainWindow::openFile);
    connect(
        &m_session, &Session::recoverRequested, this,
        [this] { m_session.takeSelected(recoverChosen()); },
        Qt::QueuedConnection); // a dialog must not open inside the plug-in's signal
    connect(&m_session, &Session::noticed, this,
            [this](const Session::Words &words) { m_banner->tell(MessageBanner::Hint, words); });
    connect(&m_session, &Session::tooltipRequested, this,
            [this](const QString &text) { QToolTip::showText(QCursor::pos(), text, this); });
    connect(&m_session, &Session::failed, this,
            [this](const Session::Words &words) { m_banner->tell(MessageBanner::Failure, words); });
    connect(&m_opener, &FileOpener::failed, this, &MainWindow::tellFailure);
}

void MainWindow::addShortcuts()
{
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_topBar, &TopBar::focusSearch);
    for (int mode = 0; mode <= SDCardScanContentPluginInterface::ListView; ++mode) {
        auto *view = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + mode)), this);
        connect(view, &QShortcut::activated, this, [this, mode] { setViewMode(mode); });
    }
}

void MainWindow::openSource(const QString &path)
{
    m_banner->hide();
    m_filters->clear();
    m_session.setFilter(FilterCondition());
    m_topBar->setKeyword(QString());
    m_topBar->setSource(path);
    m_topBar->setScanning(true);
    m_session.open(path);
    m_side->reload(nullptr);
    m_bottomBar->setProgress(m_session.progress(), true);
}

void MainWindow::setViewMode(int mode)
{
    m_topBar->setViewMode(mode);
    m_session.setViewMode(mode);
}

void MainWindow::setTheme(THEMETYPE type)
{
    m_theme = type == DarkTheme ? HostTheme::dark() : HostTheme::light();
    setPalette(m_theme.palette());
    QToolTip::setPalette(m_theme.palette());
    m_theme.applyTo(m_navBar);
    m_topBar->setTheme(m_theme);
    m_banner->setTheme(m_theme);
    m_toast->setTheme(m_theme);
    m_crumbs->setTheme(m_theme);
    m_filters->setTheme(m_theme);
    m_bulk->setTheme(m_theme);
    m_side->setTheme(m_theme);
    m_bottomBar->setTheme(m_theme);
    m_recovery->setTheme(m_theme);
    m_plugin->updateTheme(type);
}

void MainWindow::search(const QString &keyword, bool described)
{
    m_topBar->setDescribed(described);
    m_topBar->setKeyword(keyword);
    m_session.setKeyword(m_topBar->keyword());
}

void MainWindow::refreshSide()
{
    const ItemSearch &search = m_session.search();
    m_sides->setCurrentIndex(search.isActive() ? SearchPage : ScanPage);
    if (search.isActive()) {
        m_crumbs->followSearch(search.keyword(), m_session.isDescribed(), search.count());
    } else {
        m_crumbs->follow(m_session.shownRoot());
        if (!m_topBar->keyword().isEmpty() && !m_session.isScanning())
            m_topBar->setKeyword(QString()); // the user went elsewhere
    }
}

void MainWindow::refreshChecks()
{
    const ItemTree &tree = m_session.tree();
    m_bottomBar->setChecked(tree.checkedFiles(), tree.checkedBytes(), tree.hiddenCheckedFiles());
}

void MainWindow::showTarget()
{
    m_bottomBar->setTarget(m_recovery->room().folder(), m_recovery->room().bytes());
}

ItemCollector::Taker MainWindow::recoverChosen()
{
    return [this](const QVector<FoundItem> &items) { m_recovery->recoverChosen(items); };
}

void MainWindow::recover(const QVector<FoundItem> &items, const QString &target)
{
    m_recovery->recover(items, target);
}

void MainWindow::offerUndo(int checkedFiles, int uncheckedFiles)
{
    m_toast->offer(
        [checkedFiles, uncheckedFiles] {
            if (uncheckedFiles == 0)
                return tr("%Ln file(s) checked.", nullptr, checkedFiles);
            if (checkedFiles == 0)
                return tr("%Ln file(s) unchecked.", nullptr, uncheckedFiles);
            return tr("%Ln check(s) changed.", nullptr, checkedFiles + uncheckedFiles);
        },
        [] { return tr("Undo"); }, [this] { undoChecks(); });
}

void MainWindow::undoChecks()
{
    if (m_session.undoChecks())
        m_toast->offer([] { return tr("The change was undone."); }, [] { return tr("Redo"); },
                       [this] { redoChecks(); });
    else
        m_toast->offer([] { return tr("There is nothing to undo."); }, {}, {});
}

void MainWindow::redoChecks()
{
    if (m_session.redoChecks())
        m_toast->offer([] { return tr("The change was made again."); }, [] { return tr("Undo"); },
                       [this] { undoChecks(); });
    else
        m_toast->offer([] { return tr("There is nothing to redo."); }, {}, {});
}

void MainWindow::tellOutcome(const ScanOutcome &outcome)
{
    m_topBar->setScanning(false);
    m_bottomBar->setProgress(m_session.progress(), false);
    m_side->refresh();
    if (!outcome.error.isEmpty())
        tellFailure(outcome.error);
    else if (outcome.cancelled)
        m_banner->tell(MessageBanner::Hint,
                       [] { return tr("The scan was stopped. What it found is shown."); });
    else if (outcome.skipped > 0)
        m_banner->tell(MessageBanner::Hint, [outcome] {
            return tr("%Ln thing(s) could not be read, the first: %1", nullptr, outcome.skipped)
                .arg(outcome.warnings.value(0));
        });
}

void MainWindow::tellFailure(const QString &text)
{
    m_banner->tell(MessageBanner::Failure, text);
}

void MainWindow::tellMissingSample()
{
    m_banner->tell(MessageBanner::Failure, [] {
        return tr("The sample card has not been made. Open a folder, a disk image or a device.");
    });
}

void MainWindow::switchLanguage(const QString &name)
{
    const Language *language = Languages::find(name);
    if (!language)
        return;
    Languages::apply(*language);
    HostSettings::setLanguage(name);
}

void MainWindow::chooseFolder()
{
    const QString path = QFileDialog::getExistingDirectory(this, tr("Open folder"),
                                                           m_session.path());
    if (!path.isEmpty())
        openSource(path);
}

void MainWindow::chooseImage()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open disk image"),
                                                      m_session.path());
    if (!path.isEmpty())
        openSource(path);
}

void MainWindow::openFile(const ItemRecord *file)
{
    if (file->fileCategory != PhotoCategory) {
        m_opener.open(m_session.source(), file->found());
        return;
    }
    const ItemSearch &search = m_session.search();
    auto *viewer = new PictureViewer(m_session.source(), this);
    viewer->open(search.isActive() ? search.root() : m_session.shownRoot(), file);
}

void MainWindow::placeToast()
{
    m_toast->setRoom(QRect(m_sides->mapTo(this, QPoint()), m_sides->size()));
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_sides && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        placeToast();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_side->setVisible(width() >= SidePanelFrom);
    m_bulk->setCompact(width() < BulkTextFrom);
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    m_recovery->setWatching(true);
}

void MainWindow::hideEvent(QHideEvent *event)
{
    QMainWindow::hideEvent(event);
    m_recovery->setWatching(false);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    QCoreApplication::quit();
}
