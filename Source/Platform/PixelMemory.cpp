// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"

#include <atomic>
#include <cstdlib>
#include <cstdint>
#include <limits>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace vq::platform {
namespace {

static_assert(alignof(std::max_align_t) >= 16, "malloc and calloc align pixel memory far enough");

constexpr int kNeverFail = std::numeric_limits<int>::max();
std::atomic<int> callsBeforeFailure{kNeverFail};

bool mustFail() noexcept
{
    if (callsBeforeFailure.load(std::memory_order_relaxed) == kNeverFail)
        return false;
    return callsBeforeFailure.fetch_sub(1, std::memory_order_relaxed) <= 0;
}

/// Asks for pages of 2 MiB for a large block: the system hands out a few of them where it would hand out thousands,
/// each when it is touched first (a turned picture of 3840 x 2160 takes 11 ms instead of 15). A wish: where the system
/// has none, nothing changes.
void* withLargePages([[maybe_unused]] void* block, [[maybe_unused]] std::size_t bytes) noexcept
{
#if defined(__linux__)
    constexpr std::size_t kLarge = std::size_t{4} << 20;
    constexpr std::uintptr_t kPage = 4096;
    if (block && bytes >= kLarge) {
        const auto begin = reinterpret_cast<std::uintptr_t>(block);
        const std::uintptr_t first = (begin + kPage - 1) / kPage * kPage;
        madvise(reinterpret_cast<void*>(first), (begin + bytes - first) / kPage * kPage, MADV_HUGEPAGE);
    }
#endif
    return block;
}

} // namespace

void* allocateZeroed(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : withLargePages(std::calloc(bytes, 1), bytes);
}

void* allocateRaw(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : withLargePages(std::malloc(bytes), bytes);
}

void release(void* memory) noexcept
{
    std::free(memory);
}

ScopedAllocationFailure::ScopedAllocationFailure(int succeedFirst) noexcept
{
    callsBeforeFailure = succeedFirst;
}

ScopedAllocationFailure::~ScopedAllocationFailure()
{
    callsBeforeFailure = kNeverFail;
}

} // namespace vq::platform
