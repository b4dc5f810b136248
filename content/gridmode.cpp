#include "content/gridmode.h"

#include "content/overlayscrollbar.h"
#include "content/selectedrows.h"
#include "content/thumbnailgrid.h"
#include "delegates/icondelegate.h"
#include "model/scandatamodel.h"

#include <QDebug>

namespace {

constexpr int CardSpacing = 8;

} // namespace

GridMode::GridMode(ThumbnailGrid *view, ScanDataModel *model, QObject *parent)
    : QObject(parent)
    , m_view(view)
    , m_model(model)
    , m_delegate(new IconDelegate(this))
{
    view->setModel(model);
    view->setViewMode(QListView::IconMode);
    view->setFlow(QListView::LeftToRight);
    view->setResizeMode(QListView::Adjust);
    view->setUniformItemSizes(true);
    view->setSpacing(CardSpacing);
    view->setReservedWidth(OverlayScrollBar::RoomInView);
    view->setCardsStretched(true);
    view->setItemDelegate(m_delegate);

    connect(view, &QListView::pressed, this, &GridMode::onPressed);
    connect(view, &ThumbnailGrid::signalMutilSelectEvent, this, &GridMode::onMultiSelectEvent);
    connect(view, &ThumbnailGrid::fewSelected, this, &GridMode::forgetMultiSelection);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &GridMode::onSelectionChanged);
    connectCards();
}

void GridMode::connectCards()
{
    connect(m_delegate, &IconDelegate::signalCheckStateChange, this, &GridMode::checkChanged);
    connect(m_delegate, &IconDelegate::signalClickListViewItem, this,
            [this](const QModelIndex &index) {
                if (m_view->mayOpen())
                    emit openRequested(m_model->itemAt(index), QStringLiteral("preview_btn"));
            });
    connect(m_delegate, &IconDelegate::signalClickDouble, this, [this](const QModelIndex &index) {
        if (m_view->mayOpen())
            emit openRequested(m_model->itemAt(index), QStringLiteral("double_click"));
    });
    connect(m_delegate, &IconDelegate::signalSetCursor, this,
            [this](const QCursor &cursor) { m_view->viewport()->setCursor(cursor); });
    // The press reaches the delegate before the view has changed its selection.
    connect(m_delegate, &IconDelegate::signalMutilSelectEvent, this, &GridMode::onMultiSelectEvent,
            Qt::QueuedConnection);
    connect(m_delegate, &IconDelegate::signalClickRightButton, this, &GridMode::contextMenuWanted);
    connect(m_delegate, &IconDelegate::signalShowTooltip, this, &GridMode::tooltipWanted);
    connect(m_delegate, &IconDelegate::signalGetThumItem, this, &GridMode::thumbnailMissing);
}

void GridMode::setCurrentIndex(const QModelIndex &index)
{
    m_delegate->setPressedIndex(index.sibling(index.row(), 0));
}

void GridMode::setSearchKeyword(const QString &keyword)
{
    m_delegate->setSearchKeyword(keyword);
}

void GridMode::setAssessmentFinished(bool finished)
{
    m_delegate->setAssessmentFinished(finished);
}

void GridMode::showThumbnail(qint64 fileId)
{
    if (!m_view->repaintMatching(FileIdRole, fileId) && m_view->isVisible())
        m_view->preparePicture(fileId);
}

QItemSelection GridMode::selection() const
{
    const QItemSelection selected = m_view->selectionModel()->selection();
    const int count = SelectedRows::count(selected);
    if (count > 1)
        return selected;
    const QItemSelection marked = m_delegate->markedSelection();
    return SelectedRows::count(marked) > count ? marked : selected;
}

void GridMode::forgetMultiSelection()
{
    if (m_delegate->markedSelection().isEmpty())
        return;
    m_delegate->clearMarkedIndexes();
    m_view->viewport()->update();
}

QItemSelection GridMode::markedCards() const
{
    return m_delegate->markedSelection();
}

void GridMode::markCards(const QItemSelection &cards)
{
    m_delegate->setMarkedSelection(cards);
}

void GridMode::onPressed(const QModelIndex &index)
{
    if (!index.isValid()) {
        qDebug() << "listview pressed index is not valid";
        return;
    }
    m_view->viewport()->update();
    emit pressed(index);
}

void GridMode::onSelectionChanged(const QItemSelection &selected)
{
    const QItemSelection selection = m_view->selectionModel()->selection();
    const int count = SelectedRows::count(selection);
    if (count > 1) {
        m_delegate->setMarkedSelection(selection);
        qDebug() << "selectionChanged:" << count;
    }
    qDebug() << "selected.indexes() :" << SelectedRows::count(selected);
}

void GridMode::onMultiSelectEvent()
{
    const QItemSelection selection = m_view->selectionModel()->selection();
    m_delegate->setMarkedSelection(selection);
    qDebug() << "signalMutilSelectEvent:" << SelectedRows::count(selection);
}
