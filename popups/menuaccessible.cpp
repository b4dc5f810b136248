#include "popups/menuaccessible.h"

#include "popups/rightmenudialog.h"
#include "popups/rightmenuframe.h"

namespace {

/// An entry, without the labels that it is made of.
class EntryAccessible : public QAccessibleWidget
{
public:
    explicit EntryAccessible(RightMenuFrame *entry)
        : QAccessibleWidget(entry, QAccessible::MenuItem)
    {
    }

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(widget()->window());
    }
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.focusable = true;
        state.focused = entry()->isVisible() && entry()->isHighlighted();
        return state;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override
    {
        if (action == pressAction())
            entry()->choose();
    }

private:
    RightMenuFrame *entry() const { return static_cast<RightMenuFrame *>(object()); }
};

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    if (auto *menu = qobject_cast<RightMenuDialog *>(object))
        return new MenuAccessible(menu);
    if (auto *entry = qobject_cast<RightMenuFrame *>(object))
        return new EntryAccessible(entry);
    return nullptr;
}

} // namespace

MenuAccessible::MenuAccessible(QWidget *menu)
    : QAccessibleWidget(menu, QAccessible::PopupMenu)
{
}

void MenuAccessible::install()
{
    static bool installed = false;
    if (!installed)
        QAccessible::installFactory(makeAccessible);
    installed = true;
}

void MenuAccessible::announce(QWidget *widget, QAccessible::Event what)
{
    QAccessibleEvent event(widget, what);
    QAccessible::updateAccessibility(&event);
}

int MenuAccessible::childCount() const
{
    return widget()->findChildren<RightMenuFrame *>().size();
}

QAccessibleInterface *MenuAccessible::child(int index) const
{
    return QAccessible::queryAccessibleInterface(
        widget()->findChildren<RightMenuFrame *>().value(index));
}

int MenuAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return child ? widget()->findChildren<RightMenuFrame *>().indexOf(
               qobject_cast<RightMenuFrame *>(child->object()))
                 : -1;
}

QAccessibleInterface *MenuAccessible::focusChild() const
{
    const auto entries = widget()->findChildren<RightMenuFrame *>();
    for (RightMenuFrame *entry : entries) {
        if (entry->isHighlighted())
            return QAccessible::queryAccessibleInterface(entry);
    }
    return nullptr;
}
