#include "delegates/rowthumbnails.h"

#include "platform/item/treeitemdata.h"
#include "thumbnails/roundedthumbnail.h"
#include "thumbnails/scanpluginpreviewmanager.h"

namespace {

constexpr int MostPictures = 512; // a few pages

} // namespace

RowThumbnails::RowThumbnails()
    : m_small(MostPictures)
{
}

QPixmap RowThumbnails::picture(TreeItemData *file, int deviceSide)
{
    auto *thumbnails = ScanPluginPreviewManager::instance();
    const qint64 large = thumbnails->gridThumbnailInfo(file->fileId).serial;
    if (!large)
        return thumbnails->listThumbnail(file);
    m_repairedCheck.refresh(file, large);

    const QPair<qint64, int> key(large, deviceSide);
    if (const QPixmap *known = m_small.object(key))
        return *known;
    const QPixmap small = roundedThumbnail(QPixmap::fromImage(thumbnails->gridImage(file->fileId)),
                                           deviceSide);
    m_small.insert(key, new QPixmap(small), 1);
    return small;
}
