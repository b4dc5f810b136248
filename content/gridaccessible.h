#pragma once

#include <QAccessibleWidget>
#include <QHash>

class ThumbnailGrid;

/// What assistive technology sees of a ThumbnailGrid: a list with one child a row, however many
/// columns the model has. Children are made when they are asked for, and forgotten when more have
/// piled up than anybody looks at.
class GridAccessible : public QAccessibleWidget
{
public:
    explicit GridAccessible(ThumbnailGrid *grid);
    ~GridAccessible() override;

    /// Makes every grid accessible this way; further calls do nothing.
    static void install();

    int childCount() const override;
    QAccessibleInterface *child(int row) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

private:
    ThumbnailGrid *grid() const;
    void forgetChildren() const;

    mutable QHash<int, QAccessible::Id> m_children;
};
