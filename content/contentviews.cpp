#include "content/contentviews.h"

#include "content/gridmode.h"
#include "content/listmode.h"
#include "content/overlayscrollbar.h"
#include "content/scantableview.h"
#include "content/selectedrows.h"
#include "content/thumbnailgrid.h"
#include "content/touchinput.h"
#include "content/viewkeys.h"
#include "delegates/listdelegate.h"
#include "detail/itemdetailview.h"
#include "model/headerview.h"
#include "model/recoverability.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"
#include "thumbnails/scanpluginpreviewmanager.h"
#include "ui_sdcardcontentdatawidget.h"

#include <QGuiApplication>
#include <QScrollBar>

#include <type_traits>

namespace {

constexpr int LongSort = 100000; // rows; from here on it takes longer than a frame

/// The pointer says that a long sort is under way.
class BusyPointer
{
public:
    explicit BusyPointer(int rows)
        : m_shown(rows >= LongSort)
    {
        if (m_shown)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~BusyPointer()
    {
        if (m_shown)
            QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY(BusyPointer)

private:
    const bool m_shown;
};

} // namespace

ContentViews::ContentViews(Ui::SDCardContentDataWidgetClass &form, ScanDataModel *model,
                           QWidget *parent)
    : QObject(parent)
    , m_form(form)
    , m_model(model)
    , m_grid(new GridMode(form.listView, model, this))
    , m_list(new ListMode(model, form.frame_4))
    , m_overlay(new OverlayScrollBar(form.listView, parent))
{
    // The select-all control stands where the check boxes of the cards do.
    form.headerViewHorizontalLayout->removeWidget(form.iconModeHederView);
    form.headerViewHorizontalLayout->addWidget(form.iconModeHederView, 1);
    form.horizontalLayout_4->insertWidget(1, m_list->table(), 1);
    form.itemDetailFrameVLayout->addWidget(m_list->pane());
    // All that may be hidden is so in the form; the space belongs to the pane, and the cards would
    // jump when it went.
    form.headerViewFrame->show();

    orderTabs();
    describeItems();
    connectTouch();
    relay(m_grid);
    relay(m_list);
    connectKeys();
    const QScrollBar *bar = form.listView->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, this, [this](int minimum, int maximum) {
        m_list->delegate()->setGridCanScroll(maximum > minimum);
    });
}

void ContentViews::orderTabs()
{
    // Widgets follow each other as they were made, but for these two.
    m_form.iconModeHederView->setTabAfter(m_form.allCheckButton);
    QWidget::setTabOrder(m_list->header(), m_list->table());
}

void ContentViews::describeItems()
{
    m_model->setRecoverabilitySource([this](const TreeItemData &item) {
        const bool hasThumbnail = ScanPluginPreviewManager::instance()->hasGridThumbnail(
            item.fileId);
        return recoverabilityOf(&item, hasThumbnail, m_assessmentFinished);
    });
    const auto connectActions = [this](const auto *view) {
        using View = std::remove_const_t<std::remove_pointer_t<decltype(view)>>;
        connect(view, &View::toggleRequested, this, &ContentViews::itemToggleWanted);
        connect(view, &View::openRequested, this, [this](const QModelIndex &index) {
            emit openRequested(m_model->itemAt(index), QStringLiteral("double_click"));
        });
    };
    connectActions(m_grid->view());
    connectActions(m_list->table());
}

void ContentViews::connectTouch()
{
    for (QAbstractItemView *view : {static_cast<QAbstractItemView *>(m_grid->view()),
                                    static_cast<QAbstractItemView *>(m_list->table())})
        connect(new TouchInput(view), &TouchInput::longPressed, this, &ContentViews::longPressed);
}

void ContentViews::setName(const QString &name)
{
    m_grid->view()->setAccessibleName(name);
    m_list->table()->setAccessibleName(name);
}

void ContentViews::connectKeys()
{
    const auto *keys = new ViewKeys({m_grid->view(), m_list->table()}, this);
    connect(keys, &ViewKeys::toggleWanted, this, &ContentViews::toggleWanted);
    connect(keys, &ViewKeys::menuWanted, this, &ContentViews::menuWanted);
    connect(keys, &ViewKeys::openWanted, this, [this] {
        emit openRequested(m_model->itemAt(inUse()->currentIndex()),
                           QStringLiteral("double_click"));
    });
}

template <typename View>
void ContentViews::relay(const View *view)
{
    connect(view, &View::checkChanged, this,
            [this](const QModelIndex &index, Qt::CheckState state) {
                if (TreeItemData *item = m_model->itemAt(index))
                    emit itemChecked(item, state);
            });
    connect(view, &View::openRequested, this, &ContentViews::openRequested);
    connect(view, &View::tooltipWanted, this, &ContentViews::tooltipWanted);
    connect(view, &View::thumbnailMissing, this, &ContentViews::thumbnailMissing);
    connect(view, &View::contextMenuWanted, this, &ContentViews::contextMenuWanted);
}

void ContentViews::setMode(int mode, const QModelIndex &current)
{
    const bool grid = mode == GridOnly;
    const bool pane = mode == ListWithPane;
    ViewPlace &before = placeInUse();
    m_mode = mode;
    m_form.headerViewFrame->setVisible(grid);
    m_form.listView->setVisible(grid);
    m_list->table()->setVisible(!grid);
    m_form.spaceframe->setVisible(pane);
    m_form.vlineframe->setVisible(pane);
    m_form.itemDetailframe->setVisible(pane);
    m_list->setPaneShown(pane);
    m_list->fitColumns();
    if (&before != &placeInUse()) {
        memory() = ViewMemory();
        m_grid->forgetMultiSelection();
        inUse()->selectionModel()->setCurrentIndex(current.sibling(current.row(), 0),
                                                   QItemSelectionModel::NoUpdate);
        ViewMemory::copySelection(before, placeInUse(), *m_model);
        inUse()->scrollTo(current);
    }
    showHeaders();
    placeOverlay();
}

QAbstractItemView *ContentViews::inUse() const
{
    if (m_mode == GridOnly)
        return m_grid->view();
    return m_list->table();
}

QList<TreeItemData *> ContentViews::selectedItems() const
{
    const QVector<SelectedRows::Run> runs = SelectedRows::runs(
        m_mode == GridOnly ? m_grid->selection() : inUse()->selectionModel()->selection());
    QList<TreeItemData *> items;
    for (const SelectedRows::Run &run : runs) {
        m_model->visitRows(run.first, run.last,
                           [&items](TreeItemData &item) { items.append(&item); });
    }
    return items;
}

ViewPlace &ContentViews::placeInUse() const
{
    if (m_mode == GridOnly)
        return *m_grid->view();
    return *m_list->table();
}

void ContentViews::remember()
{
    memory().capture(placeInUse(), *m_model);
    m_model->rememberRows();
}

void ContentViews::recall()
{
    memory().restore(placeInUse(), *m_model);
    m_model->forgetRows();
}

void ContentViews::sort(int column, Qt::SortOrder order)
{
    {
        const BusyPointer busy(m_model->rowCount());
        sortRows(column, order);
    }
    // A click that waits comes before any paint, and would make it two sorts without a picture.
    if (m_model->rowCount() >= LongSort)
        placeInUse().itemView()->viewport()->repaint();
}

void ContentViews::sortRows(int column, Qt::SortOrder order)
{
    constexpr int Many = 1000;
    ViewPlace &grid = *m_grid->view();
    ViewPlace &table = *m_list->table();
    const QItemSelection marked = m_grid->markedCards();
    if (SelectedRows::count(m_grid->view()->selectionModel()->selection())
            + SelectedRows::count(m_list->table()->selectionModel()->selection())
            + SelectedRows::count(marked)
        < Many) {
        m_model->sort(column, order);
        return;
    }
    const QVector<SelectedRows::Run> marks = SelectedRows::runs(marked);
    m_gridMemory.liftSelection(grid);
    m_tableMemory.liftSelection(table);
    m_grid->markCards({});
    m_model->rememberRows();
    m_model->sort(column, order);
    m_gridMemory.layDownSelection(grid, *m_model);
    m_tableMemory.layDownSelection(table, *m_model);
    QVector<QPair<int, int>> before;
    for (const SelectedRows::Run &run : marks)
        before.append({run.first, run.last});
    m_grid->markCards(ViewMemory::selectionOf(*m_model, m_model->rowsNow(before)));
    m_model->forgetRows();
}

void ContentViews::setAssessmentFinished(bool finished)
{
    m_assessmentFinished = finished;
    m_grid->setAssessmentFinished(finished);
    m_list->setAssessmentFinished(finished);
}

void ContentViews::setSearchKeyword(const QString &keyword)
{
    m_grid->setSearchKeyword(keyword);
    m_list->setSearchKeyword(keyword);
}

void ContentViews::showThumbnail(qint64 fileId)
{
    m_grid->showThumbnail(fileId);
    m_list->showThumbnail(fileId);
}

void ContentViews::showHeaders()
{
    // The table brings its own header: the container for one stays empty.
    const bool rows = m_model->rowCount() > 0;
    m_form.iconModeHederView->setVisible(rows && m_mode == GridOnly);
    m_form.listModeHeaderView->setVisible(rows && m_mode != GridOnly);
}

void ContentViews::repaint()
{
    m_grid->view()->viewport()->update();
    m_list->table()->viewport()->update();
}

void ContentViews::placeOverlay()
{
    m_overlay->sync();
}
