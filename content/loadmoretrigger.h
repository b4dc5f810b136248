#pragma once

#include <QObject>

#include <functional>

class QAbstractItemView;
class TreeItemData;

/// Notices that the user has scrolled a view to its very bottom while its root has more to give. No
/// debounce: each arrival at the bottom counts.
class LoadMoreTrigger : public QObject
{
    Q_OBJECT

public:
    /// \a logLine is a string literal. \a root is asked for each time; it may answer null.
    LoadMoreTrigger(QAbstractItemView *view, const char *logLine,
                    std::function<TreeItemData *()> root, QObject *parent);

signals:
    void moreWanted(TreeItemData *root);
};
