#pragma once

#include "model/blocks.h"
#include "model/roworder.h"

#include "platform/item/treeitemdata.h"

#include <QPair>
#include <QPointer>
#include <QSet>
#include <QVector>

#include <utility>
#include <vector>

/// How the rows of a model lay before it was filled or sorted, so that a selection of a million
/// rows follows its records without a guard for each of them. Positions are those in the host's
/// order, folders first; what stayed at its place is known by that alone, only records that left
/// theirs are kept, each by its guard.
class EarlierRows
{
public:
    using Guard = QPointer<TreeItemData>;
    using Runs = QVector<QPair<int, int>>; ///< first and last row of each

    /// The next change is to be noted.
    void expect() { m_expected = true; }
    void forget() { *this = EarlierRows(); }
    bool isKnown() const { return m_known; }

    /// A change begins, of so many records. Unless it is expected, nothing is kept of it.
    void begin(size_t folders, size_t files);
    /// What was at \a position will not be there any more. In any order, after begin().
    void leaves(size_t position, Guard &&guard);
    /// The change is done. \a order: position by row before it; empty: the same.
    void end(RowOrder &&order, size_t foldersNow, size_t filesNow);

    struct Places
    {
        std::vector<bool> positions;          ///< of now
        QSet<const TreeItemData *> elsewhere; ///< alive, but no longer where they were
    };
    /// Where the records of these rows of before are to be found.
    Places placesOf(const Runs &rows) const;

private:
    RowOrder m_order;
    Blocks<std::pair<quint32, Guard>> m_left; // a million are not moved to make room
    size_t m_folders = 0;
    size_t m_files = 0;
    size_t m_foldersNow = 0;
    size_t m_filesNow = 0;
    bool m_expected = false;
    bool m_known = false;
};
