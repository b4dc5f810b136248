#include "detail/flowlayout.h"

#include <QStyle>
#include <QWidget>

FlowLayout::FlowLayout(int spacing, QWidget *parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::minimumSize() const
{
    int height = 0;
    for (const QLayoutItem *item : m_items)
        height = qMax(height, item->sizeHint().height());
    return {0, height};
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowLayout::arrange(const QRect &rect, bool apply) const
{
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection()
                                                         : Qt::LeftToRight;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint().boundedTo(QSize(qMax(rect.width(), 0), INT_MAX));
        if (x > 0 && x + size.width() > rect.width()) {
            x = 0;
            y += lineHeight + spacing();
            lineHeight = 0;
        }
        if (apply)
            item->setGeometry(
                QStyle::visualRect(direction, rect, QRect(rect.topLeft() + QPoint(x, y), size)));
        x += size.width() + spacing();
        lineHeight = qMax(lineHeight, size.height());
    }
    return y + lineHeight;
}
