#pragma once

#include <QAccessibleWidget>

/// What assistive technology sees of the context menu: a popup menu with its entries as items.
class MenuAccessible : public QAccessibleWidget
{
public:
    explicit MenuAccessible(QWidget *menu);

    /// Makes every RightMenuDialog and RightMenuFrame accessible this way; further calls do
    /// nothing.
    static void install();
    static void announce(QWidget *widget, QAccessible::Event what);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;
};
