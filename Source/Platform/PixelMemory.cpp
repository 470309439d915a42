// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <limits>

#if defined(__linux__)
#include <sys/mman.h>
#include <unistd.h>
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

/// Whole pictures are walked from end to end as soon as they are there. In pages of 2 MB, where the system gives them
/// to those who ask, their memory is mapped with a few faults and not with one for every 4 KB, which takes longer than
/// most filters do. What is not touched still costs nothing.
void* inLargePages(void* memory, [[maybe_unused]] std::size_t bytes) noexcept
{
#if defined(__linux__)
    constexpr std::size_t kWorthwhile = std::size_t{4} << 20;
    if (memory && bytes >= kWorthwhile) {
        const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
        const std::uintptr_t gap = page - reinterpret_cast<std::uintptr_t>(memory) % page;
        const std::size_t whole = (bytes - gap) / page * page;
        madvise(static_cast<std::uint8_t*>(memory) + gap, whole, MADV_HUGEPAGE); // a wish: nothing hangs on the answer
    }
#endif
    return memory;
}

} // namespace

void* allocateZeroed(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : inLargePages(std::calloc(bytes, 1), bytes);
}

void* allocateRaw(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : inLargePages(std::malloc(bytes), bytes);
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
