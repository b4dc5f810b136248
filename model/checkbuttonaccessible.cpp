#include "model/checkbuttonaccessible.h"

#include "model/spokentext.h"

#include <QPushButton>
#include <QVariant>

CheckButtonAccessible::CheckButtonAccessible(QPushButton *button, const char *stateProperty)
    : QAccessibleWidget(button, QAccessible::CheckBox)
    , m_stateProperty(stateProperty)
{
}

void CheckButtonAccessible::attach(QPushButton *button, const char *stateProperty)
{
    QAccessible::registerAccessibleInterface(new CheckButtonAccessible(button, stateProperty));
}

void CheckButtonAccessible::announce(QPushButton *button)
{
    QAccessible::State changed;
    changed.checked = true;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent event(button, changed);
    QAccessible::updateAccessibility(&event);
}

QPushButton *CheckButtonAccessible::button() const
{
    return static_cast<QPushButton *>(object());
}

int CheckButtonAccessible::checkState() const
{
    return button()->property(m_stateProperty).toInt();
}

QString CheckButtonAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? SpokenText::checkState(checkState())
                                      : QAccessibleWidget::text(kind);
}

QAccessible::State CheckButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = checkState() == Qt::Checked;
    state.checkStateMixed = checkState() == Qt::PartiallyChecked;
    return state;
}

QStringList CheckButtonAccessible::actionNames() const
{
    return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
}

void CheckButtonAccessible::doAction(const QString &action)
{
    if (action == toggleAction())
        button()->click();
    else
        QAccessibleWidget::doAction(action);
}
