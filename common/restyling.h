#pragma once

#include <QBasicTimer>
#include <QObject>

#include <functional>

class QWidget;

/// Restyles a widget when that can be seen: at once while it is in sight, else when it is shown
/// again or, at the latest, a tenth of a second later, so that what is in sight need not wait for
/// it; of several that are out of sight each has its own moment. A widget that was never shown is
/// restyled at once as well. GUI thread.
class Restyling : public QObject
{
public:
    /// \a restyle is for \a widget, to which this belongs.
    Restyling(QWidget *widget, std::function<void()> restyle);
    ~Restyling() override;

    void request();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void run();
    void stopWaiting();

    QWidget *m_widget;
    std::function<void()> m_restyle;
    QBasicTimer m_due; ///< active while a restyling is owed
    bool m_wasShown = false;
};
