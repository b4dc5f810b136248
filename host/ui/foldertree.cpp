#include "host/ui/foldertree.h"

#include "host/ui/glyphs.h"

#include <QFocusEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {
constexpr qreal RingWidth = 2;
constexpr qreal RingRadius = 6; // as the row's own
constexpr int CountInset = 9;
constexpr int CountGap = 10;
} // namespace

class FolderTree::RowPainter : public QStyledItemDelegate
{
public:
    explicit RowPainter(FolderTree *tree)
        : QStyledItemDelegate(tree)
        , m_tree(tree)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyleOptionViewItem row = option;
        initStyleOption(&row, index);
        const QString count = index.siblingAtColumn(CountColumn).data().toString();
        const int width = row.fontMetrics.horizontalAdvance(count);
        const QRect text = m_tree->style()->subElementRect(QStyle::SE_ItemViewItemText, &row,
                                                           m_tree);
        const int room = (m_tree->isRightToLeft() ? text.right() - row.rect.left()
                                                  : row.rect.right() - text.left())
            - width - CountInset - CountGap;
        row.text = row.fontMetrics.elidedText(row.text, Qt::ElideRight, room);
        m_tree->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, m_tree);

        painter->save();
        painter->setFont(row.font);
        painter->setPen(row.state & QStyle::State_Selected ? m_tree->m_accent : m_tree->m_faint);
        painter->drawText(row.rect.adjusted(CountInset, 0, -CountInset, 0),
                          QStyle::visualAlignment(row.direction, Qt::AlignRight | Qt::AlignVCenter),
                          count);
        painter->restore();
    }

private:
    FolderTree *m_tree;
};

FolderTree::FolderTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setIndentation(Indent);
    setColumnCount(CountColumn + 1);
    setColumnHidden(CountColumn, true);
    setItemDelegate(new RowPainter(this));
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
    const QRectF row = visualRect(index.siblingAtColumn(NameColumn));
    constexpr qreal Inset = RingWidth / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_accent, RingWidth));
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

void FolderTree::setColors(const QColor &faint, const QColor &accent)
{
    m_faint = faint;
    m_accent = accent;
    viewport()->update();
}

void FolderTree::setRingShown(bool shown)
{
    if (shown == m_ringShown)
        return;
    m_ringShown = shown;
    viewport()->update();
}
