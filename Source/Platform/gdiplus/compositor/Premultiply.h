// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Between straight and premultiplied colours, with the rounding that Windows has.

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <array>
#include <cstddef>
#include <span>

namespace vq::gdiplus {

/// Each colour c becomes the nearest integer of c * alpha / 255.
constexpr Pixel premultiplied(Pixel straight)
{
    const std::uint32_t alpha = alphaOf(straight);
    return packed(alpha, dividedBy255(redOf(straight) * alpha), dividedBy255(greenOf(straight) * alpha),
                  dividedBy255(blueOf(straight) * alpha));
}

constexpr auto makeReciprocals()
{
    std::array<std::uint32_t, 256> reciprocals{}; // alpha 0 has no colour
    for (std::uint32_t alpha = 1; alpha < reciprocals.size(); ++alpha)
        reciprocals[alpha] = 0xFF0000 / alpha;
    return reciprocals;
}

inline constexpr std::array<std::uint32_t, 256> kReciprocals = makeReciprocals();

/// Each colour p becomes p * floor(0xFF0000 / alpha) / 65536, truncated and at most 255; alpha 0 gives 00000000.
constexpr Pixel straight(Pixel premultiplied)
{
    const std::uint32_t alpha = alphaOf(premultiplied);
    const auto divided = [reciprocal = kReciprocals[alpha]](std::uint32_t colour) {
        const std::uint32_t result = colour * reciprocal >> 16; // below 2^32: 255 * 0xFF0000
        return result < 255 ? result : 255;
    };
    return packed(alpha, divided(redOf(premultiplied)), divided(greenOf(premultiplied)),
                  divided(blueOf(premultiplied)));
}

/// Rows of the same length, the same row or not overlapping.
inline void premultiplyRow(std::span<Pixel> destination, std::span<const Pixel> source)
{
    for (std::size_t i = 0; i < destination.size(); ++i)
        destination[i] = premultiplied(source[i]);
}

/// Rows of the same length, the same row or not overlapping.
inline void straightenRow(std::span<Pixel> destination, std::span<const Pixel> source)
{
    for (std::size_t i = 0; i < destination.size(); ++i)
        destination[i] = straight(source[i]);
}

} // namespace vq::gdiplus
