#include "content/sdcardcontentdatawidget.h"

#include "common/guard.h"
#include "common/qssloader.h"
#include "content/checkall.h"
#include "content/checktoggle.h"
#include "content/contentpages.h"
#include "content/contextmenu.h"
#include "content/currentitem.h"
#include "content/gridmode.h"
#include "content/listmode.h"
#include "content/loadmoretrigger.h"
#include "content/overlayscrollbar.h"
#include "content/scananimation.h"
#include "content/scantableview.h"
#include "content/thumbnailrequests.h"
#include "delegates/delegateitem.h"
#include "delegates/listdelegate.h"
#include "detail/itemdetailview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "model/sortcycle.h"
#include "platform/item/filtercondition.h"
#include "ui_sdcardcontentdatawidget.h"

#include <QKeyEvent>
#include <QScrollBar>

using PageChoice::Page;

namespace {

constexpr int SearchSide = 2;
enum ViewMode { GridOnly = 0, ListWithPane = 1, ListOnly = 2 };

enum ScanState { Started = 1, Finished = 4, AnimationStopped = 5 };

} // namespace

SDCardContentDataWidget::SDCardContentDataWidget(int side, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::SDCardContentDataWidgetClass>())
    , m_side(side)
{
    ui->setupUi(this);
    // The select-all control stands where the check boxes of the cards do.
    ui->headerViewHorizontalLayout->removeWidget(ui->iconModeHederView);
    ui->headerViewHorizontalLayout->addWidget(ui->iconModeHederView, 1);
    qRegisterMetaType<QItemSelection>("QItemSelection");
    ui->itemDetailframe->hide();
    ui->vlineframe->hide();
    ui->listModeHeaderView->hide();
    ui->iconModeHederView->hide();

    ui->stackedWidget->setCurrentWidget(m_side == SearchSide ? ui->scandatapage : ui->scanningpage);
    ui->listView->installEventFilter(this);
    m_pages = new ContentPages(*ui, this);
    m_pages->loadImages();
    m_pages->applyFonts();

    createViews();
    connectViews();
    connectThumbnails();
    loadStyleSheet();
    retranslate();
}

SDCardContentDataWidget::~SDCardContentDataWidget() = default;

// Construction ---------------------------------------------------------------------------------

void SDCardContentDataWidget::createViews()
{
    m_model = new ScanDataModel(this);
    m_thumbnails = new ThumbnailRequests(this);
    m_grid = new GridMode(ui->listView, m_model, this);
    m_list = new ListMode(m_model, ui->frame_4);
    m_list->table()->installEventFilter(this);
    ui->horizontalLayout_4->insertWidget(1, m_list->table(), 1);
    ui->itemDetailFrameVLayout->addWidget(m_list->pane());
    m_checkAll = new CheckAll(ui->allCheckButton, ui->iconModeHederView, m_list->header(), this);

    m_current = new CurrentItem(m_model, {ui->listView, m_list->table()}, this);
    m_menu = new ContextMenu(m_model, this);
    m_overlay = new OverlayScrollBar(ui->listView, this);
    setTabOrder(ui->allCheckButton, ui->iconModeHederView);
    setTabOrder(ui->iconModeHederView, ui->listView);
    setTabOrder(ui->listView, m_list->table());
    setTabOrder(m_list->table(), m_list->pane());
}

void SDCardContentDataWidget::connectViews()
{
    connect(m_checkAll, &CheckAll::clicked, this, &SDCardContentDataWidget::checkAll);
    connect(ui->iconModeHederView, &HeaderView::signalSortClicked, this,
            &SDCardContentDataWidget::applySort);
    connect(m_pages, &ContentPages::shown, m_overlay, &OverlayScrollBar::sync);
    connect(m_current, &CurrentItem::saved, m_grid, &GridMode::setCurrentIndex);
    connect(m_current, &CurrentItem::changed, this, [this](TreeItemData *item) {
        m_list->setCurrentItem(item);
        emit signalCurrentItemChanged(item);
    });
    connectModes();

    auto *gridBottom = new LoadMoreTrigger(
        ui->listView, "[ScrollDiag][listView] trigger signalQueryMoreData", this);
    auto *tableBottom = new LoadMoreTrigger(
        m_list->table(), "[ScrollDiag][tableView] trigger signalQueryMoreData", this);
    for (const LoadMoreTrigger *trigger : {gridBottom, tableBottom}) {
        connect(trigger, &LoadMoreTrigger::bottomReached, this, [this, trigger] {
            if (!LoadMoreTrigger::hasMore(m_root))
                return;
            qDebug() << trigger->logLine();
            emit signalQueryMoreData(m_root);
        });
    }
    const QScrollBar *gridBar = ui->listView->verticalScrollBar();
    connect(gridBar, &QScrollBar::rangeChanged, this, [this](int minimum, int maximum) {
        m_list->delegate()->setGridCanScroll(maximum > minimum);
    });
}

