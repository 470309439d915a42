// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Text on images and what it leaves there. DejaVu Sans is all that every system has: 2048 units to the em, a cell of
/// 1901 above and 483 below the base line.

#include "parity/KnownDifferences.h"
#include "parity/TextSupport.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <algorithm>
#include <optional>
#include <ostream>

inline void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << " to " << rect.right << ", " << rect.bottom;
}

inline void PrintTo(const CSize& size, std::ostream* out)
{
    *out << size.cx << " x " << size.cy;
}

namespace vq::test {

/// The process's rendering hint for as long as this lives.
class ScopedHint
{
public:
    explicit ScopedHint(Gdiplus::TextRenderingHint hint) : m_former(CVQDIB::SetRenderingHint(hint)) {}
    ~ScopedHint() { CVQDIB::SetRenderingHint(m_former); }
    ScopedHint(const ScopedHint&) = delete;
    ScopedHint& operator=(const ScopedHint&) = delete;

private:
    Gdiplus::TextRenderingHint m_former;
};

inline void setSans(CVQDIB& image, LONG height)
{
    LOGFONTW font = logicalFont(height, "DejaVu Sans");
    image.SetTextFont(font);
}

/// The smallest rectangle, right and bottom edges outside, around pixels that are not 0; none in an empty picture.
inline std::optional<CRect> inkOf(CVQDIB& image)
{
    CRect ink(image.GetWidth(), image.GetHeight(), 0, 0);
    for (LONG y = 0; y < image.GetHeight(); ++y) {
        for (LONG x = 0; x < image.GetWidth(); ++x) {
            if (image(x, y) == 0)
                continue;
            ink.left = std::min(ink.left, x);
            ink.right = std::max(ink.right, x + 1);
            ink.top = std::min(ink.top, y);
            ink.bottom = std::max(ink.bottom, y + 1);
        }
    }
    return ink.right == 0 ? std::nullopt : std::optional(ink);
}

inline bool isBlank(CVQDIB& image)
{
    return !inkOf(image);
}

inline std::int64_t sumOfAlpha(CVQDIB& image)
{
    std::int64_t sum = 0;
    for (const ULONG pixel : pixels(image))
        sum += pixel >> 24;
    return sum;
}

inline testing::AssertionResult sameImages(CVQDIB& actual, CVQDIB& expected)
{
    return samePixels(pixels(actual), pixels(expected), expected.GetWidth());
}

} // namespace vq::test
