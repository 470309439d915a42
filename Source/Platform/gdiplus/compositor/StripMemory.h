// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <span>

namespace vq::gdiplus {

/// One block of memory, given out in pieces without content that start at multiples of 64 from each other.
class StripMemory
{
public:
    explicit StripMemory(std::size_t bytes) : m_bytes(new (std::nothrow) std::byte[bytes]) {}

    explicit operator bool() const { return m_bytes != nullptr; }

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
    std::size_t m_taken = 0;
};

} // namespace vq::gdiplus
