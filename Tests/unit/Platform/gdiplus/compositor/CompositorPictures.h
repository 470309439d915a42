// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small pictures for the compositor's tests: pixels typed as lists, random pixels, comparisons that name the pixel.

#include "Platform/gdiplus/compositor/PixelView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iomanip>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

namespace vq::gdiplus::test {

using Pixels = std::vector<Pixel>;

/// A picture that owns its pixels, row by row from the top.
struct Picture
{
    Picture(int columns, int rows, Pixel colour = 0)
        : width(columns), height(rows),
          pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), colour)
    {
    }

    Picture(int columns, int rows, Pixels content) : width(columns), height(rows), pixels(std::move(content)) {}

    PixelView view()
    {
        return {reinterpret_cast<std::uint8_t*>(pixels.data()), std::ptrdiff_t{4} * width, width, height};
    }

    ConstPixelView view() const
    {
        return {reinterpret_cast<const std::uint8_t*>(pixels.data()), std::ptrdiff_t{4} * width, width, height};
    }

    Pixel& at(int x, int y)
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    Pixel at(int x, int y) const { return const_cast<Picture*>(this)->at(x, y); }

    int width;
    int height;
    Pixels pixels;
};

/// The same pixels for the same seed on every system.
inline Pixels randomPixels(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    Pixels result(count);
    for (Pixel& pixel : result)
        pixel = static_cast<Pixel>(generator());
    return result;
}

inline Pixels opaquePixels(std::size_t count, std::uint32_t seed)
{
    Pixels result = randomPixels(count, seed);
    for (Pixel& pixel : result)
        pixel |= kAlphaBits;
    return result;
}

/// Random pixels among which alpha 0 and 255 come single and in long runs.
inline Pixels overlayPixels(std::size_t count, std::uint32_t seed)
{
    Pixels result = randomPixels(count, seed);
    std::mt19937 generator(seed + 1);
    for (std::size_t i = 0; i < count;) {
        const std::size_t length = 1 + generator() % (generator() % 3 == 0 ? 100 : 3);
        const auto kind = generator() % 3;
        for (const std::size_t end = std::min(count, i + length); i < end; ++i) {
            if (kind == 0)
                result[i] &= ~kAlphaBits;
            else if (kind == 1)
                result[i] |= kAlphaBits;
        }
    }
    return result;
}

inline int channelOf(Pixel pixel, int shift)
{
    return static_cast<int>(pixel >> shift & 0xFF);
}

/// The largest distance between two channels; pixels of alpha 0 are equal whatever their colours.
inline int distance(Pixel a, Pixel b)
{
    int result = std::abs(channelOf(a, 24) - channelOf(b, 24));
    if (channelOf(a, 24) == 0 || channelOf(b, 24) == 0)
        return result;
    for (int shift : {0, 8, 16})
        result = std::max(result, std::abs(channelOf(a, shift) - channelOf(b, shift)));
    return result;
}

inline testing::AssertionResult agree(const Pixels& actual, const Pixels& expected, int width, int tolerance)
{
    if (actual.size() != expected.size())
        return testing::AssertionFailure() << actual.size() << " pixels instead of " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (tolerance == 0 ? actual[i] == expected[i] : distance(actual[i], expected[i]) <= tolerance)
            continue;
        std::ostringstream text;
        text << "pixel (" << i % static_cast<std::size_t>(width) << ", " << i / static_cast<std::size_t>(width)
             << ") is " << std::hex << std::setfill('0') << std::setw(8) << actual[i] << " instead of " << std::setw(8)
             << expected[i];
        return testing::AssertionFailure() << text.str();
    }
    return testing::AssertionSuccess();
}

inline testing::AssertionResult shows(const Picture& picture, const Pixels& expected, int tolerance = 0)
{
    return agree(picture.pixels, expected, picture.width, tolerance);
}

} // namespace vq::gdiplus::test
