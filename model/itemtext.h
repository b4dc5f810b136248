#pragma once

#include <QString>

class TreeItemData;

/// The texts that model, delegates and pane show for a record. "--" stands for what is not known.
namespace ItemText {

/// Category name of the record's root type, else its name, category keys translated.
QString displayName(const TreeItemData &item);
QString size(const TreeItemData &item);
QString size(qint64 bytes);
QString type(const TreeItemData &item);
QString modified(const TreeItemData &item);
QString modified(qint64 timestamp);
/// Where the record lies, in a tree whose top has \a rootType.
QString displayPath(const TreeItemData *item, int rootType);

/// Bytes of a folder's contents or of the file.
qint64 bytes(const TreeItemData &item);

} // namespace ItemText
