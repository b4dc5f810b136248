#pragma once

#include <QAccessibleWidget>

class QPushButton;

/// A push button that shows a check state by its picture, for assistive technology: a check box
/// with the three states.
class CheckButtonAccessible : public QAccessibleWidget
{
public:
    /// To be called before anybody asks for the button's interface; it goes with the button.
    /// \a stateProperty: the button's dynamic property with a Qt::CheckState.
    static void attach(QPushButton *button, const char *stateProperty);
    /// The state has changed.
    static void announce(QPushButton *button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

private:
    CheckButtonAccessible(QPushButton *button, const char *stateProperty);
    QPushButton *button() const;
    int checkState() const;

    const char *m_stateProperty;
};
