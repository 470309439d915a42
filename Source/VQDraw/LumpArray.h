// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// An array in blocks of one size. Standard library only.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <utility>

/// An array that grows without moving its elements: they lie in blocks of one size, a power of two, which a table
/// points to. References to elements stay valid until the element's block is freed by `SetSize`, `RemoveAll` or the
/// destructor. An element is found with one shift and one mask; growing copies the table only.
///
/// Elements of a new block are value-initialised (numbers are 0); those of a block that shrinking has kept show again
/// when the array grows over them, deliberately. Memory that cannot be had is no exception: what was
/// not stored is missing, and `GetSize` tells. What the elements' own constructors and assignments throw passes through
/// and leaves a whole array.
///
/// Used by one thread at a time.
template <typename TYPE, typename ARG_TYPE = const TYPE&>
class CLumpArray
{
public:
    /// An empty array whose blocks hold `blockSize` elements, rounded up to a power of two. Of 0, and of what has no
    /// such power in 64 bits, blocks of one element come, deliberately. Takes no memory.
    explicit CLumpArray(std::uint64_t blockSize) noexcept
        : m_nBlockSize(std::uint64_t{1} << (std::bit_width(blockSize - 1) & kShiftMask)),
          m_nBlockMask(m_nBlockSize - 1), m_nBlockShift(static_cast<std::uint64_t>(std::bit_width(blockSize - 1)))
    {
    }
    /// Has the block size of `other`, then copies as the assignment does.
    CLumpArray(const CLumpArray& other) : CLumpArray(other.m_nBlockSize) { *this = other; }
    /// Takes size and elements and keeps its own block size. Elements whose block cannot be had are left out: they are
    /// missing at the end, or value-initialised where a later element of their block was stored.
    CLumpArray& operator=(const CLumpArray& other);
    virtual ~CLumpArray() { RemoveAll(); }

    /// Number of elements: the highest stored index + 1, or what `SetSize` made of it.
    std::uint64_t GetSize() const noexcept { return m_nSize; }

    /// Sets the number of elements; blocks that are no longer needed are freed, missing ones are made. With 0 as
    /// `RemoveAll`.
    /// @return false when memory cannot be had. Without a larger table nothing has changed; when a block is missing,
    /// the size is what the blocks before it hold, of which blocks may be new.
    bool SetSize(std::uint64_t size);

    /// Stores an element, which may lie in this array. Blocks up to the one of `index` are made where they are missing,
    /// and the size becomes `index` + 1 unless it was larger. Memory that cannot be had: the element is not stored and
    /// the size stays.
    void SetAtGrow(std::uint64_t index, ARG_TYPE value)
    {
        const std::uint64_t size = m_nSize;
        if (index < size) {
            GetAt(index) = value;
            return;
        }
        const bool hasRoom = index == size && (index & m_nBlockMask) != 0; // in the block of the last element
        if (!hasRoom && !provideRoom(index)) {
            m_nSize = size; // known on every way out: a loop that appends then keeps it in a register
            return;
        }
        GetAt(index) = value;
        m_nSize = index + 1;
    }

    /// Frees all elements, blocks and the table; the block size stays.
    void RemoveAll() noexcept;

    /// @name Elements
    /// The index is not checked.
    /// @{
    TYPE& GetAt(std::uint64_t index) noexcept { return blockAt(index)[index & m_nBlockMask]; }
    const TYPE& GetAt(std::uint64_t index) const noexcept { return blockAt(index)[index & m_nBlockMask]; }
    TYPE& operator[](std::uint64_t index) noexcept { return GetAt(index); }
    const TYPE& operator[](std::uint64_t index) const noexcept { return GetAt(index); }
    /// @}

protected:
    std::uint64_t m_nSize = 0;
    std::uint64_t m_nBlockSize;
    std::uint64_t m_nBlockMask;
    /// log2 of the block size, or 64 for 1: shifts count modulo 64.
    std::uint64_t m_nBlockShift;
    /// Number of entries of the table in use. The last one, and no other, is null after its block could not be had; the
    /// size never reaches into that block.
    std::uint64_t m_nBlockCount = 0;
    TYPE** m_ppBlocks = nullptr;

private:
    friend struct VQTestAccess;

    static constexpr std::uint64_t kShiftMask = 63;

    std::uint64_t blockOf(std::uint64_t index) const noexcept { return index >> (m_nBlockShift & kShiftMask); }
    TYPE* blockAt(std::uint64_t index) const noexcept { return m_ppBlocks[blockOf(index)]; }
    bool holds(std::uint64_t index) const noexcept { return blockOf(index) < m_nBlockCount && blockAt(index); }

