// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Fonts for tests: DejaVu Sans is all that every system has. Its tables: 2048 units to the em, winAscent 1901,
/// winDescent 483, no external leading.

#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace vq::test {

inline LOGFONTW logicalFont(LONG height, std::string_view face)
{
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    std::copy(face.begin(), face.end(), font.lfFaceName);
    return font;
}

/// A font made on a context; without one on a context of its own.
inline std::unique_ptr<Gdiplus::Font> fontFrom(const LOGFONTW& logicalFont, HDC context = nullptr)
{
    const HDC own = context ? nullptr : CreateCompatibleDC(nullptr);
    auto font = std::make_unique<Gdiplus::Font>(context ? context : own, &logicalFont);
    if (own)
        DeleteDC(own);
    return font;
}

inline std::unique_ptr<Gdiplus::Font> sansFont(LONG height, HDC context = nullptr)
{
    auto font = fontFrom(logicalFont(height, "DejaVu Sans"), context);
    EXPECT_EQ(font->GetLastStatus(), Gdiplus::Ok);
    return font;
}

} // namespace vq::test
