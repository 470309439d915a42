// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How PNG files are put together. Standard library only.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace vq::gdiplus::png {

using ChunkType = std::array<std::uint8_t, 4>;
using ChunkStart = std::array<std::uint8_t, 8>; // length and type

inline constexpr std::array<std::uint8_t, 8> kSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
inline constexpr ChunkType kHeader{'I', 'H', 'D', 'R'};
inline constexpr ChunkType kResolution{'p', 'H', 'Y', 's'};
inline constexpr ChunkType kPixels{'I', 'D', 'A', 'T'};
inline constexpr ChunkType kEnd{'I', 'E', 'N', 'D'};

inline constexpr std::uint32_t kMaxNumber = 0x7FFFFFFF; // what a four-byte field of the format may hold

constexpr void putBigEndian32(std::span<std::uint8_t> bytes, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

/// The number at `offset`; the caller has checked that it is there.
constexpr std::uint32_t bigEndian32(std::span<const std::uint8_t> bytes, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | bytes[offset + i];
    return value;
}

} // namespace vq::gdiplus::png
