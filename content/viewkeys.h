#pragma once

#include <QObject>

class QAbstractItemView;

/// Keys that mean the same in grid and list, taken before the view sees them. GUI thread.
class ViewKeys : public QObject
{
    Q_OBJECT

public:
    ViewKeys(const QVector<QAbstractItemView *> &views, QObject *parent);

signals:
    /// Space: the check states of what is selected.
    void toggleWanted();
    /// Enter: the current item.
    void openWanted();
    /// The menu key or its shortcut.
    void menuWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
