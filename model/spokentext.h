#pragma once

#include "model/recoverability.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class TreeItemData;

/// What assistive technology says where the screen shows a mark, a picture or a place.
class SpokenText
{
    Q_DECLARE_TR_FUNCTIONS(SpokenText)

public:
    /// "Checked", "Not checked" or "Partly checked".
    static QString checkState(int state);
    /// "Folder", "Photo" and so on; a file of no other kind by its extension.
    static QString kind(const TreeItemData &item);
    /// Kind and size, or what a folder holds, and how well a file can be recovered.
    static QString description(const TreeItemData &item, Recoverability level);
    /// "3 of 120"; \a row counts from 0.
    static QString position(int row, int count);
    static QString sortOrder(bool descending);
    static QString scrollBar();
    /// The parts that are not empty, as one text with pauses.
    static QString joined(QStringList parts);
};
