// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small pictures for tests: memory, a bitmap over it and a graphics on that.

#include "Platform/Platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <vector>

namespace vq::test {

/// A pixel 0xAARRGGBB that prints as eight digits.
struct Argb
{
    std::uint32_t value = 0;
    friend bool operator==(Argb, Argb) = default;
    friend void PrintTo(Argb pixel, std::ostream* out)
    {
        char digits[9];
        std::snprintf(digits, sizeof digits, "%08X", static_cast<unsigned>(pixel.value));
        *out << digits;
    }
};

using Row = std::vector<Argb>;

inline Row row(std::initializer_list<std::uint32_t> pixels)
{
    Row result;
    for (const std::uint32_t pixel : pixels)
        result.push_back({pixel});
    return result;
}

/// Whether each channel of two pixels differs by at most `tolerance`.
inline bool isNear(std::uint32_t a, std::uint32_t b, int tolerance)
{
    for (int shift = 0; shift < 32; shift += 8)
        if (std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)) > tolerance)
            return false;
    return true;
}

MATCHER_P2(Near, expected, tolerance, "")
{
    return isNear(arg.value, expected, tolerance);
}

/// 32-bit straight-alpha pixels over memory of the test's own, zeroed or filled, without smoothing.
class TestPicture
{
public:
    TestPicture(int width, int height, std::uint32_t fill = 0)
        : m_width(width), m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill),
          bitmap(width, height, width * 4, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(m_pixels.data())),
          graphics(&bitmap)
    {
        graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
    }

    TestPicture(int width, int height, std::initializer_list<std::uint32_t> pixels) : TestPicture(width, height)
    {
        std::copy(pixels.begin(), pixels.end(), m_pixels.begin());
    }

    Argb at(int x, int y) const { return {m_pixels[static_cast<std::size_t>(y * m_width + x)]}; }
    void set(int x, int y, std::uint32_t pixel) { m_pixels[static_cast<std::size_t>(y * m_width + x)] = pixel; }

    Row row(int y) const
    {
        Row result;
        for (int x = 0; x < m_width; ++x)
            result.push_back(at(x, y));
        return result;
    }

    Row all() const
    {
        Row result;
        for (const std::uint32_t pixel : m_pixels)
            result.push_back({pixel});
        return result;
    }

    /// The rectangle around the pixels of a colour, and how many there are.
    struct Found
    {
        int left, top, right, bottom, count;
        friend bool operator==(const Found&, const Found&) = default;
        friend void PrintTo(const Found& found, std::ostream* out)
        {
            *out << found.count << " pixels in columns " << found.left << " .. " << found.right << ", rows "
                 << found.top << " .. " << found.bottom;
        }
    };
    Found find(std::uint32_t colour) const
    {
        return findIf([colour](std::uint32_t pixel) { return pixel == colour; });
    }
    Found findOther(std::uint32_t colour) const
    {
        return findIf([colour](std::uint32_t pixel) { return pixel != colour; });
    }
    template <typename Condition>
    Found findIf(Condition condition) const
    {
        Found found{m_width, 1 << 20, -1, -1, 0};
        for (int i = 0; i < static_cast<int>(m_pixels.size()); ++i)
            if (condition(m_pixels[static_cast<std::size_t>(i)]))
                found = {std::min(found.left, i % m_width), std::min(found.top, i / m_width),
                         std::max(found.right, i % m_width), std::max(found.bottom, i / m_width), found.count + 1};
        return found;
    }

    void fill(std::uint32_t colour, int x, int y, int width, int height)
    {
        const Gdiplus::SolidBrush brush{Gdiplus::Color(colour)};
        graphics.FillRectangle(&brush, x, y, width, height);
    }

    /// The pixels of another bitmap, as it gives them out.
    static Row pixelsOf(Gdiplus::Bitmap& bitmap)
    {
        Row result;
        for (UINT y = 0; y < bitmap.GetHeight(); ++y)
            for (UINT x = 0; x < bitmap.GetWidth(); ++x) {
                Gdiplus::Color colour;
                bitmap.GetPixel(static_cast<INT>(x), static_cast<INT>(y), &colour);
                result.push_back({colour.GetValue()});
            }
        return result;
    }

private:
    int m_width;
    std::vector<std::uint32_t> m_pixels;

public:
    Gdiplus::Bitmap bitmap;
    Gdiplus::Graphics graphics;
};

} // namespace vq::test
