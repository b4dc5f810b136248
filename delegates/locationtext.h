#pragma once

#include <QString>

class TreeItemData;

/// The location of an item as list rows show it. "--" stands for no location.
namespace LocationText {

enum class Folders { Located, Placeholder };

QString of(const TreeItemData *item, Folders folders = Folders::Located);
bool isKnown(const QString &text);
QString unknown();

} // namespace LocationText
