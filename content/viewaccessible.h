#pragma once

#include <QAccessibleWidget>
#include <QCache>
#include <QItemSelection>

class ItemAccessible;
class QAbstractItemView;

/// What assistive technology sees of a view: one child a row, however many columns the model has.
/// Children are made when they are asked for, and made anew when the row shows another item; when
/// there are more than anybody looks at, those that were asked for longest ago go.
class ViewAccessible : public QAccessibleWidget
{
public:
    ViewAccessible(QAbstractItemView *view, QAccessible::Role role);
    ~ViewAccessible() override;

    /// Makes every ThumbnailGrid and ScanTableView accessible; further calls do nothing.
    static void install();

    /// What a view tells listeners; nothing happens until somebody has asked about the view.
    static void currentChanged(QAbstractItemView *view, const QModelIndex &current,
                               const QModelIndex &previous);
    static void selectionChanged(QAbstractItemView *view, const QItemSelection &selected,
                                 const QItemSelection &deselected);
    static void checksChanged(QAbstractItemView *view, int firstRow, int lastRow);

    int itemCount() const;
    ItemAccessible *item(int row) const;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QAccessible::State state() const override;

protected:
    QAbstractItemView *view() const;
    /// Children in front of the items.
    virtual int firstItem() const { return 0; }
    virtual QAccessibleInterface *leadingChild(int) const { return nullptr; }
    virtual ItemAccessible *makeItem(int row) const;

private:
    void announce(QAccessible::Event type, int row);

    /// An interface that goes with it.
    struct Registered
    {
        explicit Registered(QAccessibleInterface *accessible); // "interface" is a macro on Windows
        ~Registered();
        Q_DISABLE_COPY(Registered)
        const QAccessible::Id id;
    };
    const QObject *m_key;
    mutable QCache<int, Registered> m_items; ///< by row
    int m_announcedRow = -1;
    const void *m_announcedItem = nullptr; ///< compared, never read
};
