#include "model/itemtext.h"

#include "common/commonfunction.h"
#include "common/translation.h"
#include "common/zvlangmanager.h"
#include "platform/item/treeitemdata.h"

namespace {

constexpr int FolderKind = 1;
constexpr int LostLocationRoot = 3;
constexpr int SizeDecimals = 2;

QString unknownText()
{
    return QStringLiteral("--");
}

QString locationOf(const TreeItemData &item)
{
    const QString volume = QStringLiteral("Volume");
    if (item.path.isEmpty()) {
        return item.volumeRoot.isEmpty() ? unknownText()
                                         : CommonFunction::combinedPath(volume, item.volumeRoot);
    }
    // the bare word stands for the volume itself there, but here it is a folder of that name
    const QString path = item.path == volume ? QLatin1Char('\\') + volume : item.path;
    return CommonFunction::combinedPath(path, item.volumeRoot);
}

} // namespace

namespace ItemText {

QString displayName(const TreeItemData &item)
{
    const QString category = CommonFunction::categoryName(item.rootType);
    if (!category.isEmpty())
        return category;
    if (item.name.startsWith(QLatin1String("zenvo_"))) {
        const QString keyText = CommonFunction::categoryKeyText(item.name);
        if (!keyText.isEmpty())
            return keyText;
    }
    return item.name;
}

qint64 bytes(const TreeItemData &item)
{
    return item.kind == FolderKind ? item.folderSize : item.fileSize;
}

QString size(qint64 bytes)
{
    if (bytes < 1)
        return unknownText();
    const QString text = ZVLangManager::instance()->getStorageStr(bytes, SizeDecimals);
    return text.isEmpty() ? CommonFunction::sizeText(bytes) : text;
}

QString size(const TreeItemData &item)
{
    return size(bytes(item));
}

QString type(const TreeItemData &item)
{
    if (item.kind == FolderKind)
        return translatedKey("folder");
    return item.extension.isEmpty() ? unknownText() : item.extension.toUpper();
}

QString modified(qint64 timestamp)
{
    if (timestamp < 1)
        return unknownText();
    const QString text = ZVLangManager::instance()->getDateTimeStr(timestamp);
    return text.isEmpty() ? CommonFunction::dateText(timestamp) : text;
}

QString modified(const TreeItemData &item)
{
    return modified(item.modifiedTime);
}

QString displayPath(const TreeItemData *item, int rootType)
{
    if (rootType == LostLocationRoot)
        return CommonFunction::categoryName(LostLocationRoot);
    return item ? locationOf(*item) : unknownText();
}

} // namespace ItemText
