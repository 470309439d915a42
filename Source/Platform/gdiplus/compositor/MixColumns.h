// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Interpolation of opaque pixels in 16-bit lanes.

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <cstddef>
#include <cstdint>

namespace vq::gdiplus {

/// Columns that are looked at together.
inline constexpr std::size_t kColumnBlock = 64;

constexpr std::uint16_t highHalf(std::uint16_t a, std::uint16_t b)
{
    return static_cast<std::uint16_t>(std::uint32_t{a} * std::uint32_t{b} >> 16);
}

/// Between two channels in 1/256 by a weight in 1/65536. The weights add up to 65535 and both products are truncated,
/// so the result is below the exact one by less than 3; it never exceeds the larger channel.
constexpr std::uint16_t mixedLane(std::uint16_t first, std::uint16_t second, std::uint16_t weight)
{
    const auto rest = static_cast<std::uint16_t>(~weight);
    return static_cast<std::uint16_t>(highHalf(first, rest) + highHalf(second, weight));
}

/// To the nearest byte of a lane that two passes made, halves downwards. The passes lose less than 6 / 256, of equal
/// channels 4 / 256 at most: those come out as they were.
constexpr Channel byteOf(std::uint16_t lane)
{
    return static_cast<Channel>(static_cast<std::uint16_t>(lane + 127) >> 8);
}

/// Mixes the source pixels `index[i]` and `index[i] + 1` of a row for at most kColumnBlock columns; `laneWeight` and
/// `lanes` have four entries for each. False, with lanes that mean nothing, where one of the pixels is not opaque.
inline bool mixColumnsPortable(const Pixel* row, const std::int32_t* index, const std::uint16_t* laneWeight,
                               std::size_t count, std::uint16_t* lanes)
{
    Pixel firsts[kColumnBlock];
    Pixel seconds[kColumnBlock];
    Pixel all = kAlphaBits;
    for (std::size_t i = 0; i < count; ++i) {
        const Pixel* pair = row + index[i];
        firsts[i] = pair[0];
        seconds[i] = pair[1];
        all &= pair[0] & pair[1];
    }
    const auto* first = reinterpret_cast<const Channel*>(firsts);
    const auto* second = reinterpret_cast<const Channel*>(seconds);
    for (std::size_t i = 0; i < 4 * count; ++i)
        lanes[i] = mixedLane(static_cast<std::uint16_t>(first[i] << 8), static_cast<std::uint16_t>(second[i] << 8),
                             laneWeight[i]);
    return all == kAlphaBits;
}

} // namespace vq::gdiplus
