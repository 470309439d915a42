// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#include <cstddef>
#include <memory>

namespace vq::platform {

/// Memory for pixels, aligned to 16 bytes and all zero; null when it cannot be had. Large blocks are fresh zero pages
/// of the system that cost nothing until they are touched.
[[nodiscard]] VQPLATFORM_API void* allocateZeroed(std::size_t bytes) noexcept;

/// As `allocateZeroed`, with content left as it comes: for blocks that are written in full at once.
[[nodiscard]] VQPLATFORM_API void* allocateRaw(std::size_t bytes) noexcept;

VQPLATFORM_API void release(void* memory) noexcept;

/// Lets the calls of both allocators fail that come after the next `succeedFirst` ones, until it goes out of scope.
/// For tests of what happens when memory runs out. One at a time in a process.
class VQPLATFORM_API ScopedAllocationFailure
{
public:
    explicit ScopedAllocationFailure(int succeedFirst = 0) noexcept;
    ~ScopedAllocationFailure();
    ScopedAllocationFailure(const ScopedAllocationFailure&) = delete;
    ScopedAllocationFailure& operator=(const ScopedAllocationFailure&) = delete;
};

struct Release
{
    void operator()(void* memory) const noexcept { release(memory); }
};

/// Owner of a block from one of the allocators above.
template <typename T>
using PixelMemory = std::unique_ptr<T[], Release>;

} // namespace vq::platform
