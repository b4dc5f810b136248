// What the mouse does to a row.

#include "delegates/listdelegate.h"

#include "common/translation.h"
#include "delegates/delegateitem.h"
#include "delegates/locationtext.h"
#include "model/itemtext.h"
#include "model/scandatamodel.h"
#include "platform/item/treeitemdata.h"

#include <QMouseEvent>
#include <QTableView>
#include <QTextBrowser>

bool ListDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_names.renderer()) {
        if (event->type() == QEvent::LanguageChange)
            retranslate();
        return false;
    }
    const QTableView *table = view();
    if (!table || watched != table->viewport())
        return QStyledItemDelegate::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint:
        m_background.beginPaint(static_cast<QPaintEvent *>(event)->region(), isFirstColumnShown());
        break;
    case QEvent::MouseMove:
        // between and below the rows no cell gets to see the mouse
        if (!table->indexAt(static_cast<QMouseEvent *>(event)->pos()).isValid())
            hoverNothing();
        break;
    case QEvent::Leave:
        hoverNothing();
        break;
    default:
        break;
    }
    return false;
}

bool ListDelegate::isFirstColumnShown() const
{
    const QTableView *table = view();
    const int left = table->columnViewportPosition(ScanDataModel::NameColumn);
    const int width = table->columnWidth(ScanDataModel::NameColumn);
    return width > 0 && left < table->viewport()->width() && left + width > 0;
}

bool ListDelegate::leadsToLocation(const RowLayout &layout, const QPoint &pos,
                                   const TreeItemData &item) const
{
    if (layout.column == ScanDataModel::PathColumn)
        return m_pathColumnsActive && LocationText::isKnown(locationOf(item));
    return layout.hitsLocationImage(pos) && showsLocationImage(item);
}

bool ListDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                               const QStyleOptionViewItem &option, const QModelIndex &index)
{
    // whoever listens to us may reset the model
    const QPersistentModelIndex cell(index);
    const auto base = [&] { return QStyledItemDelegate::editorEvent(event, model, option, cell); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        break;
    default:
        return base();
    }
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const TreeItemData *item = itemOf(index);
    if (!item) { // the record has died under the mouse
        hoverNothing();
        return base();
    }
    if (!option.rect.contains(mouse->pos()))
        return base();

    const RowLayout layout(option.rect, index.column(), option.direction);
    if (event->type() == QEvent::MouseMove) {
        hover(mouse->pos(), layout, index, *item);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        if (mouse->button() == Qt::LeftButton) {
            emit signalClickDouble(index);
            return true;
        }
    } else if (mouse->button() == Qt::RightButton) {
        if (index.data(KindRole).toInt() == ItemKind::File) {
            emit signalClickRightButton(index);
            return false;
        }
    } else if (press(mouse->pos(), model, layout, cell, *item)) {
        return true;
    }
    return base();
}

bool ListDelegate::press(const QPoint &pos, QAbstractItemModel *model, const RowLayout &layout,
                         const QPersistentModelIndex &index, const TreeItemData &item)
{
    if (item.kind == ItemKind::File && layout.hitsIcon(pos)) {
        emit signalPreviewClicked(index);
        return true;
    }
    if (leadsToLocation(layout, pos, item)) {
        emit signalPathClicked(index);
        return true;
    }
    if (layout.hitsCheckArea(pos)) {
        // through the cell that shows the box: the view repaints what has changed
        const QModelIndex box = index.sibling(index.row(), ScanDataModel::NameColumn);
        const Qt::CheckState state = CheckBox::toggled(box.data(Qt::CheckStateRole).toInt());
        model->setData(box, state, Qt::CheckStateRole);
        emit signalCheckStateChange(index, state);
        return false;
    }
    emit signalMutilSelectEvent();
    m_pressed = index;
    emit signalClickListViewItem(index);
    return false;
}

void ListDelegate::hover(const QPoint &pos, const RowLayout &layout, const QModelIndex &index,
                         const TreeItemData &item)
{
    const bool onLocation = leadsToLocation(layout, pos, item);
    const bool onImage = onLocation && layout.column == ScanDataModel::DateColumn;
    const bool onIcon = item.kind == ItemKind::File && layout.hitsIcon(pos);
    setCursor(onIcon || onLocation ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setHoveredImage(onImage ? index : QModelIndex());

    switch (layout.column) {
    case ScanDataModel::NameColumn:
        showTooltip(index, ItemText::displayName(item));
        break;
    case ScanDataModel::TypeColumn:
        showTooltip(index, ItemText::type(item));
        break;
    case ScanDataModel::DateColumn:
        if (onImage)
            showTooltip(index, translatedKey("view_in_path"));
        break;
    case ScanDataModel::PathColumn:
        showTooltip(index, locationOf(item));
        break;
    default:
        break;
    }
}

void ListDelegate::hoverNothing()
{
    setCursor(Qt::ArrowCursor);
    setHoveredImage({});
}

void ListDelegate::setHoveredImage(const QModelIndex &index)
{
    if (m_hoveredImage == index)
        return;
    const QModelIndex before = m_hoveredImage;
    m_hoveredImage = index;
    if (QTableView *table = view()) {
        table->update(before);
        table->update(index);
    }
}

void ListDelegate::setCursor(Qt::CursorShape shape)
{
    const QTableView *table = view();
    if (table && table->viewport()->cursor().shape() != shape)
        table->viewport()->setCursor(shape);
}

void ListDelegate::showTooltip(const QModelIndex &index, const QString &text)
{
    if (text.isEmpty() || !m_tip.allows(index))
        return;
    m_tip.shown(index);
    emit signalShowTooltip(text);
}
