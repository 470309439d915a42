// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <ostream>
#include <utility>

namespace vq::test {

/// What the whole process, libraries included, did to its heap for a time.
struct HeapUse
{
    long taken = 0; ///< blocks; one that changed its size counts as taken and given back
    long kept = 0;  ///< blocks taken less blocks given back

    /// With the calls that led to the first blocks, for addr2line.
    friend std::ostream& operator<<(std::ostream& out, const HeapUse& use);

    struct Stack
    {
        std::array<void*, 16> calls;
        int depth;
    };
    std::array<Stack, 4> stacks; ///< of the first blocks, as many as there are
};

/// Only in a program with HeapUse.cpp, which stands before the C library's allocator. Not one within the other.
void startHeapUse();
HeapUse stopHeapUse();

template <typename Work>
HeapUse heapUseOf(Work&& work)
{
    startHeapUse();
    std::forward<Work>(work)();
    return stopHeapUse();
}

} // namespace vq::test
