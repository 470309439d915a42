// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What happens to a single pixel. Standard library only.

#include <cstdint>

namespace vq {

using Channel = std::uint8_t;
using Pixel = std::uint32_t; // 0xAARRGGBB, straight alpha; in memory blue, green, red, alpha

inline constexpr Pixel kAlphaBits = 0xFF000000;
inline constexpr Pixel kColourBits = 0x00FFFFFF;

// Values and not references, so no std::min and std::max: where these two stand side by side or work on memory GCC 12
// compares and selects.
inline constexpr auto smaller = [](Channel a, Channel b) { return a < b ? a : b; };
inline constexpr auto larger = [](Channel a, Channel b) { return a > b ? a : b; };

inline constexpr Pixel argb(std::uint8_t alpha, std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return static_cast<Pixel>(alpha) << 24 | static_cast<Pixel>(red) << 16 | static_cast<Pixel>(green) << 8 | blue;
}

inline constexpr Pixel withAlpha(Pixel pixel, std::uint8_t alpha)
{
    return (pixel & kColourBits) | static_cast<Pixel>(alpha) << 24;
}

/// The alpha channel as an opaque grey.
inline constexpr Pixel alphaAsGrey(Pixel pixel)
{
    return kAlphaBits | (pixel >> 24) * 0x010101;
}

inline constexpr Pixel redAndBlueExchanged(Pixel pixel)
{
    return (pixel & 0xFF00FF00) | (pixel >> 16 & 0xFF) | (pixel & 0xFF) << 16;
}

/// A GDI colour, 0x00BBGGRR, as a pixel; its top byte is ignored.
inline constexpr Pixel pixelFromColorRef(std::uint32_t colour, std::uint8_t alpha)
{
    return withAlpha(redAndBlueExchanged(colour), alpha);
}

/// Alpha times `factor`, divided by 256 and cut to a byte. Only the low 16 bits of the product and so of the factor
/// matter, which makes the product exact for factors of any size.
inline constexpr Pixel withScaledAlpha(Pixel pixel, std::uint16_t factor)
{
    const Pixel product = (pixel >> 24) * factor;
    return (pixel & kColourBits) | (product << 16 & kAlphaBits);
}

inline constexpr Pixel zeroIfTransparent(Pixel pixel)
{
    return pixel & kAlphaBits ? pixel : 0;
}

} // namespace vq
