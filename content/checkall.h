#pragma once

#include <QObject>

class QPushButton;

/// The select-all control: a button that shows a check state and keeps it in its dynamic property
/// "checkstate", for the stylesheet. A click asks for all, or for none when all are checked.
class CheckAll : public QObject
{
    Q_OBJECT

public:
    explicit CheckAll(QPushButton *button);

    int state() const;
    void setState(int state);
    /// Loads the picture of the state again, after a theme change.
    void refresh() { setState(state()); }

signals:
    /// \a state is shown already.
    void clicked(Qt::CheckState state);

private:
    void onClicked();

    QPushButton *m_button;
};
