#pragma once

class TreeItemData;

/// How well a file can be recovered.
enum class Recoverability { High = 0, Medium = 1, Assessing = 2 };

/// \a hasThumbnail: a picture of the item could be made. \a assessmentFinished: the scan is over.
Recoverability recoverabilityOf(const TreeItemData *item, bool hasThumbnail,
                                bool assessmentFinished);
/// Translation key of a level's caption, such as "recoverability_high".
const char *recoverabilityKey(Recoverability level);
