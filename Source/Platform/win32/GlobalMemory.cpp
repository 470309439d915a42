// SPDX-License-Identifier: MIT
#include "Platform/win32/GlobalMemory.h"

#include "Platform/PixelMemory.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/HandleTable.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <new>
#include <unordered_map>
#include <utility>

namespace {

using vq::platform::PixelMemory;

struct Block
{
    PixelMemory<BYTE> data; // null for a movable block without memory
    std::size_t size = 0;
    std::size_t capacity = 0;
    UINT locks = 0;
    bool movable = false;
};

using FixedBlocks = std::unordered_map<const void*, Block>;

constinit std::mutex tables;
constinit vq::win32::HandleTable<Block> movableBlocks;
constinit FixedBlocks* fixedBlocks = nullptr;
constinit bool closed = false;

/// Gives back the tables when the library goes. Blocks that a host forgot stay: they are its own.
struct CloseAtUnload
{
    ~CloseAtUnload()
    {
        const std::scoped_lock lock(tables);
        closed = true;
        movableBlocks.close();
        if (fixedBlocks)
            for (auto& entry : *fixedBlocks)
                static_cast<void>(entry.second.data.release());
        delete std::exchange(fixedBlocks, nullptr);
    }
};
VQ_START_ORDER(1) constinit CloseAtUnload closeAtUnload;

std::uintptr_t numberOf(HGLOBAL memory)
{
    return reinterpret_cast<std::uintptr_t>(memory);
}

Block* find(HGLOBAL memory)
{
    if (Block* block = movableBlocks.find(numberOf(memory)))
        return block;
    if (!fixedBlocks)
        return nullptr;
    const auto place = fixedBlocks->find(memory);
    return place == fixedBlocks->end() ? nullptr : &place->second;
}

std::nullptr_t fail(DWORD error)
{
    SetLastError(error);
    return nullptr;
}

bool reallocate(Block& block, std::size_t capacity, std::size_t kept)
{
    if (capacity > static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()))
        return false;
    PixelMemory<BYTE> data(static_cast<BYTE*>(vq::platform::allocateRaw(std::max<std::size_t>(capacity, 1))));
    if (!data)
        return false;
    if (kept > 0)
        std::memcpy(data.get(), block.data.get(), kept);
    block.data = std::move(data);
    block.capacity = capacity;
    return true;
}

// A movable block that grows takes half as much again, so that growing in small steps costs no more than a constant
// factor; one that shrinks below half of its memory gives the rest back.
bool resize(Block& block, std::size_t bytes, bool mayMove, bool zeroNewBytes)
{
    const std::size_t kept = std::min(block.size, bytes);
    if (!block.data || bytes > block.capacity) {
        if (block.data && !mayMove)
            return false;
        const std::size_t generous = block.movable ? block.capacity + block.capacity / 2 : 0;
        if (!(generous > bytes && reallocate(block, generous, kept)) && !reallocate(block, bytes, kept))
            return false;
    } else if (mayMove && bytes < block.capacity / 2) {
        reallocate(block, bytes, kept); // may fail: then there is more memory than needed
    }
    if (zeroNewBytes && bytes > kept)
        std::memset(block.data.get() + kept, 0, bytes - kept);
    block.size = bytes;
    return true;
}

HGLOBAL insertFixed(Block block)
{
    const HGLOBAL memory = block.data.get();
    try {
        if (!fixedBlocks)
            fixedBlocks = new FixedBlocks;
        fixedBlocks->emplace(memory, std::move(block));
        return memory;
    } catch (const std::bad_alloc&) {
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    }
}

HGLOBAL insertMovable(Block block)
{
    std::unique_ptr<Block> owner(new (std::nothrow) Block(std::move(block)));
    const std::uintptr_t number = owner ? movableBlocks.insert(owner.get()) : 0;
    if (number == 0)
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    static_cast<void>(owner.release()); // the table's until GlobalFree
    return reinterpret_cast<HGLOBAL>(number);
}

HGLOBAL reallocFixed(Block& block, HGLOBAL memory, SIZE_T bytes, UINT flags)
{
    if (!resize(block, bytes, flags & GMEM_MOVEABLE, flags & GMEM_ZEROINIT))
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    const HGLOBAL moved = block.data.get();
    if (moved != memory) {
        auto node = fixedBlocks->extract(memory);
        node.key() = moved;
        fixedBlocks->insert(std::move(node));
    }
    return moved;
}

