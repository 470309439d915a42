// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small images to draw on, and what has been drawn on them in forms that a test can write down.

#include "parity/TextSupport.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <cstdlib>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace vq::test {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kInk = RGB(0x10, 0x20, 0x30);
constexpr ULONG kRedPixel = 0xFFFF0000;
constexpr ULONG kBluePixel = 0xFF0000FF;
constexpr ULONG kInkPixel = 0xFF102030;

/// As a new image, with antialiasing, but for its font: one that every system has.
class SmoothImage : public CVQDIB
{
public:
    SmoothImage(int width, int height, ULONG pixel = 0) : CVQDIB(width, height)
    {
        VQTestAccess::font(*this) = logicalFont(-11, "DejaVu Sans");
        Clear(Gdiplus::Color(pixel));
    }
};

/// Without antialiasing: every system lights the same pixels.
class HardImage : public SmoothImage
{
public:
    HardImage(int width, int height, ULONG pixel = 0) : SmoothImage(width, height, pixel) { EnableAntialias(false); }
};

inline ULONG at(CVQDIB& image, LONG x, LONG y)
{
    return image(x, y);
}

/// The picture as text, a line a row: '#' where a pixel is not zero.
inline std::string drawn(CVQDIB& image)
{
    std::string text;
    for (LONG y = 0; y < image.GetHeight(); ++y) {
        for (LONG x = 0; x < image.GetWidth(); ++x)
            text += image(x, y) != 0 ? '#' : '.';
        text += '\n';
    }
    return text;
}

inline std::string rows(std::initializer_list<const char*> rows)
{
    std::string text;
    for (const char* row : rows)
        text.append(row).push_back('\n');
    return text;
}

/// Whole numbers in ascending order: columns of a row, or rows of a column.
using Places = std::vector<LONG>;

inline Places fromTo(LONG first, LONG last)
{
    Places places;
    for (LONG i = first; i <= last; ++i)
        places.push_back(i);
    return places;
}

inline Places columnsDrawn(CVQDIB& image, LONG y)
{
    Places places;
    for (LONG x = 0; x < image.GetWidth(); ++x)
        if (image(x, y) != 0)
            places.push_back(x);
    return places;
}

inline Places rowsDrawn(CVQDIB& image, LONG x)
{
    Places places;
    for (LONG y = 0; y < image.GetHeight(); ++y)
        if (image(x, y) != 0)
            places.push_back(y);
    return places;
}

/// The smallest box around the pixels of one value, both edges inside, and how many there are.
struct Found
{
    LONG left, top, right, bottom;
    int count;
    friend bool operator==(const Found&, const Found&) = default;
    friend void PrintTo(const Found& found, std::ostream* out)
    {
        *out << found.count << " pixels in columns " << found.left << " .. " << found.right << ", rows " << found.top
             << " .. " << found.bottom;
    }
};

template <typename Condition>
Found findIf(CVQDIB& image, Condition condition)
{
    Found found{1 << 20, 1 << 20, -1, -1, 0};
    for (LONG y = 0; y < image.GetHeight(); ++y)
        for (LONG x = 0; x < image.GetWidth(); ++x)
            if (condition(image(x, y)))
                found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x),
                         std::max(found.bottom, y), found.count + 1};
    return found;
}

inline Found find(CVQDIB& image, ULONG value)
{
    return findIf(image, [value](ULONG pixel) { return pixel == value; });
}

inline Found findDrawn(CVQDIB& image)
{
    return findIf(image, [](ULONG pixel) { return pixel != 0; });
}

inline testing::AssertionResult showsTheSame(CVQDIB& image, CVQDIB& expected)
{
    return samePixels(pixels(image), pixels(expected), image.GetWidth());
}

/// Whether each channel differs by at most `tolerance`.
inline testing::AssertionResult isNear(ULONG pixel, ULONG expected, int tolerance)
{
    for (int shift = 0; shift < 32; shift += 8)
        if (std::abs(static_cast<int>(pixel >> shift & 0xFF) - static_cast<int>(expected >> shift & 0xFF)) > tolerance)
            return testing::AssertionFailure() << std::hex << pixel << " is not near " << expected;
    return testing::AssertionSuccess();
}

} // namespace vq::test
