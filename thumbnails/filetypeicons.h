#pragma once

#include <QPixmap>
#include <QString>

class TreeItemData;

/// Pictures for items without a thumbnail, by category and extension. GUI thread.
namespace FileTypeIcons {

enum class Size { List = 32, Card = 64, Pane = 140 };

/// Never null as long as the pictures are there: an unknown type gets the general icon.
QPixmap icon(const TreeItemData &item, Size size);
QPixmap generalIcon(Size size);
/// Base name of the picture, such as "icon64_File_Photo".
QString imageName(const TreeItemData &item, Size size);

} // namespace FileTypeIcons
