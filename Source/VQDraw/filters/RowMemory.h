// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PixelMemory.h"

#include <cstddef>
#include <new>

namespace vq {

/// The one block of memory that a filter works with, given out in pieces without content that start at multiples of 64
/// bytes from each other.
class RowMemory
{
public:
    /// Throws std::bad_alloc.
    explicit RowMemory(std::size_t bytes)
        : m_bytes(static_cast<std::byte*>(platform::allocateRaw(bytes))), m_next(m_bytes.get())
    {
        if (!m_bytes)
            throw std::bad_alloc();
    }

    /// How much `take` needs for a piece.
    template <typename T>
    static constexpr std::size_t bytesFor(std::size_t count)
    {
        return (count * sizeof(T) + kAlignment - 1) / kAlignment * kAlignment;
    }

    /// The pieces together stay within the block.
    template <typename T>
    T* take(std::size_t count)
    {
        auto* piece = reinterpret_cast<T*>(m_next);
        m_next += bytesFor<T>(count);
        return piece;
    }

private:
    static constexpr std::size_t kAlignment = 64;

    platform::PixelMemory<std::byte> m_bytes;
    std::byte* m_next;
};

} // namespace vq
