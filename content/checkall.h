#pragma once

#include <QObject>

class HeaderView;
class QPushButton;
class ScanTableHeader;

/// Select-all: one state and one click for the three controls that stand for it. The button, which
/// keeps the state in its dynamic property "checkstate" for the stylesheet, is on screen over the
/// grid; the box in the table's header in a list. A click asks for all, or for none when all are
/// checked. The controls are the content area's.
class CheckAll : public QObject
{
    Q_OBJECT

public:
    CheckAll(QPushButton *button, HeaderView *bar, ScanTableHeader *header, QObject *parent);

    int state() const;
    void setState(int state);
    /// Loads the button's picture again, after a theme change.
    void refresh();
    /// As if the user had clicked for this state.
    void choose(Qt::CheckState state);

signals:
    /// All controls show \a state already.
    void clicked(Qt::CheckState state);

private:
    QPushButton *m_button;
    HeaderView *m_bar;
    ScanTableHeader *m_header;
};
