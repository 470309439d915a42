// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PixelMemory.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vq::gdiplus {

/// The bytes of a picture file, growing at their end. Nothing here throws: encoders written in C call it.
class FileBytes
{
public:
    /// Makes room for `capacity` bytes in all. False when the memory cannot be had; the content stays.
    [[nodiscard]] bool reserve(std::size_t capacity) noexcept;
    /// False when the memory cannot be had; the content stays.
    [[nodiscard]] bool append(std::span<const std::uint8_t> bytes) noexcept;

    /// Replaces bytes that are there already.
    void overwrite(std::size_t position, std::span<const std::uint8_t> bytes) noexcept;

    const std::uint8_t* data() const noexcept { return m_bytes.get(); }
    std::size_t size() const noexcept { return m_size; }
    std::span<const std::uint8_t> bytes() const noexcept { return {data(), m_size}; }

private:
    platform::PixelMemory<std::uint8_t> m_bytes;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
};

} // namespace vq::gdiplus
