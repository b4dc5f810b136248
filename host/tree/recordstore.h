#pragma once

#include "host/tree/itemrecord.h"

#include <memory>
#include <vector>

/// Owns the records of a scan, in the order of their making. They lie in blocks: a million of them
/// is a thousand allocations, and whether a pointer that comes back from outside is one of ours can
/// be told from its address alone. GUI thread.
class RecordStore
{
public:
    RecordStore();
    ~RecordStore();
    RecordStore(const RecordStore &) = delete;
    RecordStore &operator=(const RecordStore &) = delete;

    /// Records that are in no store any more. They are destroyed with it, or before that block by
    /// block, since a million of them takes long.
    class Remains;

    /// A new record; its `secondaryId` is unique in the process.
    ItemRecord *create();
    /// The store is empty then; find() knows none of what it held.
    Remains takeAll();

    int size() const { return m_size; }
    ItemRecord *at(int index) const;

    /// \a item as one of ours, or null. Never reads from the pointer.
    ItemRecord *find(const TreeItemData *item) const;

private:
    struct Block;

    std::vector<std::unique_ptr<Block>> m_blocks; // in order of making
    std::vector<Block *> m_byAddress;
    int m_size = 0;
};

class RecordStore::Remains
{
public:
    Remains();
    ~Remains();
    Remains(Remains &&other) noexcept;
    Remains &operator=(Remains &&other) noexcept;

    /// The eldest of them: a folder goes before what its lists name. True when none are left.
    bool destroyBlock();

private:
    friend class RecordStore;
    std::vector<std::unique_ptr<Block>> m_blocks;
    std::size_t m_next = 0;
};