void SDCardContentDataWidget::connectModes()
{
    connect(m_grid, &GridMode::pressed, m_current, &CurrentItem::save);
    connect(m_grid, &GridMode::checkChanged, this, &SDCardContentDataWidget::onCheckChanged);
    connect(m_grid, &GridMode::openRequested, this, &SDCardContentDataWidget::openItem);
    connect(m_grid, &GridMode::tooltipWanted, this,
            &SDCardContentDataWidget::signalScanViewShowTooltip);

    // After the press has changed the selection, which the menu is about.
    connect(m_grid, &GridMode::contextMenuWanted, m_menu, &ContextMenu::openAtMouse,
            Qt::QueuedConnection);
    connect(m_list, &ListMode::contextMenuWanted, m_menu, &ContextMenu::openAtMouse,
            Qt::QueuedConnection);
    connect(m_menu, &ContextMenu::openRequested, this, &SDCardContentDataWidget::openItem);
    connect(m_menu, &ContextMenu::recoverRequested, this,
            &SDCardContentDataWidget::signalRightMenuRecover);

    connect(m_list, &ListMode::sortClicked, this, &SDCardContentDataWidget::applySort);
    connect(m_list, &ListMode::checkChanged, this, &SDCardContentDataWidget::onCheckChanged);
    connect(m_list, &ListMode::openRequested, this, &SDCardContentDataWidget::openItem);
    connect(m_list, &ListMode::locationClicked, this, &SDCardContentDataWidget::goToLocation);
    connect(m_list, &ListMode::metaDataWanted, this, &SDCardContentDataWidget::signalGetMetaData);
    connect(m_list, &ListMode::tooltipWanted, this,
            &SDCardContentDataWidget::signalScanViewShowTooltip);
}

void SDCardContentDataWidget::connectThumbnails()
{
    connect(m_grid, &GridMode::thumbnailMissing, m_thumbnails, &ThumbnailRequests::request);
    connect(m_list, &ListMode::thumbnailMissing, m_thumbnails, &ThumbnailRequests::request);
    connect(m_thumbnails, &ThumbnailRequests::wanted, this,
            &SDCardContentDataWidget::signalGetThumPixmap);
    connect(m_thumbnails, &ThumbnailRequests::answered, this,
            &SDCardContentDataWidget::onThumbnailArrived);
}

void SDCardContentDataWidget::loadStyleSheet()
{
    QSSLoader::applyStyleSheet(this, QStringLiteral("sdcardcontentdatawidget.qss"));
}

void SDCardContentDataWidget::retranslate()
{
    m_pages->retranslate();
    ui->iconModeHederView->retranslate();
    m_list->retranslate();
    m_menu->retranslate();
    emit m_model->headerDataChanged(Qt::Horizontal, 0, ScanDataModel::ColumnCount - 1);
    repaintViews();
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
    guarded(Q_FUNC_INFO, [this] {
        loadStyleSheet();
        m_checkAll->refresh();
        ui->iconModeHederView->updateTheme();
        m_list->updateTheme();
        m_menu->updateTheme();
        repaintViews();
    });
}

// Pages ----------------------------------------------------------------------------------------

PageChoice::Situation SDCardContentDataWidget::situation() const
{
    return {m_side == SearchSide, m_searchMode, m_scanFinished, m_filter, m_root};
}

