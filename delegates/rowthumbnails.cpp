#include "delegates/rowthumbnails.h"

#include "platform/item/treeitemdata.h"
#include "thumbnails/roundedthumbnail.h"
#include "thumbnails/scanpluginpreviewmanager.h"

namespace {

constexpr int MostPictures = 512; // a few pages
constexpr int CachedSide = 32;

} // namespace

RowThumbnails::RowThumbnails()
    : m_sharp(MostPictures)
{
}

QPixmap RowThumbnails::picture(TreeItemData *file, int deviceSide)
{
    auto *thumbnails = ScanPluginPreviewManager::instance();
    const QPixmap small = thumbnails->listThumbnail(file);
    if (deviceSide <= CachedSide)
        return small;
    const QPixmap large = thumbnails->gridThumbnail(file->fileId);
    if (large.isNull())
        return small;
    const QPair<qint64, int> key(large.cacheKey(), deviceSide);
    if (const QPixmap *known = m_sharp.object(key))
        return *known;
    const QPixmap sharp = roundedThumbnail(large, deviceSide);
    m_sharp.insert(key, new QPixmap(sharp), 1);
    return sharp;
}
