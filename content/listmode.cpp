#include "content/listmode.h"

#include "content/scantableview.h"
#include "delegates/listdelegate.h"
#include "detail/itemdetailview.h"
#include "model/scandatamodel.h"
#include "model/scantableheader.h"

#include <QEvent>

ListMode::ListMode(ScanDataModel *model, QWidget *parent)
    : QObject(parent)
    , m_model(model)
    , m_table(new ScanTableView(parent))
    , m_header(new ScanTableHeader(m_table))
    , m_delegate(new ListDelegate(this))
    , m_pane(new ItemDetailView)
{
    m_table->setHorizontalHeader(m_header);
    m_table->setModel(model);
    m_table->setItemDelegate(m_delegate);
    m_table->setRowHeight(m_delegate->sizeHint({}, {}).height());
    m_delegate->setTableView(m_table);
    m_table->viewport()->installEventFilter(this);
    m_table->hide();
    connectRows();
    connectPane();
}

void ListMode::connectRows()
{
    connect(m_delegate, &ListDelegate::signalCheckStateChange, this, &ListMode::checkChanged);
    connect(m_delegate, &ListDelegate::signalClickRightButton, this, &ListMode::contextMenuWanted);
    connect(m_delegate, &ListDelegate::signalShowTooltip, this, &ListMode::tooltipWanted);
    connect(m_delegate, &ListDelegate::signalPreviewClicked, this,
            [this](const QModelIndex &index) {
                if (m_table->mayOpen())
                    emit openRequested(m_model->itemAt(index), QStringLiteral("preview_btn"));
            });
    connect(m_delegate, &ListDelegate::signalClickDouble, this, [this](const QModelIndex &index) {
        if (m_table->mayOpen())
            emit openRequested(m_model->itemAt(index), QStringLiteral("double_click"));
    });
    connect(m_delegate, &ListDelegate::signalPathClicked, this,
            [this](const QModelIndex &index) { emit locationClicked(m_model->itemAt(index)); });
    m_delegate->setThumbnailRequester([this](TreeItemData *item) { emit thumbnailMissing(item); });
}

void ListMode::connectPane()
{
    connect(m_pane, &ItemDetailView::signalClickedOpen, this, [this](TreeItemData *item) {
        emit openRequested(item, QStringLiteral("preview_btn"));
    });
    connect(m_pane, &ItemDetailView::signalGetThumPixmap, this, &ListMode::thumbnailMissing);
    connect(m_pane, &ItemDetailView::signalGetMetaData, this, &ListMode::metaDataWanted);
    connect(m_pane, &ItemDetailView::signalPathClicked, this, &ListMode::locationClicked);
}

void ListMode::setPaneShown(bool shown)
{
    m_paneShown = shown;
    m_header->setDetailPaneShown(shown);
    m_delegate->setLocationIconSuppressed(!shown);
    m_pane->setItem(shown ? m_current.data() : nullptr);
}

void ListMode::setCurrentItem(TreeItemData *item)
{
    m_current = item;
    if (m_paneShown)
        m_pane->setItem(item);
}

void ListMode::fitColumns()
{
    m_header->fitColumns(m_table->viewport()->width());
}

void ListMode::setSearchKeyword(const QString &keyword)
{
    m_delegate->setSearchKeyword(keyword);
}

void ListMode::setAssessmentFinished(bool finished)
{
    m_pane->setAssessmentFinished(finished);
}

void ListMode::showThumbnail(qint64 fileId)
{
    if (m_table->isVisible())
        m_table->repaintMatching(FileIdRole, fileId);
    if (m_paneShown)
        m_pane->refreshPicture(fileId);
}

void ListMode::updateTheme()
{
    m_header->updateTheme();
    m_pane->updateTheme();
}

void ListMode::retranslate()
{
    m_delegate->setCachesDirty();
    m_header->updateFont();
    m_header->retranslate();
}

bool ListMode::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_table->viewport())
        fitColumns();
    return QObject::eventFilter(watched, event);
}