void SDCardContentDataWidget::showLoadingPage(bool show)
{
    guarded(Q_FUNC_INFO, [this, show] {
        if (show && !m_searchMode && m_scanFinished)
            m_pages->show(Page::Loading);
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
    if (mode == m_viewMode)
        return;
    if (mode < GridOnly || mode > ListOnly) {
        qDebug() << "SDCardContentDataWidget setViewMode unknown mode" << mode;
        return;
    }
    guarded(Q_FUNC_INFO, [this, mode] {
        const bool grid = mode == GridOnly;
        const bool pane = mode == ListWithPane;
        QAbstractItemView *before = viewInUse();
        m_viewMode = mode;
        ui->headerViewFrame->setVisible(grid);
        ui->listView->setVisible(grid);
        m_list->table()->setVisible(!grid);
        ui->spaceframe->setVisible(pane);
        ui->vlineframe->setVisible(pane);
        ui->itemDetailframe->setVisible(pane);
        m_list->setPaneShown(pane);
        m_list->fitColumns();
        if (before != viewInUse()) {
            m_grid->forgetMultiSelection();
            ViewMemory::copySelection(*before, *viewInUse(), *m_model);
            viewInUse()->scrollTo(m_current->index());
        }
        showHeaders();
        m_overlay->sync();
    });
}

void SDCardContentDataWidget::showHeaders()
{
    // The table brings its own header: the container for one stays empty.
    const bool rows = m_model->rowCount() > 0;
    ui->iconModeHederView->setVisible(rows && m_viewMode == GridOnly);
    ui->listModeHeaderView->setVisible(rows && m_viewMode != GridOnly);
}

void SDCardContentDataWidget::repaintViews()
{
    ui->listView->viewport()->update();
    m_list->table()->viewport()->update();
}

QAbstractItemView *SDCardContentDataWidget::viewInUse() const
{
    if (m_viewMode == GridOnly)
        return ui->listView;
    return m_list->table();
}

void SDCardContentDataWidget::setScanState(int state)
{
    guarded(Q_FUNC_INFO, [this, state] {
        switch (state) {
        case Started:
            setViewMode(GridOnly);
            m_pages->show(Page::Scanning);
            ui->animationframe->show();
            m_scanFinished = false;
            m_grid->setAssessmentFinished(false);
            m_list->setAssessmentFinished(false);
            m_pages->applyFonts();
            break;
        case Finished: {
            repaintViews();
            m_scanFinished = true;
            const Page page = PageChoice::forFinishedScan(situation(), m_pages->current());
            if (page != m_pages->current())
                m_pages->show(page);
            m_grid->setAssessmentFinished(true);
            m_list->setAssessmentFinished(true);
            break;
        }
        case AnimationStopped:
            stopScanAnimation();
            break;
        default:
            break;
        }
    });
}

void SDCardContentDataWidget::setScanFinished(bool finished)
{
    if (finished == m_scanFinished)
        return;
    m_scanFinished = finished;
    m_grid->setAssessmentFinished(finished);
    m_list->setAssessmentFinished(finished);
    repaintViews();
}

void SDCardContentDataWidget::setSearchMode(bool searchMode)
{
    m_searchMode = searchMode;
}

void SDCardContentDataWidget::setFilterCondition(FilterCondition *condition)
{
    m_filter = condition;
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
        m_grid->setSearchKeyword(keyword);
        m_list->setSearchKeyword(keyword);
        m_root = root;
        // A link leads somewhere only where items come from many places.
        m_list->delegate()->setPathColumnsActive(m_side == SearchSide
                                                 || PageChoice::isCategoryTree(root));

        const Page page = PageChoice::forTree(situation());
        if (page == Page::Results || m_side == SearchSide)
            setCheckAllState(root->checkState);
        giveToModel(root);
        m_pages->show(page);
        showHeaders();

        if (m_model->rowCount() > 0)
            m_current->restore(*root);
        else
            m_current->forget();
    });
}

void SDCardContentDataWidget::giveToModel(TreeItemData *root)
{
    const bool sameTree = m_current->belongsTo(*root) && m_model->rowCount() > 0;
    const bool grid = m_viewMode == GridOnly;
    // Only the view in use: the other takes its selection over when it is shown.
    ViewMemory &memory = grid ? m_gridMemory : m_tableMemory;
    if (sameTree)
        memory.capture(*viewInUse(), *m_model,
                       grid ? ui->listView->visibleRows().first
                            : m_list->table()->visibleRows().first);
    m_grid->rememberAnchor();
    m_model->openFolder(root);
    if (sameTree) {
        memory.restore(*viewInUse(), *m_model);
        m_grid->restoreAnchor();
    } else {
        viewInUse()->scrollToTop();
    }
}

