#pragma once

#include "platform/item/treeitemdata.h"

#include <QHash>
#include <QPixmap>

#include <memory>
#include <vector>

/// A small card: records as a host would own them, and the thumbnails it would have made.
class Records
{
public:
    /// Paints the thumbnails, at \a scale pixels a unit.
    explicit Records(qreal scale);

    TreeItemData photos;  ///< photos and videos only
    TreeItemData mixed;   ///< folders, and a file of every kind
    TreeItemData matches; ///< found by the keyword
    TreeItemData nothing;

    static QString keyword();
    const QHash<qint64, QPixmap> &thumbnails() const { return m_thumbnails; }
    /// What a host would answer to a request for metadata.
    static void fillMetaData(TreeItemData *item);

private:
    void addPhotos();
    void addMixed();
    TreeItemData *addFile(TreeItemData *holder, const QString &name, qint64 size, int category);
    TreeItemData *addFolder(TreeItemData *holder, const QString &name, qint64 count);
    void paintThumbnails(qreal scale);

    std::vector<std::unique_ptr<TreeItemData>> m_items;
    QHash<qint64, QPixmap> m_thumbnails;
    qint64 m_nextId = 1;
};
