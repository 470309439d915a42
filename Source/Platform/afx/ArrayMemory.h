// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <utility>

namespace vq::afx {

/// A block for array elements: one heap for all libraries, so that an array may grow in one and end in another.
class VQPLATFORM_API ArrayMemory
{
public:
    /// Throws `CMemoryException*` when `count` elements of `size` bytes cannot be had.
    ArrayMemory(INT_PTR count, std::size_t size);
    ~ArrayMemory() { release(m_block); }
    ArrayMemory(const ArrayMemory&) = delete;
    ArrayMemory& operator=(const ArrayMemory&) = delete;

    void* get() const noexcept { return m_block; }
    void* detach() noexcept { return std::exchange(m_block, nullptr); }
    static void release(void* block) noexcept;

private:
    void* m_block;
};

} // namespace vq::afx
