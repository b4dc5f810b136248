#pragma once

#include <QString>
#include <QStringList>

/// The filter that the host applies to its results before it hands them over. Owned by the host;
/// the plug-in only reads whether any filter is active and whether the search is an AI search.
struct FilterCondition
{
    static constexpr qint64 Unset = -1;
    static constexpr qint32 NoMode = 2;

    qint64 minSize = Unset; ///< bytes
    qint64 maxSize = Unset; ///< bytes
    qint64 minTime = Unset; ///< seconds since the epoch
    qint64 maxTime = Unset; ///< seconds since the epoch
    QString text1;
    QString text2;
    QStringList list1;
    QStringList list2;
    qint32 mode = NoMode;
    bool aiSearch = false;
};
