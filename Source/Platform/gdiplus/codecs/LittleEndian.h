// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vq::gdiplus {

/// The number at `offset`; the caller has checked that it is there.
constexpr std::uint16_t littleEndian16(std::span<const std::uint8_t> bytes, std::size_t offset)
{
    return static_cast<std::uint16_t>(bytes[offset] | bytes[offset + 1] << 8);
}

/// As `littleEndian16`, for four bytes.
constexpr std::uint32_t littleEndian32(std::span<const std::uint8_t> bytes, std::size_t offset)
{
    return littleEndian16(bytes, offset) | std::uint32_t{littleEndian16(bytes, offset + 2)} << 16;
}

constexpr void putLittleEndian16(std::span<std::uint8_t> bytes, std::size_t offset, std::uint32_t value)
{
    bytes[offset] = static_cast<std::uint8_t>(value);
    bytes[offset + 1] = static_cast<std::uint8_t>(value >> 8);
}

constexpr void putLittleEndian32(std::span<std::uint8_t> bytes, std::size_t offset, std::uint32_t value)
{
    putLittleEndian16(bytes, offset, value);
    putLittleEndian16(bytes, offset + 2, value >> 16);
}

} // namespace vq::gdiplus
