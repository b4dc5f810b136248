#pragma once

#include "model/blocks.h"
#include "model/idmarks.h"
#include "model/inparallel.h"
#include "model/nameletters.h"

#include "platform/item/treeitemdata.h"

#include <QPointer>

#include <vector>

class EarlierRows;

/// The records of an opened folder in the host's order, folders first: a guard for each, and a few
/// bits by which its name and its ids are found among a million. They are as they were when the
/// record was listed; what they find is to be checked. Not thread-safe.
class ListedRecords
{
public:
    using Guard = QPointer<TreeItemData>;

    /// A number for the folders and one for the files.
    struct Parts
    {
        size_t folders = 0;
        size_t files = 0;
        size_t total() const { return folders + files; }
        bool operator==(const Parts &other) const
        {
            return folders == other.folders && files == other.files;
        }
    };

    size_t size() const { return m_guards.size(); }
    Parts parts() const { return {m_folderCount, size() - m_folderCount}; }
    /// Null when the record has died.
    TreeItemData *at(size_t position) const { return m_guards[position].data(); }
    bool mayBegin(size_t position, const NameLetters::Pattern &name) const
    {
        return name.fits(m_letters[position]);
    }

    /// Lists the children of \a folder, keeping the guards that still fit. What leaves its position
    /// goes to \a earlier. Returns how many of the first folders and files stayed as they were.
    Parts replace(const TreeItemData &folder, EarlierRows &earlier);
    void clear();

    /// Positions of living records, ascending; only the first one when \a one. Those that had the
    /// id when they were listed, or when there is none of them, those that have been given it
    /// since.
    std::vector<size_t> positionsOfId(RecordId which, qint64 id, bool one) const;
    /// The same for a record, which is alive.
    std::vector<size_t> positionsOf(const TreeItemData *record, bool one) const;
    /// Null where a record has died.
    std::vector<const TreeItemData *> all() const;
    /// Of the keys of \a records, which are all().
    static quint64 fingerprint(int sortRole, const std::vector<const TreeItemData *> &records);
    /// The same when all children of \a folder are known to be listed as they are now.
    static quint64 fingerprint(int sortRole, const TreeItemData &folder);

    /// Hands the living records from position \a from to before \a end to \a visit.
    template <typename Visit>
    void visit(size_t from, size_t end, Visit visit) const;
    /// Hands all living records to \a visit, half of very many on a thread of their own.
    template <typename Visit>
    void visitAll(Visit visit) const;

private:
    static constexpr size_t WorthTwoThreads = 100'000; // records to look at

    size_t replacePart(size_t first, size_t size, const QList<TreeItemData *> &children,
                       EarlierRows &earlier);
    /// The first of \a children before \a end that is not listed in its place, the first of all at
    /// \a first; \a end when there is none.
    size_t firstDifference(size_t first, size_t end, const QList<TreeItemData *> &children) const;
    /// The same, looking from \a from on.
    size_t difference(size_t first, size_t from, size_t end,
                      const QList<TreeItemData *> &children) const;
    /// Lists those of these \a children that are not listed in their places, after a call of
    /// \a leaves for each.
    template <typename Leaves>
    void listChanged(size_t first, size_t from, size_t end, const QList<TreeItemData *> &children,
                     Leaves leaves);
    /// Lists these of \a children, the first of all at \a first.
    void list(size_t first, size_t from, size_t end, const QList<TreeItemData *> &children);
    /// The same, half of very many on a thread of their own.
    void listInParallel(size_t first, size_t from, size_t end,
                        const QList<TreeItemData *> &children);
    /// Drops the guards behind the first \a size ones.
    void shrinkGuards(size_t size);
    template <typename Matches>
    std::vector<size_t> positionsByMark(RecordId which, qint64 id, bool one, Matches matches) const;
    template <typename Matches>
    std::vector<size_t> positionsOneByOne(bool one, Matches matches) const;

    template <typename RecordAt>
    static quint64 fingerprintOf(int sortRole, size_t size, RecordAt recordAt);

    Blocks<Guard> m_guards;
    Blocks<quint16> m_letters;
    Blocks<quint8> m_fileMarks;
    Blocks<quint8> m_secondaryMarks;
    size_t m_folderCount = 0;
};

template <typename Visit>
void ListedRecords::visit(size_t from, size_t end, Visit visit) const
{
    while (from < end) {
        const Guard *guard = &m_guards[from];
        const size_t count = m_guards.adjacent(from, end);
        for (const Guard *last = guard + count; guard != last; ++guard) {
            if (TreeItemData *const record = guard->data())
                visit(*record);
        }
        from += count;
    }
}

template <typename Visit>
void ListedRecords::visitAll(Visit each) const
{
    const size_t middle = size() / 2;
    runInParallel(
        size() >= WorthTwoThreads, [&] { visit(0, middle, each); },
        [&] { visit(middle, size(), each); });
}
