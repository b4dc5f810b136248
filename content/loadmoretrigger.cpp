#include "content/loadmoretrigger.h"

#include "platform/item/treeitemdata.h"

#include <QAbstractItemView>
#include <QScrollBar>

LoadMoreTrigger::LoadMoreTrigger(QAbstractItemView *view, const char *logLine, QObject *parent)
    : QObject(parent)
    , m_logLine(logLine)
{
    const QScrollBar *bar = view->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        if (bar->maximum() >= 1 && value == bar->maximum())
            emit bottomReached();
    });
}

bool LoadMoreTrigger::hasMore(const TreeItemData *root)
{
    return root && root->childFolders.size() + root->childFiles.size() < root->itemCount;
}
