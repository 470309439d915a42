// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small pictures as lists of pixels. Images are painted and read in place, never handed around by value: a copied
/// `CVQDIB` has the size of its original and none of its pixels.

#include "VQDraw/VQDIB.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <sstream>
#include <vector>

namespace vq::test {

using Pixels = std::vector<ULONG>; // 0xAARRGGBB, row by row from the top

/// Writes every pixel of an existing image; the list has as many entries as the image has pixels.
inline void paint(CVQDIB& image, const Pixels& content)
{
    ASSERT_EQ(static_cast<std::int64_t>(content.size()), image.GetSize());
    for (std::size_t i = 0; i < content.size(); ++i)
        image.GetImageBuffer()[i] = content[i];
}

inline Pixels pixels(CVQDIB& image)
{
    const ULONG* first = image.GetImageBuffer();
    return first == nullptr ? Pixels{} : Pixels(first, first + image.GetSize());
}

/// The same pixels for the same seed on every system.
inline Pixels randomPixels(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    Pixels result(count);
    for (ULONG& pixel : result)
        pixel = static_cast<ULONG>(generator());
    return result;
}

/// Random pixels of alpha 0 (all bytes 0), 128 and 255 with colour bytes 0 and 255: they pass through premultiplied
/// storage unchanged.
inline Pixels sturdyPixels(std::size_t count, std::uint32_t seed)
{
    constexpr ULONG kAlphas[] = {0x00000000, 0x80000000, 0xFF000000, 0xFF000000};
    constexpr ULONG kColours[] = {0x000000, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    Pixels result = randomPixels(count, seed);
    for (ULONG& pixel : result) {
        const ULONG alpha = kAlphas[pixel >> 30];
        pixel = alpha == 0 ? 0 : alpha | kColours[pixel & 7];
    }
    return result;
}

inline void fillRandom(CVQDIB& image, std::uint32_t seed)
{
    paint(image, randomPixels(static_cast<std::size_t>(image.GetSize()), seed));
}

/// Compares two pictures of a width; a failure names the first wrong pixel and shows both values in hexadecimal.
inline testing::AssertionResult samePixels(const Pixels& actual, const Pixels& expected, LONG width)
{
    if (actual.size() != expected.size())
        return testing::AssertionFailure() << actual.size() << " pixels instead of " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (actual[i] == expected[i])
            continue;
        const auto columns = static_cast<std::size_t>(width);
        std::ostringstream text;
        text << "pixel (" << i % columns << ", " << i / columns << ") is " << std::hex << actual[i] << " instead of "
             << expected[i];
        return testing::AssertionFailure() << text.str();
    }
    return testing::AssertionSuccess();
}

inline testing::AssertionResult shows(CVQDIB& image, const Pixels& expected)
{
    return samePixels(pixels(image), expected, image.GetWidth());
}

} // namespace vq::test
