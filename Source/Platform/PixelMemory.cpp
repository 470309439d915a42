// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"

#include <atomic>
#include <cstdlib>
#include <limits>

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

} // namespace

void* allocateZeroed(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : std::calloc(bytes, 1);
}

void* allocateRaw(std::size_t bytes) noexcept
{
    return mustFail() ? nullptr : std::malloc(bytes);
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
