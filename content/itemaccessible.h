#pragma once

#include <QAbstractItemView>
#include <QAccessible>
#include <QPointer>

/// One item of a view for assistive technology, a card of the grid for example. It is valid as
/// long as its row shows the item that it was made for.
class ItemAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    ItemAccessible(QAbstractItemView *view, int row);

    int row() const { return m_row; }
    QModelIndex index() const;
    /// The row's check state has been told to listeners; false when it is what they knew.
    bool takeCheckChange();

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
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &action) const override;

protected:
    QAbstractItemView *view() const { return m_view; }
    /// In the viewport.
    virtual QRect itemRect() const;

private:
    bool takesChecks() const;
    int checkState() const;

    QPointer<QAbstractItemView> m_view;
    int m_row;
    const void *m_item; ///< compared, never read
    int m_knownCheckState;
};