    template <typename Element>
    static Element* allocate(std::uint64_t count);
    [[gnu::noinline]] bool provideRoom(std::uint64_t index);
    bool growTable(std::uint64_t count);
    bool provideBlocks(std::uint64_t count);
    void freeBlocksFrom(std::uint64_t first) noexcept;
};

template <typename TYPE, typename ARG_TYPE>
CLumpArray<TYPE, ARG_TYPE>& CLumpArray<TYPE, ARG_TYPE>::operator=(const CLumpArray& other)
{
    if (this == &other)
        return *this;
    SetSize(other.m_nSize);
    for (std::uint64_t index = 0; index < other.m_nSize; ++index)
        if (other.holds(index))
            SetAtGrow(index, other.GetAt(index));
    return *this;
}

template <typename TYPE, typename ARG_TYPE>
bool CLumpArray<TYPE, ARG_TYPE>::SetSize(std::uint64_t size)
{
    if (size == 0) {
        RemoveAll();
        return true;
    }
    const std::uint64_t needed = blockOf(size - 1) + 1;
    if (needed < m_nBlockCount)
        freeBlocksFrom(needed);
    if (needed > m_nBlockCount && !growTable(needed))
        return false;
    const bool isWhole = provideBlocks(needed);
    m_nSize = isWhole ? size : (m_nBlockCount - 1) * m_nBlockSize;
    return isWhole;
}

template <typename TYPE, typename ARG_TYPE>
void CLumpArray<TYPE, ARG_TYPE>::RemoveAll() noexcept
{
    m_nSize = 0;
    freeBlocksFrom(0);
    delete[] std::exchange(m_ppBlocks, nullptr);
}

/// Null when memory cannot be had.
template <typename TYPE, typename ARG_TYPE>
template <typename Element>
Element* CLumpArray<TYPE, ARG_TYPE>::allocate(std::uint64_t count)
{
    if (count > std::uint64_t{std::numeric_limits<std::ptrdiff_t>::max()} / sizeof(Element))
        return nullptr;
    return new (std::nothrow) Element[static_cast<std::size_t>(count)]();
}

/// Makes the blocks up to that of `index` where they are missing; the size stays. Not inlined, and without the element,
/// which then need not be in memory: appending is a few instructions where it is called.
template <typename TYPE, typename ARG_TYPE>
bool CLumpArray<TYPE, ARG_TYPE>::provideRoom(std::uint64_t index)
{
    if (index == std::numeric_limits<std::uint64_t>::max()) // there is no size behind it
        return false;
    const std::uint64_t needed = blockOf(index) + 1;
    if (needed > m_nBlockCount && !growTable(needed))
        return false;
    return holds(index) || provideBlocks(needed);
}

/// A table of `count` entries in place of a shorter one. The entries from the old count on are null and not yet
/// counted.
template <typename TYPE, typename ARG_TYPE>
bool CLumpArray<TYPE, ARG_TYPE>::growTable(std::uint64_t count)
{
    TYPE** const table = allocate<TYPE*>(count);
    if (!table)
        return false;
    std::copy_n(m_ppBlocks, m_nBlockCount, table);
    delete[] std::exchange(m_ppBlocks, table);
    return true;
}

/// Makes the blocks that are missing among the first `count`, for which the table has room. A block that cannot be had
/// stays behind as a null entry, the last one.
template <typename TYPE, typename ARG_TYPE>
bool CLumpArray<TYPE, ARG_TYPE>::provideBlocks(std::uint64_t count)
{
    std::uint64_t block = m_nBlockCount == 0 ? 0 : m_nBlockCount - 1; // no block before the last one is missing
    for (; block < count; ++block) {
        m_nBlockCount = std::max(m_nBlockCount, block + 1);
        if (!m_ppBlocks[block])
            m_ppBlocks[block] = allocate<TYPE>(m_nBlockSize);
        if (!m_ppBlocks[block])
            return false;
    }
    return true;
}

template <typename TYPE, typename ARG_TYPE>
void CLumpArray<TYPE, ARG_TYPE>::freeBlocksFrom(std::uint64_t first) noexcept
{
    for (std::uint64_t block = first; block < m_nBlockCount; ++block)
        delete[] std::exchange(m_ppBlocks[block], nullptr);
    m_nBlockCount = std::min(m_nBlockCount, first);
}