HGLOBAL reallocMovable(Block& block, HGLOBAL memory, SIZE_T bytes, UINT flags)
{
    if (bytes == 0) {
        if (!(flags & GMEM_MOVEABLE) || block.locks > 0)
            return fail(ERROR_INVALID_PARAMETER);
        block.data.reset();
        block.size = block.capacity = 0;
        return memory;
    }
    const bool mayMove = block.locks == 0 || (flags & GMEM_MOVEABLE);
    return resize(block, bytes, mayMove, flags & GMEM_ZEROINIT) ? memory : fail(ERROR_NOT_ENOUGH_MEMORY);
}

} // namespace

HGLOBAL GlobalAlloc(UINT flags, SIZE_T bytes)
{
    Block block;
    block.movable = flags & GMEM_MOVEABLE;
    if ((bytes > 0 || !block.movable) && !resize(block, bytes, true, flags & GMEM_ZEROINIT))
        return fail(ERROR_NOT_ENOUGH_MEMORY);

    const std::scoped_lock lock(tables);
    if (closed)
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    return block.movable ? insertMovable(std::move(block)) : insertFixed(std::move(block));
}

HGLOBAL GlobalReAlloc(HGLOBAL memory, SIZE_T bytes, UINT flags)
{
    const std::scoped_lock lock(tables);
    Block* block = find(memory);
    if (!block)
        return fail(ERROR_INVALID_HANDLE);
    if (flags & GMEM_MODIFY)
        return memory;
    return block->movable ? reallocMovable(*block, memory, bytes, flags) : reallocFixed(*block, memory, bytes, flags);
}

LPVOID GlobalLock(HGLOBAL memory)
{
    const std::scoped_lock lock(tables);
    Block* block = find(memory);
    if (!block)
        return fail(ERROR_INVALID_HANDLE);
    if (!block->data)
        return fail(ERROR_DISCARDED);
    if (block->movable)
        ++block->locks;
    return block->data.get();
}

BOOL GlobalUnlock(HGLOBAL memory)
{
    const std::scoped_lock lock(tables);
    Block* block = find(memory);
    if (block && !block->movable)
        return TRUE;
    if (!block || block->locks == 0) {
        SetLastError(block ? ERROR_NOT_LOCKED : ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (--block->locks > 0)
        return TRUE;
    SetLastError(NO_ERROR);
    return FALSE;
}

SIZE_T GlobalSize(HGLOBAL memory)
{
    const std::scoped_lock lock(tables);
    const Block* block = find(memory);
    if (block)
        return block->size;
    SetLastError(ERROR_INVALID_HANDLE);
    return 0;
}

UINT GlobalFlags(HGLOBAL memory)
{
    const std::scoped_lock lock(tables);
    const Block* block = find(memory);
    if (!block) {
        SetLastError(ERROR_INVALID_HANDLE);
        return GMEM_INVALID_HANDLE;
    }
    return std::min(block->locks, GMEM_LOCKCOUNT) | (block->data ? 0 : GMEM_DISCARDED);
}

HGLOBAL GlobalHandle(LPCVOID address)
{
    const std::scoped_lock lock(tables);
    if (fixedBlocks) {
        const auto place = fixedBlocks->find(address);
        if (place != fixedBlocks->end())
            return place->second.data.get();
    }
    HGLOBAL found = nullptr;
    if (address)
        movableBlocks.findIf([&](std::uintptr_t number, const Block* block) {
            found = block->data.get() == address ? reinterpret_cast<HGLOBAL>(number) : nullptr;
            return found != nullptr;
        });
    return found ? found : fail(ERROR_INVALID_HANDLE);
}

HGLOBAL GlobalFree(HGLOBAL memory)
{
    if (!memory)
        return nullptr;
    const std::scoped_lock lock(tables);
    const std::unique_ptr<Block> movable(movableBlocks.remove(numberOf(memory)));
    if (movable || (fixedBlocks && fixedBlocks->erase(memory) > 0))
        return nullptr;
    SetLastError(ERROR_INVALID_HANDLE);
    return memory;
}
