#pragma once

#include "host/tree/itemdescription.h"
#include "host/tree/recordstore.h"

#include <QObject>
#include <QStringMatcher>
#include <QTimer>

#include <optional>

class ItemTree;

/// Finds the shown items whose name contains a text, or which a description fits, in short slices
/// between events, and goes on as more items arrive or are filtered. The root lists the records of
/// the tree itself, so their checks are the same on both sides. GUI thread.
class ItemSearch : public QObject
{
    Q_OBJECT

public:
    explicit ItemSearch(const ItemTree &tree, QObject *parent = nullptr);

    enum class By { Name, Description };

    /// Starts over; an empty \a keyword ends the search. Every search has a root of its own.
    void start(const QString &keyword, By by);
    /// More items may be there.
    void resume();
    /// Drops the results; to be called before records go.
    void clear();

    bool isActive() const { return !m_keyword.isEmpty(); }
    bool isComplete() const;
    QString keyword() const { return m_keyword; }
    TreeItemData *root() const { return m_root.get(); }
    int count() const { return int(m_root ? m_root->itemCount : 0); }
    /// \a item is the root.
    bool isRoot(const TreeItemData *item) const { return item && item == m_root.get(); }

    /// Makes the root's check state say what its items' say.
    void updateCheckState();

signals:
    /// The root lists more, or the search has come to the end of what there is.
    void progressed();

private:
    void step();
    int stateOfFound() const;
    bool finds(const ItemRecord &record) const;

    const ItemTree &m_tree;
    std::unique_ptr<TreeItemData> m_root;
    QString m_keyword;
    QStringMatcher m_matcher;
    std::optional<ItemDescription> m_description;
    QTimer m_timer;
    int m_next = 0;
    qint64 m_searches = 0;
};
