#include "delegates/repairedpreviewcheck.h"

#include "thumbnails/scanpluginpreviewmanager.h"

namespace {

constexpr int MostItems = 4096;
constexpr qint64 PauseMs = 1000;

} // namespace

RepairedPreviewCheck::RepairedPreviewCheck()
    : m_looks(MostItems)
{
    m_clock.start();
}

void RepairedPreviewCheck::refresh(TreeItemData *item, qint64 pictureKey)
{
    const qint64 now = m_clock.elapsed();
    Look *look = m_looks.object(item->fileId);
    if (look && look->pictureKey == pictureKey && now - look->atMs < PauseMs)
        return;
    if (look)
        *look = {pictureKey, now};
    else
        m_looks.insert(item->fileId, new Look{pictureKey, now});
    ScanPluginPreviewManager::instance()->hasRepairedPreview(item);
}
