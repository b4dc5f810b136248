#include "content/sdcardcontentdatawidget.h"

#include "common/guard.h"
#include "common/qssloader.h"
#include "common/restyling.h"
#include "content/checkall.h"
#include "content/contentpages.h"
#include "content/contentviews.h"
#include "content/contextmenu.h"
#include "content/currentitem.h"
#include "content/gridmode.h"
#include "content/itemchecks.h"
#include "content/listmode.h"
#include "content/loadmoretrigger.h"
#include "content/scananimation.h"
#include "content/scantableview.h"
#include "content/sortchoice.h"
#include "content/thumbnailrequests.h"
#include "delegates/delegateitem.h"
#include "delegates/listdelegate.h"
#include "model/itemtext.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "ui_sdcardcontentdatawidget.h"

using PageChoice::Page;

namespace {

constexpr int SearchSide = 2;

enum ScanState { Started = 1, Finished = 4, AnimationStopped = 5 };

} // namespace

SDCardContentDataWidget::SDCardContentDataWidget(int side, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::SDCardContentDataWidgetClass>())
{
    loadStyleSheet(); // before there is anything that would have to be styled again
    ui->setupUi(this);
    qRegisterMetaType<QItemSelection>("QItemSelection");
    m_pages = new ContentPages(*ui, side == SearchSide, this);
    createParts();
    connectParts();
    connectViews();
    retranslate();
    m_restyling = new Restyling(this, [this] { restyle(); });
}

SDCardContentDataWidget::~SDCardContentDataWidget() = default;

// Construction ---------------------------------------------------------------------------------

void SDCardContentDataWidget::createParts()
{
    m_model = new ScanDataModel(this);
    m_thumbnails = new ThumbnailRequests(this);
    m_thumbnails->followModel(m_model);
    m_views = new ContentViews(*ui, m_model, this);
    ui->listView->installEventFilter(this);
    m_checkAll = new CheckAll(ui->allCheckButton, ui->iconModeHederView, m_views->list()->header(),
                              this);
    m_checks = new ItemChecks(m_model, m_views, m_checkAll, this);
    m_sort = new SortChoice(ui->iconModeHederView, m_views->list()->header(), m_model, m_views,
                            this);
    m_current = new CurrentItem(m_model, {ui->listView, m_views->list()->table()}, this);
    m_menu = new ContextMenu(m_model, this);
}

void SDCardContentDataWidget::connectParts()
{
    connect(m_checks, &ItemChecks::itemChecked, this,
            &SDCardContentDataWidget::signalItemDataCheck);
    connect(m_checks, &ItemChecks::allChecked, this,
            [this](TreeItemData *root, Qt::CheckState state) {
                if (m_pages->searchMode())
                    emit signalSearchSelectAllChecked(state);
                else
                    emit signalItemDataCheck(root, state);
            });
    connect(m_sort, &SortChoice::chosen, this, &SDCardContentDataWidget::onSortChosen);
    connect(m_pages, &ContentPages::shown, m_views, &ContentViews::placeOverlay);
    connect(m_current, &CurrentItem::saved, m_views->grid(), &GridMode::setCurrentIndex);
    connect(m_current, &CurrentItem::changed, this, [this](TreeItemData *item) {
        m_views->list()->setCurrentItem(item);
        emit signalCurrentItemChanged(item);
    });
    connect(m_views, &ContentViews::toggleWanted, this,
            [this] { m_checks->toggleSelected(m_current->index()); });
    connect(m_views, &ContentViews::itemToggleWanted, m_checks, &ItemChecks::toggle);
    connect(m_views, &ContentViews::menuWanted, this,
            [this] { m_menu->openAtCurrent(*m_views->inUse()); });
    connect(m_menu, &ContextMenu::openRequested, this, &SDCardContentDataWidget::openItem);
    connect(m_menu, &ContextMenu::recoverRequested, this,
            &SDCardContentDataWidget::signalRightMenuRecover);
}

