#include "host/tree/recordstore.h"

#include <algorithm>
#include <functional>
#include <new>

namespace {
constexpr int BlockSize = 1024;
qint64 s_lastSecondaryId = 0;
} // namespace

struct RecordStore::Block
{
    ~Block()
    {
        for (int i = 0; i < used; ++i)
            record(i)->~ItemRecord();
    }
    ItemRecord *record(int index)
    {
        return std::launder(reinterpret_cast<ItemRecord *>(bytes) + index);
    }

    alignas(ItemRecord) unsigned char bytes[BlockSize * sizeof(ItemRecord)];
    int used = 0;
};

RecordStore::RecordStore() = default;
RecordStore::~RecordStore() = default;

ItemRecord *RecordStore::create()
{
    if (m_blocks.empty() || m_blocks.back()->used == BlockSize) {
        m_blocks.emplace_back(new Block); // not value-initialised: no need to fill it with zeros
        Block *block = m_blocks.back().get();
        m_byAddress.insert(
            std::upper_bound(m_byAddress.begin(), m_byAddress.end(), block, std::less<Block *>()),
            block);
    }
    Block *block = m_blocks.back().get();
    auto *record = new (block->bytes + block->used * sizeof(ItemRecord)) ItemRecord;
    ++block->used;
    record->index = m_size++;
    record->secondaryId = ++s_lastSecondaryId;
    return record;
}

RecordStore::Remains RecordStore::takeAll()
{
    Remains remains;
    remains.m_blocks.swap(m_blocks);
    m_byAddress.clear();
    m_size = 0;
    return remains;
}

ItemRecord *RecordStore::at(int index) const
{
    return m_blocks[std::size_t(index / BlockSize)]->record(index % BlockSize);
}

ItemRecord *RecordStore::find(const TreeItemData *item) const
{
    const auto address = reinterpret_cast<quintptr>(item);
    const auto after = std::upper_bound(m_byAddress.begin(), m_byAddress.end(), address,
                                        [](quintptr value, const Block *block) {
                                            return value < reinterpret_cast<quintptr>(block->bytes);
                                        });
    if (after == m_byAddress.begin())
        return nullptr;
    Block *block = *std::prev(after);
    const quintptr offset = address - reinterpret_cast<quintptr>(block->bytes);
    const quintptr index = offset / sizeof(ItemRecord);
    if (offset % sizeof(ItemRecord) != 0 || index >= quintptr(block->used))
        return nullptr;
    return block->record(int(index));
}

RecordStore::Remains::Remains() = default;
RecordStore::Remains::~Remains() = default;
RecordStore::Remains::Remains(Remains &&other) noexcept = default;
RecordStore::Remains &RecordStore::Remains::operator=(Remains &&other) noexcept = default;

bool RecordStore::Remains::destroyBlock()
{
    if (m_next < m_blocks.size())
        m_blocks[m_next++].reset();
    return m_next == m_blocks.size();
}
