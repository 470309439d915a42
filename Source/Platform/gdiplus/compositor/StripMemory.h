// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>

namespace vq::gdiplus {

/// One block of memory, given out in pieces without content that start at multiples of 64 from each other. It may be
/// kept from drawing to drawing.
class StripMemory
{
public:
    /// Sees to the size of the block, whose pieces are all given back; false when memory cannot be had.
    bool provide(std::size_t bytes)
    {
        rewind();
        if (bytes <= m_size)
            return true;
        m_bytes.reset(new (std::nothrow) std::byte[bytes]);
        m_size = m_bytes ? bytes : 0;
        return m_bytes != nullptr;
    }

    /// How much `take` needs for a piece.
    template <typename T>
    static constexpr std::size_t bytesFor(std::size_t count)
    {
        return (count * sizeof(T) + kAlignment - 1) / kAlignment * kAlignment;
    }

    /// The pieces together stay within the size of the block.
    template <typename T>
    std::span<T> take(std::size_t count)
    {
        auto* piece = reinterpret_cast<T*>(m_bytes.get() + m_taken);
        m_taken += bytesFor<T>(count);
        return {piece, count};
    }

    /// Starts again from the beginning: all pieces are given back.
    void rewind() { m_taken = 0; }

private:
    static constexpr std::size_t kAlignment = 64;

    std::unique_ptr<std::byte[]> m_bytes;
    std::size_t m_size = 0;
    std::size_t m_taken = 0;
};

} // namespace vq::gdiplus
