// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rows in blocks: what a loop works out stays in the processor's nearest cache. Standard library only.

#include <cstddef>
#include <type_traits>

namespace vq {

inline constexpr std::size_t kBlockPixels = 64;

/// Calls `visit(begin, count)` for each block of a row from left to right, the last of which may be shorter. The count
/// of a whole block is a constant that the compiler knows.
template <typename Visit>
void forEachBlock(std::size_t length, Visit visit)
{
    std::size_t begin = 0;
    for (; begin + kBlockPixels <= length; begin += kBlockPixels)
        visit(begin, std::integral_constant<std::size_t, kBlockPixels>());
    if (begin < length)
        visit(begin, length - begin);
}

/// As `forEachBlock`, from right to left: the shorter block comes first.
template <typename Visit>
void forEachBlockFromTheRight(std::size_t length, Visit visit)
{
    std::size_t end = length - length % kBlockPixels;
    if (end < length)
        visit(end, length - end);
    for (; end > 0; end -= kBlockPixels)
        visit(end - kBlockPixels, std::integral_constant<std::size_t, kBlockPixels>());
}

} // namespace vq