void SDCardContentDataWidget::reset()
{
    guarded(Q_FUNC_INFO, [this] {
        m_scanFinished = false;
        m_grid->setAssessmentFinished(false);
        m_list->setAssessmentFinished(false);
        m_thumbnails->clear();
        m_model->clear();
        m_model->clearSort();
        ui->iconModeHederView->resetSort();
        m_list->header()->resetSort();
        showHeaders();
        m_current->forget();
        m_root = nullptr;
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
    viewInUse()->setCurrentIndex(index);
    viewInUse()->scrollTo(index, QAbstractItemView::PositionAtCenter);
    m_current->save(index);
}

QList<TreeItemData *> SDCardContentDataWidget::selectedItems() const
{
    const QModelIndexList indexes = m_viewMode == GridOnly
        ? m_grid->selectedIndexes()
        : m_list->table()->selectionModel()->selectedRows();
    QList<TreeItemData *> items;
    items.reserve(indexes.size());
    for (const QModelIndex &index : indexes) {
        if (TreeItemData *item = m_model->itemAt(index))
            items.append(item);
    }
    return items;
}

// Checks ---------------------------------------------------------------------------------------

void SDCardContentDataWidget::setCheckAllState(int state)
{
    m_checkAll->setState(state);
}

void SDCardContentDataWidget::checkAll(Qt::CheckState state)
{
    guarded(Q_FUNC_INFO, [this, state] {
        if (!m_root)
            return;
        m_root->checkState = state;
        m_model->setAllCheckStates(state);
        repaintViews();
        if (m_searchMode)
            emit signalSearchSelectAllChecked(state);
        else
            emit signalItemDataCheck(m_root, state);
    });
}

void SDCardContentDataWidget::refreshCheckState()
{
    guarded(Q_FUNC_INFO, [this] {
        m_model->refreshCheckStates();
        repaintViews();
        if (m_root)
            setCheckAllState(m_root->checkState);
    });
}

void SDCardContentDataWidget::refreshCheckAllState()
{
    guarded(Q_FUNC_INFO, [this] {
        if (m_root)
            setCheckAllState(CheckToggle::ofChildren(*m_root));
    });
}

void SDCardContentDataWidget::onCheckChanged(const QModelIndex &index, Qt::CheckState state)
{
    if (TreeItemData *item = m_model->itemAt(index))
        emit signalItemDataCheck(item, state);
}

void SDCardContentDataWidget::toggleSelectedChecks()
{
    const QItemSelectionModel *selection = viewInUse()->selectionModel();
    QModelIndexList indexes = m_viewMode == GridOnly ? selection->selectedIndexes()
                                                     : selection->selectedRows();
    if (indexes.isEmpty() && m_current->index().isValid())
        indexes = {m_current->index()};
    const CheckToggle::Result toggled = CheckToggle::toggle(*m_model, indexes);
    for (const auto &item : toggled.items) {
        if (item) // a slot of the host may have replaced the tree
            emit signalItemDataCheck(item, toggled.state);
    }
}

// What the user does ---------------------------------------------------------------------------

void SDCardContentDataWidget::onThumbnailArrived(qint64 fileId)
{
    m_grid->showThumbnail(fileId);
    m_list->showThumbnail(fileId);
}

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
    const bool pane = m_viewMode == ListWithPane;
    emit signalLocateFile(item);
    emit signalSensorsData(
        QStringLiteral("go_to_file_path_click"),
        {{QStringLiteral("click_from"),
          pane ? QStringLiteral("detail_view") : QStringLiteral("list_view")},
         {QStringLiteral("click_what"),
          pane ? QStringLiteral("path_jump_icon") : QStringLiteral("path_text_link")}});
}

void SDCardContentDataWidget::applySort(HeaderViewSortType type)
{
    guarded(Q_FUNC_INFO, [this, type] {
        ui->iconModeHederView->setSortType(type);
        m_list->header()->setSortType(type);
        // The sections that sort are the model's first columns.
        if (SortCycle::section(type) != SortCycle::NoSection)
            m_model->sort(SortCycle::section(type),
                          SortCycle::isDescending(type) ? Qt::DescendingOrder : Qt::AscendingOrder);
        if (!m_root)
            return;
        repaintViews();
        emit signalSortClicked(m_root, type);
    });
}

void SDCardContentDataWidget::setFoldersHavePlaceholder(bool placeholder)
{
    m_list->delegate()->setFoldersHavePlaceholder(placeholder);
    repaintViews();
}

bool SDCardContentDataWidget::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        if (handleKey(static_cast<QKeyEvent *>(event)->key()))
            return true;
        break;
    case QEvent::ContextMenu:
        if (static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard) {
            m_menu->openAtCurrent(*viewInUse());
            return true;
        }
        break;
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        // After the view has taken its new size.
        if (watched == ui->listView)
            QMetaObject::invokeMethod(m_overlay, &OverlayScrollBar::sync, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

bool SDCardContentDataWidget::handleKey(int key)
{
    switch (key) {
    case Qt::Key_Space:
        toggleSelectedChecks();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openItem(m_model->itemAt(viewInUse()->currentIndex()), QStringLiteral("double_click"));
        return true;
    default:
        return false;
    }
}
