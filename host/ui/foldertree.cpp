#include "host/ui/foldertree.h"

#include "host/ui/glyphs.h"

#include <QFocusEvent>
#include <QPainter>

namespace {
constexpr qreal RingWidth = 2;
constexpr qreal RingRadius = 6; // as the row's own
} // namespace

FolderTree::FolderTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setIndentation(Indent);
}

void FolderTree::drawBranches(QPainter *painter, const QRect &rect, const QModelIndex &index) const
{
    const QTreeWidgetItem *row = itemFromIndex(index);
    if (row->childIndicatorPolicy() != QTreeWidgetItem::ShowIndicator)
        return;
    const bool mirrored = isRightToLeft();
    const int edge = mirrored ? rect.left() : rect.right() + 1 - Indent;
    const QRect box(edge, rect.center().y() - Indent / 2, Indent, Indent);
    const Glyph folded = mirrored ? Glyph::Left : Glyph::ChevronRight;
    glyphIcon(row->isExpanded() ? Glyph::ChevronDown : folded, palette().color(QPalette::Text))
        .paint(painter, box);
}

void FolderTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QTreeWidget::drawRow(painter, option, index);
    const QModelIndex current = currentIndex();
    if (!m_ringShown || !hasFocus() || index.row() != current.row()
        || index.parent() != current.parent())
        return;
    QRectF row;
    for (int column = 0; column < columnCount(); ++column)
        row |= visualRect(index.siblingAtColumn(column));
    constexpr qreal Inset = RingWidth / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_ringColor, RingWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(row.adjusted(Inset, Inset, -Inset, -Inset), RingRadius - Inset,
                             RingRadius - Inset);
    painter->restore();
}

void FolderTree::focusInEvent(QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason)
        setRingShown(true);
    QTreeWidget::focusInEvent(event);
}

void FolderTree::keyPressEvent(QKeyEvent *event)
{
    setRingShown(true);
    QTreeWidget::keyPressEvent(event);
}

void FolderTree::mousePressEvent(QMouseEvent *event)
{
    setRingShown(false);
    QTreeWidget::mousePressEvent(event);
}

void FolderTree::setRingShown(bool shown)
{
    if (shown == m_ringShown)
        return;
    m_ringShown = shown;
    viewport()->update();
}
