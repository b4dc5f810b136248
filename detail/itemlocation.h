#pragma once

#include <QString>

class TreeItemData;

/// Where the pane says that an item lies; empty when nobody knows.
QString detailLocation(const TreeItemData &item);
