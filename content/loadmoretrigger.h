#pragma once

#include <QObject>

class QAbstractItemView;
class TreeItemData;

/// Notices that the user has scrolled a view to its very bottom. Whether there is more to be had is
/// asked of hasMore(). No debounce: each arrival at the bottom counts.
class LoadMoreTrigger : public QObject
{
    Q_OBJECT

public:
    /// \a logLine is a string literal.
    LoadMoreTrigger(QAbstractItemView *view, const char *logLine, QObject *parent);

    /// The root has more items than it has delivered. Constant time.
    static bool hasMore(const TreeItemData *root);
    const char *logLine() const { return m_logLine; }

signals:
    void bottomReached();

private:
    const char *m_logLine;
};
