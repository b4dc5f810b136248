#pragma once

#include "host/app/fileopener.h"
#include "host/app/session.h"
#include "host/recovery/recoveryreport.h"
#include "host/ui/hosttheme.h"
#include "host/ui/messagebanner.h"

#include <QMainWindow>

class BottomBar;
class Breadcrumbs;
class BulkMenu;
class FilterBar;
class QStackedWidget;
class RecoveryFlow;
class SidePanel;
class TopBar;

/// The window: bars around the two frames of the plug-in. Turns what the user does into calls of
/// the session, and what the session tells into what the user sees.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(ContentPlugin &plugin, Session &session);
    ~MainWindow() override;

    void openSource(const QString &path);
    void setViewMode(int mode);
    void setTheme(THEMETYPE type);
    void search(const QString &keyword, bool described = false);
    /// Recovers \a items into \a target and shows how it goes; recovered() follows.
    void recover(const QVector<FoundItem> &items, const QString &target);
    void tellFailure(const QString &text);
    void tellMissingSample();

signals:
    void recovered(const RecoveryReport &report);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void buildLayout();
    void connectBars();
    void connectSession();
    void addShortcuts();
    void switchLanguage(const QString &name);
    void chooseFolder();
    void chooseImage();
    void openFile(const ItemRecord *file);
    void refreshSide();
    void refreshChecks();
    void showTarget();
    ItemCollector::Taker recoverChosen();
    void offerUndo(int checkedFiles, int uncheckedFiles);
    void undoChecks();
    void redoChecks();
    void placeToast();
    void tellOutcome(const ScanOutcome &outcome);

    ContentPlugin &m_plugin;
    Session &m_session;
    FileOpener m_opener;
    HostTheme m_theme = HostTheme::light();
    TopBar *m_topBar;
    MessageBanner *m_banner;
    MessageBanner *m_toast;
    QFrame *m_navBar;
    Breadcrumbs *m_crumbs;
    FilterBar *m_filters;
    BulkMenu *m_bulk;
    SidePanel *m_side;
    QStackedWidget *m_sides;
    BottomBar *m_bottomBar;
    RecoveryFlow *m_recovery;
};