void SDCardContentDataWidget::connectViews()
{
    connect(m_views->grid(), &GridMode::pressed, m_current, &CurrentItem::save);
    connect(m_views, &ContentViews::itemChecked, this,
            &SDCardContentDataWidget::signalItemDataCheck);
    connect(m_views, &ContentViews::openRequested, this, &SDCardContentDataWidget::openItem);
    connect(m_views, &ContentViews::tooltipWanted, this,
            &SDCardContentDataWidget::signalScanViewShowTooltip);
    // After the press has changed the selection, which the menu is about.
    connect(m_views, &ContentViews::contextMenuWanted, m_menu, &ContextMenu::openAtMouse,
            Qt::QueuedConnection);
    connect(m_views, &ContentViews::longPressed, m_menu, &ContextMenu::openByTouch);
    connect(m_views->list(), &ListMode::locationClicked, this,
            &SDCardContentDataWidget::goToLocation);
    connect(m_views->list(), &ListMode::metaDataWanted, this,
            &SDCardContentDataWidget::signalGetMetaData);
    connect(m_views, &ContentViews::thumbnailMissing, m_thumbnails, &ThumbnailRequests::request);
    connect(m_thumbnails, &ThumbnailRequests::wanted, this,
            &SDCardContentDataWidget::signalGetThumPixmap);
    connect(m_thumbnails, &ThumbnailRequests::answered, m_views, &ContentViews::showThumbnail);

    const auto root = [this] { return m_root.data(); };
    for (const LoadMoreTrigger *trigger :
         {new LoadMoreTrigger(ui->listView, "[ScrollDiag][listView] trigger signalQueryMoreData",
                              root, this),
          new LoadMoreTrigger(m_views->list()->table(),
                              "[ScrollDiag][tableView] trigger signalQueryMoreData", root, this)})
        connect(trigger, &LoadMoreTrigger::moreWanted, this,
                &SDCardContentDataWidget::signalQueryMoreData);
}

void SDCardContentDataWidget::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("sdcardcontentdatawidget.qss"));
}

void SDCardContentDataWidget::retranslate()
{
    m_pages->retranslate();
    ui->iconModeHederView->retranslate();
    m_views->list()->retranslate();
    m_menu->retranslate();
    emit m_model->headerDataChanged(Qt::Horizontal, 0, ScanDataModel::ColumnCount - 1);
    m_views->repaint();
}

void SDCardContentDataWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        guarded(Q_FUNC_INFO, [this] {
            m_pages->applyFonts();
            ui->iconModeHederView->updateFont();
            retranslate();
        });
    QWidget::changeEvent(event);
}

void SDCardContentDataWidget::updateTheme(THEMETYPE)
{
    m_restyling->request();
}

void SDCardContentDataWidget::restyle()
{
    guarded(Q_FUNC_INFO, [this] {
        loadStyleSheet();
        m_checkAll->refresh();
        ui->iconModeHederView->updateTheme();
        m_views->list()->updateTheme();
        m_pages->updateTheme();
        m_menu->updateTheme();
        m_views->repaint();
    });
}

// Pages ----------------------------------------------------------------------------------------

void SDCardContentDataWidget::showLoadingPage(bool show)
{
    guarded(Q_FUNC_INFO, [this, show] {
        if (show)
            m_pages->showLoading();
    });
}

void SDCardContentDataWidget::initScaningLottie()
{
    m_pages->animation()->initScaningLottie();
}

void SDCardContentDataWidget::startScanAnimation()
{
    m_pages->animation()->start();
}

void SDCardContentDataWidget::stopScanAnimation()
{
    m_pages->animation()->stop();
}

void SDCardContentDataWidget::setViewMode(int mode)
{
    if (mode == m_views->mode())
        return;
    if (!ContentViews::isKnown(mode)) {
        qDebug() << "SDCardContentDataWidget setViewMode unknown mode" << mode;
        return;
    }
    guarded(Q_FUNC_INFO, [this, mode] { m_views->setMode(mode, m_current->index()); });
}

void SDCardContentDataWidget::setScanState(int state)
{
    guarded(Q_FUNC_INFO, [this, state] {
        switch (state) {
        case Started:
            setViewMode(ContentViews::GridOnly);
            m_pages->show(Page::Scanning);
            ui->animationframe->show();
            m_pages->setScanFinished(false);
            m_views->setAssessmentFinished(false);
            m_pages->applyFonts();
            break;
        case Finished:
            m_views->repaint();
            m_pages->setScanFinished(true);
            m_pages->showForFinishedScan(m_root);
            m_views->setAssessmentFinished(true);
            break;
        case AnimationStopped:
            stopScanAnimation();
            break;
        default:
            break;
        }
    });
}

bool SDCardContentDataWidget::scanFinished() const
{
    return m_pages->scanFinished();
}

void SDCardContentDataWidget::setScanFinished(bool finished)
{
    if (finished == scanFinished())
        return;
    m_pages->setScanFinished(finished);
    m_views->setAssessmentFinished(finished);
    m_views->repaint();
}

void SDCardContentDataWidget::setSearchMode(bool searchMode)
{
    m_pages->setSearchMode(searchMode);
}

void SDCardContentDataWidget::setFilterCondition(FilterCondition *condition)
{
    m_pages->setFilterCondition(condition);
}

// Results --------------------------------------------------------------------------------------

