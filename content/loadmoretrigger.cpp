#include "content/loadmoretrigger.h"

#include "platform/item/treeitemdata.h"

#include <QAbstractItemView>
#include <QDebug>
#include <QScrollBar>

namespace {

/// Constant time: it is asked while scrolling.
bool hasMore(const TreeItemData *root)
{
    return root && root->childFolders.size() + root->childFiles.size() < root->itemCount;
}

} // namespace

LoadMoreTrigger::LoadMoreTrigger(QAbstractItemView *view, const char *logLine,
                                 std::function<TreeItemData *()> root, QObject *parent)
    : QObject(parent)
{
    const QScrollBar *bar = view->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar, logLine, root](int value) {
        if (bar->maximum() < 1 || value != bar->maximum() || !hasMore(root()))
            return;
        qDebug() << logLine;
        emit moreWanted(root());
    });
}
