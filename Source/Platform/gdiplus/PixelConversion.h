// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rows of pixels from one memory format to another, through 32 bits with straight alpha. The bytes in memory need no
/// alignment.

#include "Platform/gdiplus/compositor/Premultiply.h"

#include <cstring>
#include <span>

namespace vq::gdiplus {

/// How pixels lie in memory.
enum class Layout {
    Straight,      ///< 32bppARGB
    Opaque,        ///< 32bppRGB: 32 bits, the fourth byte means nothing
    Premultiplied, ///< 32bppPARGB
    Packed         ///< 24bppRGB
};

constexpr std::size_t bytesPerPixel(Layout layout)
{
    return layout == Layout::Packed ? 3 : 4;
}

/// Applies a formula to 32-bit pixels in unaligned memory. Source and destination may be the same.
template <typename Formula>
void convertWords(const std::uint8_t* from, std::uint8_t* to, std::size_t count, Formula formula)
{
    for (std::size_t i = 0; i < count; ++i) {
        Pixel pixel;
        std::memcpy(&pixel, from + 4 * i, 4);
        pixel = formula(pixel);
        std::memcpy(to + 4 * i, &pixel, 4);
    }
}

/// A row of any layout as straight pixels.
inline void readRow(Layout layout, const std::uint8_t* from, std::span<Pixel> pixels)
{
    auto* to = reinterpret_cast<std::uint8_t*>(pixels.data());
    switch (layout) {
    case Layout::Straight:
        std::memcpy(to, from, pixels.size_bytes());
        break;
    case Layout::Opaque:
        convertWords(from, to, pixels.size(), [](Pixel pixel) { return pixel | kAlphaBits; });
        break;
    case Layout::Premultiplied:
        convertWords(from, to, pixels.size(), straight);
        break;
    case Layout::Packed:
        for (Pixel& pixel : pixels) {
            pixel = kAlphaBits | static_cast<Pixel>(from[2]) << 16 | static_cast<Pixel>(from[1]) << 8 | from[0];
            from += 3;
        }
        break;
    }
}

/// Straight pixels as a row of any layout. Layouts without alpha take the colour bytes as they are.
inline void writeRow(Layout layout, std::span<const Pixel> pixels, std::uint8_t* to)
{
    const auto* from = reinterpret_cast<const std::uint8_t*>(pixels.data());
    switch (layout) {
    case Layout::Straight:
        std::memcpy(to, from, pixels.size_bytes());
        break;
    case Layout::Opaque:
        convertWords(from, to, pixels.size(), [](Pixel pixel) { return pixel | kAlphaBits; });
        break;
    case Layout::Premultiplied:
        convertWords(from, to, pixels.size(), premultiplied);
        break;
    case Layout::Packed:
        for (const Pixel pixel : pixels) {
            to[0] = static_cast<std::uint8_t>(pixel);
            to[1] = static_cast<std::uint8_t>(pixel >> 8);
            to[2] = static_cast<std::uint8_t>(pixel >> 16);
            to += 3;
        }
        break;
    }
}

} // namespace vq::gdiplus