void SDCardContentDataWidget::updateData(TreeItemData *root, const QString &keyword)
{
    const QPointer<TreeItemData> guardedRoot(root);
    if (!guardedRoot)
        return;
    guarded(Q_FUNC_INFO, [&] {
        qDebug() << "SDCardContentDataWidget updateData itemCount = "
                 << root->childFolders.size() + root->childFiles.size();
        m_views->setSearchKeyword(keyword);
        m_root = root;
        m_checks->setRoot(root);
        // A link leads somewhere only where items come from many places.
        m_views->list()->delegate()->setPathColumnsActive(m_pages->isSearchSide()
                                                          || PageChoice::isCategoryTree(root));

        const Page page = m_pages->pageForTree(root);
        if (page == Page::Results || m_pages->isSearchSide())
            setCheckAllState(root->checkState);
        const int update = ++m_updates;
        const bool shownAlready = m_current->belongsTo(*root) && m_model->rowCount() > 0;
        if (shownAlready)
            m_views->remember();
        m_views->setName(ItemText::displayName(*root));
        m_model->openFolder(root);
        m_current->restore(*root);
        if (shownAlready)
            m_views->recall();
        else
            m_views->inUse()->scrollToTop();
        // Scrolling may ask for more, and the host may answer at once.
        if (update != m_updates || !guardedRoot)
            return;
        m_pages->show(page);
        m_views->showHeaders();

        if (m_model->rowCount() > 0)
            m_current->announce();
        else
            m_current->forget();
    });
}

void SDCardContentDataWidget::reset()
{
    guarded(Q_FUNC_INFO, [this] {
        m_pages->setScanFinished(false);
        m_views->setAssessmentFinished(false);
        m_thumbnails->clear();
        m_model->clear();
        m_sort->reset();
        m_views->showHeaders();
        m_current->forget();
        m_root = nullptr;
        m_checks->setRoot(nullptr);
        setCheckAllState(Qt::Unchecked);
        m_pages->show(Page::Results);
    });
}

void SDCardContentDataWidget::locateFileId(qint64 fileId)
{
    if (fileId >= 0)
        locate(m_model->rowOfFileId(fileId));
}

void SDCardContentDataWidget::locateSecondaryId(qint64 id)
{
    if (id >= 0)
        locate(m_model->rowOfSecondaryId(id));
}

void SDCardContentDataWidget::locate(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    if (!index.isValid())
        return;
    m_views->inUse()->setCurrentIndex(index);
    m_views->inUse()->scrollTo(index, QAbstractItemView::PositionAtCenter);
    m_current->save(index);
}

QList<TreeItemData *> SDCardContentDataWidget::selectedItems() const
{
    return m_views->selectedItems();
}

// Checks ---------------------------------------------------------------------------------------

void SDCardContentDataWidget::setCheckAllState(int state)
{
    m_checkAll->setState(state);
}

void SDCardContentDataWidget::refreshCheckState()
{
    m_checks->refresh();
}

void SDCardContentDataWidget::refreshCheckAllState()
{
    m_checks->refreshAllState();
}

// What the user does ---------------------------------------------------------------------------

void SDCardContentDataWidget::openItem(TreeItemData *opened, const QString &source)
{
    guarded(Q_FUNC_INFO, [&] {
        const QPointer<TreeItemData> item = opened;
        if (!item)
            return;
        const bool entered = source == QLatin1String("double_click")
            && item->kind == ItemKind::Folder
            && !(item->childFolders.isEmpty() && item->childFiles.isEmpty());
        if (entered)
            updateData(item, QString());
        if (item)
            emit signalDoubleClicked(item, source);
    });
}

void SDCardContentDataWidget::goToLocation(TreeItemData *item)
{
    if (!item)
        return;
    const bool pane = m_views->mode() == ContentViews::ListWithPane;
    emit signalLocateFile(item);
    emit signalSensorsData(
        QStringLiteral("go_to_file_path_click"),
        {{QStringLiteral("click_from"),
          pane ? QStringLiteral("detail_view") : QStringLiteral("list_view")},
         {QStringLiteral("click_what"),
          pane ? QStringLiteral("path_jump_icon") : QStringLiteral("path_text_link")}});
}

void SDCardContentDataWidget::onSortChosen(HeaderViewSortType type)
{
    if (!m_root)
        return;
    m_views->repaint();
    emit signalSortClicked(m_root, type);
}

void SDCardContentDataWidget::setFoldersHavePlaceholder(bool placeholder)
{
    m_views->list()->delegate()->setFoldersHavePlaceholder(placeholder);
    m_views->repaint();
}

bool SDCardContentDataWidget::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        // After the view has taken its new size.
        if (watched == ui->listView)
            QMetaObject::invokeMethod(m_views, &ContentViews::placeOverlay, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
