#include "card.h"

namespace {

constexpr qint64 FirstId = 88000000;
constexpr int Photos = 60;
constexpr qint64 SomeDay = 1750000000;
constexpr int Video = 3;
constexpr int Photo = 8;

} // namespace

Card::Card()
{
    root.name = QStringLiteral("card");
    nothing.name = QStringLiteral("nothing");
    root.kind = nothing.kind = 1;
    root.secondaryId = FirstId;
    folder = add(&root, QStringLiteral("DCIM"), 0, 0);
    folder->kind = 1;
    root.childFolders << folder;
    folder->childFiles << add(folder, QStringLiteral("IMG_0901.JPG"), 700000, Photo)
                       << add(folder, QStringLiteral("IMG_0902.JPG"), 800000, Photo);
    folder->itemCount = folder->childFiles.size();
    folder->folderSize = 1500000;
    for (int i = 1; i <= Photos; ++i)
        root.childFiles << add(&root, QStringLiteral("IMG_%1.JPG").arg(i, 4, 10, QLatin1Char('0')),
                               1000000 + 7919 * (i * 37 % Photos), Photo);
    contact = add(&root, QStringLiteral("Aunt Ada.vcf"), 812, 0);
    unknown = add(&root, QStringLiteral("LEFTOVER"), 4096, 0);
    root.childFiles.insert(5, add(&root, QStringLiteral("MVI_0061.MP4"), 734003200, Video));
    root.childFiles.insert(6, contact);
    root.childFiles.insert(7, unknown);
    root.itemCount = root.childFiles.size() + 1;
}

TreeItemData *Card::add(TreeItemData *holder, const QString &name, qint64 size, int category)
{
    static qint64 s_id = FirstId;
    auto *item = new TreeItemData(&root);
    item->kind = 2;
    item->parent = holder;
    item->name = name;
    item->extension = name.section(QLatin1Char('.'), 1, 1);
    item->volumeRoot = QStringLiteral("E:\\");
    item->path = holder == &root ? QStringLiteral("DCIM\\100CARD") : QStringLiteral("DCIM");
    item->fileSize = size;
    item->fileCategory = category;
    item->modifiedTime = SomeDay + s_id % 1000 * 3661;
    item->fileId = ++s_id;
    item->secondaryId = 2 * s_id;
    return item;
}

TreeItemData *Card::file(const QString &name) const
{
    for (TreeItemData *item : root.childFiles) {
        if (item->name == name)
            return item;
    }
    return nullptr;
}

void Card::uncheckAll()
{
    root.checkState = folder->checkState = Qt::Unchecked;
    for (TreeItemData *item : qAsConst(root.childFiles))
        item->checkState = Qt::Unchecked;
}
