#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

/// A vector in blocks: growing neither moves what is there nor takes more than a block too much.
template <typename T>
class Blocks
{
public:
    size_t size() const { return m_size; }
    T &operator[](size_t i) { return m_blocks[i / BlockSize][i % BlockSize]; }
    const T &operator[](size_t i) const { return m_blocks[i / BlockSize][i % BlockSize]; }
    /// How many of the elements from \a i to before \a end lie side by side in memory.
    static size_t adjacent(size_t i, size_t end)
    {
        return std::min(end - i, BlockSize - i % BlockSize);
    }

    /// New elements are value-initialized.
    void resize(size_t size)
    {
        const size_t blocks = (size + BlockSize - 1) / BlockSize;
        const size_t kept = std::min(blocks, m_blocks.size());
        m_blocks.resize(blocks);
        for (size_t i = kept == 0 ? 0 : kept - 1; i < blocks; ++i)
            resizeBlock(i, std::min(BlockSize, size - i * BlockSize));
        m_size = size;
    }

    void insert(size_t at, size_t count)
    {
        const size_t oldSize = m_size;
        resize(oldSize + count);
        for (size_t i = oldSize; i-- > at;)
            (*this)[i + count] = std::exchange((*this)[i], T());
    }

    void remove(size_t at, size_t count)
    {
        for (size_t i = at; i + count < m_size; ++i)
            (*this)[i] = std::move((*this)[i + count]);
        resize(m_size - count);
    }

    /// The blocks that begin at \a from or later, which are then no longer here.
    Blocks takeBlocksFrom(size_t from)
    {
        Blocks later;
        const size_t kept = std::min(m_blocks.size(), (from + BlockSize - 1) / BlockSize);
        const auto middle = m_blocks.begin() + std::ptrdiff_t(kept);
        later.m_blocks.assign(std::make_move_iterator(middle),
                              std::make_move_iterator(m_blocks.end()));
        later.m_size = m_size - std::min(m_size, kept * BlockSize);
        m_blocks.erase(middle, m_blocks.end());
        m_size -= later.m_size;
        return later;
    }

private:
    static constexpr size_t BlockSize = size_t(1) << 14;

    void resizeBlock(size_t number, size_t size)
    {
        std::vector<T> &block = m_blocks[number];
        if (number > 0)
            block.reserve(BlockSize);
        else if (block.capacity() < size) // small lists stay small
            block.reserve(std::min(BlockSize, std::max(size, 2 * block.capacity())));
        block.resize(size);
    }

    std::vector<std::vector<T>> m_blocks;
    size_t m_size = 0;
};
