#pragma once

#include <QPainter>
#include <QStyledItemDelegate>

/// Cards of a fixed size, filled and no more: what a view costs shows, what painting costs does
/// not.
class CardDelegate : public QStyledItemDelegate
{
public:
    explicit CardDelegate(QSize size = {150, 124}, QObject *parent = nullptr)
        : QStyledItemDelegate(parent)
        , m_size(size)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &) const override
    {
        ++painted;
        painter->fillRect(option.rect,
                          option.state & QStyle::State_Selected ? Qt::darkBlue : Qt::lightGray);
    }

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return m_size;
    }

    mutable int painted = 0;

private:
    QSize m_size;
};
