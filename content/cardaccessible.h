#pragma once

#include <QAccessible>
#include <QModelIndex>
#include <QPointer>

class ThumbnailGrid;

/// One card of a ThumbnailGrid for assistive technology. It stands for a row and not for an item:
/// whatever lies in the row now is what it tells of.
class CardAccessible : public QAccessibleInterface
{
public:
    CardAccessible(ThumbnailGrid *grid, int row);

    int row() const { return m_row; }

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

private:
    QModelIndex index() const;

    QPointer<ThumbnailGrid> m_grid;
    int m_row;
};
